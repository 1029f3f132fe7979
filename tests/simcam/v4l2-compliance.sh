#!/bin/bash
# v4l2-compliance on the simulated camera, with all its formats streamed. One test may fail: the
# descriptor is an eventfd, which cannot raise POLLPRI, so events of controls are only found by
# asking (VIDIOC_DQEVENT). Everything else has to pass.
# usage: v4l2-compliance.sh SIMCAM
set -u
readonly allowed='test VIDIOC_(UN)SUBSCRIBE_EVENT/DQEVENT: FAIL'

report=$("$1" run -- v4l2-compliance -d /dev/video0 -s5 -f 2>&1 | tr '\r' '\n')
failed=$(grep -F ': FAIL' <<<"$report" | sed 's/^[[:space:]]*//')
total=$(grep '^Total for' <<<"$report")
echo "$total"
if [ "$failed" != "$allowed" ] || ! [[ $total == *'Failed: 1,'* ]]; then
    echo "$report"
    exit 1
fi

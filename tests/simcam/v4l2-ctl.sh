#!/bin/bash
# v4l2-ctl on the simulated camera: formats, controls and frames.
# usage: v4l2-ctl.sh SIMCAM
set -eu
if [ $# -eq 1 ]; then
    exec "$1" run -- "$0"
fi

fail() {
    echo "FAIL: $1" >&2
    exit 1
}

expect() { # WHAT TEXT PATTERN
    grep -qE "$3" <<<"$2" || fail "$1: no $3 in: $2"
}

info=$(v4l2-ctl --info)
expect driver "$info" 'Driver name +: uvcvideo'
expect name "$info" 'Card type +: Meridax Simulated Camera'

# One line a mode: format, size and its rates.
modes=$(v4l2-ctl --list-formats-ext | awk '
    /\[[0-9]\]:/ { format = substr($2, 2, 4) }
    /Size:/ { printf "\n%s %s", format, $3 }
    /Interval:/ { sub(/\(/, "", $4); printf " %d", $4 }')
expected='
MJPG 640x480 30 15 5
MJPG 1280x720 30 15 5
MJPG 1920x1080 30 15 5
MJPG 3264x2448 15 5
YUYV 640x480 30 15 5
YUYV 1280x720 10 5
YUYV 1920x1080 5
YUYV 3264x2448 2'
[ "$modes" = "$expected" ] || fail "modes: $modes"

controls=$(v4l2-ctl --list-ctrls)
expect controls "$controls" 'brightness .*min=-64 max=64 step=1 default=0 value=0'
expect controls "$controls" 'gain .*min=0 max=100 step=1 default=0'
expect controls "$controls" 'exposure_time_absolute .*min=1 max=5000 .*flags=inactive'
expect controls "$controls" 'focus_absolute .*min=0 max=1023 .*flags=inactive'
v4l2-ctl -c auto_exposure=1,exposure_time_absolute=200
expect exposure "$(v4l2-ctl -C exposure_time_absolute)" ': 200$'

frames=$(mktemp)
trap 'rm -f "$frames"' EXIT
stream() { # FORMAT WIDTH HEIGHT METHOD COUNT
    v4l2-ctl -v "width=$2,height=$3,pixelformat=$1" "--stream-$4" --stream-count="$5" \
        --stream-to="$frames" 2>/dev/null
    stat -c %s "$frames"
}
[ "$(stream YUYV 640 480 mmap 5)" = $((5 * 2 * 640 * 480)) ] || fail 'YUYV, mapped'
[ "$(stream YUYV 640 480 user 5)" = $((5 * 2 * 640 * 480)) ] || fail 'YUYV, user pointers'
[ "$(stream MJPG 3264 2448 mmap 5)" -gt 1000000 ] || fail 'MJPEG of 8 megapixels'
echo 'all as expected'

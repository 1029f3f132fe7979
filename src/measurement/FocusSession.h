#pragma once

#include "measurement/FocusSweep.h"
#include "settings/AppSettings.h"

#include <QTimer>

#include <atomic>
#include <cstdint>

namespace meridax {

/// What the controller keeps of a focus sweep while the processing thread measures for it.
struct FocusSession
{
    std::atomic<bool> active = false; ///< the processing thread measures while it is set
    std::atomic<int> roiX = 0;        ///< window centre and half side, px of the frame
    std::atomic<int> roiY = 0;
    std::atomic<int> halfSize = 0;
    std::atomic<double> sharpness = 0.0;
    std::atomic<std::uint64_t> framesMeasured = 0;

    // GUI thread only
    FocusSweep search;
    std::uint64_t framesAtMove = 0; ///< `framesMeasured` at the last focus move
    std::uint64_t awaitedWrite = 0; ///< number of the move that has not been answered, 0 none
    int waitTicks = 0;              ///< ticks spent waiting for frames since then
    CameraSettings sweepSettings;   ///< from the start; its focus value is the one to return to
    QTimer timer;
};

} // namespace meridax

#pragma once

#include "measurement/CalibrationRun.h"
#include "measurement/CandidateSearch.h"
#include "settings/AppSettings.h"

#include <opencv2/core.hpp>
#include <opencv2/features2d.hpp>

#include <atomic>
#include <mutex>

namespace meridax {

/// What the controller keeps of a calibration while GUI thread and processing thread share it.
struct CalibrationSession
{
    std::mutex mutex; ///< the measurement mutex; guards `run`
    CalibrationRun run;

    // Mirrors of `run` for readers that do not wait: the GUI thread asks `active` for every frame,
    // the sector test asks for the guide.
    std::atomic<bool> active = false;
    std::atomic<int> positions = 3;
    std::atomic<int> guideIndex = 0;

    // What was published last; the GUI thread resets it.
    std::atomic<int> blobCount = -1; ///< -1: publish the next count whatever it is
    std::atomic<bool> inSector = false;
    std::atomic<double> alignment = 0.0;
    std::atomic<bool> searchStale = false; ///< what `search` knows is of an earlier calibration

    // Processing thread only. The images are kept for their memory.
    cv::Ptr<cv::SimpleBlobDetector> detector;
    BlobSettings detectorSettings; ///< what `detector` was built from
    cv::Mat grey;
    cv::Mat scaled;
    CandidateSearch search;

    /// The detector is missing or was built from other settings than those of the frame, which may
    /// be older than the controller's.
    bool detectorDirty(const BlobSettings &settings) const
    {
        return !detector || detectorSettings != settings;
    }
};

} // namespace meridax

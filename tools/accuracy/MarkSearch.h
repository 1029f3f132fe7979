#pragma once

#include "MarkCamera.h"

#include "measurement/BlobCandidates.h"

#include <QString>

#include <optional>

namespace meridax::accuracy {

/// What comes of a calibration under some conditions.
struct MarkOutcome
{
    double seenContrast = 0.0; ///< grey levels in the middle of the mark, after the blur
    bool foundByDefault = false;
    bool foundAfterClick = false;
    double centreError = 0.0;         ///< px; NaN where the mark is not found
    std::optional<BlobSettings> set;  ///< by the click
    std::vector<BlobShortfall> lacks; ///< what the best candidate lacked
    QString reason;                   ///< why it is not found after the click
};

/// Goes with `camera`, set up before, through a calibration of eight positions with the default
/// detector values and, where the mark is not the only blob in every single picture, offers the
/// candidate as the program does, takes the values over and tries again.
MarkOutcome calibrate(MarkCamera &camera);

} // namespace meridax::accuracy

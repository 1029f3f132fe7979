#pragma once

#include "measurement/BlobCandidates.h"

#include <optional>

namespace meridax {

/// What the user is told while a calibration does not find its one mark, and the settings that
/// would find it.
struct BlobAdvice
{
    enum class Kind {
        None,      ///< nothing to say
        Candidate, ///< no blob, but something that may be the mark
        Several,   ///< more than one blob
        Flicker,   ///< the blob comes and goes
        Fault,     ///< the picture shows nothing that could be the mark
    };
    Kind kind = Kind::None;
    PictureFault fault = PictureFault::NoDarkSpot;
    int blobs = 0;
    /// The candidate; with Several the blobs, the likeliest mark first and at most `mostShown`.
    std::vector<BlobCandidate> shown;
    double smallestArea = 0.0; ///< over all blobs, detection px²
    double largestArea = 0.0;
    /// With Flicker: the values between which the first shortfall of the candidate swings.
    double flickerLow = 0.0;
    double flickerHigh = 0.0;
    /// What no setting tells apart from the candidate.
    std::optional<BlobCandidate> inTheWay;
    /// Settings that find the candidate alone; tried on the last pictures by the detector itself.
    std::optional<BlobSettings> proposal;

    static constexpr size_t mostShown = 12;
};

} // namespace meridax

#pragma once

#include "measurement/BlobCandidates.h"

#include <optional>
#include <span>

/// Detector settings that find one candidate and nothing else.
namespace meridax {

/// One picture of the last few with the candidate in it.
struct BlobSighting
{
    const BlobScan *scan = nullptr;
    const BlobCandidate *candidate = nullptr;
};

struct Mending
{
    /// Differs from the present settings in as few values as possible; in steps of the sliders.
    std::optional<BlobSettings> settings;
    /// Without settings: an outline of the first sighting's scan that no setting keeps out, or -1
    /// where the candidate itself cannot be let through.
    int inTheWay = -1;
    /// How round the candidate shows where it shows worst; of two ways to mend, the higher one is
    /// the steadier.
    double steadiness = 0.0;
};

/// Looks for settings that let the candidate through in every sighting, with a margin, and nothing
/// else. The first sighting is the newest. Their scans were made with a lower threshold that is
/// `thresholdShift` above that of the settings.
Mending mendingSettings(std::span<const BlobSighting> sightings, const BlobSettings &settings,
                        double thresholdShift = 0.0);

/// The same for a single frame.
Mending mendingSettings(const BlobScan &scan, const BlobCandidate &candidate,
                        const BlobSettings &settings);

} // namespace meridax

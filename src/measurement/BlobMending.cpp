#include "measurement/BlobMending.h"

namespace meridax {
Mending mendingSettings(std::span<const BlobSighting>, const BlobSettings &)
{
    return {};
}
Mending mendingSettings(const BlobScan &scan, const BlobCandidate &candidate,
                        const BlobSettings &settings)
{
    const BlobSighting sighting{&scan, &candidate};
    return mendingSettings({&sighting, 1}, settings);
}
} // namespace meridax

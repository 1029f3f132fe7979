#pragma once

#include "measurement/BlobAdvice.h"

#include <QVariantMap>

namespace meridax {

/// The advice as QML reads it; empty for Kind::None. Keys:
/// - "kind": "candidate", "several", "flicker" or "fault"
/// - "fault": a PictureFault as number
/// - "blobs", "smallestArea", "largestArea": of all blobs, px² of the detection image
/// - "tags": maps with "points" (frame px), "centre", "radius", "area", "darkness" and
/// "shortfalls",
///   a list of maps with "filter" (a BlobFilter as number), "value" and "limit"
/// - "flickerLow", "flickerHigh"
/// - "inTheWay": a tag, only where something is
/// - "changes": what the proposed settings change, maps as in "shortfalls": "value" becomes "limit"
QVariantMap blobAdviceMap(const BlobAdvice &advice, const BlobSettings &present);

} // namespace meridax

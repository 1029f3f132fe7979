#include "MarkSearch.h"

#include "measurement/BlobMending.h"
#include "measurement/CircleFit.h"
#include "measurement/GuideGeometry.h"

#include <cmath>
#include <limits>
#include <vector>

namespace meridax::accuracy {
namespace {

constexpr int positions = 8;
constexpr int framesPerPosition = 2;
constexpr int framesBeforeClick = 5;

double distance(QPointF a, QPointF b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

/// The centre of the circle through all positions, or why there is none.
struct Attempt
{
    std::optional<QPointF> centre;
    QString reason;
};

Attempt measure(MarkCamera &camera, const BlobSettings &settings)
{
    const cv::Ptr<cv::SimpleBlobDetector> detector = createBlobDetector(settings);
    cv::Mat scaled;
    std::vector<QPointF> points;
    for (int position = 0; position < positions; ++position) {
        QPointF sum;
        for (int frame = 0; frame < framesPerPosition; ++frame) {
            const cv::Mat &picture = camera.shoot(guideAngle(position, positions));
            const auto blobs = detectBlobs(*detector, picture, scaled);
            if (blobs.size() != 1)
                return {std::nullopt, QStringLiteral("position %1, frame %2: %3 blobs")
                                          .arg(position)
                                          .arg(frame)
                                          .arg(blobs.size())};
            const cv::Point2d refined = refineBlobCentre(picture, blobs[0]);
            const QPointF found(refined.x, refined.y);
            if (distance(found, camera.mark()) > camera.markRadius())
                return {
                    std::nullopt,
                    QStringLiteral("position %1, frame %2: another blob").arg(position).arg(frame)};
            sum += found;
        }
        points.push_back(sum / framesPerPosition);
    }
    const CircleFitResult fit = computeCenterFromMeasurements(points);
    return fit.valid ? Attempt{fit.center(), {}}
                     : Attempt{std::nullopt, QStringLiteral("no circle")};
}

/// What the button of the program sets after some pictures of the mark at the first position.
std::optional<BlobSettings> click(MarkCamera &camera, const BlobSettings &settings,
                                  MarkOutcome &outcome)
{
    std::vector<BlobScan> scans;
    std::vector<BlobCandidate> candidates;
    scans.reserve(framesBeforeClick);
    candidates.reserve(framesBeforeClick);
    for (int frame = 0; frame < framesBeforeClick; ++frame) {
        const cv::Mat &picture = camera.shoot(guideAngle(0, positions));
        BlobScan scan = scanOutlines(picture, 1.0, settings);
        const std::vector<BlobCandidate> found = candidatesOf(scan, picture, settings);
        if (found.empty())
            continue;
        scans.push_back(std::move(scan));
        candidates.push_back(found.front());
    }
    std::vector<BlobSighting> sightings;
    for (size_t i = candidates.size(); i-- > 0;) {
        if (distance(candidates[i].centre, candidates.back().centre) < 5.0)
            sightings.push_back({&scans[i], &candidates[i]});
    }
    if (sightings.empty()) {
        outcome.reason = QStringLiteral("no candidate");
        return std::nullopt;
    }
    if (const double off = distance(candidates.back().centre, camera.mark()); off > 5.0) {
        outcome.reason =
            QStringLiteral("the nearest candidate is %1 px beside the mark").arg(off, 0, 'f', 0);
        return std::nullopt;
    }
    outcome.lacks = candidates.back().shortfalls;
    const Mending mending = mendingSettings(sightings, settings);
    if (!mending.settings)
        outcome.reason = mending.inTheWay < 0
                             ? QStringLiteral("no settings let the candidate through")
                             : QStringLiteral("something is in the way");
    return mending.settings;
}

} // namespace

MarkOutcome calibrate(MarkCamera &camera)
{
    MarkOutcome outcome;
    outcome.seenContrast = camera.seenContrast();
    Attempt attempt = measure(camera, BlobSettings{});
    outcome.foundByDefault = attempt.centre.has_value();
    if (!attempt.centre) {
        outcome.set = click(camera, BlobSettings{}, outcome);
        if (outcome.set) {
            attempt = measure(camera, *outcome.set);
            outcome.reason = attempt.reason;
        }
    }
    outcome.foundAfterClick = attempt.centre.has_value();
    outcome.centreError = attempt.centre ? distance(*attempt.centre, camera.centre())
                                         : std::numeric_limits<double>::quiet_NaN();
    return outcome;
}

} // namespace meridax::accuracy

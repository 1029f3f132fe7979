#include "MarkSearch.h"

#include "measurement/CandidateSearch.h"
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

/// What the button of the program sets, pressed soon after it is offered at the first position.
std::optional<BlobSettings> click(MarkCamera &camera, const BlobSettings &settings,
                                  MarkOutcome &outcome)
{
    constexpr int patience = 24; // pictures that are searched
    constexpr int reaction = 4;
    const cv::Ptr<cv::SimpleBlobDetector> detector = createBlobDetector(settings);
    CandidateSearch search;
    cv::Mat scaled;
    int offered = 0;
    for (int frame = 0; frame < patience && offered < reaction; ++frame) {
        const cv::Mat &picture = camera.shoot(guideAngle(0, positions));
        const auto blobs = static_cast<int>(detectBlobs(*detector, picture, scaled).size());
        if (blobs != 1)
            search.search(picture, 1.0, settings, blobs);
        offered += search.advice().proposal ? 1 : 0;
    }

    const BlobAdvice &advice = search.advice();
    if (!advice.shown.empty())
        outcome.lacks = advice.shown.front().shortfalls;
    if (!advice.proposal)
        outcome.reason = advice.shown.empty() ? QStringLiteral("no candidate")
                         : advice.inTheWay    ? QStringLiteral("something is in the way")
                                              : QStringLiteral("no offer");
    return advice.proposal;
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

#include "viewmodel/BlobAdviceMap.h"

namespace meridax {
namespace {

QVariantMap shortfallMap(const BlobShortfall &shortfall)
{
    return {{QStringLiteral("filter"), static_cast<int>(shortfall.filter)},
            {QStringLiteral("value"), shortfall.value},
            {QStringLiteral("limit"), shortfall.limit}};
}

QVariantMap tagMap(const BlobCandidate &candidate)
{
    QVariantList points;
    for (const QPointF &point : candidate.outline)
        points.append(point);
    QVariantList shortfalls;
    for (const BlobShortfall &shortfall : candidate.shortfalls)
        shortfalls.append(shortfallMap(shortfall));
    return {{QStringLiteral("points"), points},
            {QStringLiteral("centre"), candidate.centre},
            {QStringLiteral("radius"), candidate.radius},
            {QStringLiteral("area"), candidate.area},
            {QStringLiteral("darkness"), candidate.darkness},
            {QStringLiteral("shortfalls"), shortfalls}};
}

QVariantList changesBetween(const BlobSettings &from, const BlobSettings &to)
{
    QVariantList changes;
    const auto compare = [&changes](BlobFilter filter, bool wasOn, double before, double after) {
        if (before != after || !wasOn)
            changes.append(shortfallMap({filter, before, after}));
    };
    const bool area = from.filterByArea || !to.filterByArea;
    compare(BlobFilter::MinArea, area, from.minArea, to.minArea);
    compare(BlobFilter::MaxArea, area, from.maxArea, to.maxArea);
    compare(BlobFilter::Circularity, from.filterByCircularity || !to.filterByCircularity,
            from.minCircularity, to.minCircularity);
    compare(BlobFilter::Inertia, from.filterByInertia || !to.filterByInertia, from.minInertiaRatio,
            to.minInertiaRatio);
    compare(BlobFilter::MinThreshold, true, from.minThreshold, to.minThreshold);
    compare(BlobFilter::MaxThreshold, true, from.maxThreshold, to.maxThreshold);
    return changes;
}

QString nameOf(BlobAdvice::Kind kind)
{
    switch (kind) {
    case BlobAdvice::Kind::Several:
        return QStringLiteral("several");
    case BlobAdvice::Kind::Flicker:
        return QStringLiteral("flicker");
    case BlobAdvice::Kind::Fault:
        return QStringLiteral("fault");
    default:
        return QStringLiteral("candidate");
    }
}

} // namespace

QVariantMap blobAdviceMap(const BlobAdvice &advice, const BlobSettings &present)
{
    if (advice.kind == BlobAdvice::Kind::None)
        return {};
    QVariantList tags;
    for (const BlobCandidate &candidate : advice.shown)
        tags.append(tagMap(candidate));
    QVariantMap map{{QStringLiteral("kind"), nameOf(advice.kind)},
                    {QStringLiteral("fault"), static_cast<int>(advice.fault)},
                    {QStringLiteral("blobs"), advice.blobs},
                    {QStringLiteral("smallestArea"), advice.smallestArea},
                    {QStringLiteral("largestArea"), advice.largestArea},
                    {QStringLiteral("tags"), tags},
                    {QStringLiteral("flickerLow"), advice.flickerLow},
                    {QStringLiteral("flickerHigh"), advice.flickerHigh},
                    {QStringLiteral("changes"), QVariantList()}};
    if (advice.inTheWay)
        map.insert(QStringLiteral("inTheWay"), tagMap(*advice.inTheWay));
    if (advice.proposal)
        map.insert(QStringLiteral("changes"), changesBetween(present, *advice.proposal));
    return map;
}

} // namespace meridax

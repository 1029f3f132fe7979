#include "measurement/BlobMending.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace meridax {
namespace {

/// The values of those outlines of the candidate that have to pass, over all sightings.
struct ValueBox
{
    double minArea = std::numeric_limits<double>::infinity();
    double maxArea = 0.0;
    double minCircularity = std::numeric_limits<double>::infinity();
    double minInertia = std::numeric_limits<double>::infinity();
    double minThreshold = std::numeric_limits<double>::infinity();
    double maxThreshold = 0.0;
    /// What the values need beyond the box, since they differ from picture to picture.
    double circularityMargin = 0.0;
    double inertiaMargin = 0.0;

    void add(const BlobOutline &outline)
    {
        minArea = std::min(minArea, outline.area);
        maxArea = std::max(maxArea, outline.area);
        minCircularity = std::min(minCircularity, outline.circularity);
        minInertia = std::min(minInertia, outline.inertia);
        minThreshold = std::min(minThreshold, outline.threshold);
        maxThreshold = std::max(maxThreshold, outline.threshold);
    }
};

constexpr double kShapeMargin = 0.03;
constexpr double kThresholdMargin = 5.0;
constexpr double kHighestLevel = 255.0;

/// The shape of a ragged outline differs more from picture to picture than the few sightings show.
double marginOf(double least, double most)
{
    constexpr double widest = 0.2;
    const double ragged = 0.2 * std::max(0.0, 0.9 - least);
    return std::min(kShapeMargin + ragged + most - least, widest);
}

ValueBox boxOf(std::span<const BlobSighting> sightings, size_t outlines)
{
    ValueBox box;
    double roundest = 0.0; // among the worst of each sighting
    double evenest = 0.0;
    for (const BlobSighting &sighting : sightings) {
        const std::vector<int> &chain = sighting.candidate->chain;
        ValueBox own;
        for (size_t i = 0; i < std::min(outlines, chain.size()); ++i) {
            own.add(sighting.scan->outlines[chain[i]]);
            box.add(sighting.scan->outlines[chain[i]]);
        }
        roundest = std::max(roundest, own.minCircularity);
        evenest = std::max(evenest, own.minInertia);
    }
    box.circularityMargin = marginOf(box.minCircularity, roundest);
    box.inertiaMargin = marginOf(box.minInertia, evenest);
    return box;
}

double percentBelow(double value)
{
    return std::clamp(std::floor(value * 100.0 + 1e-9) / 100.0, 0.0, 1.0);
}

/// Two significant digits, so that the sliders show numbers a person would choose.
double tidied(double area, double (*rounded)(double))
{
    const double unit = std::pow(10.0, std::max(0.0, std::floor(std::log10(area)) - 1.0));
    return std::max(1.0, rounded(area / unit) * unit);
}

double areaBelow(double area)
{
    return tidied(area, [](double value) { return std::floor(value); });
}

double areaAbove(double area)
{
    return tidied(area, [](double value) { return std::ceil(value); });
}

/// `settings`, opened as far as the outlines in the box need it.
BlobSettings opened(const ValueBox &box, BlobSettings settings)
{
    constexpr double narrow = 0.01; // it would flicker
    if (settings.filterByCircularity && box.minCircularity < settings.minCircularity + narrow)
        settings.minCircularity = percentBelow(box.minCircularity - box.circularityMargin);
    if (settings.filterByInertia && box.minInertia < settings.minInertiaRatio + narrow)
        settings.minInertiaRatio = percentBelow(box.minInertia - box.inertiaMargin);
    if (settings.filterByArea && box.minArea < 1.05 * settings.minArea)
        settings.minArea = areaBelow(0.7 * box.minArea);
    if (settings.filterByArea && box.maxArea > 0.95 * settings.maxArea)
        settings.maxArea = areaAbove(1.3 * box.maxArea);
    if (box.minThreshold < settings.minThreshold)
        settings.minThreshold = box.minThreshold;
    if (box.maxThreshold >= settings.maxThreshold)
        settings.maxThreshold = std::min(box.maxThreshold + kThresholdMargin, kHighestLevel);
    return settings;
}

/// One way to keep other things out without losing the outlines in the box.
struct Restriction
{
    int value = 0; ///< which of the settings it sets; one of each kind is enough
    BlobSettings (*apply)(BlobSettings, double) = nullptr;
    double limit = 0.0;
};

std::vector<Restriction> restrictions(const ValueBox &box, const BlobSettings &settings)
{
    std::vector<Restriction> list;
    const auto minArea = [](BlobSettings s, double limit) {
        if (!s.filterByArea)
            s.maxArea = std::max(s.maxArea, 1e6);
        s.filterByArea = true;
        s.minArea = limit;
        return s;
    };
    const auto maxArea = [](BlobSettings s, double limit) {
        if (!s.filterByArea)
            s.minArea = 1.0;
        s.filterByArea = true;
        s.maxArea = limit;
        return s;
    };
    const auto circularity = [](BlobSettings s, double limit) {
        s.filterByCircularity = true;
        s.minCircularity = limit;
        return s;
    };
    const auto inertia = [](BlobSettings s, double limit) {
        s.filterByInertia = true;
        s.minInertiaRatio = limit;
        return s;
    };
    const auto maxThreshold = [](BlobSettings s, double limit) {
        s.maxThreshold = limit;
        return s;
    };
    const auto minThreshold = [](BlobSettings s, double limit) {
        s.minThreshold = limit;
        return s;
    };
    for (const double share : {0.5, 0.75}) {
        const double limit = areaBelow(share * box.minArea);
        if (!settings.filterByArea || limit > settings.minArea)
            list.push_back({0, minArea, limit});
    }
    for (const double share : {2.5, 1.4}) {
        const double limit = areaAbove(share * box.maxArea);
        if (!settings.filterByArea || limit < settings.maxArea)
            list.push_back({1, maxArea, limit});
    }
    for (const double more : {35.0, 15.0, kThresholdMargin}) {
        if (box.maxThreshold + more < settings.maxThreshold)
            list.push_back({2, maxThreshold, box.maxThreshold + more});
    }
    for (const double times : {2.0, 1.0}) {
        const double round = percentBelow(box.minCircularity - times * box.circularityMargin);
        if (!settings.filterByCircularity || round > settings.minCircularity)
            list.push_back({3, circularity, round});
        const double even = percentBelow(box.minInertia - times * box.inertiaMargin);
        if (!settings.filterByInertia || even > settings.minInertiaRatio)
            list.push_back({4, inertia, even});
    }
    if (box.minThreshold > settings.minThreshold)
        list.push_back({5, minThreshold, box.minThreshold});
    return list;
}

int changesBetween(const BlobSettings &a, const BlobSettings &b)
{
    return int(a.minThreshold != b.minThreshold) + int(a.maxThreshold != b.maxThreshold) +
           int(a.filterByArea != b.filterByArea) + int(a.minArea != b.minArea) +
           int(a.maxArea != b.maxArea) + int(a.filterByCircularity != b.filterByCircularity) +
           int(a.minCircularity != b.minCircularity) + int(a.filterByInertia != b.filterByInertia) +
           int(a.minInertiaRatio != b.minInertiaRatio);
}

struct Proposal
{
    BlobSettings settings;
    int changes = 0;
};

/// All settings worth a try, fewest changes first; among equals those that leave more room.
std::vector<Proposal> proposals(std::span<const BlobSighting> sightings,
                                const BlobSettings &settings, double thresholdShift)
{
    BlobSettings shifted = settings;
    shifted.minThreshold += thresholdShift;
    size_t shortest = std::numeric_limits<size_t>::max();
    for (const BlobSighting &sighting : sightings)
        shortest = std::min(shortest, sighting.candidate->chain.size());

    std::vector<Proposal> list;
    const auto propose = [&list, &settings](const BlobSettings &proposed) {
        list.push_back({proposed, changesBetween(proposed, settings)});
    };
    for (const size_t outlines : {std::clamp<size_t>(shortest / 2, 4, 8), size_t(3), size_t(2)}) {
        const ValueBox box = boxOf(sightings, outlines);
        const BlobSettings base = opened(box, shifted);
        propose(base);
        const std::vector<Restriction> all = restrictions(box, base);
        for (size_t i = 0; i < all.size(); ++i) {
            const BlobSettings one = all[i].apply(base, all[i].limit);
            propose(one);
            for (size_t j = i + 1; j < all.size(); ++j) {
                if (all[j].value == all[i].value)
                    continue;
                const BlobSettings two = all[j].apply(one, all[j].limit);
                propose(two);
                for (size_t k = j + 1; k < all.size(); ++k) {
                    if (all[k].value != all[i].value && all[k].value != all[j].value)
                        propose(all[k].apply(two, all[k].limit));
                }
            }
        }
    }
    std::stable_sort(list.begin(), list.end(),
                     [](const Proposal &a, const Proposal &b) { return a.changes < b.changes; });
    return list;
}

/// A little more open: what passes now would be the next to flicker.
BlobSettings relaxed(BlobSettings settings)
{
    settings.minCircularity = std::max(0.0, settings.minCircularity - kShapeMargin);
    settings.minInertiaRatio = std::max(0.0, settings.minInertiaRatio - kShapeMargin);
    settings.minArea *= 0.85;
    settings.maxArea *= 1.2;
    return settings;
}

bool isCandidate(const FoundBlob &blob, const BlobSighting &sighting)
{
    const std::vector<int> &chain = sighting.candidate->chain;
    return std::find(chain.begin(), chain.end(), blob.outline) != chain.end();
}

/// Tries settings on the sightings, of which only the outlines that could pass are kept.
class Trial
{
public:
    Trial(std::span<const BlobSighting> sightings, const BlobSettings &mostOpen)
        : m_sightings(sightings)
    {
        for (const BlobSighting &sighting : sightings)
            m_outlines.push_back(passingOutlines(*sighting.scan, relaxed(mostOpen)));
    }

    bool findsOnlyCandidate(const BlobSettings &settings) const
    {
        for (size_t i = 0; i < m_sightings.size(); ++i) {
            const std::vector<FoundBlob> found = foundIn(i, settings, 1);
            if (found.size() != 1 || !isCandidate(found[0], m_sightings[i]))
                return false;
        }
        return true;
    }

    /// The largest blob beside the candidate in the newest sighting, or -1.
    int other(const BlobSettings &settings) const
    {
        const FoundBlob *largest = nullptr;
        const std::vector<FoundBlob> found = foundIn(0, settings, m_outlines[0].size());
        for (const FoundBlob &blob : found) {
            if (!isCandidate(blob, m_sightings[0]) && (!largest || blob.radius > largest->radius))
                largest = &blob;
        }
        return largest ? largest->outline : -1;
    }

private:
    std::vector<FoundBlob> foundIn(size_t sighting, const BlobSettings &settings, size_t most) const
    {
        return blobsFound(*m_sightings[sighting].scan, m_outlines[sighting], settings, most);
    }

    std::span<const BlobSighting> m_sightings;
    std::vector<std::vector<int>> m_outlines;
};

} // namespace

Mending mendingSettings(std::span<const BlobSighting> sightings, const BlobSettings &settings,
                        double thresholdShift)
{
    if (sightings.empty())
        return {};
    const std::vector<Proposal> all = proposals(sightings, settings, thresholdShift);
    BlobSettings mostOpen = all.front().settings;
    for (const auto &[proposed, changes] : all) {
        mostOpen.minThreshold = std::min(mostOpen.minThreshold, proposed.minThreshold);
        mostOpen.maxThreshold = std::max(mostOpen.maxThreshold, proposed.maxThreshold);
        mostOpen.filterByArea &= proposed.filterByArea;
        mostOpen.minArea = std::min(mostOpen.minArea, proposed.minArea);
        mostOpen.maxArea = std::max(mostOpen.maxArea, proposed.maxArea);
        mostOpen.filterByCircularity &= proposed.filterByCircularity;
        mostOpen.minCircularity = std::min(mostOpen.minCircularity, proposed.minCircularity);
        mostOpen.filterByInertia &= proposed.filterByInertia;
        mostOpen.minInertiaRatio = std::min(mostOpen.minInertiaRatio, proposed.minInertiaRatio);
    }

    const Trial trial(sightings, mostOpen);
    std::optional<BlobSettings> narrow;
    const double steadiness = boxOf(sightings, 2).minCircularity;
    for (const auto &[proposed, changes] : all) {
        if (changes == 0 || !trial.findsOnlyCandidate(proposed))
            continue;
        if (trial.findsOnlyCandidate(relaxed(proposed)))
            return {proposed, -1, steadiness};
        if (!narrow)
            narrow = proposed;
    }
    if (narrow)
        return {narrow, -1, steadiness};
    return {std::nullopt, trial.other(opened(boxOf(sightings, 2), settings)), 0.0};
}

Mending mendingSettings(const BlobScan &scan, const BlobCandidate &candidate,
                        const BlobSettings &settings)
{
    const BlobSighting sighting{&scan, &candidate};
    return mendingSettings({&sighting, 1}, settings);
}

} // namespace meridax

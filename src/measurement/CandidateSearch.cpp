#include "measurement/CandidateSearch.h"

#include "measurement/GuideGeometry.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace meridax {
namespace {

constexpr size_t kSightings = 4;
constexpr size_t kTrials = 3;
constexpr size_t kTrialsWon = 2;
/// Advice outlasts shorter appearances of a single blob: nobody could click on it otherwise.
constexpr int kSettledFrames = 15;

template <typename T>
void pushLimited(std::deque<T> &list, T value, size_t most)
{
    list.push_back(std::move(value));
    if (list.size() > most)
        list.pop_front();
}

/// The same thing in two pictures; the camera may have been turned a little in between.
bool isSame(const BlobCandidate &a, const BlobCandidate &b)
{
    const double moved = std::hypot(a.centre.x() - b.centre.x(), a.centre.y() - b.centre.y());
    const double size = std::max(a.radius, b.radius);
    return moved < 20.0 + 3.0 * size && a.area < 3.0 * b.area && b.area < 3.0 * a.area;
}

bool findsOnly(const BlobCandidate &candidate, const cv::Mat &image, double scale,
               const BlobSettings &settings)
{
    cv::Mat unused;
    const std::vector<cv::KeyPoint> found =
        detectBlobs(*createBlobDetector(settings), image, unused);
    return found.size() == 1 && std::hypot(found[0].pt.x * scale - candidate.centre.x(),
                                           found[0].pt.y * scale - candidate.centre.y()) <
                                    std::max(3.0 * scale, candidate.radius);
}

bool findsOnly(const BlobCandidate &candidate, const BlobScan &scan, const BlobSettings &settings)
{
    const std::vector<FoundBlob> found = blobsFound(scan, settings);
    return found.size() == 1 && std::find(candidate.chain.begin(), candidate.chain.end(),
                                          found[0].outline) != candidate.chain.end();
}

double valueOf(const BlobOutline &outline, BlobFilter filter)
{
    switch (filter) {
    case BlobFilter::MinArea:
    case BlobFilter::MaxArea:
        return outline.area;
    case BlobFilter::Circularity:
        return outline.circularity;
    case BlobFilter::Inertia:
        return outline.inertia;
    default:
        return outline.threshold;
    }
}

/// Numbers that tremble cannot be read: those shown stay until they are really different.
void keepCalm(std::vector<BlobShortfall> &shortfalls, const std::vector<BlobShortfall> &shown)
{
    constexpr double trembling = 0.04;
    if (shortfalls.size() != shown.size())
        return;
    for (size_t i = 0; i < shown.size(); ++i) {
        BlobShortfall &now = shortfalls[i];
        if (now.filter == shown[i].filter && now.limit == shown[i].limit &&
            std::abs(now.value - shown[i].value) < trembling * shown[i].value)
            now.value = shown[i].value;
    }
}

} // namespace

void FlickerWatch::add(bool single)
{
    m_seen = m_seen << 1 | static_cast<std::uint32_t>(single);
    m_count = std::min(m_count + 1, frames);
}

bool FlickerWatch::flickers() const
{
    constexpr int comesAndGoes = 4;
    if (m_count < 2)
        return false;
    const std::uint32_t pairs = (std::uint32_t(1) << (m_count - 1)) - 1;
    return std::popcount((m_seen ^ m_seen >> 1) & pairs) >= comesAndGoes;
}

bool SearchBudget::due(Time now)
{
    return ++m_frames >= stride && now >= m_next;
}

void SearchBudget::spent(Time begun, Duration cost)
{
    m_frames = 0;
    m_next = begun + std::chrono::duration_cast<Duration>(cost / share);
}

void CandidateSearch::clear()
{
    forgetPictures();
    m_flicker.clear();
    m_budget.clear();
    m_advice = {};
}

void CandidateSearch::forgetPictures()
{
    m_shifts = {};
    m_turn = 0;
    m_searchesInVain = 0;
    m_last.reset();
}

void CandidateSearch::adopt(const BlobSettings &settings)
{
    if (settings == m_settings)
        return;
    m_settings = settings;
    forgetPictures();
    m_flicker.clear();
    m_advice.proposal.reset();
    m_singles = kSettledFrames; // the values may just have been mended
}

bool CandidateSearch::addFrame(const cv::Mat &image, double scale, const BlobSettings &settings,
                               int blobs, const ExpectedPlace &place)
{
    adopt(settings);
    m_flicker.add(blobs == 1);
    if (blobs == 1) {
        ++m_singles;
        if (m_advice.kind == BlobAdvice::Kind::None || m_flicker.flickers() ||
            m_singles < kSettledFrames)
            return false;
        m_advice = {};
        return true;
    }
    m_singles = 0;
    const auto now = SearchBudget::Time::clock::now();
    if (!m_budget.due(now))
        return false;
    search(image, scale, settings, blobs, place);
    m_budget.spent(now, SearchBudget::Time::clock::now() - now);
    return true;
}

void CandidateSearch::search(const cv::Mat &image, double scale, const BlobSettings &settings,
                             int blobs, const ExpectedPlace &place)
{
    adopt(settings);
    Shift &shift = m_shifts[m_turn];
    BlobSettings shifted = settings;
    shifted.minThreshold += kShifts[m_turn];
    auto scan = std::make_shared<BlobScan>(scanOutlines(image, scale, shifted));
    std::vector<BlobCandidate> candidates = candidatesOf(*scan, image, settings);

    m_advice.blobs = blobs;
    if (blobs > 1 && m_turn == 0)
        adviseOnBlobs(*scan, image);
    if (candidates.empty()) {
        shift = {};
        if (blobs == 0 && (++m_searchesInVain >= static_cast<int>(kShifts.size()) ||
                           m_advice.kind == BlobAdvice::Kind::None)) {
            m_advice = {};
            m_advice.kind = BlobAdvice::Kind::Fault;
            m_advice.fault = pictureFault(image);
        }
    } else {
        m_searchesInVain = 0;
        const BlobCandidate candidate = chosenFrom(std::move(candidates), place);
        pushLimited(shift.sightings, {scan, candidate}, kSightings);
        mend(shift, image);
        if (blobs == 0)
            adviseOnCandidate(candidate);
    }
    addMending(image);
    // One set of thresholds is enough where the candidate shows at many of them.
    constexpr size_t many = 4;
    const bool enough = m_turn == 0 && !shift.sightings.empty() && shift.mending.settings &&
                        shift.sightings.back().candidate.chain.size() >= many;
    m_turn = enough ? 0 : (m_turn + 1) % kShifts.size();
}

BlobCandidate CandidateSearch::chosenFrom(std::vector<BlobCandidate> candidates,
                                          const ExpectedPlace &place)
{
    constexpr double weightOfPlace = 0.2;
    for (BlobCandidate &candidate : candidates) {
        if (place.positions > 0) {
            candidate.distance +=
                weightOfPlace / 180.0 *
                sectorDistance(candidate.centre, place.centre, place.guideIndex, place.positions);
        }
    }
    std::stable_sort(
        candidates.begin(), candidates.end(),
        [](const BlobCandidate &a, const BlobCandidate &b) { return a.distance < b.distance; });
    // What was told stays as long as it is among the best, so that advice does not jump about.
    constexpr size_t best = 2;
    size_t chosen = 0;
    for (size_t i = std::min(best, candidates.size()); m_last && i-- > 0;) {
        if (isSame(candidates[i], *m_last))
            chosen = i;
    }
    if (m_last && !isSame(candidates[chosen], *m_last))
        m_shifts = {};
    m_last = candidates[chosen];
    return candidates[chosen];
}

void CandidateSearch::mend(Shift &shift, const cv::Mat &image)
{
    const Sighting &newest = shift.sightings.back();
    // The scan tells the same for a fraction of the time, once the detector itself has agreed.
    const auto tried = [&] {
        return shift.trials.size() < kTrialsWon
                   ? findsOnly(newest.candidate, image, newest.scan->scale, *shift.mending.settings)
                   : findsOnly(newest.candidate, *newest.scan, *shift.mending.settings);
    };
    if (shift.mending.settings) {
        const bool won = tried();
        pushLimited(shift.trials, won, kTrials);
        if (won)
            return;
    }
    std::vector<BlobSighting> sightings;
    for (auto i = shift.sightings.rbegin(); i != shift.sightings.rend(); ++i)
        sightings.push_back({i->scan.get(), &i->candidate});
    const std::optional<BlobSettings> before = shift.mending.settings;
    shift.mending = mendingSettings(sightings, m_settings, kShifts[m_turn]);
    if (shift.mending.settings == before)
        return;
    shift.trials.clear();
    if (shift.mending.settings)
        shift.trials.push_back(tried());
}

const CandidateSearch::Shift *CandidateSearch::steadiest() const
{
    const Shift *best = nullptr;
    for (const Shift &shift : m_shifts) {
        if (shift.mending.settings &&
            std::count(shift.trials.begin(), shift.trials.end(), true) >=
                std::ptrdiff_t(kTrialsWon) &&
            (!best || shift.mending.steadiness > best->mending.steadiness))
            best = &shift;
    }
    return best;
}

void CandidateSearch::adviseOnBlobs(const BlobScan &scan, const cv::Mat &image)
{
    const int blobs = m_advice.blobs;
    m_advice = {};
    m_advice.kind = BlobAdvice::Kind::Several;
    m_advice.blobs = blobs;
    for (const FoundBlob &blob : blobsFound(scan, m_settings)) {
        const double area = scan.outlines[blob.outline].area;
        m_advice.smallestArea =
            m_advice.smallestArea > 0.0 ? std::min(m_advice.smallestArea, area) : area;
        m_advice.largestArea = std::max(m_advice.largestArea, area);
        if (m_advice.shown.size() < BlobAdvice::mostShown)
            m_advice.shown.push_back(describeOutline(scan, blob.outline, image, m_settings));
    }
}

void CandidateSearch::adviseOnCandidate(const BlobCandidate &candidate)
{
    std::vector<BlobShortfall> shown;
    if (!m_advice.shown.empty())
        shown = m_advice.shown.front().shortfalls;
    m_advice = {};
    m_advice.kind = BlobAdvice::Kind::Candidate;
    m_advice.shown = {candidate};
    keepCalm(m_advice.shown[0].shortfalls, shown);
    if (!m_flicker.flickers() || candidate.shortfalls.empty())
        return;

    m_advice.kind = BlobAdvice::Kind::Flicker;
    const BlobShortfall &first = m_advice.shown[0].shortfalls[0];
    m_advice.flickerLow = m_advice.flickerHigh = first.value;
    for (const Sighting &sighting : m_shifts[m_turn].sightings) {
        const std::vector<int> &chain = sighting.candidate.chain;
        for (size_t i = 0; i < std::min<size_t>(2, chain.size()); ++i) {
            const double value = valueOf(sighting.scan->outlines[chain[i]], first.filter);
            m_advice.flickerLow = std::min(m_advice.flickerLow, value);
            m_advice.flickerHigh = std::max(m_advice.flickerHigh, value);
        }
    }
}

void CandidateSearch::addMending(const cv::Mat &image)
{
    m_advice.proposal.reset();
    m_advice.inTheWay.reset();
    if (const Shift *best = steadiest()) {
        m_advice.proposal = best->mending.settings;
        return;
    }
    const Shift &shift = m_shifts[m_turn];
    if (shift.sightings.size() < 2 || shift.mending.settings || shift.mending.inTheWay < 0)
        return;
    m_advice.inTheWay =
        describeOutline(*shift.sightings.back().scan, shift.mending.inTheWay, image, m_settings);
}

} // namespace meridax

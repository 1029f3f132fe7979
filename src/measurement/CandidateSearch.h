#pragma once

#include "measurement/BlobAdvice.h"
#include "measurement/BlobMending.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <deque>
#include <memory>

namespace meridax {

/// Whether the single blob came and went in the last frames.
class FlickerWatch
{
public:
    static constexpr int frames = 30;

    void add(bool single);
    bool flickers() const;
    void clear() { *this = {}; }

private:
    std::uint32_t m_seen = 0; ///< one bit a frame, the newest lowest
    int m_count = 0;
};

/// Keeps the search to every third frame at most and to a share of the time.
class SearchBudget
{
public:
    using Time = std::chrono::steady_clock::time_point;
    using Duration = std::chrono::steady_clock::duration;
    static constexpr double share = 0.3;
    static constexpr int stride = 3;

    /// Counts a frame and says whether it may be searched.
    bool due(Time now);
    /// A search has begun and taken that long.
    void spent(Time begun, Duration cost);
    void clear() { *this = {}; }

private:
    int m_frames = stride;
    Time m_next{};
};

/// Where the mark is expected, to prefer one candidate over its like.
struct ExpectedPlace
{
    QPointF centre; ///< of the guide sectors, frame px
    int guideIndex = 0;
    int positions = 0; ///< 0: nowhere
};

/// Accompanies the detection of a calibration frame by frame and finds out what to tell the user.
/// It looks at a picture only while not exactly one blob is found. Belongs to one thread.
class CandidateSearch
{
public:
    /// `image` is what the detector searched, `blobs` how many it found with `settings`, `scale`
    /// the frame pixels to one pixel of it. True if advice() is new.
    bool addFrame(const cv::Mat &image, double scale, const BlobSettings &settings, int blobs,
                  const ExpectedPlace &place);
    /// One search without regard to time, as addFrame() does when it is due.
    void search(const cv::Mat &image, double scale, const BlobSettings &settings, int blobs,
                const ExpectedPlace &place = {});

    const BlobAdvice &advice() const { return m_advice; }
    void clear();

private:
    /// A picture in which the candidate was seen. Scans are large, so they are not copied.
    struct Sighting
    {
        std::shared_ptr<const BlobScan> scan;
        BlobCandidate candidate;
    };
    /// The same search with its thresholds shifted: a faint mark shows between two of them only
    /// where they happen to fit.
    struct Shift
    {
        std::deque<Sighting> sightings;
        Mending mending;
        std::deque<bool> trials; ///< of the detector itself with the proposal, the newest last
    };
    static constexpr std::array<double, 4> kShifts{0.0, 5.0, 2.0, 8.0};

    void forgetPictures();
    void adopt(const BlobSettings &settings);
    BlobCandidate chosenFrom(std::vector<BlobCandidate> candidates, const ExpectedPlace &place);
    void mend(Shift &shift, const cv::Mat &image);
    const Shift *steadiest() const;
    void adviseOnBlobs(const BlobScan &scan, const cv::Mat &image);
    void adviseOnCandidate(const BlobCandidate &candidate);
    void addMending(const cv::Mat &image);

    FlickerWatch m_flicker;
    SearchBudget m_budget;
    BlobSettings m_settings;
    std::array<Shift, kShifts.size()> m_shifts;
    size_t m_turn = 0;
    int m_searchesInVain = 0;
    int m_singles = 0; ///< frames in a row with one blob
    std::optional<BlobCandidate> m_last;
    BlobAdvice m_advice;
};

} // namespace meridax

#include "measurement/BlobCandidates.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace meridax {
namespace {

/// Outlines of one dark region at rising thresholds, as indices in the scan.
using Chain = std::vector<int>;

/// Finds, for an outline, the chain it goes on with: same place and much the same size.
class ChainBuilder
{
public:
    explicit ChainBuilder(const BlobScan &scan)
        : m_scan(scan)
    {
    }

    std::vector<Chain> build()
    {
        for (size_t i = 0; i < m_scan.outlines.size(); ++i) {
            if (m_scan.outlines[i].enclosesDark)
                add(static_cast<int>(i));
        }
        return std::move(m_chains);
    }

private:
    static constexpr double kCell = 16.0;

    static long long cellOf(double x, double y)
    {
        return static_cast<long long>(x / kCell) * 100'000 + static_cast<long long>(y / kCell);
    }

    bool continues(const BlobOutline &earlier, const BlobOutline &outline) const
    {
        constexpr double gap = 20.0; // one threshold may be missing
        constexpr double growth = 1.7;
        const double step = outline.threshold - earlier.threshold;
        const double reach = std::clamp(0.35 * outline.radius, 2.0, kCell);
        return step > 0.0 && step <= gap && cv::norm(earlier.centre - outline.centre) <= reach &&
               outline.radius < growth * earlier.radius && earlier.radius < growth * outline.radius;
    }

    void add(int index)
    {
        const BlobOutline &outline = m_scan.outlines[index];
        int best = -1;
        double bestDistance = 0.0;
        for (int column = -1; column <= 1; ++column) {
            for (int row = -1; row <= 1; ++row) {
                const auto cell = m_cells.find(
                    cellOf(outline.centre.x + column * kCell, outline.centre.y + row * kCell));
                if (cell == m_cells.end())
                    continue;
                for (const int chain : cell->second) {
                    const BlobOutline &end = m_scan.outlines[m_chains[chain].back()];
                    const double distance = std::abs(end.radius - outline.radius) +
                                            cv::norm(end.centre - outline.centre);
                    if (continues(end, outline) && (best < 0 || distance < bestDistance)) {
                        best = chain;
                        bestDistance = distance;
                    }
                }
            }
        }
        if (best < 0) {
            best = static_cast<int>(m_chains.size());
            m_chains.emplace_back();
        }
        m_chains[best].push_back(index);
        m_cells[cellOf(outline.centre.x, outline.centre.y)].push_back(best);
    }

    const BlobScan &m_scan;
    std::vector<Chain> m_chains;
    std::unordered_map<long long, std::vector<int>> m_cells;
};

double medianAround(const cv::Mat &image, const BlobOutline &outline, double reach)
{
    std::vector<uchar> values;
    const size_t stride = std::max<size_t>(1, outline.points.size() / 48);
    for (size_t i = 0; i < outline.points.size(); i += stride) {
        const cv::Point2d at =
            outline.centre + reach * (cv::Point2d(outline.points[i]) - outline.centre);
        const cv::Point pixel(cvRound(at.x), cvRound(at.y));
        if (pixel.inside({0, 0, image.cols, image.rows}))
            values.push_back(image.at<uchar>(pixel));
    }
    if (values.empty())
        return 0.0;
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// How much darker the middle is than a ring well outside.
double darknessOf(const cv::Mat &image, const BlobOutline &outline)
{
    return medianAround(image, outline, 1.7) - medianAround(image, outline, 0.4);
}

std::vector<QPointF> drawnOutline(const BlobOutline &outline, double scale)
{
    std::vector<cv::Point> thinned;
    cv::approxPolyDP(outline.points, thinned, 0.7, true);
    std::vector<QPointF> points;
    points.reserve(thinned.size());
    for (const cv::Point &point : thinned) // the middle of a reduced pixel
        points.emplace_back((point.x + 0.5) * scale - 0.5, (point.y + 0.5) * scale - 0.5);
    return points;
}

BlobCandidate candidateOf(const BlobScan &scan, const Chain &chain, const cv::Mat &image,
                          const BlobSettings &settings)
{
    std::vector<std::pair<double, int>> byMissing;
    for (const int index : chain)
        byMissing.emplace_back(missingOf(shortfallsOf(scan.outlines[index], settings)), index);
    std::stable_sort(byMissing.begin(), byMissing.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });

    // The detector wants two outlines, so the second best decides.
    const size_t decides = std::min<size_t>(1, byMissing.size() - 1);
    const BlobOutline &deciding = scan.outlines[byMissing[decides].second];
    BlobCandidate candidate;
    candidate.centre = {(deciding.centre.x + 0.5) * scan.scale - 0.5,
                        (deciding.centre.y + 0.5) * scan.scale - 0.5};
    candidate.radius = deciding.radius * scan.scale;
    candidate.area = deciding.area;
    candidate.circularity = deciding.circularity;
    candidate.inertia = deciding.inertia;
    candidate.darkness = darknessOf(image, deciding);
    candidate.missing = byMissing[decides].first;
    candidate.shortfalls = shortfallsOf(deciding, settings);
    candidate.outline = drawnOutline(deciding, scan.scale);
    for (const auto &[missing, index] : byMissing)
        candidate.chain.push_back(index);
    return candidate;
}

/// Standard deviation of the pixel noise, from the differences that structure does not make.
double noiseOf(const cv::Mat &image)
{
    cv::Mat differences;
    cv::Laplacian(image, differences, CV_16S, 1);
    const cv::Mat sample = differences.reshape(1, 1);
    std::vector<short> sizes;
    const int stride = std::max(1, sample.cols / 20'000);
    for (int i = 0; i < sample.cols; i += stride)
        sizes.push_back(static_cast<short>(std::abs(sample.at<short>(i))));
    const auto middle = sizes.begin() + static_cast<std::ptrdiff_t>(sizes.size() / 2);
    std::nth_element(sizes.begin(), middle, sizes.end());
    return *middle / 0.6745 / std::sqrt(20.0);
}

/// Grey levels below which the given shares of the pixels lie.
std::vector<int> quantiles(const cv::Mat &image, std::initializer_list<double> shares)
{
    cv::Mat histogram;
    cv::calcHist(std::vector<cv::Mat>{image}, {0}, {}, histogram, {256}, {0, 256});
    std::vector<int> levels;
    for (const double share : shares) {
        double left = share * static_cast<double>(image.total());
        int level = 0;
        while (level < 255 && (left -= histogram.at<float>(level)) > 0.0)
            ++level;
        levels.push_back(level);
    }
    return levels;
}

} // namespace

std::vector<BlobShortfall> shortfallsOf(const BlobOutline &outline, const BlobSettings &settings)
{
    const cv::SimpleBlobDetector::Params params = buildDetectorParams(settings);
    std::vector<BlobShortfall> shortfalls;
    const auto test = [&shortfalls](bool passes, BlobFilter filter, double value, double limit) {
        if (!passes)
            shortfalls.push_back({filter, value, limit});
    };
    if (params.filterByArea) {
        test(outline.area >= params.minArea, BlobFilter::MinArea, outline.area, settings.minArea);
        test(outline.area < params.maxArea, BlobFilter::MaxArea, outline.area, settings.maxArea);
    }
    if (params.filterByCircularity) {
        test(outline.circularity >= params.minCircularity, BlobFilter::Circularity,
             outline.circularity, settings.minCircularity);
    }
    if (params.filterByInertia) {
        test(outline.inertia >= params.minInertiaRatio, BlobFilter::Inertia, outline.inertia,
             settings.minInertiaRatio);
    }
    test(outline.threshold >= params.minThreshold, BlobFilter::MinThreshold, outline.threshold,
         settings.minThreshold);
    test(outline.threshold < params.maxThreshold, BlobFilter::MaxThreshold, outline.threshold,
         settings.maxThreshold);
    return shortfalls;
}

double missingOf(const std::vector<BlobShortfall> &shortfalls)
{
    constexpr double greyScale = 50.0;
    double missing = 0.0;
    for (const BlobShortfall &shortfall : shortfalls) {
        switch (shortfall.filter) {
        case BlobFilter::MinThreshold:
        case BlobFilter::MaxThreshold:
            missing += std::abs(shortfall.value - shortfall.limit) / greyScale;
            break;
        default:
            missing += std::abs(
                std::log(std::max(shortfall.value, 1e-3) / std::max(shortfall.limit, 1e-3)));
        }
    }
    return missing;
}

std::vector<BlobCandidate> candidatesOf(const BlobScan &scan, const cv::Mat &image,
                                        const BlobSettings &settings)
{
    constexpr double faintest = 6.0;
    constexpr double timesNoise = 2.0;
    constexpr double smallest = 36.0; // about 7 px across; specks of dust are smaller
    constexpr double weightOfDarkness = 1.5;
    if (image.empty())
        return {};

    const double threshold = std::max(faintest, timesNoise * noiseOf(image));
    std::vector<BlobCandidate> candidates;
    double darkest = 0.0;
    for (const Chain &chain : ChainBuilder(scan).build()) {
        if (chain.size() < 2)
            continue;
        BlobCandidate candidate = candidateOf(scan, chain, image, settings);
        if (candidate.darkness < threshold || candidate.area < smallest)
            continue;
        darkest = std::max(darkest, candidate.darkness);
        candidates.push_back(std::move(candidate));
    }
    // Dust and paper grain are round, too, but never as dark as what somebody has drawn.
    for (BlobCandidate &candidate : candidates) {
        candidate.distance =
            candidate.missing + weightOfDarkness * std::log(darkest / candidate.darkness);
    }
    std::stable_sort(
        candidates.begin(), candidates.end(),
        [](const BlobCandidate &a, const BlobCandidate &b) { return a.distance < b.distance; });
    return candidates;
}

BlobCandidate describeOutline(const BlobScan &scan, int outline, const cv::Mat &image,
                              const BlobSettings &settings)
{
    return candidateOf(scan, {outline}, image, settings);
}

std::vector<BlobCandidate> findCandidates(const cv::Mat &grey, const BlobSettings &settings)
{
    cv::Mat scaled;
    const cv::Mat image = detectionImage(grey, scaled);
    if (image.empty())
        return {};
    const double scale = static_cast<double>(grey.cols) / image.cols;
    return candidatesOf(scanOutlines(image, scale, settings), image, settings);
}

PictureFault pictureFault(const cv::Mat &image)
{
    constexpr int dark = 45;
    constexpr int light = 225;
    constexpr int flat = 24;
    constexpr double soft = 0.15;
    if (image.empty())
        return PictureFault::NoDarkSpot;
    const std::vector<int> levels = quantiles(image, {0.005, 0.995});
    if (levels[1] < dark)
        return PictureFault::TooDark;
    if (levels[0] > light)
        return PictureFault::TooBright;
    if (levels[1] - levels[0] < flat)
        return PictureFault::NoContrast;

    cv::Mat calm;
    cv::Mat soften;
    cv::GaussianBlur(image, calm, {5, 5}, 0.0);
    cv::blur(calm, soften, {11, 11});
    const double edge = cv::norm(calm, soften, cv::NORM_INF);
    return edge < soft * (levels[1] - levels[0]) ? PictureFault::OutOfFocus
                                                 : PictureFault::NoDarkSpot;
}

} // namespace meridax

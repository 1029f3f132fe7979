#include "Grain.h"

#include "Geometry.h"

#include <algorithm>
#include <cmath>

namespace meridax::simcam {

namespace {

constexpr int kSide = Grain::kSide;

/// Radius of the disc at each step [px at 720].
constexpr double kStepSpread[] = {0, 1, 2, 4, 8, 16, 32};

/// One size of structure: side of its cells, a power of two [px at 720], and its part of the whole.
struct Octave
{
    int cell;
    float weight;
};
constexpr Octave kOctaves[] = {{2, 1.0F}, {4, 0.7F}, {16, 0.5F}, {64, 0.4F}};

float lattice(int octave, int x, int y)
{
    return static_cast<float>(
        hash(hash(std::uint32_t(octave) << 24 | std::uint32_t(y) << 12) ^ std::uint32_t(x)) /
            2147483648.0 -
        1);
}

void addOctave(std::vector<float> &pixels, int index, const Octave &octave)
{
    const int cells = kSide / octave.cell;
    for (int y = 0; y < kSide; ++y) {
        const int row = y / octave.cell;
        const int next = (row + 1) % cells;
        const float fy = float(y % octave.cell) / float(octave.cell);
        for (int x = 0; x < kSide; ++x) {
            const int column = x / octave.cell;
            const int right = (column + 1) % cells;
            const float fx = float(x % octave.cell) / float(octave.cell);
            const float above =
                std::lerp(lattice(index, column, row), lattice(index, right, row), fx);
            const float below =
                std::lerp(lattice(index, column, next), lattice(index, right, next), fx);
            pixels[std::size_t(y) * kSide + std::size_t(x)] +=
                octave.weight * std::lerp(above, below, fy);
        }
    }
}

std::vector<float> sharpGrain()
{
    std::vector<float> pixels(std::size_t(kSide) * kSide);
    for (int i = 0; i < int(std::size(kOctaves)); ++i)
        addOctave(pixels, i, kOctaves[i]);
    double sum = 0;
    double squares = 0;
    for (const float p : pixels) {
        sum += double(p);
        squares += double(p) * double(p);
    }
    const double mean = sum / double(pixels.size());
    const double sigma = std::sqrt(squares / double(pixels.size()) - mean * mean);
    for (float &p : pixels)
        p = static_cast<float>((double(p) - mean) / sigma);
    return pixels;
}

/// The mean over a disc about each pixel, from the running sums of the rows it cuts.
std::vector<float> spreadOverDisc(const std::vector<float> &in, int radius)
{
    const auto wrapped = [](int i) { return std::size_t(i & (kSide - 1)); };
    std::vector<float> out(in.size());
    std::vector<float> sums(std::size_t(kSide) + 2 * std::size_t(radius) + 1);
    int area = 0;
    for (int dy = -radius; dy <= radius; ++dy) {
        // Half a pixel more, so that the area of the whole pixels comes near that of the disc.
        const int half = static_cast<int>(std::sqrt((radius + 0.5) * (radius + 0.5) - dy * dy));
        area += 2 * half + 1;
        for (int y = 0; y < kSide; ++y) {
            const float *row = in.data() + wrapped(y + dy) * kSide;
            for (int x = -half; x < kSide + half; ++x)
                sums[std::size_t(x + half + 1)] = sums[std::size_t(x + half)] + row[wrapped(x)];
            float *target = out.data() + std::size_t(y) * kSide;
            for (int x = 0; x < kSide; ++x)
                target[x] += sums[std::size_t(x + 2 * half + 1)] - sums[std::size_t(x)];
        }
    }
    for (float &p : out)
        p /= float(area);
    return out;
}

} // namespace

const std::vector<float> &Grain::step(std::size_t index)
{
    auto &pixels = m_step[index];
    if (pixels.empty())
        pixels = index == 0 ? sharpGrain()
                            : spreadOverDisc(step(0), static_cast<int>(kStepSpread[index]));
    return pixels;
}

void Grain::prepare(double contrast, double spread)
{
    if (contrast == m_contrast && spread == m_spread)
        return;
    m_contrast = contrast;
    m_spread = spread;
    m_ready.assign(std::size_t(kSide) * kSide, 1.0F);
    if (contrast <= 0)
        return;
    const double s = std::min(spread, kStepSpread[kSteps - 1]);
    std::size_t i = 0;
    while (i + 2 < kSteps && s >= kStepSpread[i + 1])
        ++i;
    const auto share =
        static_cast<float>((s - kStepSpread[i]) / (kStepSpread[i + 1] - kStepSpread[i]));
    const std::vector<float> &first = step(i);
    const std::vector<float> &second = share > 0 ? step(i + 1) : first;
    for (std::size_t k = 0; k < m_ready.size(); ++k)
        m_ready[k] =
            std::max(0.0F, 1 + float(contrast) * (first[k] + share * (second[k] - first[k])));
}

} // namespace meridax::simcam

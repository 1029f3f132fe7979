#include "Blur.h"

#include <algorithm>
#include <cmath>

namespace meridax::simcam {

namespace {

/// A box of 2 * radius + 1 whole pixels and `edge` of one more at either end.
struct Box
{
    int radius;
    float edge;
    float norm;
};

/// The box that, applied twice, has the variance sigma squared.
Box boxFor(double sigma)
{
    const double length = std::sqrt(6 * sigma * sigma + 1);
    Box box{};
    box.radius = static_cast<int>((length - 1) / 2);
    // A box of fractional width is narrower in variance than its length tells: solve for the edge.
    const double r = box.radius;
    const double whole = r * (r + 1) * (2 * r + 1) / 3;
    const double target = sigma * sigma / 2;
    const double edge = (target * (2 * r + 1) - whole) / (2 * ((r + 1) * (r + 1) - target));
    box.edge = static_cast<float>(std::clamp(edge, 0.0, 1.0));
    box.norm = 1 / (2 * static_cast<float>(box.radius) + 1 + 2 * box.edge);
    return box;
}

std::uint8_t rounded(float value)
{
    return static_cast<std::uint8_t>(value + 0.5F);
}

void blurRow(const std::uint8_t *in, std::uint8_t *out, int width, const Box &box)
{
    const auto at = [&](int x) { return in[std::clamp(x, 0, width - 1)]; };
    int sum = 0;
    for (int x = -box.radius; x <= box.radius; ++x)
        sum += at(x);
    for (int x = 0; x < width; ++x) {
        const int before = at(x - box.radius - 1);
        const int after = at(x + box.radius + 1);
        out[x] = rounded((float(sum) + box.edge * float(before + after)) * box.norm);
        sum += after - at(x - box.radius);
    }
}

void blurRows(std::vector<std::uint8_t> &pixels, int width, const Box &box)
{
    std::vector<std::uint8_t> line(static_cast<std::size_t>(width));
    for (auto row = pixels.begin(); row != pixels.end(); row += width) {
        blurRow(&*row, line.data(), width, box);
        std::copy(line.begin(), line.end(), row);
    }
}

void blurColumns(std::vector<std::uint8_t> &pixels, int width, const Box &box)
{
    const std::vector<std::uint8_t> in = pixels;
    const int height = static_cast<int>(in.size()) / width;
    const auto row = [&](int y) {
        return in.data() + std::ptrdiff_t(std::clamp(y, 0, height - 1)) * width;
    };
    std::vector<int> sums(static_cast<std::size_t>(width));
    for (int y = -box.radius; y <= box.radius; ++y)
        for (int x = 0; x < width; ++x)
            sums[std::size_t(x)] += row(y)[x];
    for (int y = 0; y < height; ++y) {
        const std::uint8_t *before = row(y - box.radius - 1);
        const std::uint8_t *after = row(y + box.radius + 1);
        const std::uint8_t *first = row(y - box.radius);
        std::uint8_t *out = pixels.data() + std::ptrdiff_t(y) * width;
        int *sum = sums.data();
        for (int x = 0; x < width; ++x) {
            out[x] = rounded((float(sum[x]) + box.edge * float(before[x] + after[x])) * box.norm);
            sum[x] += after[x] - first[x];
        }
    }
}

} // namespace

void blur(std::vector<std::uint8_t> &pixels, unsigned width, double sigma)
{
    if (sigma < 0.05)
        return;
    const Box box = boxFor(sigma);
    for (int pass = 0; pass < 2; ++pass) {
        blurRows(pixels, static_cast<int>(width), box);
        blurColumns(pixels, static_cast<int>(width), box);
    }
}

} // namespace meridax::simcam

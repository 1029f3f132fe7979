#include "Palette.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <numeric>
#include <vector>

namespace {

constexpr std::size_t kMostColours = 256;

struct Colour
{
    QRgb rgb;
    qint64 pixels;

    int channel(int index) const { return int(rgb >> (8 * index)) & 0xff; }
};

using Iterator = std::vector<Colour>::iterator;

/// A range of the colours, and along which channel it is longest.
struct Box
{
    Iterator first, last;
    int channel = 0;
    qint64 weight = 0;

    Box(Iterator from, Iterator to)
        : first(from)
        , last(to)
    {
        int longest = 0;
        for (int c = 0; c < 3; ++c) {
            const auto [low, high] = std::minmax_element(
                first, last, [c](auto &a, auto &b) { return a.channel(c) < b.channel(c); });
            const int side = high->channel(c) - low->channel(c);
            if (side > longest) {
                longest = side;
                channel = c;
            }
        }
        weight = pixels() * longest;
    }

    qint64 pixels() const
    {
        return std::accumulate(first, last, qint64(0),
                               [](qint64 sum, const Colour &c) { return sum + c.pixels; });
    }

    /// Where half of the pixels lie on either side, with a colour at least on each.
    Iterator middle() const
    {
        std::sort(first, last,
                  [this](auto &a, auto &b) { return a.channel(channel) < b.channel(channel); });
        const qint64 half = pixels() / 2;
        qint64 before = first->pixels;
        Iterator cut = first + 1;
        while (cut + 1 < last && before + cut->pixels <= half)
            before += (cut++)->pixels;
        return cut;
    }

    QRgb mean() const
    {
        std::array<qint64, 3> sums{};
        for (auto colour = first; colour != last; ++colour) {
            for (int c = 0; c < 3; ++c)
                sums[std::size_t(c)] += colour->channel(c) * colour->pixels;
        }
        const qint64 all = pixels();
        const auto mean = [&](std::size_t c) { return int((sums[c] + all / 2) / all); };
        return qRgb(mean(2), mean(1), mean(0));
    }
};

std::vector<Colour> coloursOf(const QImage &picture)
{
    QHash<QRgb, qint64> counts;
    for (int y = 0; y < picture.height(); ++y) {
        const auto *const line = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x)
            ++counts[line[x] | 0xff000000];
    }
    std::vector<Colour> colours;
    colours.reserve(std::size_t(counts.size()));
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        colours.push_back({it.key(), it.value()});
    // The hash has another order in each process.
    std::sort(colours.begin(), colours.end(), [](auto &a, auto &b) { return a.rgb < b.rgb; });
    return colours;
}

} // namespace

QImage withPalette(const QImage &picture)
{
    const QImage source = picture.convertToFormat(QImage::Format_RGB32);
    std::vector<Colour> colours = coloursOf(source);
    std::vector<Box> boxes{Box(colours.begin(), colours.end())};
    while (boxes.size() < kMostColours) {
        const auto heaviest = std::max_element(
            boxes.begin(), boxes.end(), [](auto &a, auto &b) { return a.weight < b.weight; });
        if (heaviest->weight == 0)
            break;
        const Box whole = *heaviest;
        const Iterator cut = whole.middle();
        *heaviest = Box(whole.first, cut);
        boxes.emplace_back(cut, whole.last);
    }
    QList<QRgb> table;
    QHash<QRgb, uchar> indices;
    for (const Box &box : boxes) {
        for (auto colour = box.first; colour != box.last; ++colour)
            indices.insert(colour->rgb, uchar(table.size()));
        table << box.mean();
    }
    QImage result(source.size(), QImage::Format_Indexed8);
    result.setColorTable(table);
    for (int y = 0; y < source.height(); ++y) {
        const auto *const from = reinterpret_cast<const QRgb *>(source.constScanLine(y));
        uchar *const to = result.scanLine(y);
        for (int x = 0; x < source.width(); ++x)
            to[x] = indices.value(from[x] | 0xff000000);
    }
    return result;
}

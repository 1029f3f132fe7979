#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <vector>

namespace meridax::vmcamera {

using Bytes = std::vector<std::uint8_t>;
using ByteView = std::span<const std::uint8_t>;

/// One number of a USB structure, which is `width` bytes there.
struct Field
{
    std::uint64_t value;
    unsigned width;
};

constexpr Field u8(std::uint64_t value)
{
    return {value, 1};
}
constexpr Field u16(std::uint64_t value)
{
    return {value, 2};
}
constexpr Field u24(std::uint64_t value)
{
    return {value, 3};
}
constexpr Field u32(std::uint64_t value)
{
    return {value, 4};
}

/// Appends the numbers with the least significant byte first, as USB wants them.
inline void append(Bytes &out, std::initializer_list<Field> fields)
{
    for (const Field &field : fields) {
        for (unsigned i = 0; i < field.width; ++i)
            out.push_back(static_cast<std::uint8_t>(field.value >> (8 * i)));
    }
}

inline void append(Bytes &out, ByteView more)
{
    out.insert(out.end(), more.begin(), more.end());
}

/// The unsigned number that `bytes` hold, least significant first.
constexpr std::uint32_t littleEndian(ByteView bytes)
{
    std::uint32_t value = 0;
    for (std::size_t i = bytes.size(); i > 0; --i)
        value = value << 8 | bytes[i - 1];
    return value;
}

} // namespace meridax::vmcamera

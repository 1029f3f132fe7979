#include "RandomNumbers.h"

#include <cmath>
#include <numbers>

namespace meridax::accuracy {

RandomNumbers::RandomNumbers(std::uint64_t seed)
    : m_generator(seed)
{
}

double RandomNumbers::uniform(double low, double high)
{
    constexpr int mantissaBits = 53;
    const double unit =
        std::ldexp(static_cast<double>(m_generator() >> (64 - mantissaBits)), -mantissaBits);
    return low + (high - low) * unit;
}

double RandomNumbers::normal()
{
    // Box-Muller; 1 - u keeps the logarithm away from 0.
    const double length = std::sqrt(-2.0 * std::log(1.0 - uniform(0.0, 1.0)));
    return length * std::cos(2.0 * std::numbers::pi * uniform(0.0, 1.0));
}

} // namespace meridax::accuracy

#pragma once

#include <cstdint>
#include <random>

namespace meridax::accuracy {

/// Random numbers that come out the same with every standard library: the generator is fixed by
/// the standard, the distributions are made here.
class RandomNumbers
{
public:
    explicit RandomNumbers(std::uint64_t seed);

    /// Evenly from [low, high).
    double uniform(double low, double high);
    /// From the normal distribution of mean 0 and standard deviation 1.
    double normal();

private:
    std::mt19937_64 m_generator;
};

} // namespace meridax::accuracy

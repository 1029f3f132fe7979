#pragma once

#include <cstdint>
#include <vector>

namespace meridax::simcam {

/// Blurs the grey image `pixels` of `width` columns by about a Gaussian of `sigma` pixels: two
/// passes of a box of fractional width, in time independent of sigma. The border repeats itself.
void blur(std::vector<std::uint8_t> &pixels, unsigned width, double sigma);

} // namespace meridax::simcam

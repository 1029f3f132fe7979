#pragma once

#include "Bytes.h"

#include <string_view>

namespace meridax::vmcamera {

constexpr unsigned kControlInterface = 0;
constexpr unsigned kStreamInterface = 1;
/// The one endpoint besides the control pipe: bulk, towards the host.
constexpr unsigned kStreamEndpoint = 1;
constexpr unsigned kTowardsHost = 0x80;

/// Numbers of the strings that the device descriptor refers to.
enum class StringId : std::uint8_t { Languages = 0, Maker = 1, Product = 2, Serial = 3 };

/// What the camera tells the host about itself: a high-speed device of the USB Video Class 1.0
/// with the formats of videoFormats() and the controls of controls().
Bytes deviceDescriptor();
Bytes configurationDescriptor();
/// `text` is ASCII and at most 126 characters long.
Bytes stringDescriptor(std::string_view text);
/// The list of languages that a host reads first: US English.
Bytes languagesDescriptor();

} // namespace meridax::vmcamera

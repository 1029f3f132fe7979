#include "Controls.h"

#include <algorithm>
#include <bit>
#include <string_view>

namespace meridax::vmcamera {

namespace {

constexpr auto kCamera = Entity::CameraTerminal;
constexpr auto kPicture = Entity::ProcessingUnit;

constexpr int kManualExposure = 1;
constexpr int kAperturePriority = 8;
constexpr int kExposureModes = kManualExposure | kAperturePriority;

// Selectors, bits and widths are those of the video class, the units with them: exposure in
// 0.1 ms, colour temperature in kelvin, gamma and zoom in hundredths.
constexpr Control kControls[] = {
    {kCamera, 0x02, 1, "exposure-mode", 1, 0, 0xff, kExposureModes, kAperturePriority, true},
    {kCamera, 0x03, 2, "exposure-priority", 1, 0, 1, 1, 0},
    {kCamera, 0x04, 3, "exposure", 4, 1, 5000, 1, 156, false, "exposure-mode", kManualExposure},
    {kCamera, 0x06, 5, "focus", 2, 0, 250, 5, 0, false, "focus-auto", 0},
    {kCamera, 0x08, 17, "focus-auto", 1, 0, 1, 1, 1},
    {kCamera, 0x0b, 9, "zoom", 2, 100, 500, 1, 100},
    {kPicture, 0x01, 8, "backlight-compensation", 2, 0, 2, 1, 1},
    {kPicture, 0x02, 0, "brightness", 2, -64, 64, 1, 0},
    {kPicture, 0x03, 1, "contrast", 2, 0, 64, 1, 32},
    {kPicture, 0x04, 9, "gain", 2, 0, 100, 1, 0},
    {kPicture, 0x05, 10, "power-line-frequency", 1, 0, 2, 1, 1},
    {kPicture, 0x07, 3, "saturation", 2, 0, 128, 1, 64},
    {kPicture, 0x08, 4, "sharpness", 2, 0, 6, 1, 3},
    {kPicture, 0x09, 5, "gamma", 2, 72, 500, 1, 100},
    {kPicture, 0x0a, 6, "white-balance", 2, 2800, 6500, 1, 4600, false, "white-balance-auto", 0},
    {kPicture, 0x0b, 12, "white-balance-auto", 1, 0, 1, 1, 1},
};

// Answer to GetInfo: may be read, may be set, an automatic mode has it, changes by itself.
constexpr unsigned kReadable = 0x01;
constexpr unsigned kSettable = 0x02;
constexpr unsigned kTakenOver = 0x04;
constexpr unsigned kChangesByItself = 0x08;

bool isSigned(const Control &control)
{
    return control.min < 0;
}

int toValue(const Control &control, ByteView data)
{
    const std::uint32_t bits = littleEndian(data.first(control.width));
    return isSigned(control) ? static_cast<std::int16_t>(bits) : static_cast<int>(bits);
}

bool isValid(const Control &control, int value)
{
    if (control.isModeSet)
        return std::has_single_bit(static_cast<unsigned>(value)) && (value & control.step) != 0;
    return value >= control.min && value <= control.max;
}

Bytes number(int value, unsigned width)
{
    Bytes out;
    append(out, {Field{static_cast<std::uint32_t>(value), width}});
    return out;
}

} // namespace

std::span<const Control> controls()
{
    return kControls;
}

const Control *findControl(const char *name)
{
    const auto found = std::ranges::find(kControls, std::string_view(name),
                                         [](const Control &c) { return c.name; });
    return found == std::end(kControls) ? nullptr : &*found;
}

std::uint32_t controlBits(Entity entity)
{
    std::uint32_t bits = 0;
    for (const Control &control : kControls) {
        if (control.entity == entity)
            bits |= 1U << control.bit;
    }
    return bits;
}

ControlValues::ControlValues()
{
    for (const Control &control : kControls)
        m_values[&control] = control.defaultValue;
}

int ControlValues::value(const char *name) const
{
    return m_values.at(findControl(name));
}

bool ControlValues::isAutomatic(const Control &control) const
{
    return control.automatic && value(control.automatic) != control.automaticOff;
}

std::optional<Bytes> ControlValues::request(Request request, std::uint8_t entity,
                                            std::uint8_t selector, ByteView data)
{
    const auto ofEntity = [entity](const Control &c) { return std::uint8_t(c.entity) == entity; };
    const auto found = std::ranges::find_if(
        kControls, [&](const Control &c) { return ofEntity(c) && c.selector == selector; });
    if (found == std::end(kControls)) {
        m_lastError = std::ranges::any_of(kControls, ofEntity) ? RequestError::InvalidControl
                                                               : RequestError::InvalidUnit;
        return std::nullopt;
    }

    const Control &control = *found;
    m_lastError = RequestError::None;
    switch (request) {
    case Request::SetCurrent:
        m_lastError = set(control, data);
        if (m_lastError != RequestError::None)
            return std::nullopt;
        return Bytes{};
    case Request::GetCurrent:
        return number(m_values.at(&control), control.width);
    case Request::GetMinimum:
        return number(control.min, control.width);
    case Request::GetMaximum:
        return number(control.max, control.width);
    case Request::GetResolution:
        return number(control.step, control.width);
    case Request::GetDefault:
        return number(control.defaultValue, control.width);
    case Request::GetLength:
        return number(static_cast<int>(control.width), 2);
    case Request::GetInfo: {
        unsigned info = kReadable | kSettable;
        if (control.automatic)
            info |= kChangesByItself;
        if (isAutomatic(control))
            info |= kTakenOver;
        return number(static_cast<int>(info), 1);
    }
    }
    m_lastError = RequestError::InvalidRequest;
    return std::nullopt;
}

RequestError ControlValues::set(const Control &control, ByteView data)
{
    if (data.size() < control.width)
        return RequestError::InvalidRequest;
    if (isAutomatic(control))
        return RequestError::WrongState;
    const int value = toValue(control, data);
    if (!isValid(control, value))
        return RequestError::OutOfRange;
    m_values[&control] = value;
    m_lastSet = &control;
    return RequestError::None;
}

} // namespace meridax::vmcamera

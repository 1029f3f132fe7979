#pragma once

#include "Bytes.h"

#include <cstdint>
#include <map>
#include <optional>
#include <span>

namespace meridax::vmcamera {

/// The parts of the camera that have controls; the numbers are those of the descriptors.
enum class Entity : std::uint8_t { CameraTerminal = 1, ProcessingUnit = 2 };

/// Requests of the video class.
enum class Request : std::uint8_t {
    SetCurrent = 0x01,
    GetCurrent = 0x81,
    GetMinimum = 0x82,
    GetMaximum = 0x83,
    GetResolution = 0x84,
    GetLength = 0x85,
    GetInfo = 0x86,
    GetDefault = 0x87,
};

/// Why the last request was refused, as the host may ask afterwards.
enum class RequestError : std::uint8_t {
    None = 0,
    WrongState = 2, ///< an automatic mode has the control
    OutOfRange = 4,
    InvalidUnit = 5,
    InvalidControl = 6,
    InvalidRequest = 7,
};

struct Control
{
    Entity entity;
    std::uint8_t selector;
    unsigned bit; ///< in the bit map of the entity's descriptor
    const char *name;
    unsigned width; ///< bytes; two-byte controls with a negative minimum are signed
    int min;
    int max;
    int step; ///< of a set of modes: the modes that exist, a bit each
    int defaultValue;
    bool isModeSet = false;          ///< exactly one bit of `step` may be set
    const char *automatic = nullptr; ///< control whose automatic mode takes this one over
    int automaticOff = 0;            ///< value of that control that leaves this one to the host
};

std::span<const Control> controls();
/// Null when the camera has no such control.
const Control *findControl(const char *name);

/// The bit map of the controls that `entity` has.
std::uint32_t controlBits(Entity entity);

/// The values of all controls and the answers to the host's requests about them.
class ControlValues
{
public:
    ControlValues();

    /// Value of the control called `name`, which has to exist.
    int value(const char *name) const;
    /// The control that the last accepted request set; null before.
    const Control *lastSet() const { return m_lastSet; }
    /// Whether an automatic mode has `control` at present.
    bool isAutomatic(const Control &control) const;

    /// Answers one request. Nothing means that the device refuses: lastError() says why.
    std::optional<Bytes> request(Request request, std::uint8_t entity, std::uint8_t selector,
                                 ByteView data);
    RequestError lastError() const { return m_lastError; }

private:
    RequestError set(const Control &control, ByteView data);

    std::map<const Control *, int> m_values;
    const Control *m_lastSet = nullptr;
    RequestError m_lastError = RequestError::None;
};

} // namespace meridax::vmcamera

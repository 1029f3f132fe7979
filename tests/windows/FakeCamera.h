#pragma once

#include <windows.h>

#include <atomic>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// One control of the fake camera. Strict, as some drivers are: a value outside the range or off
/// the step is refused, and so is a mode that the control does not have.
struct FakeControl
{
    long min = 0;
    long max = 0;
    long step = 1;
    long defaultValue = 0;
    long modes = 0; ///< 1 automatic, 2 manual, 3 both
    long value = 0;
    long mode = 2;
    bool rangeFails = false;
};

/// What a test sees of a fake camera and sets.
struct FakeState
{
    std::map<long, FakeControl> cameraControls; ///< by property of IAMCameraControl
    std::map<long, FakeControl> procAmp;        ///< by property of IAMVideoProcAmp
    bool hasCameraControls = true;
    bool hasProcAmp = true;
    bool bindFails = false;

    std::atomic<int> bound = 0; ///< filters that were ever made
    std::atomic<int> alive = 0; ///< filters that still have references
};

/// A capture filter registered as a video input device of this process, until destroyed.
class FakeCamera
{
public:
    /// `number` makes its class id; cameras are listed in the order of their ids. Without `path`
    /// the device has no DevicePath.
    FakeCamera(unsigned char number, const wchar_t *name, const wchar_t *path);
    ~FakeCamera();
    FakeCamera(const FakeCamera &) = delete;
    FakeCamera &operator=(const FakeCamera &) = delete;

    HRESULT result() const { return m_result; }
    FakeState &state() { return *m_state; }

private:
    HRESULT writePath(struct IMoniker &moniker, const wchar_t *path);

    const CLSID m_id;
    std::wstring m_instance;
    std::shared_ptr<FakeState> m_state = std::make_shared<FakeState>();
    DWORD m_registration = 0;
    bool m_isListed = false;
    HRESULT m_result = S_OK;
};

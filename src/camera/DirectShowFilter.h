#pragma once

#include "camera/DirectShowControls.h"

#include <windows.h>

#include <dshow.h>
#include <wrl/client.h>

namespace meridax::directshow {

/// COM on this thread, in the apartment that it has already if there is one.
class ComScope
{
public:
    ComScope();
    ~ComScope();
    ComScope(const ComScope &) = delete;
    ComScope &operator=(const ComScope &) = delete;

    bool failed() const;
    HRESULT result() const { return m_result; }

private:
    const HRESULT m_result;
};

/// `text` with "%1" replaced by the result in the form "0x80070005".
std::wstring failureText(std::wstring text, HRESULT result);

/// The text property `name` of a device, empty when it has none.
std::wstring readMonikerString(IMoniker &moniker, const wchar_t *name);

/// A new capture filter on the camera, null with a text in `error` on failure. No text if the list
/// of devices has none that fits.
Microsoft::WRL::ComPtr<IBaseFilter> bindFilter(const Camera &camera, std::wstring &error);

} // namespace meridax::directshow

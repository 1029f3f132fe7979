#include "camera/DirectShowFilter.h"
#include "camera/ControlRules.h"

#include <cwchar>
#include <vector>

namespace meridax::directshow {

using Microsoft::WRL::ComPtr;

namespace {

/// The result as "0x" and eight hexadecimal digits.
std::wstring hresultText(HRESULT result)
{
    wchar_t text[11];
    std::swprintf(text, std::size(text), L"0x%08lx", static_cast<unsigned long>(result));
    return text;
}

/// `text` in one case, the same for every language of the system.
std::wstring folded(const std::wstring &text)
{
    std::wstring result = text;
    const int length = static_cast<int>(text.size());
    if (length > 0)
        LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_LOWERCASE, text.data(), length, result.data(),
                      length, nullptr, nullptr, 0);
    return result;
}

std::vector<ComPtr<IMoniker>> allMonikers(IEnumMoniker &list)
{
    std::vector<ComPtr<IMoniker>> monikers;
    ComPtr<IMoniker> moniker;
    while (list.Next(1, moniker.ReleaseAndGetAddressOf(), nullptr) == S_OK)
        monikers.push_back(moniker);
    return monikers;
}

int chosen(const std::vector<ComPtr<IMoniker>> &monikers, const Camera &camera)
{
    std::vector<DeviceNames> names;
    names.reserve(monikers.size());
    for (const ComPtr<IMoniker> &moniker : monikers) {
        names.push_back({folded(readMonikerString(*moniker.Get(), L"FriendlyName")),
                         folded(readMonikerString(*moniker.Get(), L"DevicePath"))});
    }
    return chooseByNameOrPath(names, {folded(camera.name), folded(camera.id), camera.index});
}

} // namespace

ComScope::ComScope()
    : m_result(CoInitializeEx(nullptr, COINIT_MULTITHREADED))
{
}

ComScope::~ComScope()
{
    if (m_result == S_OK || m_result == S_FALSE)
        CoUninitialize();
}

bool ComScope::failed() const
{
    // A thread with another apartment keeps it, and all works in it as well.
    return FAILED(m_result) && m_result != RPC_E_CHANGED_MODE;
}

std::wstring failureText(std::wstring text, HRESULT result)
{
    if (const auto place = text.find(L"%1"); place != std::wstring::npos)
        text.replace(place, 2, hresultText(result));
    return text;
}

std::wstring readMonikerString(IMoniker &moniker, const wchar_t *name)
{
    ComPtr<IPropertyBag> properties;
    if (FAILED(moniker.BindToStorage(nullptr, nullptr, IID_PPV_ARGS(properties.GetAddressOf()))))
        return {};
    std::wstring text;
    VARIANT value;
    VariantInit(&value);
    if (SUCCEEDED(properties->Read(name, &value, nullptr)) && value.vt == VT_BSTR && value.bstrVal)
        text.assign(value.bstrVal, SysStringLen(value.bstrVal));
    VariantClear(&value);
    return text;
}

ComPtr<IBaseFilter> bindFilter(const Camera &camera, std::wstring &error)
{
    ComPtr<ICreateDevEnum> devices;
    HRESULT result = CoCreateInstance(CLSID_SystemDeviceEnum, nullptr, CLSCTX_INPROC_SERVER,
                                      IID_PPV_ARGS(devices.GetAddressOf()));
    if (FAILED(result)) {
        error = failureText(L"DirectShow Device Enumerator fehlgeschlagen: %1", result);
        return nullptr;
    }
    ComPtr<IEnumMoniker> list;
    result = devices->CreateClassEnumerator(CLSID_VideoInputDeviceCategory, list.GetAddressOf(), 0);
    // S_FALSE is an empty category.
    if (result != S_OK || !list) {
        error = L"Keine DirectShow-Kameras gefunden.";
        return nullptr;
    }
    const std::vector<ComPtr<IMoniker>> monikers = allMonikers(*list.Get());
    const int index = chosen(monikers, camera);
    if (index < 0)
        return nullptr;
    ComPtr<IBaseFilter> filter;
    result = monikers[static_cast<std::size_t>(index)]->BindToObject(
        nullptr, nullptr, IID_PPV_ARGS(filter.GetAddressOf()));
    if (FAILED(result)) {
        error = failureText(L"DirectShow-Kamera konnte nicht gebunden werden: %1", result);
        return nullptr;
    }
    return filter;
}

} // namespace meridax::directshow

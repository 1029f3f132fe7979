#include "FakeCamera.h"

#include <dshow.h>
#include <wrl/client.h>

using Microsoft::WRL::ComPtr;

namespace {

/// A control interface of a filter. Both have the same calls, so they cannot be bases of one class.
template <typename Interface>
class FakeControls final : public Interface
{
public:
    FakeControls(IUnknown *filter, std::map<long, FakeControl> &controls)
        : m_filter(filter)
        , m_controls(controls)
    {
    }

    STDMETHODIMP QueryInterface(REFIID id, void **out) override
    {
        return m_filter->QueryInterface(id, out);
    }
    STDMETHODIMP_(ULONG) AddRef() override { return m_filter->AddRef(); }
    STDMETHODIMP_(ULONG) Release() override { return m_filter->Release(); }

    STDMETHODIMP GetRange(long property, long *min, long *max, long *step, long *defaultValue,
                          long *modes) override
    {
        const auto found = m_controls.find(property);
        if (found == m_controls.end() || found->second.rangeFails)
            return E_PROP_ID_UNSUPPORTED;
        const FakeControl &control = found->second;
        *min = control.min;
        *max = control.max;
        *step = control.step;
        *defaultValue = control.defaultValue;
        *modes = control.modes;
        return S_OK;
    }

    STDMETHODIMP Set(long property, long value, long mode) override
    {
        const auto found = m_controls.find(property);
        if (found == m_controls.end())
            return E_PROP_ID_UNSUPPORTED;
        FakeControl &control = found->second;
        const bool fits = value >= control.min && value <= control.max &&
                          (control.step < 1 || (value - control.min) % control.step == 0);
        if (!(mode & control.modes) || !fits)
            return E_INVALIDARG;
        control.value = value;
        control.mode = mode;
        return S_OK;
    }

    STDMETHODIMP Get(long property, long *value, long *mode) override
    {
        const auto found = m_controls.find(property);
        if (found == m_controls.end())
            return E_PROP_ID_UNSUPPORTED;
        *value = found->second.value;
        *mode = found->second.mode;
        return S_OK;
    }

private:
    IUnknown *m_filter;
    std::map<long, FakeControl> &m_controls;
};

class FakeFilter final : public IBaseFilter
{
public:
    FakeFilter(std::shared_ptr<FakeState> state, REFCLSID id)
        : m_state(std::move(state))
        , m_id(id)
    {
        ++m_state->bound;
        ++m_state->alive;
    }
    ~FakeFilter() { --m_state->alive; }

    STDMETHODIMP QueryInterface(REFIID id, void **out) override
    {
        *out = nullptr;
        if (id == IID_IUnknown || id == IID_IPersist || id == IID_IMediaFilter ||
            id == IID_IBaseFilter)
            *out = static_cast<IBaseFilter *>(this);
        else if (id == IID_IAMCameraControl && m_state->hasCameraControls)
            *out = &m_cameraControls;
        else if (id == IID_IAMVideoProcAmp && m_state->hasProcAmp)
            *out = &m_procAmp;
        else
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++m_references; }
    STDMETHODIMP_(ULONG) Release() override
    {
        const ULONG left = --m_references;
        if (left == 0)
            delete this;
        return left;
    }

    STDMETHODIMP GetClassID(CLSID *id) override
    {
        *id = m_id;
        return S_OK;
    }
    STDMETHODIMP Stop() override { return S_OK; }
    STDMETHODIMP Pause() override { return S_OK; }
    STDMETHODIMP Run(REFERENCE_TIME) override { return S_OK; }
    STDMETHODIMP GetState(DWORD, FILTER_STATE *) override { return E_NOTIMPL; }
    STDMETHODIMP SetSyncSource(IReferenceClock *) override { return S_OK; }
    STDMETHODIMP GetSyncSource(IReferenceClock **) override { return E_NOTIMPL; }
    STDMETHODIMP EnumPins(IEnumPins **) override { return E_NOTIMPL; }
    STDMETHODIMP FindPin(LPCWSTR, IPin **) override { return E_NOTIMPL; }
    STDMETHODIMP QueryFilterInfo(FILTER_INFO *) override { return E_NOTIMPL; }
    STDMETHODIMP JoinFilterGraph(IFilterGraph *, LPCWSTR) override { return S_OK; }
    STDMETHODIMP QueryVendorInfo(LPWSTR *) override { return E_NOTIMPL; }

private:
    std::atomic<ULONG> m_references = 1;
    std::shared_ptr<FakeState> m_state;
    const CLSID m_id;
    FakeControls<IAMCameraControl> m_cameraControls{this, m_state->cameraControls};
    FakeControls<IAMVideoProcAmp> m_procAmp{this, m_state->procAmp};
};

class FakeFactory final : public IClassFactory
{
public:
    FakeFactory(std::shared_ptr<FakeState> state, REFCLSID id)
        : m_state(std::move(state))
        , m_id(id)
    {
    }

    STDMETHODIMP QueryInterface(REFIID id, void **out) override
    {
        *out = id == IID_IUnknown || id == IID_IClassFactory ? this : nullptr;
        if (!*out)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++m_references; }
    STDMETHODIMP_(ULONG) Release() override
    {
        const ULONG left = --m_references;
        if (left == 0)
            delete this;
        return left;
    }

    STDMETHODIMP CreateInstance(IUnknown *outer, REFIID id, void **out) override
    {
        *out = nullptr;
        if (outer)
            return CLASS_E_NOAGGREGATION;
        if (m_state->bindFails)
            return HRESULT_FROM_WIN32(ERROR_DEVICE_NOT_CONNECTED);
        ComPtr<IBaseFilter> filter;
        filter.Attach(new FakeFilter(m_state, m_id));
        return filter->QueryInterface(id, out);
    }
    STDMETHODIMP LockServer(BOOL) override { return S_OK; }

private:
    std::atomic<ULONG> m_references = 1;
    std::shared_ptr<FakeState> m_state;
    const CLSID m_id;
};

ComPtr<IFilterMapper2> filterMapper()
{
    ComPtr<IFilterMapper2> mapper;
    CoCreateInstance(CLSID_FilterMapper2, nullptr, CLSCTX_INPROC_SERVER,
                     IID_PPV_ARGS(mapper.GetAddressOf()));
    return mapper;
}

std::wstring textOf(REFCLSID id)
{
    wchar_t text[64] = L"";
    StringFromGUID2(id, text, static_cast<int>(std::size(text)));
    return text;
}

} // namespace

FakeCamera::FakeCamera(unsigned char number, const wchar_t *name, const wchar_t *path)
    : m_id{0x6d2f0b00UL + number, 0x51c4, 0x4e0d, {0x8f, 0x3a, 0x27, 0x96, 0xc1, 0x5e, 0x70, 0x42}}
    , m_instance(textOf(m_id))
{
    ComPtr<IClassFactory> factory;
    factory.Attach(new FakeFactory(m_state, m_id));
    m_result = CoRegisterClassObject(m_id, factory.Get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE,
                                     &m_registration);
    const ComPtr<IFilterMapper2> mapper = filterMapper();
    if (FAILED(m_result) || !mapper)
        return;
    REGFILTER2 filter{};
    filter.dwVersion = 1;
    filter.dwMerit = MERIT_DO_NOT_USE;
    ComPtr<IMoniker> moniker;
    m_result = mapper->RegisterFilter(m_id, name, moniker.GetAddressOf(),
                                      &CLSID_VideoInputDeviceCategory, m_instance.c_str(), &filter);
    m_isListed = SUCCEEDED(m_result);
    if (m_isListed && path)
        m_result = writePath(*moniker.Get(), path);
}

FakeCamera::~FakeCamera()
{
    if (m_isListed)
        filterMapper()->UnregisterFilter(&CLSID_VideoInputDeviceCategory, m_instance.c_str(), m_id);
    if (m_registration)
        CoRevokeClassObject(m_registration);
}

// Registering a filter writes no DevicePath, which real devices have from their driver.
HRESULT FakeCamera::writePath(IMoniker &moniker, const wchar_t *path)
{
    ComPtr<IPropertyBag> properties;
    HRESULT result =
        moniker.BindToStorage(nullptr, nullptr, IID_PPV_ARGS(properties.GetAddressOf()));
    VARIANT value;
    VariantInit(&value);
    value.vt = VT_BSTR;
    value.bstrVal = SysAllocString(path);
    if (SUCCEEDED(result))
        result = properties->Write(L"DevicePath", &value);
    VariantClear(&value);
    return result;
}

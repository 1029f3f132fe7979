// The camera controls against real DirectShow, on capture filters that this program registers.

#include "FakeCamera.h"
#include "camera/DirectShowControls.h"

#include <windows.h>

#include <dshow.h>

#include <cstdio>
#include <optional>
#include <thread>

using namespace meridax;
using namespace meridax::directshow;

namespace {

int passed = 0;
int failed = 0;

void check(bool ok, const char *what, const std::string &row, int line)
{
    ok ? ++passed : ++failed;
    if (!ok)
        std::printf("line %d [%s]: %s\n", line, row.c_str(), what);
}

#define CHECK(condition) check(condition, #condition, "", __LINE__)
#define CHECK_ROW(row, condition) check(condition, #condition, row, __LINE__)

struct Answer
{
    bool accepted = false;
    std::wstring error = L"of an earlier call";
    std::vector<std::string> log;
};

Answer apply(const Camera &camera, const Values &values)
{
    Answer answer;
    answer.accepted = applyValues(
        camera, values, [&](const std::string &line) { answer.log.push_back(line); }, answer.error);
    return answer;
}

FakeControl control(long min, long max, long step, long defaultValue, long modes)
{
    return {.min = min,
            .max = max,
            .step = step,
            .defaultValue = defaultValue,
            .modes = modes,
            .value = defaultValue,
            .mode = modes & 1 ? 1 : 2};
}

void emptyCategory()
{
    const Answer answer = apply({}, {});
    CHECK(!answer.accepted);
    CHECK(answer.error == L"Keine DirectShow-Kameras gefunden.");
    Ranges ranges;
    ranges.gain.supported = true;
    std::wstring error;
    CHECK(!queryRanges({}, ranges, error));
    CHECK(error == answer.error && !ranges.gain.supported);
}

void choosesTheDevice()
{
    FakeCamera cameras[] = {{1, L"Cam\u00e9ra \u03a9", L"\\\\?\\usb#vid_1234&pid_0001#a"},
                            {2, L"Twin", L"\\\\?\\usb#vid_1234&pid_0001#b"},
                            {3, L"Twin", L"\\\\?\\usb#vid_1234&pid_0001#c"},
                            {4, L"Virtual", nullptr}};
    for (FakeCamera &camera : cameras) {
        CHECK(SUCCEEDED(camera.result()));
        camera.state().procAmp[VideoProcAmp_Gain] = control(0, 10, 1, 5, 2);
    }
    const struct
    {
        const char *row;
        Camera camera;
        int expected; ///< -1 none
    } rows[] = {
        {"name ignoring case", {L"CAM\u00c9RA \u03c9", L"", 2}, 0},
        {"two of one name", {L"twin", L"", 3}, 1},
        {"path ignoring case", {L"", L"\\\\?\\USB#VID_1234&pid_0001#c", 0}, 2},
        {"path behind a prefix", {L"", L"@device:pnp:\\\\?\\usb#vid_1234&pid_0001#b", 0}, 1},
        {"no path at all", {L"Virtual", L"", 0}, 3},
        {"index", {L"", L"", 2}, 2},
        {"index, texts unknown", {L"Other", L"\\\\?\\usb#other", 3}, 3},
        {"index beyond the list", {L"", L"", 4}, -1},
        {"negative index", {L"", L"", -1}, -1},
    };
    for (const auto &row : rows) {
        for (FakeCamera &camera : cameras)
            camera.state().bound = 0;
        const Answer answer = apply(row.camera, {.gain = 7});
        CHECK_ROW(row.row, answer.accepted == (row.expected >= 0) && answer.error.empty());
        for (int i = 0; i < 4; ++i)
            CHECK_ROW(row.row, cameras[i].state().bound == (i == row.expected ? 1 : 0));
    }
    for (FakeCamera &camera : cameras)
        CHECK(camera.state().alive == 0);
}

void bindFailure()
{
    FakeCamera camera(1, L"Gone", L"p");
    camera.state().bindFails = true;
    Answer answer = apply({L"gone", L"", 0}, {});
    CHECK(!answer.accepted);
    CHECK(answer.error == L"DirectShow-Kamera konnte nicht gebunden werden: 0x8007048f");
    Ranges ranges;
    CHECK(!queryRanges({L"gone", L"", 0}, ranges, answer.error));
    CHECK(answer.error == L"DirectShow-Kamera konnte nicht gebunden werden: 0x8007048f");
}

void ranges()
{
    FakeCamera camera(1, L"Cam", L"p");
    camera.state().cameraControls[CameraControl_Exposure] = control(-13, -1, 1, -6, 3);
    camera.state().procAmp[VideoProcAmp_Brightness] = control(-64, 64, 0, 8, 2);
    camera.state().procAmp[VideoProcAmp_WhiteBalance] = control(2800, 6500, 10, 4600, 3);
    Ranges answer;
    answer.contrast.step = 99;
    std::wstring error;
    CHECK(queryRanges({L"Cam", L"", 0}, answer, error));
    CHECK((answer.exposure == ControlRange{-13, -1, 1, -6, true, true}));
    CHECK((answer.brightness == ControlRange{-64, 64, 1, 8, true, false}));
    CHECK((answer.whiteBalance == ControlRange{2800, 6500, 10, 4600, true, true}));
    for (const ControlRange &other :
         {answer.focus, answer.contrast, answer.saturation, answer.gain, answer.gamma})
        CHECK(other == ControlRange{});

    camera.state().procAmp.clear();
    camera.state().hasCameraControls = false;
    CHECK(!queryRanges({L"Cam", L"", 0}, answer, error));
    CHECK(error.empty() && answer.exposure == ControlRange{});
    CHECK(camera.state().alive == 0);
}

void exposureAndFocus()
{
    FakeCamera camera(1, L"Cam", L"p");
    FakeControl &exposure = camera.state().cameraControls[CameraControl_Exposure];
    FakeControl &focus = camera.state().cameraControls[CameraControl_Focus];
    const struct
    {
        const char *row;
        FakeControl before;
        int value;
        std::optional<std::pair<long, long>> exposure; ///< value and mode, nothing: not accepted
        std::optional<std::pair<long, long>> focus;
    } rows[] = {
        {"snapped, focus refused off its step", control(1, 21, 4, 5, 3), 7, {{9, 2}}, {}},
        {"on the step", control(1, 21, 4, 5, 3), 13, {{13, 2}}, {{13, 2}}},
        {"automatic writes the default", control(1, 21, 4, 5, 3), 1, {{5, 1}}, {{5, 1}}},
        {"clamped", control(1, 21, 4, 5, 3), 99, {{21, 2}}, {{21, 2}}},
        {"no automatic mode", control(1, 21, 4, 5, 2), -9, {{1, 2}}, {{1, 2}}},
    };
    for (const auto &row : rows) {
        const auto expect = [&](const FakeControl &control, const auto &expected) {
            const auto [value, mode] =
                expected.value_or(std::pair(row.before.value, row.before.mode));
            CHECK_ROW(row.row, control.value == value && control.mode == mode);
        };
        exposure = focus = row.before;
        CHECK_ROW(row.row,
                  apply({L"Cam", L"", 0}, {.exposure = row.value, .focus = row.value}).accepted);
        expect(exposure, row.exposure);
        expect(focus, row.focus);
    }

    // Without a range exposure is left alone, while focus is tried as it stands.
    exposure = focus = control(1, 21, 4, 5, 3);
    exposure.rangeFails = focus.rangeFails = true;
    CHECK(apply({L"Cam", L"", 0}, {.exposure = 13, .focus = 17}).accepted);
    CHECK(exposure.mode == 1 && focus.value == 17 && focus.mode == 2);
}

void imageControls()
{
    FakeCamera camera(1, L"Cam", L"p");
    auto &controls = camera.state().procAmp;
    controls[VideoProcAmp_Brightness] = control(-64, 64, 1, 8, 2);
    controls[VideoProcAmp_Contrast] = control(0, 100, 1, 50, 3);
    controls[VideoProcAmp_Saturation] = control(0, 100, 5, 50, 2);
    const Values values{.brightness = 99, .contrast = 0, .saturation = 33, .gain = 12};
    const Answer answer = apply({L"Cam", L"", 0}, values);
    CHECK(answer.accepted);
    const std::vector<std::string> expected = {
        "[ProcAmp] prop=0 requested=64 flagsUsed=2 setHR=OK readBack=64 readBackFlags=2",
        "[ProcAmp] prop=1 requested=50 flagsUsed=1 setHR=OK readBack=50 readBackFlags=1",
        "[ProcAmp] prop=3 requested=33 flagsUsed=2 setHR=FAIL readBack=50 readBackFlags=2",
        "[ProcAmp] prop=9 requested=12 flagsUsed=2 setHR=FAIL readBack=-1 readBackFlags=-1"};
    CHECK(answer.log == expected);
    CHECK(camera.state().alive == 0);
}

void missingInterfaces()
{
    FakeCamera camera(1, L"Cam", L"p");
    camera.state().cameraControls[CameraControl_Focus] = control(0, 10, 1, 5, 2);
    camera.state().procAmp[VideoProcAmp_Gain] = control(0, 10, 1, 5, 2);
    camera.state().hasProcAmp = false;
    const Answer focusOnly = apply({L"Cam", L"", 0}, {.focus = 3, .gain = 3});
    CHECK(focusOnly.accepted && focusOnly.log.empty());
    camera.state().hasProcAmp = true;
    camera.state().hasCameraControls = false;
    CHECK(apply({L"Cam", L"", 0}, {.focus = 3, .gain = 3}).accepted);
    camera.state().hasProcAmp = false;
    const Answer neither = apply({L"Cam", L"", 0}, {.focus = 3, .gain = 3});
    CHECK(!neither.accepted && neither.error.empty());
    CHECK(camera.state().bound == 3 && camera.state().alive == 0);
}

// A thread that has an apartment of its own kind, as the GUI thread has, keeps it.
void foreignApartment()
{
    std::thread([] {
        CHECK(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED) == S_OK);
        CHECK(apply({}, {}).error == L"Keine DirectShow-Kameras gefunden.");
        APTTYPE type{};
        APTTYPEQUALIFIER qualifier{};
        CHECK(CoGetApartmentType(&type, &qualifier) == S_OK);
        CHECK(type == APTTYPE_STA || type == APTTYPE_MAINSTA);
        CoUninitialize();
        CHECK(apply({}, {}).error == L"Keine DirectShow-Kameras gefunden.");
    }).join();
}

} // namespace

int main()
{
    // Holds the apartment that the class objects of the fake cameras live in.
    CHECK(SUCCEEDED(CoInitializeEx(nullptr, COINIT_MULTITHREADED)));
    for (const auto test : {emptyCategory, choosesTheDevice, bindFailure, ranges, exposureAndFocus,
                            imageControls, missingInterfaces, emptyCategory, foreignApartment})
        test();
    CoUninitialize();
    std::printf("%d passed, %d failed\n", passed, failed);
    return failed != 0;
}

// The live picture with its panels, marks and presets.

#include "ScreenshotStory.h"

using namespace Qt::StringLiterals;

namespace {

/// Between two frames while pictures are taken: the machine has better things to do.
const QString kSlow = u"frame-delay=0.4"_s;
const QString kFast = u"frame-delay=0"_s;

} // namespace

void ScreenshotStory::startCamera()
{
    click(u"startStopButton"_s);
    m_pointer.leave();
    waitFor(u"the first frame"_s, [this] { return !value("frameInfo").toString().isEmpty(); });
    waitFor(u"the picture"_s,
            [this] { return m_studio.scene().window().property("hasFirstFrame").toBool(); });
    waitFor(u"what the camera can do"_s, [this] { return value("exposureSupported").toBool(); });
    waitFor(u"the range of the focus"_s, [this] { return value("focusRangeMax").toInt() > 0; });
    set("circle1Radius", 218); // inside the picture
    camera({kSlow});
}

void ScreenshotStory::livePanels()
{
    take(u"main-window"_s);
    takeWhole(u"camera-controls"_s, m_studio.scene().item(u"cameraPage"_s),
              {.parts = {u"leftPanel"_s}});
    takeHelp(u"help"_s, m_studio.scene().item(u"exposureSlider"_s, u"helpSign"_s));
    if (wants({u"panels-folded"_s})) {
        foldPanels(true);
        take(u"panels-folded"_s);
        foldPanels(false);
    }
}

void ScreenshotStory::foldPanels(bool folded)
{
    for (const QString &panel : {u"leftPanel"_s, u"rightPanel"_s}) {
        click(panel, u"panelHandle"_s);
        waitFor(panel, [&] {
            return m_studio.scene().item(panel).property("expanded").toBool() != folded;
        });
    }
    m_pointer.leave();
}

void ScreenshotStory::overlays()
{
    if (!wants({u"overlay-panel"_s, u"overlay-panel-end"_s, u"colour"_s}))
        return;
    for (const char *property : {"circle2Enabled", "circle3Enabled"})
        set(property, true);
    set("circle2Radius", 150);
    set("circle3Radius", 80);
    for (const QString &section : {u"circle1Section"_s, u"crossSection"_s})
        setSection(u"rightPanel"_s, section, true);
    for (const QString &section : {u"circle2Section"_s, u"circle3Section"_s})
        setSection(u"rightPanel"_s, section, false);
    takeWhole(u"overlay-panel"_s, m_studio.scene().item(u"overlayPage"_s),
              {.parts = {u"rightPanel"_s}});
    if (wants({u"colour"_s})) {
        click(u"circle1Section"_s, u"colorButton"_s);
        QObject *const dialog = m_studio.scene()
                                    .item(u"circle1Section"_s, u"colorButton"_s)
                                    .findChild<QObject *>(u"colorDialog"_s);
        waitFor(u"the colour dialog"_s, [&] { return dialog->property("visible").toBool(); });
        m_pointer.leave();
        take(u"colour"_s, {.foreign = true});
        QMetaObject::invokeMethod(dialog, "close");
        waitFor(u"the colour dialog to close"_s,
                [&] { return !dialog->property("visible").toBool(); });
    }
}

void ScreenshotStory::presets()
{
    if (!wants({u"focus-presets"_s, u"focus-preset-name"_s, u"focus-preset-help"_s}))
        return;
    Scene &scene = m_studio.scene();
    const auto add = [&](const QString &name) {
        const auto count = value("focusPresets").toList().size();
        click(u"addPresetButton"_s);
        m_pointer.leave();
        scene.item(u"nameField"_s).setProperty("text", name);
        if (count == 0)
            take(u"focus-preset-name"_s);
        QMetaObject::invokeMethod(&scene.item(u"nameField"_s), "accepted");
        waitFor(u"the preset"_s,
                [&] { return value("focusPresets").toList().size() == count + 1; });
    };
    set("focusValue", 412);
    add(u"Ring 1"_s);
    set("focusValue", 305);
    add(u"Ring 2"_s);
    set("focusValue", 322);
    take(u"focus-presets"_s, {.parts = {u"focusPresetOverlay"_s}});
    takeHelp(u"focus-preset-help"_s, scene.item(u"preset0"_s, u"chipArea"_s));
}

void ScreenshotStory::spotFocus()
{
    if (!wants({u"spot-focus-help"_s, u"spot-focus"_s}))
        return;
    Scene &scene = m_studio.scene();
    click(u"focusTapButton"_s);
    waitFor(u"the mode"_s, [this] { return value("focusTapModeActive").toBool(); });
    takeHelp(u"spot-focus-help"_s, scene.item(u"focusTapButton"_s));
    if (wants({u"spot-focus"_s})) {
        foldPanels(true); // in a small window they leave nothing of the picture free
        scene.waitUntilStill();
        m_pointer.click(scene.item(u"overlayCanvas"_s), {0.52, 0.6});
        waitFor(u"the sweep"_s, [this] { return value("focusSweepActive").toBool(); });
        // A frame every few seconds: the sweep outlasts the pictures.
        camera({u"frame-delay=3"_s});
        m_pointer.leave();
        take(u"spot-focus"_s);
        camera({kFast});
        waitFor(
            u"the end of the sweep"_s, [this] { return !value("focusSweepActive").toBool(); },
            std::chrono::seconds(60));
        camera({kSlow});
        foldPanels(false);
    }
    click(u"focusTapButton"_s);
    m_pointer.leave();
}

void ScreenshotStory::screenshotButton()
{
    takeHelp(u"screenshot-help"_s, m_studio.scene().item(u"screenshotButton"_s));
    take(u"toast"_s, {.before = [this] {
             click(u"screenshotButton"_s);
             m_pointer.leave();
             waitFor(u"the toast"_s,
                     [this] { return m_studio.scene().item(u"screenshotToast"_s).opacity() == 1; });
         }});
}

void ScreenshotStory::cameraLost()
{
    if (!wants({u"camera-lost"_s}))
        return;
    m_studio.expectWarning(u"[camera]"_s);
    m_camera.run({u"unplug"_s});
    waitFor(u"the loss"_s, [this] { return !value("running").toBool(); });
    take(u"camera-lost"_s);
}

#include "ScreenshotStory.h"

#include <cstdio>
#include <exception>

using namespace Qt::StringLiterals;

namespace {

/// How many popups are to be seen below `item`.
int popups(const QQuickItem &item)
{
    if (!item.isVisible())
        return 0;
    int count = item.inherits("QQuickPopupItem") ? 1 : 0;
    const QList<QQuickItem *> children = item.childItems();
    for (const QQuickItem *child : children)
        count += popups(*child);
    return count;
}

} // namespace

ScreenshotStory::ScreenshotStory(const ScreenshotOptions &options)
    : m_studio(options)
    , m_camera(options.cameraTool)
{
    m_pointer.leave();
}

bool ScreenshotStory::run()
{
    try {
        if (m_studio.options().story == "beta"_L1)
            runBeta();
        else
            runMain();
    } catch (...) {
        m_studio.scene().save(m_studio.options().pictureFolder + "/failed-"_L1 +
                              m_studio.options().size + ".png"_L1);
        throw;
    }
    m_studio.finish();
    std::printf("%s: %d pictures\n", qPrintable(m_studio.options().size), m_studio.pictures());
    return !m_studio.hasFaults();
}

void ScreenshotStory::runMain()
{
    lastCrash();
    updateOffered();
    firstStart();
    withoutCamera();
    settings();
    information();
    bugReport();
    featureRequest();
    feedback();
    startCamera();
    livePanels();
    overlays();
    presets();
    spotFocus();
    screenshotButton();
    calibrationPane();
    fewPositions();
    fullCalibration();
    profile();
    cameraLost();
}

void ScreenshotStory::runBeta()
{
    waitFor(u"the update"_s, [this] { return value("updateBannerVisible").toBool(); });
    take(u"beta-banner"_s, {.parts = {u"updateBanner"_s}});
    if (wants({u"beta-release-notes"_s})) {
        click(u"whatsNewLink"_s);
        waitOpened(u"whatsNewDialog"_s);
        take(u"beta-release-notes"_s);
        close(u"whatsNewDialog"_s);
    }
    if (wants({u"beta-settings"_s, u"beta-settings-end"_s})) {
        openSettings();
        takeWhole(u"beta-settings"_s, m_studio.scene().item(u"settingsView"_s));
    }
}

void ScreenshotStory::lastCrash()
{
    waitOpened(u"crashRecoveryDialog"_s);
    take(u"crash-recovery"_s, {.parts = {u"crashRecoveryDialog"_s}});
    if (wants({u"crash-details"_s})) {
        click(u"detailsToggle"_s);
        waitFor(u"the details"_s, [this] {
            return m_studio.scene().item(u"crashDetails"_s).property("expanded").toBool();
        });
        take(u"crash-details"_s);
    }
    if (wants({u"crash-report"_s, u"crash-report-end"_s})) {
        click(u"describeCrashButton"_s);
        waitOpened(u"bugReportDialog"_s);
        takeWhole(u"crash-report"_s, m_studio.scene().item(u"bugReportDialog"_s, u"formView"_s));
        close(u"bugReportDialog"_s);
        waitOpened(u"crashRecoveryDialog"_s);
    }
    click(u"discardCrashButton"_s);
    waitClosed(u"crashRecoveryDialog"_s);
}

void ScreenshotStory::updateOffered()
{
    waitFor(u"the update"_s, [this] { return value("updateBannerVisible").toBool(); });
    m_pointer.leave();
    take(u"update-banner"_s, {.parts = {u"updateBanner"_s, u"topBar"_s}});
    if (wants({u"release-notes"_s})) {
        click(u"whatsNewLink"_s);
        waitOpened(u"whatsNewDialog"_s);
        take(u"release-notes"_s);
        close(u"whatsNewDialog"_s);
    }
    click(u"dismissButton"_s);
    waitFor(u"the banner to go"_s, [this] {
        return !m_studio.scene().object(u"updateBanner"_s).property("visible").toBool();
    });
    m_pointer.leave();
}

void ScreenshotStory::plugCamera()
{
    // Without noise the files are small, and the same in each run but for the time.
    m_camera.run({u"plug"_s, u"--noise"_s, u"0"_s, u"--form3"_s, u"1.5"_s});
    waitFor(u"the camera"_s, [this] { return !value("cameraNames").toStringList().isEmpty(); });
}

void ScreenshotStory::firstStart()
{
    plugCamera();
    const QStringList offered = value("resolutionOptions").toStringList();
    const QStringList wanted = offered.filter(u"1280 x 720"_s);
    openList(u"resolutionSelector"_s);
    take(u"resolutions"_s);
    m_pointer.click(m_studio.scene().itemWithText(wanted));
    waitFor(u"the resolution"_s, [&] {
        return value("selectedResolutionIndex").toInt() == offered.indexOf(wanted.first());
    });
    m_pointer.leave();
    take(u"first-start"_s);
}

void ScreenshotStory::withoutCamera()
{
    if (!wants({u"no-camera"_s}))
        return;
    m_camera.run({u"unplug"_s});
    waitFor(u"the empty list"_s, [this] { return value("cameraNames").toStringList().isEmpty(); });
    click(u"startStopButton"_s);
    m_pointer.leave();
    waitFor(u"the word about the camera"_s,
            [this] { return !value("status").toString().isEmpty(); });
    take(u"no-camera"_s);
    plugCamera();
}

// ------------------------------------------------------------------------------------- the hands

void ScreenshotStory::take(const QString &name, const PictureSetting &setting)
{
    m_studio.take(name, setting);
}

void ScreenshotStory::takeWhole(const QString &name, QQuickItem &flickable,
                                const PictureSetting &setting)
{
    scroll(flickable, 0);
    take(name, setting);
    const auto below = [&flickable] {
        return flickable.property("contentHeight").toDouble() - flickable.height();
    };
    if (below() < 1 || !wants({name + "-end"_L1}))
        return;
    PictureSetting atEnd = setting;
    // How far down that is depends on the language.
    atEnd.before = [&] {
        m_studio.scene().waitUntilStill();
        scroll(flickable, below());
    };
    take(name + "-end"_L1, atEnd);
    scroll(flickable, 0);
}

void ScreenshotStory::click(const QString &objectName)
{
    m_studio.scene().waitUntilStill();
    m_pointer.click(m_studio.scene().item(objectName));
}

void ScreenshotStory::click(const QString &parentName, const QString &objectName)
{
    m_studio.scene().waitUntilStill();
    m_pointer.click(m_studio.scene().item(parentName, objectName));
}

void ScreenshotStory::openList(const QString &objectName)
{
    const int before = popups(m_studio.scene().top());
    click(objectName);
    waitFor(u"the list of "_s + objectName,
            [&] { return popups(m_studio.scene().top()) > before; });
    m_pointer.leave();
}

void ScreenshotStory::closeList(const QString &parentName, const QString &objectName)
{
    const int before = popups(m_studio.scene().top());
    click(parentName, objectName);
    waitFor(u"the list to close"_s, [&] { return popups(m_studio.scene().top()) < before; });
    m_pointer.leave();
}

void ScreenshotStory::takeHelp(const QString &name, const QQuickItem &item)
{
    if (!wants({name}))
        return;
    // The help of what was pointed at before goes first.
    m_pointer.leave();
    m_studio.scene().waitUntilStill();
    const int before = popups(m_studio.scene().top());
    const auto helps = [&] { return popups(m_studio.scene().top()) > before; };
    // Anew each time: where the texts move the item from under the pointer, the help goes.
    take(name, {.before = [&] {
             m_pointer.leave();
             waitFor(u"no help"_s, [&] { return !helps(); });
             m_studio.scene().waitUntilStill();
             m_pointer.moveTo(item);
             waitFor(u"the help"_s, helps);
         }});
    m_pointer.leave();
    waitFor(u"no help"_s, [&] { return !helps(); });
}

void ScreenshotStory::openSettings()
{
    click(u"settingsButton"_s);
    waitOpened(u"settingsPanel"_s);
    m_pointer.leave();
}

void ScreenshotStory::waitOpened(const QString &popup)
{
    waitFor(popup, [&] { return m_studio.scene().object(popup).property("opened").toBool(); });
    m_pointer.leave();
}

void ScreenshotStory::waitClosed(const QString &popup)
{
    waitFor(popup + " to close"_L1,
            [&] { return !m_studio.scene().object(popup).property("visible").toBool(); });
}

void ScreenshotStory::close(const QString &popup)
{
    QMetaObject::invokeMethod(&m_studio.scene().object(popup), "close");
    waitClosed(popup);
}

void ScreenshotStory::scroll(QQuickItem &flickable, double y)
{
    const double most = flickable.property("contentHeight").toDouble() - flickable.height();
    flickable.setProperty("contentY", qBound(0.0, y, qMax(0.0, most)));
}

void ScreenshotStory::setSection(const QString &parentName, const QString &section, bool expanded)
{
    QQuickItem &item = m_studio.scene().item(parentName, section);
    if (item.property("expanded").toBool() != expanded)
        QMetaObject::invokeMethod(&item, "toggle");
    m_studio.scene().waitUntilStill();
}

void ScreenshotStory::camera(const QStringList &assignments)
{
    m_camera.run(QStringList{u"set"_s} + assignments);
}

QVariant ScreenshotStory::value(const char *property) const
{
    return m_studio.scene().value(property);
}

void ScreenshotStory::set(const char *property, const QVariant &value)
{
    m_studio.scene().viewModel().setProperty(property, value);
}

bool takeScreenshots(const ScreenshotOptions &options)
{
    try {
        return ScreenshotStory(options).run();
    } catch (const std::exception &error) {
        std::printf("%s: %s: FAIL\n", qPrintable(options.size), error.what());
        std::fflush(stdout);
        return false;
    }
}

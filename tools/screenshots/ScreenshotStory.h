#pragma once

#include "ScreenshotOptions.h"
#include "Studio.h"
#include "drive/Pointer.h"
#include "drive/SimulatedCamera.h"

/// Goes once through everything that the program can show, with a real mouse, and takes the
/// pictures on the way. What no picture asked for needs is left out.
class ScreenshotStory
{
public:
    explicit ScreenshotStory(const ScreenshotOptions &options);

    /// Throws std::runtime_error naming what did not happen. Returns whether no fault was found.
    bool run();

private:
    // What happens in the window: ScreenshotStory.cpp.
    void runMain();
    void runBeta();
    void lastCrash();
    void updateOffered();
    void plugCamera();
    void firstStart();
    void withoutCamera();

    // ScreenshotStory_dialogs.cpp
    void settings();
    void information();
    void bugReport();
    void featureRequest();
    void feedback();

    // ScreenshotStory_live.cpp
    void startCamera();
    void livePanels();
    void overlays();
    void foldPanels(bool folded);
    void presets();
    void spotFocus();
    void screenshotButton();
    void cameraLost();

    // ScreenshotStory_calibration.cpp
    void calibrationPane();
    void fewPositions();
    void fullCalibration();
    void figures();
    void profile();
    void beginCalibration(int positions);
    void toPosition(int index);
    void measure(int index);
    void finishCalibration(int positions, int measured = 0);

    // How: the hands.
    bool wants(const QStringList &names) const { return m_studio.options().wantsAny(names); }
    void take(const QString &name, const PictureSetting &setting = {});
    /// Takes `name`, and `name`-end scrolled to the end where the view `flickable` scrolls.
    void takeWhole(const QString &name, QQuickItem &flickable, const PictureSetting &setting = {});
    void click(const QString &objectName);
    void click(const QString &parentName, const QString &objectName);
    /// Clicks and waits for the list or menu that it opens.
    void openList(const QString &objectName);
    /// Clicks beside an open list, on the item `objectName` of `parentName`.
    void closeList(const QString &parentName, const QString &objectName);
    /// Points at an item until its help shows, takes the picture and leaves it.
    void takeHelp(const QString &name, const QQuickItem &item);
    void openSettings();
    void waitOpened(const QString &popup);
    void waitClosed(const QString &popup);
    void close(const QString &popup);
    void scroll(QQuickItem &flickable, double y);
    void setSection(const QString &parentName, const QString &section, bool expanded);
    void camera(const QStringList &assignments);
    QVariant value(const char *property) const;
    void set(const char *property, const QVariant &value);

    Studio m_studio;
    Pointer m_pointer;
    SimulatedCamera m_camera;
};

/// Takes the pictures that `options` ask for. Prints what is wrong with them, and a line at the
/// end.
bool takeScreenshots(const ScreenshotOptions &options);

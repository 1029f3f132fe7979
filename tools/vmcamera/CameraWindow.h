#pragma once

#include "Helpers.h"
#include "drive/Pointer.h"
#include "drive/Scene.h"

/// The program's window as the steps of the test need it. Everything here waits where the program
/// needs time, and throws std::runtime_error when that is over or something is not as it should be.
class CameraWindow
{
public:
    static inline const QString runningLabel = QStringLiteral("Kamera verbunden");
    static inline const QString failedLabel =
        QStringLiteral("Kamerafehler – bitte Gerät und Verbindung prüfen.");
    static inline const QString notFoundLabel = QStringLiteral("Keine passende Kamera gefunden.");

    void start();
    void stop();
    /// Presses "Start" where it cannot succeed.
    void startInVain(const QString &expectedLabel);

    bool running() const { return value("running").toBool(); }
    void waitForLabel(const QString &text) const;
    /// The stream has ended by itself, and the label says so.
    void waitForFailure() const;
    /// The list shows exactly these, in any order: each driver numbers its devices by itself.
    void waitForCameras(QStringList names) const;
    void chooseCamera(const QString &name);

    /// Moves the slider of that name: to its middle, or by one step upwards.
    void slideToMiddle(const char *slider);
    void stepUp(const char *slider);

    /// Begins a focus sweep by a click into the picture.
    void tapFocus();

    QVariant value(const char *property) const { return m_scene.value(property); }
    void setValue(const char *property, const QVariant &value) const;
    QQuickItem &item(const char *objectName) const;
    const FrameCounter &frames() const { return m_frames; }
    void save(const QString &path) const { m_scene.save(path); }

private:
    void clickPartOf(const char *slider, const char *part);

    Scene m_scene;
    Pointer m_pointer;
    FrameCounter m_frames{m_scene.value("controller").value<QObject *>()};
};

/// Throws std::runtime_error with `what` unless `condition` holds.
void require(bool condition, const QString &what);

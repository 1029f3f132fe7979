#pragma once

#include "GermanTexts.h"
#include "ScreenshotOptions.h"
#include "drive/Scene.h"
#include "drive/WarningWatch.h"

#include <QMap>
#include <QThreadPool>

#include <functional>

/// How one picture differs from what the window shows anyway.
struct PictureSetting
{
    /// Done anew for each theme and language, such as what shows for a moment only.
    std::function<void()> before = {};
    /// What the manual shows of the window: these items or popups with a margin; everything when
    /// empty.
    QStringList parts = {};
    /// A dialog of Qt's in a window of its own is to be seen; its texts are not looked at.
    bool foreign = false;
};

/// Takes one picture after the other of what the window shows, each in every theme and language,
/// which it switches while panels and dialogs are open. Looks at each for texts that do not fit or
/// stayed German.
class Studio
{
public:
    explicit Studio(const ScreenshotOptions &options);

    Scene &scene() { return m_scene; }
    const Scene &scene() const { return m_scene; }
    const ScreenshotOptions &options() const { return m_options; }

    /// Takes the picture `name`, unless it is not asked for.
    void take(const QString &name, const PictureSetting &setting = {});

    /// Warnings of the program that begin so are part of what is shown and no fault.
    void expectWarning(const QString &beginning) { m_expectedWarnings << beginning; }
    /// Notes what is wrong; `place` is language and name of the picture.
    void addFault(const QString &place, const QString &fault);

    /// Waits until everything is written, and looks at the last warnings.
    void finish();
    int pictures() const { return m_pictures; }
    bool hasFaults() const { return m_faults > 0; }

private:
    void takeOne(const QString &name, const PictureSetting &setting, const QString &theme,
                 const QString &language);
    void check(const QString &place, const QString &language);
    void checkWarnings(const QString &place);
    QQuickWindow &foreignWindow() const;
    QRect partOf(const QStringList &items) const;
    void save(const QImage &picture, const QString &path);

    ScreenshotOptions m_options;
    Scene m_scene;
    WarningWatch m_warnings;
    QStringList m_expectedWarnings;
    QMap<QString, GermanTexts> m_german; ///< by language
    QThreadPool m_writers;
    QSet<QString> m_told; ///< faults, without where they were seen
    int m_pictures = 0;
    int m_faults = 0;
};

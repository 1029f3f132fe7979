#pragma once

#include <QJsonObject>
#include <QProcess>
#include <QRect>
#include <QString>

/// The real program as a process of its own, with the data folder of this test.
class ProgramRun
{
public:
    /// What a run finds, in place of what the last one left.
    static void writeSettings(const QJsonObject &settings);
    static QJsonObject readSettings();
    /// The settings of a window with that normal geometry.
    static QJsonObject windowSettings(const QRect &normal, bool maximized = false);
    /// The normal geometry in `settings`.
    static QRect savedGeometry(const QJsonObject &settings);

    /// Starts the program; `plugin` is a generic plugin of Qt's that it is to load.
    explicit ProgramRun(const QString &plugin = {});
    ~ProgramRun();

    bool isRunning() const { return m_process.state() == QProcess::Running; }
    /// The channel is open by which a second start asks for the window.
    static bool isListening();
    /// Waits for the end. True when the program ended by itself with code 0.
    bool endsWell();
    /// What Qt and QML complained about; empty when the run was clean.
    QByteArray complaints();

private:
    QProcess m_process;
    QByteArray m_output;
};

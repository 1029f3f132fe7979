#pragma once

#include <QString>
#include <QStringList>

/// What the tool is told by its environment.
struct ScreenshotOptions
{
    QString story;         ///< "main", or "beta" for a server that offers a beta version
    QString pictureFolder; ///< of this size: <language>/<theme>-<size>/<name>.png come below it
    QString cameraTool;    ///< command line tool of the simulated camera
    QString catalogueFolder;
    QString size; ///< of the window, as it stands in the names of the folders
    QStringList themes;
    QStringList languages;
    QStringList names;      ///< of the pictures wanted; empty for all
    bool forManual = false; ///< small files, cut to what the name says

    bool wants(const QString &name) const { return names.isEmpty() || names.contains(name); }
    bool wantsAny(const QStringList &candidates) const;
};

ScreenshotOptions screenshotOptionsFromEnvironment();

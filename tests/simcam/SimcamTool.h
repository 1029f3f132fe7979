#pragma once

#include <QByteArray>
#include <QMap>
#include <QStringList>

/// What a run of a program left behind.
struct ToolResult
{
    int exitCode = -1;
    QByteArray output;
    QByteArray errors;
};

/// Runs the command line tool of the simulated camera and waits for its end.
ToolResult simcam(const QStringList &arguments);

/// The lines "key=value" that `simcam truth` or `simcam get` prints.
QMap<QByteArray, QByteArray> simcamValues(const QString &verb);

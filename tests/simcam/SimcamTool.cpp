#include "SimcamTool.h"

#include <QProcess>

ToolResult simcam(const QStringList &arguments)
{
    QProcess process;
    process.start(qEnvironmentVariable("SIMCAM_TOOL"), arguments);
    if (!process.waitForFinished(20000) || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

QMap<QByteArray, QByteArray> simcamValues(const QString &verb)
{
    QMap<QByteArray, QByteArray> values;
    const auto lines = simcam({verb}).output.split('\n');
    for (const QByteArray &line : lines) {
        const auto equals = line.indexOf('=');
        if (equals > 0)
            values.insert(line.left(equals), line.mid(equals + 1));
    }
    return values;
}

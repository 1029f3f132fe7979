#include "drive/SimulatedCamera.h"

#include <QProcess>
#include <QtMath>

#include <cmath>
#include <stdexcept>

SimulatedCamera::SimulatedCamera(QString tool)
    : m_tool(std::move(tool))
{
}

QPointF SimulatedCamera::centre() const
{
    const auto values = truth();
    return {values[QStringLiteral("center_x")].toDouble(),
            values[QStringLiteral("center_y")].toDouble()};
}

double SimulatedCamera::radius() const
{
    return truth()[QStringLiteral("radius")].toDouble();
}

void SimulatedCamera::turnTowards(double angleDeg, QPointF from)
{
    const QPointF centre = this->centre();
    const double r = radius();
    double turn = angleDeg;
    // A few corrections by the error of the direction, as an eye on the sector makes them.
    for (int i = 0; i < 8; ++i) {
        const double t = qDegreesToRadians(turn);
        const QPointF mark = centre + r * QPointF(std::cos(t), std::sin(t)) - from;
        const double seen = qRadiansToDegrees(std::atan2(mark.y(), mark.x()));
        turn += std::remainder(angleDeg - seen, 360.0);
    }
    run({QStringLiteral("turn"), QStringLiteral("--to"), QString::number(turn, 'f', 3)});
}

QMap<QString, QString> SimulatedCamera::truth() const
{
    QMap<QString, QString> values;
    const QStringList lines = run({QStringLiteral("truth")}).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines)
        values.insert(line.section(u'=', 0, 0).trimmed(), line.section(u'=', 1).trimmed());
    return values;
}

QString SimulatedCamera::run(const QStringList &arguments) const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // The tool talks to the camera's state directly and needs no camera of its own.
    environment.remove(QStringLiteral("LD_PRELOAD"));
    process.setProcessEnvironment(environment);
    process.start(m_tool, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0) {
        throw std::runtime_error(("the simulated camera did not answer: " +
                                  QString::fromUtf8(process.readAllStandardError()))
                                     .toStdString());
    }
    return QString::fromUtf8(process.readAllStandardOutput());
}

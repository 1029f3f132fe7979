#pragma once

#include <QMap>
#include <QPointF>
#include <QString>

/// The simulated camera that the program sees, driven through its own command line tool.
class SimulatedCamera
{
public:
    /// `tool` is the path of the command line tool; the camera is the one of the environment.
    explicit SimulatedCamera(QString tool);

    /// The true centre of rotation, frame px of the current format.
    QPointF centre() const;
    /// The mean radius of the mark's path, frame px.
    double radius() const;

    /// Turns the camera until the mark lies in direction `angleDeg` as seen from `from` (frame px,
    /// angles growing clockwise on the screen), as a user does with the sector.
    void turnTowards(double angleDeg, QPointF from);

    /// Runs the tool with `arguments` and returns what it prints. Throws std::runtime_error when it
    /// fails.
    QString run(const QStringList &arguments) const;

private:
    QMap<QString, QString> truth() const;

    QString m_tool;
};

#pragma once

#include <QList>
#include <QString>

#include <cstdint>

namespace meridax {

/// A camera that is attached at present. On Linux `node` is a device node such as "/dev/video0",
/// which says only in which order devices came; elsewhere Qt's identifier, which stays.
struct AttachedCamera
{
    QString node; ///< Qt's identifier
    QString name;
    QString byId;   ///< link that udev makes from maker, model and serial number; may be missing
    QString byPath; ///< link that udev makes from the socket it is plugged into; may be missing
    QString id;     ///< what it is known by in settings and profiles

    bool operator==(const AttachedCamera &) const = default;
};

/// Gives each camera the `id` by which it is found again after it has been plugged elsewhere or
/// after another one, and which no other camera gets in its place: its link by maker, model and
/// serial number; where two devices would share that one, together with the link of the socket.
/// Without it, the link of the socket, or as a last resort the node, together with the name.
void nameLasting(QList<AttachedCamera> &cameras);

/// Fills in the links of the nodes, none where the platform has no such thing.
void readDeviceLinks(QList<AttachedCamera> &cameras);

/// Changes when something else is plugged in at the node; 0 when nothing is.
std::uint64_t nodeStamp(const QString &node);

/// The attached cameras in the order of `devices`, each with its id. `Device` has id() as
/// QByteArray and description() as QString, like QCameraDevice.
template <typename Device>
QList<AttachedCamera> attachedCameras(const QList<Device> &devices)
{
    QList<AttachedCamera> cameras;
    for (const Device &device : devices) {
        AttachedCamera camera;
        camera.node = QString::fromLatin1(device.id());
        camera.name = device.description();
        cameras << camera;
    }
    readDeviceLinks(cameras);
    nameLasting(cameras);
    return cameras;
}

/// True where a setting written by an earlier version, which knew a camera by its node, means this
/// one: the node alone may be another camera's by now.
inline bool isFormerly(const AttachedCamera &camera, const QString &id, const QString &name)
{
    return camera.id != id && camera.node == id && camera.name == name;
}

} // namespace meridax

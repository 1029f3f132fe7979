// Which camera is which: what is stored for one must not come to another.

#include "viewmodel/CameraViewModel.h"

#include "camera/CameraIdentity.h"

#include <QDebug>

#include <algorithm>
#include <chrono>

namespace meridax {

namespace {

constexpr int kLinkPatience = 10;

AttachedCamera attached(const CameraDeviceInfo &camera)
{
    AttachedCamera result;
    result.id = camera.id;
    result.name = camera.name;
    result.node = camera.node;
    return result;
}

} // namespace

void CameraViewModel::connectCameraList()
{
    using namespace std::chrono_literals;
    m_linkTimer.setSingleShot(true);
    m_linkTimer.setInterval(100ms);
    connect(&m_linkTimer, &QTimer::timeout, this, &CameraViewModel::awaitLinks);
    connect(&m_mediaDevices, &QMediaDevices::videoInputsChanged, this, [this] {
        m_linkPatience = kLinkPatience;
        awaitLinks();
    });
}

/// The links by which a camera is known appear a moment after its node. Listed before, it would
/// count as another one.
void CameraViewModel::awaitLinks()
{
    const QList<CameraDeviceInfo> now = listCameras(QMediaDevices::videoInputs());
    const bool linksMissing = std::ranges::any_of(now, [this](const CameraDeviceInfo &camera) {
        return camera.isAnonymous && !m_cameras.contains(camera);
    });
    if (linksMissing && m_linkPatience-- > 0)
        m_linkTimer.start();
    else
        refreshCameras();
}

void CameraViewModel::settleIdentities()
{
    CameraSettings &camera = m_settings.camera;
    const QString openDevice = m_controller.openDevice();
    for (CameraDeviceInfo &listed : m_cameras) {
        // A twin that is plugged in beside the running camera changes nothing of it.
        if (!openDevice.isEmpty() && listed.node == openDevice && listed.name == camera.cameraName)
            listed.id = camera.cameraId;
        else if (isFormerly(attached(listed), camera.cameraId, camera.cameraName))
            takeOverFrom(QString(camera.cameraId), listed.id);
    }
}

/// Settings of earlier versions know the camera by its node.
void CameraViewModel::takeOverFrom(const QString &node, const QString &id)
{
    qInfo().noquote() << "[CameraEnumeration]" << node << "heißt jetzt" << id;
    if (m_settings.cameraProfiles.contains(node) && !m_settings.cameraProfiles.contains(id))
        m_settings.cameraProfiles.insert(id, m_settings.cameraProfiles.take(node));
    m_settings.camera.cameraId = id;
    decideCenter(CenterRenamed{id});
    if (m_pending.camera.cameraId == node)
        m_pending.camera.cameraId = id;
}

} // namespace meridax

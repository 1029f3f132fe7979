#include "CameraWindow.h"

#include <stdexcept>

namespace {

/// After a start; fewer could be what was still under way.
constexpr int kFirstFrames = 5;
/// Where nothing covers the picture, as a part of its size.
constexpr QPointF kBesideThePanels(0.75, 0.5);

} // namespace

void require(bool condition, const QString &what)
{
    if (!condition)
        throw std::runtime_error(what.toStdString());
}

QQuickItem &CameraWindow::item(const char *objectName) const
{
    return m_scene.item(QString::fromLatin1(objectName));
}

void CameraWindow::start()
{
    m_pointer.click(item("startStopButton"));
    waitLong(QStringLiteral("the camera to run"), [this] { return running(); });
    m_frames.waitForFrames(kFirstFrames);
    waitForLabel(runningLabel);
}

void CameraWindow::stop()
{
    m_pointer.click(item("startStopButton"));
    waitLong(QStringLiteral("the camera to stop"), [this] { return !running(); });
}

void CameraWindow::startInVain(const QString &expectedLabel)
{
    m_pointer.click(item("startStopButton"));
    waitForLabel(expectedLabel);
    require(!running(), QStringLiteral("the program takes the camera for running"));
}

void CameraWindow::waitForLabel(const QString &text) const
{
    const QQuickItem &label = item("connectionLabel");
    waitLong("the label " + text, [&] { return label.property("text").toString() == text; });
}

void CameraWindow::waitForFailure() const
{
    waitForLabel(failedLabel);
    require(!running(), QStringLiteral("the program takes the camera for running"));
}

void CameraWindow::waitForCameras(QStringList names) const
{
    names.sort();
    waitLong(QStringLiteral("%1 cameras in the list").arg(names.size()), [&] {
        QStringList listed = value("cameraNames").toStringList();
        listed.sort();
        return listed == names;
    });
}

void CameraWindow::chooseCamera(const QString &name)
{
    m_pointer.click(item("cameraSelector"));
    m_pointer.click(m_scene.itemWithText({name}));
    waitLong("the choice of " + name,
             [&] { return value("selectedCameraName").toString() == name; });
}

void CameraWindow::slideToMiddle(const char *slider)
{
    clickPartOf(slider, "slider");
}

void CameraWindow::stepUp(const char *slider)
{
    clickPartOf(slider, "plusButton");
}

void CameraWindow::clickPartOf(const char *slider, const char *part)
{
    const auto *const found = item(slider).findChild<QQuickItem *>(QString::fromLatin1(part));
    require(found, QStringLiteral("%1 has no %2").arg(QLatin1String(slider), QLatin1String(part)));
    m_pointer.click(*found);
}

void CameraWindow::tapFocus()
{
    setValue("focusTapModeActive", true);
    m_pointer.click(item("videoItem"), kBesideThePanels);
}

void CameraWindow::setValue(const char *property, const QVariant &value) const
{
    require(m_scene.viewModel().setProperty(property, value),
            QStringLiteral("no value %1").arg(QLatin1String(property)));
}

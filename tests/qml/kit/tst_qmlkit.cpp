#include "CachedLegalTexts.h"

#include "camera/CameraController.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickStyle>
#include <QVariantMap>
#include <QtQuickTest>

// The module is a static library: without this call the linker drops its registration.
void qml_register_types_Meridax();

/// What a camera's hardware reports, for the QML test cases.
class TestCapabilities : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Has `controller` report the controls that `controls` names, such as
    /// { gain: { min: 0, max: 40, step: 4, canAuto: true } }; all others as unsupported.
    Q_INVOKABLE void report(QObject *controller, const QVariantMap &controls) const
    {
        const auto range = [&controls](const QString &name) {
            const QVariantMap map = controls.value(name).toMap();
            return meridax::ControlRange{.min = map.value("min").toInt(),
                                         .max = map.value("max").toInt(),
                                         .step = map.value("step").toInt(),
                                         .supported = controls.contains(name),
                                         .canAuto = map.value("canAuto").toBool()};
        };
        meridax::CameraCapabilities caps;
        caps.exposure = range("exposure");
        caps.brightness = range("brightness");
        caps.contrast = range("contrast");
        caps.saturation = range("saturation");
        caps.gain = range("gain");
        emit qobject_cast<meridax::CameraController *>(controller)
            ->cameraCapabilitiesDetected(caps);
    }
};

/// Runs the QML test cases of this folder with the program's style and module.
class Setup : public QObject
{
    Q_OBJECT

public slots:
    void applicationAvailable()
    {
        cacheLegalTexts();
        QQuickStyle::setStyle(QStringLiteral("Material"));
        qml_register_types_Meridax();
    }

    void qmlEngineAvailable(QQmlEngine *engine)
    {
        engine->rootContext()->setContextProperty(QStringLiteral("testCapabilities"),
                                                  &m_capabilities);
    }

private:
    TestCapabilities m_capabilities;
};

QUICK_TEST_MAIN_WITH_SETUP(tst_qmlkit, Setup)

#include "tst_qmlkit.moc"

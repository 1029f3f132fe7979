#include <QImage>
#include <QPainter>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickStyle>
#include <QtQuickTest>

// The module is a static library: without this call the linker drops its registration.
void qml_register_types_Meridax();

/// Camera frames for the QML test cases.
class TestFrames : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// A black frame of `width` x `height` px with a white ring of `radius` px about (cx, cy).
    Q_INVOKABLE QImage ring(int width, int height, double cx, double cy, double radius,
                            double lineWidth) const
    {
        QImage image(width, height, QImage::Format_RGB888);
        image.fill(Qt::black);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(Qt::white, lineWidth));
        painter.drawEllipse(QPointF(cx, cy), radius, radius);
        return image;
    }
};

/// Runs the QML test cases of a folder with the program's style and module.
class Setup : public QObject
{
    Q_OBJECT

public slots:
    void applicationAvailable()
    {
        QQuickStyle::setStyle(QStringLiteral("Material"));
        qml_register_types_Meridax();
    }

    void qmlEngineAvailable(QQmlEngine *engine)
    {
        engine->rootContext()->setContextProperty(QStringLiteral("testFrames"), &m_frames);
    }

private:
    TestFrames m_frames;
};

QUICK_TEST_MAIN_WITH_SETUP(tst_qmlwindow, Setup)

#include "tst_qmlwindow.moc"

#include "CachedLegalTexts.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickStyle>
#include <QTemporaryDir>
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

/// A folder for the QML test cases, empty at the start of the process.
class TestFolder : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString path READ path CONSTANT)

public:
    using QObject::QObject;

    QString path() const { return m_folder.path(); }
    Q_INVOKABLE QStringList files() const
    {
        QStringList paths;
        const QFileInfoList found = QDir(path()).entryInfoList(QDir::Files);
        for (const QFileInfo &file : found)
            paths << file.filePath();
        return paths;
    }
    Q_INVOKABLE QSize imageSize(const QString &file) const { return QImage(file).size(); }
    Q_INVOKABLE void clear() const
    {
        const QStringList paths = files();
        for (const QString &file : paths)
            QFile::remove(file);
    }

private:
    QTemporaryDir m_folder;
};

/// Runs the QML test cases of a folder with the program's style and module.
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
        engine->rootContext()->setContextProperty(QStringLiteral("testFrames"), &m_frames);
        engine->rootContext()->setContextProperty(QStringLiteral("testFolder"), &m_folder);
    }

private:
    TestFrames m_frames;
    TestFolder m_folder;
};

QUICK_TEST_MAIN_WITH_SETUP(tst_qmlwindow, Setup)

#include "tst_qmlwindow.moc"

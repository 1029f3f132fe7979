#include "TestDesk.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QStandardPaths>
#include <QTextDocument>

namespace {

QString dataFile(const QString &name)
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    folder.mkpath(QStringLiteral("."));
    return folder.filePath(name);
}

class RecordingDocument : public QTextDocument
{
public:
    QStringList asked;

protected:
    QVariant loadResource(int /*type*/, const QUrl &name) override
    {
        asked << name.toString();
        return {};
    }
};

} // namespace

TestDesk::TestDesk(QObject *parent)
    : QObject(parent)
{
    for (const char *scheme : {"http", "https", "file", "ftp"})
        QDesktopServices::setUrlHandler(QString::fromLatin1(scheme), this, "open");
}

void TestDesk::writeData(const QString &name, const QString &text)
{
    QFile file(dataFile(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
        qFatal("%s cannot be written", qPrintable(file.fileName()));
}

bool TestDesk::hasData(const QString &name)
{
    return QFile::exists(dataFile(name));
}

void TestDesk::removeData(const QString &name)
{
    QFile::remove(dataFile(name));
}

QUrl TestDesk::image(const QString &name, const QString &format, qint64 bytes) const
{
    QImage picture(4, 3, QImage::Format_RGB888);
    picture.fill(Qt::red);
    const QString path = m_folder.filePath(name);
    if (!picture.save(path, format.toLatin1().constData()))
        qFatal("%s cannot be written", qPrintable(path));
    if (bytes > 0)
        QFile::resize(path, bytes);
    return QUrl::fromLocalFile(path);
}

QString TestDesk::base64(const QUrl &file)
{
    QFile content(file.toLocalFile());
    if (!content.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(content.fileName()));
    return QString::fromLatin1(content.readAll().toBase64());
}

QStringList TestDesk::resources(const QString &markdown)
{
    RecordingDocument document;
    document.setMarkdown(markdown, QTextDocument::MarkdownDialectGitHub);
    document.setTextWidth(400); // lays out, and with it loads
    return document.asked;
}

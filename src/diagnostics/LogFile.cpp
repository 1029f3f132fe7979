#include "diagnostics/LogFile.h"

#include "diagnostics/DataFolder.h"
#include "diagnostics/LogManager.h"

#include <QDir>

namespace meridax {

namespace {

constexpr qint64 kMaxSize = 1'048'576;
constexpr QIODevice::OpenMode kMode = QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text;

} // namespace

QString LogFile::path(int index)
{
    const QString current = LogManager::logFilePath();
    return index <= 0 ? current : current + QStringLiteral(".%1").arg(index);
}

void LogFile::open()
{
    makeDataFolder();
    QDir().mkpath(LogManager::logDirectory());
    m_file = std::make_unique<QFile>(path(0));
    if (openForOwner(*m_file, kMode))
        m_size = m_file->size();
    else
        m_file.reset();
}

void LogFile::write(const QByteArray &line)
{
    if (!m_file || !m_file->isOpen())
        return;
    const qint64 written = m_file->write(line);
    if (written > 0) {
        m_size += written;
        m_file->flush();
    }
    if (m_size >= kMaxSize)
        rotate();
}

void LogFile::rotate()
{
    m_file->close();
    for (int index = kBackupCount; index >= 1; --index) {
        const QString to = path(index);
        const QString from = path(index - 1);
        if (index == kBackupCount)
            QFile::remove(to);
        if (QFile::exists(from))
            QFile::rename(from, to);
    }
    m_file->setFileName(path(0));
    if (!openForOwner(*m_file, kMode))
        m_file.reset();
    m_size = 0;
}

} // namespace meridax

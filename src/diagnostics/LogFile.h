#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <memory>

namespace meridax {

/// The log on disk: a file of 1 MiB and three backups, all of them the user's alone. Not safe for
/// threads by itself.
class LogFile
{
public:
    static constexpr int kBackupCount = 3;

    /// The current log for 0, else a backup, the oldest being kBackupCount.
    static QString path(int index);

    /// Makes the folder and opens the current log at its end. Without success all writing is in
    /// vain.
    void open();
    /// Writes a line, with its line end, through to the operating system; then rotates if the file
    /// is full.
    void write(const QByteArray &line);
    /// Where it writes to; empty where it does not.
    QString name() const { return m_file ? m_file->fileName() : QString(); }

private:
    void rotate();

    std::unique_ptr<QFile> m_file; ///< null when it could not be opened
    qint64 m_size = 0;             ///< bytes, as counted here
};

} // namespace meridax

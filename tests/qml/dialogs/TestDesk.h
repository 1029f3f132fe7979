#pragma once

#include <QObject>
#include <QStringList>
#include <QTemporaryDir>
#include <QUrl>

/// What lies around the program in the QML test cases: the browser, the files of the data folder, a
/// folder with images.
class TestDesk : public QObject
{
    Q_OBJECT
    /// The addresses that the browser was asked to open.
    Q_PROPERTY(QStringList opened READ opened)

public:
    explicit TestDesk(QObject *parent = nullptr);

    QStringList opened() const { return m_opened; }
    Q_INVOKABLE void forgetOpened() { m_opened.clear(); }

    /// Writes `name` into the program's data folder.
    Q_INVOKABLE static void writeData(const QString &name, const QString &text);
    Q_INVOKABLE static bool hasData(const QString &name);
    Q_INVOKABLE static void removeData(const QString &name);

    /// A small image in `format`, at the address returned, whatever `name` makes believe; with
    /// `bytes` the file is filled to that size.
    Q_INVOKABLE QUrl image(const QString &name, const QString &format, qint64 bytes = 0) const;
    Q_INVOKABLE static QString base64(const QUrl &file);
    /// What `markdown` would have a view load.
    Q_INVOKABLE static QStringList resources(const QString &markdown);

public slots:
    void open(const QUrl &url) { m_opened << url.toString(); }

private:
    QStringList m_opened;
    QTemporaryDir m_folder;
};

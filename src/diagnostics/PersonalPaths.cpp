#include "diagnostics/PersonalPaths.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>

#include <algorithm>

namespace meridax {

namespace {

using namespace Qt::StringLiterals;

/// A path as it may stand in a text: as it is, as an address, with single or double backslashes.
QStringList spellings(const QString &path)
{
    QString windows = path;
    windows.replace(u'/', u'\\');
    QString quoted = windows;
    quoted.replace(u'\\', u"\\\\"_s);
    return {path, QString::fromLatin1(QUrl::toPercentEncoding(path, "/:")), windows, quoted};
}

/// Matches any of `texts` with what has to stand before and behind it.
QRegularExpression anyOf(QStringList texts, const QString &before, const QString &behind)
{
    texts.removeDuplicates();
    // The longest first: a folder may lie in another.
    std::ranges::sort(texts, std::ranges::greater(), &QString::size);
    for (QString &text : texts)
        text = QRegularExpression::escape(text);
    return QRegularExpression(before + u"(?:"_s + texts.join(u'|') + u')' + behind,
                              QRegularExpression::CaseInsensitiveOption |
                                  QRegularExpression::UseUnicodePropertiesOption);
}

} // namespace

PersonalPaths PersonalPaths::ofUser()
{
    const QString home = QDir::homePath();
    PersonalPaths paths;
    paths.homes = {home, QFileInfo(home).canonicalFilePath()};
    paths.names = {QFileInfo(home).fileName(), qEnvironmentVariable("USER"),
                   qEnvironmentVariable("USERNAME")};
    return paths;
}

QString withoutPersonalPaths(const QString &text, const PersonalPaths &paths)
{
    // A name goes on with a letter, a digit, a hyphen, or a point before one of these.
    const QString end = u"(?![\\w\\-]|\\.\\w)"_s;
    QStringList homes;
    for (const QString &home : paths.homes) {
        if (home.size() > 1) // without a home of its own, an account has "/"
            homes << spellings(home);
    }
    QStringList names;
    for (const QString &name : paths.names) {
        if (!name.isEmpty())
            names << name << QString::fromLatin1(QUrl::toPercentEncoding(name));
    }
    QString cleaned = text;
    if (!homes.isEmpty())
        cleaned.replace(anyOf(homes, u"(?<!\\w)"_s, end), u"~"_s);
    if (!names.isEmpty())
        cleaned.replace(anyOf(names, u"(?<=[/\\\\])"_s, end), u"<user>"_s);
    return cleaned;
}

} // namespace meridax

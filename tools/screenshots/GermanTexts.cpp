#include "GermanTexts.h"

#include <QFile>
#include <QXmlStreamReader>

GermanTexts::GermanTexts(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    QXmlStreamReader reader(&file);
    QString source;
    // The same text may read differently in one context and alike in another.
    QSet<QString> alike;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == QLatin1StringView("source")) {
            source = reader.readElementText();
        } else if (reader.name() == QLatin1StringView("translation")) {
            const bool unfinished = reader.attributes().hasAttribute(QLatin1StringView("type"));
            const QString translation =
                reader.readElementText(QXmlStreamReader::IncludeChildElements);
            (unfinished || translation == source ? alike : m_texts) << source;
        }
    }
    m_texts -= alike;
}

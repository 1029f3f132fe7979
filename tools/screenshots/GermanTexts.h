#pragma once

#include <QSet>
#include <QString>

/// The German texts of the program that read differently in another language, as its catalogue has
/// them: none of them may be seen once that language is chosen.
class GermanTexts
{
public:
    /// Reads the catalogue (a .ts file) at `path`. Without one nothing counts as German.
    explicit GermanTexts(const QString &path);

    bool contains(const QString &text) const { return m_texts.contains(text); }

private:
    QSet<QString> m_texts;
};

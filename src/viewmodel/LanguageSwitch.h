#pragma once

#include <QString>

class QQmlEngine;
class QTranslator;

/// The two process-wide pointers that the language switch needs, and the switch itself. The
/// pointers do not own; each falls to null when its object dies. GUI thread only.
namespace meridax {

/// The translator that was installed at start-up; null when none was.
void setStartupTranslator(QTranslator *translator);
QTranslator *startupTranslator();

/// The engine whose texts are translated anew after a switch; null outside the program.
void setQmlEngine(QQmlEngine *engine);
QQmlEngine *qmlEngine();

/// Installs the catalogue ":/i18n/<language>.qm" in `translator`; true if there is one now. "de" is
/// the language of the sources and needs none; one that cannot be loaded leaves the German texts,
/// without a message. Qt's own texts follow, also in German, since Qt's are English.
bool installLanguage(const QString &language, QTranslator &translator);

/// The same in place of the catalogue in force. The engine translates its texts anew.
void switchLanguage(const QString &language, QTranslator &translator);

} // namespace meridax

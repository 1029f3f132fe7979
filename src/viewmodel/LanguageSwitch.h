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

/// Installs the catalogue ":/i18n/<language>.qm" in `translator` in place of the one in force and
/// has the engine translate its texts anew. "de" is the language of the sources and needs no
/// catalogue; one that cannot be loaded leaves the German texts, without a message. Qt's own texts
/// follow.
void switchLanguage(const QString &language, QTranslator &translator);

} // namespace meridax

#pragma once

#include <QString>

namespace meridax {

/// Translates the texts that Qt itself brings into the program, such as the buttons of its file
/// dialogs, into `language` ("de", "en", ...), in place of an earlier call's. Qt's texts are
/// English, so German needs them, too; a language that Qt does not know leaves them English. The
/// catalogues are those of the installed Qt, with those under ":/i18n/qt_<language>.qm" for what it
/// has not. The translators belong to the application object. GUI thread only.
void translateQtTexts(const QString &language);

} // namespace meridax

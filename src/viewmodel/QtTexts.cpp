#include "viewmodel/QtTexts.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <memory>

namespace meridax {

namespace {

const QString kTranslatorName = QStringLiteral("Qt texts");

void removeTranslators()
{
    const auto translators = qApp->findChildren<QTranslator *>(kTranslatorName);
    for (QTranslator *const translator : translators) {
        QCoreApplication::removeTranslator(translator);
        delete translator;
    }
}

void install(const QString &catalogue, const QString &folder)
{
    auto translator = std::make_unique<QTranslator>(qApp);
    translator->setObjectName(kTranslatorName);
    if (translator->load(catalogue, folder))
        QCoreApplication::installTranslator(translator.release());
}

} // namespace

void translateQtTexts(const QString &language)
{
    removeTranslators();
    // The code comes from a file: it must not lead out of the folder.
    if (language.contains(u'/') || language.contains(u'\\'))
        return;
    const QString catalogue = QLatin1StringView("qt_") + language;
    install(catalogue, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install(catalogue, QStringLiteral(":/i18n"));
}

} // namespace meridax

#include "viewmodel/LanguageSwitch.h"

#include "viewmodel/QtTexts.h"

#include <QCoreApplication>
#include <QPointer>
#include <QQmlEngine>
#include <QTranslator>

namespace meridax {

namespace {

QPointer<QTranslator> currentStartupTranslator;
QPointer<QQmlEngine> currentEngine;

} // namespace

void setStartupTranslator(QTranslator *translator)
{
    currentStartupTranslator = translator;
}

QTranslator *startupTranslator()
{
    return currentStartupTranslator;
}

void setQmlEngine(QQmlEngine *engine)
{
    currentEngine = engine;
}

QQmlEngine *qmlEngine()
{
    return currentEngine;
}

void switchLanguage(const QString &language, QTranslator &translator)
{
    if (currentStartupTranslator) {
        QCoreApplication::removeTranslator(currentStartupTranslator);
        currentStartupTranslator = nullptr;
    }
    QCoreApplication::removeTranslator(&translator);

    const bool needsCatalogue = language != QLatin1StringView("de");
    if (needsCatalogue && translator.load(QStringLiteral(":/i18n/%1.qm").arg(language)))
        QCoreApplication::installTranslator(&translator);
    translateQtTexts(language);

    if (currentEngine)
        currentEngine->retranslate();
}

} // namespace meridax

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

bool installLanguage(const QString &language, QTranslator &translator)
{
    translateQtTexts(language);
    const bool needsCatalogue = language != QLatin1StringView("de");
    return needsCatalogue && translator.load(QStringLiteral(":/i18n/%1.qm").arg(language)) &&
           QCoreApplication::installTranslator(&translator);
}

void switchLanguage(const QString &language, QTranslator &translator)
{
    if (currentStartupTranslator) {
        QCoreApplication::removeTranslator(currentStartupTranslator);
        currentStartupTranslator = nullptr;
    }
    QCoreApplication::removeTranslator(&translator);
    installLanguage(language, translator);
    if (currentEngine)
        currentEngine->retranslate();
}

} // namespace meridax

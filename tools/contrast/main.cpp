// Prints docs/contrast.md, or with --check FILE compares FILE with what it would print.

#include "ContrastTable.h"

#include <QFile>
#include <QGuiApplication>
#include <QQmlEngine>

#include <cstdio>

// The module is a static library: without this call the linker drops its registration.
void qml_register_types_Meridax();

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    qml_register_types_Meridax();
    QQmlEngine engine;
    auto *const theme = engine.singletonInstance<QObject *>("Meridax", "Theme");
    if (theme == nullptr) {
        std::fputs("contrast: the theme cannot be loaded\n", stderr);
        return 2;
    }

    const ContrastTable table = contrastTable(*theme);
    const QByteArray page = table.page.toUtf8();
    for (const QString &fault : table.faults)
        std::fprintf(stderr, "contrast: too low for a colour of our own: %s\n", qPrintable(fault));

    const QStringList arguments = application.arguments();
    if (arguments.size() == 3 && arguments.at(1) == QLatin1StringView("--check")) {
        QFile file(arguments.at(2));
        if (!file.open(QIODevice::ReadOnly) || file.readAll() != page) {
            std::fprintf(stderr, "contrast: %s is out of date: ./dev contrast\n",
                         qPrintable(arguments.at(2)));
            return 1;
        }
    } else {
        std::fwrite(page.constData(), 1, size_t(page.size()), stdout);
    }
    return table.faults.isEmpty() ? 0 : 1;
}

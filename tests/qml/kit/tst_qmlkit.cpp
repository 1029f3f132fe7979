#include <QQuickStyle>
#include <QtQuickTest>

// The module is a static library: without this call the linker drops its registration.
void qml_register_types_Meridax();

/// Runs the QML test cases of this folder with the program's style and module.
class Setup : public QObject
{
    Q_OBJECT

public slots:
    void applicationAvailable()
    {
        QQuickStyle::setStyle(QStringLiteral("Material"));
        qml_register_types_Meridax();
    }
};

QUICK_TEST_MAIN_WITH_SETUP(tst_qmlkit, Setup)

#include "tst_qmlkit.moc"

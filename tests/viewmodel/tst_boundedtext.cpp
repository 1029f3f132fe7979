#include "viewmodel/BoundedText.h"

#include <QTest>

using namespace meridax;
using namespace Qt::StringLiterals;

class TestBoundedText : public QObject
{
    Q_OBJECT

private slots:
    void longTextsAreCut_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown"); // before the note; empty if the text is not cut
        const QString line = u"0123456789\n"_s;
        const QString longLine = u"x"_s.repeated(99) + u'\n';
        const QString smile = u"😀"_s;
        QTest::newRow("longest") << QString(kMaxShownText, u'x') << QString();
        QTest::newRow("most lines") << line.repeated(kMaxShownLines) << QString();
        QTest::newRow("a line more")
            << line.repeated(kMaxShownLines + 1) << line.repeated(kMaxShownLines);
        QTest::newRow("long lines")
            << u"+"_s + longLine.repeated(1900) << (u"+"_s + longLine.repeated(999)).chopped(1);
        QTest::newRow("one line") << QString(10000000, u'x') << QString(kMaxShownText, u'x');
        QTest::newRow("no half character") << u"x"_s + smile.repeated(kMaxShownText)
                                           << u"x"_s + smile.repeated(kMaxShownText / 2 - 1);
    }

    void longTextsAreCut()
    {
        QFETCH(QString, text);
        QFETCH(QString, shown);
        const QString note = shown.isEmpty() ? QString() : u"\n\n*Der Text wurde gekürzt.*\n"_s;
        QVERIFY(boundedText(text) == (shown.isEmpty() ? text : shown) + note);
    }
};

QTEST_APPLESS_MAIN(TestBoundedText)
#include "tst_boundedtext.moc"

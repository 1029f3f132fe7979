#include "items/SvgItem.h"

#include <QFile>
#include <QPainter>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using meridax::SvgItem;

namespace {

/// The item painted on white.
QImage painted(SvgItem &item)
{
    QImage image(item.size().toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    item.paint(&painter);
    return image;
}

} // namespace

class TestSvgItem : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void documentIsShownWholeAndCentred();
    void sameSourceLoadsOnce();
    void resourceAddress();
    void missingDocumentIsEmpty();

private:
    QTemporaryDir m_folder;
    QString m_document; ///< red, twice as wide as high
};

void TestSvgItem::initTestCase()
{
    m_document = m_folder.filePath("wide.svg");
    QFile file(m_document);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<svg xmlns='http://www.w3.org/2000/svg' width='40' height='20'>"
               "<rect width='40' height='20' fill='#ff0000'/></svg>");
}

void TestSvgItem::documentIsShownWholeAndCentred()
{
    SvgItem item;
    item.setSize({100, 100});
    item.setSource(m_document);
    const QImage image = painted(item);
    for (const QPoint inside : {QPoint(1, 50), QPoint(98, 50), QPoint(50, 26), QPoint(50, 73)})
        QCOMPARE(image.pixelColor(inside), QColor(Qt::red));
    for (const QPoint margin : {QPoint(50, 23), QPoint(50, 76), QPoint(1, 1)})
        QCOMPARE(image.pixelColor(margin), QColor(Qt::white));
}

void TestSvgItem::sameSourceLoadsOnce()
{
    SvgItem item;
    QSignalSpy changed(&item, &SvgItem::sourceChanged);
    item.setSource(m_document);
    item.setSource(m_document);
    QCOMPARE(changed.count(), 1);
}

void TestSvgItem::resourceAddress()
{
    SvgItem item;
    item.setSize({240, 240});
    item.setSource("QRC:/resources/icon_check.svg");
    QCOMPARE(item.source(), "QRC:/resources/icon_check.svg");
    item.setSource("qrc:/resources/logo.svg");
    QImage onBlack(240, 240, QImage::Format_RGB32);
    onBlack.fill(Qt::black);
    QPainter painter(&onBlack);
    item.paint(&painter);
    painter.end();
    QVERIFY(onBlack.pixelColor(120, 120).lightness() > 200);
}

void TestSvgItem::missingDocumentIsEmpty()
{
    SvgItem item;
    item.setSize({10, 10});
    item.setSource(m_document);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("Cannot open file"));
    item.setSource(m_folder.filePath("none.svg"));
    QImage empty(10, 10, QImage::Format_RGB32);
    empty.fill(Qt::white);
    QCOMPARE(painted(item), empty);
}

QTEST_MAIN(TestSvgItem)
#include "tst_svgitem.moc"

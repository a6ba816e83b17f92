#include "platform/Canvas.h"
#include "platform/Label.h"
#include "support/Testbank.h"

#include <QFontMetricsF>
#include <QRegularExpression>

#include <cmath>

class TestLabel : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void theSizeFollowsTheCaption_data();
    void theSizeFollowsTheCaption();
    void theSizeFollowsTheFont();
    void theWholeCaptionIsSeen_data();
    void theWholeCaptionIsSeen();
    void theLeftEdgeStays();
    void theRightEdgeStaysWhenAlignedToTheRight();
    void aLabelWithASizeOfItsOwnKeepsIt();
    void markupIsShownAsItIs_data();
    void markupIsShownAsItIs();
    void theColoursAreSet();
};

void TestLabel::theSizeFollowsTheCaption_data()
{
    QTest::addColumn<QString>("caption");
    QTest::newRow("empty") << QString();
    QTest::newRow("short") << QStringLiteral("i");
    QTest::newRow("words") << QStringLiteral("Aantal letters:");
    QTest::newRow("blanks around") << QStringLiteral("  x  ");
    QTest::newRow("two lines") << QStringLiteral("een lange regel\nkort");
    QTest::newRow("three lines") << QStringLiteral("a\n\nb");
}

void TestLabel::theSizeFollowsTheCaption()
{
    QFETCH(QString, caption);
    Label gemaakt(caption, nullptr), veranderd(QStringLiteral("Iets heel anders"), nullptr);
    veranderd.SetCaption(caption);
    const QFontMetricsF maten(gemaakt.font());
    const QString eerste = caption.section(u'\n', 0, 0); // the longest of its lines
    const QSize maat(int(std::ceil(maten.horizontalAdvance(eerste))),
                     int(std::ceil(maten.height() * double(caption.count(u'\n') + 1))));
    QCOMPARE(gemaakt.size(), maat);
    QCOMPARE(veranderd.size(), maat);
    QCOMPARE(veranderd.Caption(), caption);
    QVERIFY(maat.height() > 0);
}

void TestLabel::theSizeFollowsTheFont()
{
    Label label(QStringLiteral("Letters"), nullptr);
    const QSize klein = label.size();
    const QFont groot = Lettertype(QStringLiteral("Arial"), 24, true);
    label.SetFont(groot);
    QCOMPARE(label.font().pixelSize(), 32);
    QCOMPARE(label.width(), int(std::ceil(QFontMetricsF(groot).horizontalAdvance(QStringLiteral("Letters")))));
    QVERIFY(label.width() > 2 * klein.width());
    QVERIFY(label.height() > 2 * klein.height());
}

void TestLabel::theWholeCaptionIsSeen_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<double>("punten");
    for (const double punten : {8.25, 13.0, 30.0})
        for (const char *caption : {"Hoogte", "WgjQ,", "een\ntwee"})
            QTest::addRow("%s %g", QByteArray(caption).replace('\n', '/').constData(), punten)
                << QString::fromLatin1(caption) << punten;
}

void TestLabel::theWholeCaptionIsSeen()
{
    QFETCH(QString, caption);
    QFETCH(double, punten);
    const auto inkt = [](Label &label) {
        label.setAlignment(Qt::AlignLeft | Qt::AlignTop);
        label.SetBackColor(qRgb(255, 255, 255));
        const QImage beeld = label.grab().toImage();
        return InktVlak(beeld, beeld.rect());
    };
    Label label(caption, nullptr), ruim(caption, nullptr);
    label.SetFont(Lettertype(QStringLiteral("Arial"), punten, false));
    ruim.SetFont(label.font());
    ruim.resize(600, 300);
    QVERIFY(!inkt(ruim).isEmpty());
    QCOMPARE(inkt(label), inkt(ruim));
}

void TestLabel::theLeftEdgeStays()
{
    Label label(QStringLiteral("kort"), nullptr);
    label.move(100, 20);
    label.SetCaption(QStringLiteral("een veel langer opschrift"));
    QCOMPARE(label.pos(), QPoint(100, 20));
    label.SetCaption(QString());
    QCOMPARE(label.pos(), QPoint(100, 20));
}

void TestLabel::theRightEdgeStaysWhenAlignedToTheRight()
{
    Label label(QStringLiteral("23:59:59"), nullptr);
    label.setAlignment(Qt::AlignRight);
    label.move(300, 20);
    const int rechts = label.geometry().right();
    const int breedte = label.width();
    label.SetCaption(QStringLiteral("een veel langer opschrift"));
    QVERIFY(label.width() > breedte);
    QCOMPARE(label.geometry().right(), rechts);
    label.SetCaption(QStringLiteral("i"));
    QVERIFY(label.width() < breedte);
    QCOMPARE(label.geometry().right(), rechts);
    label.SetFont(Lettertype(QStringLiteral("Arial"), 30, false));
    QCOMPARE(label.geometry().right(), rechts);
    QCOMPARE(label.y(), 20);
}

void TestLabel::aLabelWithASizeOfItsOwnKeepsIt()
{
    Label label(QStringLiteral("kort"), nullptr);
    label.AutoSize = false;
    label.setGeometry(10, 20, 80, 30);
    label.SetCaption(QStringLiteral("een veel langer opschrift dan er eerst stond"));
    label.SetFont(Lettertype(QStringLiteral("Arial"), 30, false));
    QCOMPARE(label.geometry(), QRect(10, 20, 80, 30));
    QCOMPARE(label.font().pixelSize(), 40);
}

void TestLabel::markupIsShownAsItIs_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("zonder");
    QTest::newRow("bold") << QStringLiteral("<b>x</b>") << QStringLiteral("x");
    QTest::newRow("line break") << QStringLiteral("a<br>b") << QStringLiteral("a\nb");
    QTest::newRow("entity") << QStringLiteral("&lt;x") << QStringLiteral("<x");
    QTest::newRow("ampersand") << QStringLiteral("a&b") << QStringLiteral("ab");
}

void TestLabel::markupIsShownAsItIs()
{
    QFETCH(QString, caption);
    QFETCH(QString, zonder);
    const auto inkt = [](Label &label) {
        label.setAlignment(Qt::AlignLeft | Qt::AlignTop);
        label.SetBackColor(qRgb(255, 255, 255));
        label.resize(200, 60);
        const QImage beeld = label.grab().toImage();
        return InktVlak(beeld, beeld.rect());
    };
    Label label(caption, nullptr), ontleed(zonder, nullptr);
    QCOMPARE(label.Caption(), caption);
    const int breedte = label.width();
    QVERIFY(inkt(label).width() > inkt(ontleed).width());
    QVERIFY(std::abs(inkt(label).width() - breedte) <= 3);
}

void TestLabel::theColoursAreSet()
{
    Label label(QStringLiteral("I"), nullptr);
    label.SetFont(Lettertype(QStringLiteral("Arial"), 48, true));
    label.SetBackColor(qRgb(10, 200, 30));
    label.SetForeColor(qRgb(200, 10, 30));
    const QImage beeld = label.grab().toImage();
    QCOMPARE(beeld.pixel(0, 0), qRgb(10, 200, 30));
    QCOMPARE(beeld.pixel(beeld.width() / 2, beeld.height() / 2), qRgb(200, 10, 30));
}

RASTER_TEST(TestLabel)
#include "tst_Label.moc"

#include "platform/Canvas.h"
#include "platform/Label.h"
#include "support/Testbank.h"

#include <QFontMetricsF>
#include <QRegularExpression>

#include <cmath>

using namespace Qt::StringLiterals;

class tst_Label : public QObject
{
    Q_OBJECT
private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }

    void theSizeFollowsTheCaption_data()
    {
        QTest::addColumn<QString>("caption");
        Geval("empty", QString());
        Geval("short", u"i"_s);
        Geval("words", u"Aantal letters:"_s);
        Geval("blanks around", u"  x  "_s);
        Geval("two lines", u"een lange regel\nkort"_s);
        Geval("three lines", u"a\n\nb"_s);
    }
    void theSizeFollowsTheCaption()
    {
        QFETCH(QString, caption);
        Label gemaakt(caption, nullptr), veranderd(u"Iets heel anders"_s, nullptr);
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

    void theSizeFollowsTheFont()
    {
        Label label(u"Letters"_s, nullptr);
        const QSize klein = label.size();
        const QFont groot = Lettertype(u"Arial"_s, 24, true);
        label.SetFont(groot);
        QCOMPARE(label.font().pixelSize(), 32);
        QCOMPARE(label.width(), int(std::ceil(QFontMetricsF(groot).horizontalAdvance(u"Letters"_s))));
        QVERIFY(label.width() > 2 * klein.width());
        QVERIFY(label.height() > 2 * klein.height());
    }

    void theWholeCaptionIsSeen_data()
    {
        QTest::addColumn<QString>("caption");
        QTest::addColumn<double>("punten");
        for (const double punten : {8.25, 13.0, 30.0})
            for (const char *caption : {"Hoogte", "WgjQ,", "een\ntwee"})
                Geval(QByteArray(caption).replace('\n', '/') + ' ' + QByteArray::number(punten), caption, punten);
    }
    void theWholeCaptionIsSeen()
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
        label.SetFont(Lettertype(u"Arial"_s, punten, false));
        ruim.SetFont(label.font());
        ruim.resize(600, 300);
        QVERIFY(!inkt(ruim).isEmpty());
        QCOMPARE(inkt(label), inkt(ruim));
    }

    void theLeftEdgeStays()
    {
        Label label(u"kort"_s, nullptr);
        label.move(100, 20);
        label.SetCaption(u"een veel langer opschrift"_s);
        QCOMPARE(label.pos(), QPoint(100, 20));
        label.SetCaption(QString());
        QCOMPARE(label.pos(), QPoint(100, 20));
    }

    void theRightEdgeStaysWhenAlignedToTheRight()
    {
        Label label(u"23:59:59"_s, nullptr);
        label.setAlignment(Qt::AlignRight);
        label.move(300, 20);
        const int rechts = label.geometry().right();
        const int breedte = label.width();
        label.SetCaption(u"een veel langer opschrift"_s);
        QVERIFY(label.width() > breedte);
        QCOMPARE(label.geometry().right(), rechts);
        label.SetCaption(u"i"_s);
        QVERIFY(label.width() < breedte);
        QCOMPARE(label.geometry().right(), rechts);
        label.SetFont(Lettertype(u"Arial"_s, 30, false));
        QCOMPARE(label.geometry().right(), rechts);
        QCOMPARE(label.y(), 20);
    }

    void aLabelWithASizeOfItsOwnKeepsIt()
    {
        Label label(u"kort"_s, nullptr);
        label.AutoSize = false;
        label.setGeometry(10, 20, 80, 30);
        label.SetCaption(u"een veel langer opschrift dan er eerst stond"_s);
        label.SetFont(Lettertype(u"Arial"_s, 30, false));
        QCOMPARE(label.geometry(), QRect(10, 20, 80, 30));
        QCOMPARE(label.font().pixelSize(), 40);
    }

    void markupIsShownAsItIs_data()
    {
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("zonder");
        Geval("bold", u"<b>x</b>"_s, u"x"_s);
        Geval("line break", u"a<br>b"_s, u"a\nb"_s);
        Geval("entity", u"&lt;x"_s, u"<x"_s);
        Geval("ampersand", u"a&b"_s, u"ab"_s);
    }
    void markupIsShownAsItIs()
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

    void theColoursAreSet()
    {
        QWidget venster;
        Label label(u"I"_s, &venster);
        label.SetFont(Lettertype(u"Arial"_s, 48, true));
        const QRgb achter = venster.palette().color(QPalette::Window).rgb();
        QCOMPARE(Getoond(venster).pixel(0, 0), achter); // what lies below it is seen
        label.SetBackColor(qRgb(10, 200, 30));
        label.SetForeColor(qRgb(200, 10, 30));
        QCOMPARE(Getoond(venster).pixel(0, 0), qRgb(10, 200, 30));
        const QImage beeld = Getoond(label);
        QCOMPARE(beeld.pixel(0, 0), qRgb(10, 200, 30));
        QCOMPARE(beeld.pixel(beeld.width() / 2, beeld.height() / 2), qRgb(200, 10, 30));
    }
};

RASTER_TEST(tst_Label)
#include "tst_Label.moc"

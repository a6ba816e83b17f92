#include "platform/LineBox.h"
#include "support/Testbank.h"
#include "support/Venster.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMenu>
#include <QMimeData>

using namespace Qt::StringLiterals;

class tst_LineBox : public QObject
{
    Q_OBJECT
private slots:
    void textEndsAtTheFirstLineEnd_data()
    {
        QTest::addColumn<QString>("tekst");
        QTest::addColumn<QString>("over");
        Geval("none", "dier, groot", "dier, groot");
        Geval("line feed", "dier\ngroot", "dier");
        Geval("carriage return", "dier\r\ngroot\r\n", "dier");
        Geval("at the end", "Reis\n", "Reis");
        Geval("at the begin", "\nReis", "");
        Geval("separator", u"dier"_s + QChar(QChar::LineSeparator) + u'x', "dier");
        Geval("paragraph", u"dier"_s + QChar(QChar::ParagraphSeparator) + u'x', "dier");
    }
    void textEndsAtTheFirstLineEnd()
    {
        QFETCH(QString, tekst);
        QFETCH(QString, over);
        QWidget venster;
        LineBox gezet(&venster), geplakt(&venster);
        gezet.setText(tekst);
        QCOMPARE(gezet.text(), over);
        QGuiApplication::clipboard()->setText(tekst);
        geplakt.paste();
        QCOMPARE(geplakt.text(), over);
    }

    void whereThereIsNoTextNothingIsPasted_data()
    {
        QTest::addColumn<int>("soort");
        Geval("no format", 0);
        Geval("html only", 1);
        Geval("an image only", 2);
    }
    void whereThereIsNoTextNothingIsPasted()
    {
        QFETCH(int, soort);
        auto *inhoud = new QMimeData;
        if (soort == 1)
            inhoud->setHtml(u"<b>aap</b>"_s);
        else if (soort == 2)
            inhoud->setImageData(QImage(3, 3, QImage::Format_RGB32));
        QGuiApplication::clipboard()->setMimeData(inhoud);
        LineBox box(nullptr);
        box.setText(u"dier"_s);
        QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
        QTest::keyClick(&box, Qt::Key_Insert, Qt::ShiftModifier);
        const std::unique_ptr<QMenu> menu(box.createStandardContextMenu());
        QVERIFY(menu);
        QCOMPARE(box.text(), u"dier"_s);
    }

    void theMenuOffersWhatCanBeDone()
    {
        LineBox box(nullptr);
        box.show();
        QGuiApplication::clipboard()->setText(u"dier"_s);
        QCOMPARE(RechtsKlik(box, u"Plakken"_s),
                 u"(Ongedaan maken)|(Opnieuw)|(Knippen)|(Kopiëren)|Plakken|(Verwijderen)|(Alles selecteren)"_s);
        QCOMPARE(box.text(), u"dier"_s);
        RechtsKlik(box, u"Alles selecteren"_s);
        QCOMPARE(RechtsKlik(box, u"Knippen"_s),
                 u"Ongedaan maken|(Opnieuw)|Knippen|Kopiëren|Plakken|Verwijderen|(Alles selecteren)"_s);
        QCOMPARE(box.text(), QString());
        QCOMPARE(QGuiApplication::clipboard()->text(), u"dier"_s);
    }

    void aTextOfMegabytesIsCutOff_data()
    {
        QTest::addColumn<QString>("tekst");
        QTest::addColumn<QString>("over");
        Geval("one line", QString(5000000, u'm'), QString(32767, u'm'));
        Geval("many lines", u"dier\n"_s.repeated(1000000), u"dier"_s);
    }
    void aTextOfMegabytesIsCutOff()
    {
        QFETCH(QString, tekst);
        LineBox box(nullptr);
        box.show();
        QGuiApplication::clipboard()->setText(tekst);
        QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
        QTEST(box.text(), "over");
    }
};

RASTER_TEST(tst_LineBox)
#include "tst_LineBox.moc"

#include "support/Onbevoegd.h"
#include "support/Venster.h"
#include "support/Verloop.h"
#include "support/Woordbord.h"
#include "wordlib/ChemischForm.h"

#include <QFontInfo>
#include <QMenuBar>

using namespace Qt::StringLiterals;

static const QString Pad = u"Data/Elementen.lib"_s;
static const QString Goud = u"goud            Au       79"_s, Tin = u"tin             Sn       50"_s;

/// The main window with a library of elements.
struct Elementenbord : Woordbord
{
    explicit Elementenbord(const QByteArray &inhoud = "goud-/-Au-/-79\r\ntin-/-Sn-/-50\r\n")
    {
        Bank.Schrijf(Pad, inhoud);
    }
};

class tst_ChemischForm : public QObject
{
    Q_OBJECT
private slots:
    void controlsAndTheirPlaces()
    {
        const Elementenbord bord;
        ChemischForm form;
        QCOMPARE(
            Misplaatst(form,
                       {{"Picture"}, {"Label2", 1230, 180}, {"Combo1", 1215, 540, 4200, 315}, {"Label1", 1215, 990}}),
            QString());
        QCOMPARE(form.size(), QSize((8535 - 90) / 15, (4965 - 450) / 15));
        QVERIFY(!form.findChild<QMenuBar *>());
        QCOMPARE(form.Label1->Caption(), u"Scheikundige elementen en hun symbolen"_s);
        QCOMPARE(form.Label2->Caption(), u"Naam                              Symbool           Atoomnummer"_s);
        QCOMPARE(form.Combo1->palette().color(QPalette::Base), QColor(0, 0, 30));
        QCOMPARE(form.Combo1->palette().color(QPalette::Text), QColor(200, 200, 200));
        QCOMPARE(Getoond(*form.Combo1).pixel(20, 10), qRgb(0, 0, 30));
        QCOMPARE(QFontInfo(form.Combo1->font()).family(), u"Liberation Mono"_s);
        QVERIFY(!form.Combo1->font().bold());
        QCOMPARE(TabVolgorde(form), u"Combo1"_s);
        QCOMPARE(Leesnamen(form).join(u'|'), u"Combo1=Scheikundige elementen"_s);
    }

    void thePictureLiesBehindAll()
    {
        const Elementenbord bord;
        ChemischForm form;
        QCOMPARE(form.Picture->geometry(), QRect(0, 0, 561, 299));
        QCOMPARE(form.Picture->Picture(), u"scheikunde"_s);
        const QImage beeld = Getoond(form), achter = Getoond(*form.Picture);
        QCOMPARE(beeld.pixel(562, 300), qRgb(230, 230, 190));
        // Nothing of the picture is in the way of what is read, and what is read is seen.
        for (QWidget *label : {form.Label1, form.Label2}) {
            const QRect vlak = label->geometry();
            QVERIFY(beeld.copy(vlak) != achter.copy(vlak));
            for (int x = vlak.left(); x <= vlak.right(); ++x)
                for (int y = vlak.top(); y <= vlak.bottom(); ++y)
                    QVERIFY(qGray(achter.pixel(x, y)) > 215);
        }
        QImage zonder = beeld;
        for (const QWidget *control : {static_cast<QWidget *>(form.Label1), static_cast<QWidget *>(form.Label2),
                                       static_cast<QWidget *>(form.Combo1)})
            for (int x = control->x(); x < control->x() + control->width(); ++x)
                for (int y = control->y(); y < control->y() + control->height(); ++y)
                    zonder.setPixel(x, y, achter.pixel(x, y));
        QCOMPARE(zonder.copy(0, 0, 561, 299).convertToFormat(QImage::Format_RGB32),
                 achter.convertToFormat(QImage::Format_RGB32));
    }

    void theElements()
    {
        const Elementenbord bord;
        const ChemischForm form;
        QCOMPARE(Items(*form.Combo1), (QStringList{Goud, Tin}));
        QCOMPARE(form.windowTitle(), u"Scheikundige symbolen (2)"_s);
        QCOMPARE(form.Combo1->currentIndex(), -1);
        QCOMPARE(form.Combo1->currentText(), QString());
        QVERIFY(!Zandloper());
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void theColumnsStandUnderTheirHeads()
    {
        const Elementenbord bord("123456789012345S-/-tot hier-/-111\r\nzestienlettersxx-/-negenletr-/-118\r\n");
        ChemischForm form;
        const QFontMetrics maten(form.Combo1->font()), koppen(form.Label2->font());
        const QString kop = form.Label2->Caption();
        const auto opKop = [&](const QString &woord) {
            return form.Label2->x() + koppen.horizontalAdvance(kop.left(kop.indexOf(woord)));
        };
        const int begin = form.Combo1->x() + 4;
        QVERIFY(std::abs(opKop(u"Symbool"_s) - (begin + maten.horizontalAdvance(QString(16, u'x')))) < 16);
        QVERIFY(std::abs(opKop(u"Atoomnummer"_s) - (begin + maten.horizontalAdvance(QString(25, u'x')))) < 16);
        QCOMPARE(maten.horizontalAdvance(QString(16, u'i')), maten.horizontalAdvance(QString(16, u'W')));
        QVERIFY(maten.horizontalAdvance(QString(28, u'x')) < form.Combo1->width() - 30); // the arrow beside it
    }

    void theKeyboardGoesThroughTheElements()
    {
        const Elementenbord bord;
        ChemischForm form;
        form.show();
        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        QTest::keyClick(form.Combo1, Qt::Key_Down);
        QCOMPARE(form.Combo1->currentText(), Goud);
        QTest::keyClick(form.Combo1, Qt::Key_Down);
        QCOMPARE(form.Combo1->currentText(), Tin);
        QTest::keyClick(form.Combo1, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(form.Combo1, u"GO"_s); // the rest is filled in
        QTest::keyClick(form.Combo1, Qt::Key_Return);
        QCOMPARE(form.Combo1->currentText(), Goud);
        QCOMPARE(form.Combo1->currentIndex(), 0);
        QVERIFY(form.isVisible());
        QTest::keyClicks(form.Combo1, u"x"_s);
        QTest::keyClick(form.Combo1, Qt::Key_Return);
        QCOMPARE(Items(*form.Combo1), (QStringList{Goud, Tin})); // what is typed is never kept
        QTest::keyClick(&form, Qt::Key_Escape);
        QVERIFY(form.Unloaded());
    }

    void theBoxIsFilledUnderTheHourglass()
    {
        const Elementenbord bord;
        ChemischForm form;
        bool zandloper = false;
        connect(form.Combo1->model(), &QAbstractItemModel::modelReset, this, [&] { zandloper = Zandloper(); });
        form.VulElementen();
        QVERIFY(zandloper && !Zandloper());
    }

    void aLibraryThatFails_data()
    {
        QTest::addColumn<QByteArray>("inhoud");
        QTest::addColumn<QStringList>("elementen");
        Geval("name of 17", QByteArray("goud-/-Au-/-79\r\nzeventienlettersx-/-S-/-1\r\ntin-/-Sn-/-50"),
              QStringList{Goud});
        Geval("symbol of 10", QByteArray("goud-/-Au-/-79\r\ntin-/-tienletter-/-1\r\n"), QStringList{Goud});
        Geval("no separator", QByteArray("goud-/-Au-/-79\r\ntin Sn 50\r\n"), QStringList{Goud});
        Geval("one separator", QByteArray("goud-/-Au\r\n"), QStringList());
        Geval("binary",
              QByteArray("\x7F"
                         "ELF\0\0\r\n\xFF\x80",
                         10),
              QStringList());
    }
    void aLibraryThatFails()
    {
        QFETCH(QByteArray, inhoud);
        const Elementenbord bord(inhoud);
        Verloop verloop;
        const ChemischForm form;
        QCOMPARE(verloop.Stappen, QStringList{u"Error: Kan database niet vinden... (kritiek) |"_s});
        QTEST(Items(*form.Combo1), "elementen");
        QCOMPARE(form.Combo1->currentIndex(), -1);
        QVERIFY(form.Combo1->isEnabled());
        QCOMPARE(form.windowTitle(), u"Scheikundige symbolen (0)"_s);
        QVERIFY(!form.Unloaded());
        QVERIFY(!Zandloper());
    }

    void aLibraryThatCannotBeRead_data()
    {
        QTest::addColumn<QString>("hoe");
        for (const char *hoe : {"missing", "no folder", "a folder in its place", "forbidden"})
            Geval(hoe, QString::fromLatin1(hoe));
    }
    void aLibraryThatCannotBeRead()
    {
        QFETCH(QString, hoe);
        const Elementenbord bord;
        const QString pad = bord.Bank.Map() + u'/' + Pad;
        if (hoe == "forbidden"_L1)
            QFile::setPermissions(pad, {});
        else
            QFile::remove(pad);
        if (hoe == "no folder"_L1)
            QDir(bord.Bank.Map()).rmdir(u"Data"_s);
        if (hoe == "a folder in its place"_L1)
            QDir().mkdir(pad);
        const Onbevoegd onbevoegd(bord.Bank, {});
        Verloop verloop;
        const ChemischForm form;
        QCOMPARE(verloop.Stappen, QStringList{u"Error: Kan database niet vinden... (kritiek) |"_s});
        QCOMPARE(form.Combo1->count(), 0);
        QCOMPARE(form.windowTitle(), u"Scheikundige symbolen (0)"_s);
        QVERIFY(!Zandloper());
    }

    void fillingAgainTakesTheOldAway()
    {
        const Elementenbord bord;
        ChemischForm form;
        form.Combo1->setCurrentIndex(1);
        bord.Bank.Schrijf(Pad, "tin-/-Sn-/-50\r\n");
        form.VulElementen();
        QCOMPARE(Items(*form.Combo1), QStringList{Tin});
        QCOMPARE(form.Combo1->currentIndex(), -1);
        QCOMPARE(form.windowTitle(), u"Scheikundige symbolen (1)"_s);
        bord.Bank.Schrijf(Pad, "tin-/-Sn-/-50\r\ngoud-/-Au-/-79\r\ntin-/-Sn-/-50\r\nzilver");
        form.VulElementen();
        QCOMPARE(Items(*form.Combo1), (QStringList{Tin, Goud, Tin})); // in the order of the file
        QCOMPARE(form.windowTitle(), u"Scheikundige symbolen (1)"_s); // after a failure the caption stays
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        bord.Bank.Schrijf(Pad, {});
        form.VulElementen();
        QCOMPARE(form.windowTitle(), u"Scheikundige symbolen (0)"_s);
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
    }
};

RASTER_TEST(tst_ChemischForm)
#include "tst_ChemischForm.moc"

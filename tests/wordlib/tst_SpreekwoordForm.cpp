#include "support/Onbevoegd.h"
#include "support/Venster.h"
#include "support/Verloop.h"
#include "support/Woordbord.h"
#include "wordlib/SpreekwoordForm.h"

#include <QMenuBar>

using namespace Qt::StringLiterals;

static const QStringList Bestanden{u"Spreekwoorden"_s, u"Hoofdsteden"_s, u"Afkortingen"_s,
                                   u"LandcodesIOC"_s,  u"Gemeenten"_s,   u"Internet landen afkortingen"_s};

/// The main window with a small library of each kind; that of index 2..6 has as many lines.
struct Naslagbord : Woordbord
{
    Naslagbord()
    {
        Bibliotheek(1, "Eind goed -/- Betekenis : alles goed\r\n\xC9\xE9n -/- Betekenis : \xE9\xE9n is geen\r\n");
        for (int index = 2; index <= 6; ++index) {
            QByteArrayList regels;
            for (int regel = 1; regel <= index; ++regel)
                regels += "tabel " + QByteArray::number(index) + " regel " + QByteArray::number(regel);
            Bibliotheek(index, Regels(regels));
        }
    }

    static QString Pad(int index) { return u"Data/"_s + Bestanden[index - 1] + u".lib"_s; }
    void Bibliotheek(int index, const QByteArray &inhoud) const { Bank.Schrijf(Pad(index), inhoud); }
};

/// What a person sees of a table: the caption, the rows, and whether it says that there are meanings.
static QString Gezien(const SpreekwoordForm &form)
{
    return form.windowTitle() + u": "_s + form.List1->Items().join(u'|') +
           (form.Label1->isHidden() ? QString() : u" + uitleg"_s);
}

static QString Aangevinkt(const SpreekwoordForm &form)
{
    QString welke;
    for (size_t i = 1; i <= 6; ++i)
        if (form.FileCripto[i]->isChecked())
            welke += QString::number(i);
    return welke;
}

static QString Gemeld(const BerichtenScript &script)
{
    QStringList regels;
    for (const Bericht &bericht : script.Gezien)
        regels += bericht.Titel + u": "_s + bericht.Tekst;
    return regels.join(u'\n');
}

static QPoint Onder(const ListBox &lijst)
{
    return {20, lijst.viewport()->height() - 4};
}

class tst_SpreekwoordForm : public QObject
{
    Q_OBJECT
private slots:
    void controlsAndTheirPlaces()
    {
        const Naslagbord bord;
        SpreekwoordForm form;
        QCOMPARE(Misplaatst(
                     form, {{"List1", 180, 225, 8520, 2250}, {"List2"}, {"Label1", 210, 2460}, {"OkKnop", 7770, 2610}}),
                 QString());
        const QSize vlak((9000 - 90) / 15, (3900 - 450 - 300) / 15);
        QCOMPARE(form.List1->parentWidget()->size(), vlak);
        QCOMPARE(form.size(), vlak + QSize(0, form.findChild<QMenuBar *>()->sizeHint().height()));
        QCOMPARE(form.palette().color(QPalette::Window), QColor(230, 230, 190));
        QCOMPARE(form.List1->palette().color(QPalette::Base), QColor(30, 0, 0));
        QCOMPARE(form.List1->palette().color(QPalette::Text), QColor(250, 250, 210));
        QVERIFY(!form.List1->Sorted && !form.List2->Sorted);
        form.show();
        QVERIFY(form.List1->isVisible() && form.Label1->isVisible() && form.OkKnop->isVisible());
        QVERIFY(!form.List2->isVisible());
        QCOMPARE(form.Label1->Caption(), u"Dubbelklik op een item is de betekenis."_s);
        QCOMPARE(PlaatjesOp(form), u"OkKnop knop-ok"_s);
    }

    void theTabKeyGoesFromTheListOn()
    {
        const Naslagbord bord;
        SpreekwoordForm form;
        QCOMPARE(TabVolgorde(form), u"List1 OkKnop"_s);
        QCOMPARE(Leesnamen(form).join(u'|'), u"List1=Bibliotheek|List2=Betekenissen|OkKnop=Ok"_s);
    }

    void theMenu()
    {
        const Naslagbord bord;
        SpreekwoordForm form;
        const QList<QAction *> balk = form.findChild<QMenuBar *>()->actions();
        QCOMPARE(balk.size(), 1);
        QCOMPARE(balk[0]->text(), u"Database"_s);
        QCOMPARE(balk[0]->menu()->objectName(), u"FileDatabase"_s);
        QStringList items;
        for (const QAction *item : balk[0]->menu()->actions())
            items += item->objectName() + u' ' + item->text() +
                     (item->isCheckable() && item->isEnabled() ? QString() : u"!"_s);
        QCOMPARE(items, (QStringList{u"FileCripto(1) Spreekwoorden en gezegden"_s,
                                     u"FileCripto(2) Landen met hoofdsteden"_s, u"FileCripto(3) Afkortingen"_s,
                                     u"FileCripto(4) IOC Landcodes"_s, u"FileCripto(5) Gemeenten in Nedlerland"_s,
                                     u"FileCripto(6) Internet afkortingen landen"_s}));
        QCOMPARE(Aangevinkt(form), u"1"_s);
    }

    void itOpensWithTheProverbs()
    {
        const Naslagbord bord;
        SpreekwoordForm form;
        QCOMPARE(Gezien(form), u"Spreekwoorden en Gezegden (2): Eind goed|Één + uitleg"_s);
        QCOMPARE(form.List2->Items().join(u'|'), u"Betekenis : alles goed|Betekenis : één is geen"_s);
        QCOMPARE(form.HuidigeBron, 1);
        QCOMPARE(form.List1->ListIndex(), -1);
        QVERIFY(!Zandloper());
    }

    void eachTable_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("gezien");
        const auto rij = [](int index, const char *titel) {
            QStringList regels;
            for (int regel = 1; regel <= index; ++regel)
                regels += u"tabel %1 regel %2"_s.arg(index).arg(regel);
            Geval(titel, index, QLatin1String(titel) + u" (%1): "_s.arg(index) + regels.join(u'|'));
        };
        Geval("proverbs", 1, "Spreekwoorden en Gezegden (2): Eind goed|Één + uitleg");
        rij(2, "Hoofdsteden");
        rij(3, "Afkortingen");
        rij(4, "LandcodesIOC");
        rij(5, "Gemeenten");
        rij(6, "Internet landen afkortingen");
    }
    void eachTable()
    {
        QFETCH(int, index);
        const Naslagbord bord;
        SpreekwoordForm form;
        form.List1->setToolTip(u"oud"_s);
        for (int ervoor = 1; ervoor <= 6; ++ervoor) { // from each of the others, and from itself
            form.FileCripto[static_cast<size_t>(ervoor)]->trigger();
            form.List1->SetListIndex(1);
            form.FileCripto[static_cast<size_t>(index)]->trigger();
            QCOMPARE(form.List1->ListIndex(), -1);
            QTEST(Gezien(form), "gezien");
            QCOMPARE(Aangevinkt(form), QString::number(index));
            QCOMPARE(form.HuidigeBron, index);
            QCOMPARE(form.List2->ListCount(), 2);
            QVERIFY(!Zandloper());
        }
        QCOMPARE(form.List1->toolTip(), QString());
        QCOMPARE(Gemeld(bord.Bank.Script), QString());
    }

    void theListsAreFilledUnderTheHourglass()
    {
        const Naslagbord bord;
        SpreekwoordForm form;
        Verloop verloop([&] { return form.Label1->isHidden() ? QString() : u"uitleg"_s; });
        verloop.Volg(*form.List1);
        verloop.Volg(*form.List2);
        form.FileCripto[2]->trigger();
        form.FileCripto[1]->trigger();
        QCOMPARE(verloop.Stappen,
                 (QStringList{u"lijst tabel 2 regel 1 tabel 2 regel 2 | zandloper"_s,
                              u"lijst Eind goed Één | zandloper uitleg"_s,
                              u"lijst Betekenis : alles goed Betekenis : één is geen | zandloper uitleg"_s}));
        QVERIFY(!Zandloper());
    }

    void aLetterPicksProverbs()
    {
        const Naslagbord bord;
        SpreekwoordForm form;
        form.LaadSpreekwoorden(u"é"_s);
        QCOMPARE(Gezien(form), u"Spreekwoorden en Gezegden (1): Één + uitleg"_s);
        QCOMPARE(form.List2->Items().join(u'|'), u"Betekenis : één is geen"_s);
    }

    void theLoadsLeaveTheChoiceOfATable()
    {
        const Naslagbord bord;
        SpreekwoordForm form;
        form.List1->SetListIndex(1);
        form.List1_DblClick();
        form.OkKnop->setFocus();
        Stand ervoor = StandVan(form);
        form.LaadBron(3);
        QCOMPARE(Verschil(ervoor, StandVan(form)), u"Label1 List1 Titel"_s);
        QCOMPARE(form.HuidigeBron, 1);
        form.FileCripto[3]->trigger();
        form.List1->setToolTip(u"oud"_s);
        ervoor = StandVan(form);
        form.LaadSpreekwoorden({});
        QCOMPARE(Verschil(ervoor, StandVan(form)), u"Label1 List1 Titel"_s);
        QCOMPARE(form.List1->toolTip(), u"oud"_s);
        QCOMPARE(form.HuidigeBron, 3);
        QCOMPARE(form.Titel, u"Één"_s);
        QCOMPARE(form.Betekenis, u"Één is geen"_s);
    }

    void linesAreShownAsTheyStandThere()
    {
        const Naslagbord bord;
        bord.Bibliotheek(3, "\r\n  b  \r\n   \r\n\x80 -/- \xFF\r\na");
        SpreekwoordForm form;
        form.FileCripto[3]->trigger();
        QCOMPARE(Gezien(form), u"Afkortingen (3):   b  |\u20AC -/- \u00FF|a"_s);
    }

    // --- the meaning ---

    void aDoubleClickShowsTheMeaning_data()
    {
        QTest::addColumn<QByteArray>("regel");
        QTest::addColumn<QString>("tekst");
        Geval("first letter in upper case, the others as they are", QByteArray("a -/- 123456789012het is IN Orde"),
              u"Het is IN Orde"_s);
        Geval("an accent", QByteArray("a -/- 123456789012\xE9\xE9n"), u"Één"_s);
        Geval("a letter without a capital", QByteArray("a -/- 123456789012\xDFt"), u"ßt"_s);
        Geval("no letter", QByteArray("a -/- 123456789012 x"), u" x"_s);
        Geval("one letter", QByteArray("a -/- 123456789012x"), u"X"_s);
        Geval("only the lead-in", QByteArray("a -/- 123456789012"), u""_s);
        Geval("shorter than the lead-in", QByteArray("a -/- 12345"), u""_s);
        Geval("empty", QByteArray("a -/- "), u""_s);
    }
    void aDoubleClickShowsTheMeaning()
    {
        QFETCH(QByteArray, regel);
        QFETCH(QString, tekst);
        const Naslagbord bord;
        bord.Bibliotheek(1, "eerste -/- 123456789012nee\r\n" + regel + "\r\nderde -/- 123456789012nee\r\n");
        SpreekwoordForm form;
        form.show();
        const QPoint rij = form.List1->visualRect(form.List1->model()->index(1, 0)).center();
        QTest::mouseDClick(form.List1->viewport(), Qt::LeftButton, {}, rij);
        QCOMPARE(form.Titel, u"a"_s);
        QCOMPARE(form.Betekenis, tekst);
        QCOMPARE(Gemeld(bord.Bank.Script), u"Betekenis: "_s + tekst);
        QCOMPARE(bord.Bank.Script.Gezien[0].Plaatje, Icoon::Geen);
        QCOMPARE(bord.Bank.Script.Gezien[0].Soort, Knoppen::Ok);
        QVERIFY(!form.Unloaded());
    }

    void theKeyboardShowsTheMeaning_data()
    {
        QTest::addColumn<int>("toets");
        Geval("Return", int(Qt::Key_Return));
        Geval("Enter", int(Qt::Key_Enter));
    }
    void theKeyboardShowsTheMeaning()
    {
        QFETCH(int, toets);
        const Naslagbord bord;
        SpreekwoordForm form;
        form.show();
        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        QTest::keyClick(form.List1, Qt::Key_Down);
        QTest::keyClick(form.List1, Qt::Key_Down);
        QTest::keyClick(form.List1, Qt::Key(toets));
        QCOMPARE(Gemeld(bord.Bank.Script), u"Betekenis: Één is geen"_s);
    }

    void elsewhereTheKeyboardShowsNoMeaning()
    {
        const Naslagbord bord;
        SpreekwoordForm form;
        form.show();
        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        form.List1->SetListIndex(1);
        form.OkKnop->setFocus();
        QTest::keyClick(form.OkKnop, Qt::Key_Return);
        QCOMPARE(Gemeld(bord.Bank.Script), QString());
        QVERIFY(form.Unloaded());
    }

    void aDoubleClickOnNothing()
    {
        const Naslagbord bord;
        SpreekwoordForm form;
        form.show();
        QTest::mouseDClick(form.List1->viewport(), Qt::LeftButton, {}, Onder(*form.List1));
        QCOMPARE(Gemeld(bord.Bank.Script), u"Betekenis: "_s);
        QCOMPARE(form.Titel, QString());
        // Filled anew the list has no chosen row either.
        form.List1->SetListIndex(1);
        form.List1_DblClick();
        QCOMPARE(form.Titel, u"Één"_s);
        form.FileCripto[1]->trigger();
        QTest::mouseDClick(form.List1->viewport(), Qt::LeftButton, {}, Onder(*form.List1));
        QCOMPARE(Gemeld(bord.Bank.Script), u"Betekenis: \nBetekenis: Één is geen\nBetekenis: "_s);
        QCOMPARE(form.Titel, QString());
    }

    void theOtherTablesHaveNoMeanings_data()
    {
        QTest::addColumn<int>("index");
        for (int index = 2; index <= 6; ++index)
            Geval(QByteArray::number(index), index);
    }
    void theOtherTablesHaveNoMeanings()
    {
        QFETCH(int, index);
        const Naslagbord bord;
        SpreekwoordForm form;
        form.FileCripto[static_cast<size_t>(index)]->trigger();
        form.show();
        QTest::mouseDClick(form.List1->viewport(), Qt::LeftButton, {}, Onder(*form.List1));
        const QStringList gebleven{u"Alles goed"_s, u"Één is geen"_s}; // those of the proverbs, and not shown
        for (const int rij : {0, 1, index - 1}) {
            form.List1->SetListIndex(rij);
            form.List1_DblClick();
            QCOMPARE(form.Titel, form.List1->List(rij));
            QCOMPARE(form.Betekenis, gebleven.value(rij));
        }
        QVERIFY(!form.Unloaded());
        QCOMPARE(Gemeld(bord.Bank.Script), QString());
    }

    void theMeaningsStayInStep()
    {
        const Naslagbord bord;
        SpreekwoordForm form;
        form.FileCripto[3]->trigger();
        bord.Bibliotheek(1, "nieuw -/- 123456789012ja\r\nnog een -/- 123456789012nee\r\n");
        form.FileCripto[1]->trigger();
        QCOMPARE(form.List2->ListCount(), 2);
        form.List1->SetListIndex(1);
        const Stand ervoor = StandVan(form);
        form.List1_DblClick();
        QCOMPARE(Gemeld(bord.Bank.Script), u"Betekenis: Nee"_s);
        QCOMPARE(Verschil(ervoor, StandVan(form)), QString());
    }

    // --- failures ---

    void aProverbWithoutItsSeparatorEndsTheLoad()
    {
        const Naslagbord bord;
        SpreekwoordForm form;
        bord.Bibliotheek(1, "a -/- 123456789012x\r\nb\r\nc -/- 123456789012x\r\n");
        form.FileCripto[4]->trigger();
        form.FileCripto[1]->trigger();
        QCOMPARE(Gezien(form), u"LandcodesIOC (4): a + uitleg"_s); // the caption stays
        QCOMPARE(form.List2->ListCount(), 1);
        QCOMPARE(form.HuidigeBron, 1);
        QCOMPARE(Aangevinkt(form), u"1"_s);
        QVERIFY(!Zandloper());
        QCOMPARE(Gemeld(bord.Bank.Script), QString());
    }

    void theFirstCaptionWithoutProverbs()
    {
        const Naslagbord bord;
        bord.Bibliotheek(1, "niets");
        const SpreekwoordForm form;
        QCOMPARE(Gezien(form), u"Spreekwoorden en Gezegden:  + uitleg"_s);
        QCOMPARE(Gemeld(bord.Bank.Script), QString());
    }

    void aLibraryThatCannotBeRead_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("hoe");
        for (int index = 1; index <= 6; ++index)
            for (const char *hoe : {"missing", "a folder in its place", "forbidden"})
                Geval(QByteArray::number(index) + ' ' + hoe, index, QString::fromLatin1(hoe));
    }
    void aLibraryThatCannotBeRead()
    {
        QFETCH(int, index);
        QFETCH(QString, hoe);
        const Naslagbord bord;
        SpreekwoordForm form;
        const int ervoor = index == 2 ? 3 : 2;
        form.FileCripto[static_cast<size_t>(ervoor)]->trigger();
        form.List1->setToolTip(u"oud"_s);
        const QString titel = form.windowTitle(), pad = bord.Bank.Map() + u'/' + Naslagbord::Pad(index);
        if (hoe == "forbidden"_L1)
            QFile::setPermissions(pad, {});
        else
            QFile::remove(pad);
        if (hoe == "a folder in its place"_L1)
            QDir().mkdir(pad);
        const Onbevoegd onbevoegd(bord.Bank, {});
        form.FileCripto[static_cast<size_t>(index)]->trigger();
        QCOMPARE(Gezien(form), titel + u": "_s + (index == 1 ? u" + uitleg"_s : QString()));
        QCOMPARE(Aangevinkt(form), QString::number(index));
        QCOMPARE(form.HuidigeBron, index);
        QCOMPARE(form.List1->toolTip(), u"oud"_s);
        QCOMPARE(form.List2->ListCount(), index == 1 ? 0 : 2);
        QVERIFY(!Zandloper());
        QCOMPARE(Gemeld(bord.Bank.Script), QString());
    }

    void binaryAndEmptyLibraries()
    {
        const Naslagbord bord;
        QByteArray bytes;
        for (int i = 0; i < 100000; ++i)
            bytes += static_cast<char>(i * 7919 >> 3);
        SpreekwoordForm form;
        for (int index = 1; index <= 6; ++index) {
            bord.Bibliotheek(index, {});
            form.FileCripto[static_cast<size_t>(index)]->trigger();
            QCOMPARE(form.List1->ListCount(), 0);
            bord.Bibliotheek(index, bytes);
            form.FileCripto[static_cast<size_t>(index)]->trigger();
            QVERIFY((form.List1->ListCount() > 100) == (index > 1));
            Getoond(form);
        }
        QCOMPARE(Gemeld(bord.Bank.Script), QString());
    }

    void theButtonCloses()
    {
        const Naslagbord bord;
        SpreekwoordForm form;
        form.show();
        const QPoint plaats = form.OkKnop->pos();
        Verloop verloop([&] { return form.OkKnop->pos() == plaats + QPoint(2, 2) ? u"gedrukt"_s : QString(); });
        form.OkKnop->click();
        QCOMPARE(verloop.Stappen, QStringList{u"0.2 s | gedrukt"_s});
        QVERIFY(form.Unloaded() && !form.isVisible());
    }
};

RASTER_TEST(tst_SpreekwoordForm)
#include "tst_SpreekwoordForm.moc"

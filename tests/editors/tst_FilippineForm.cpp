#include "editors/EditorStand.h"
#include "editors/Filippine.h"
#include "editors/FilippineForm.h"
#include "support/Venster.h"

using namespace Qt::StringLiterals;

static const QRgb Grijs = qRgb(80, 80, 80);
static const QRgb Zwart = qRgb(0, 0, 0);
static const QRgb Wit = qRgb(255, 255, 255);

/// The empty board of a Filippine.
struct Filippinebord : Bord
{
    Filippinebord() { Begin(Filippine, 16, 19); }
};

/// What is filled in.
struct Invoer
{
    QPoint Cel;
    QString Oplossing;
    QString Omschrijving = u"omschrijving"_s;
    int Nummer = 0; // 0: as it opens
    bool Zoekwoord = false;
};

static void VulIn(FilippineForm &form, const Invoer &invoer)
{
    if (invoer.Zoekwoord)
        form.Option[1]->setChecked(true);
    else
        form.Text1->setText(invoer.Omschrijving);
    if (invoer.Nummer > 0)
        form.HScroll1->setValue(invoer.Nummer);
    form.Text2->setText(invoer.Oplossing);
}

/// Opens the editor on the cell, fills it in and presses Ok.
static void Plaats(Bord &bord, const Invoer &invoer)
{
    bord.Wijs(invoer.Cel.x(), invoer.Cel.y());
    FilippineForm form;
    VulIn(form, invoer);
    form.OkKnop_Click();
    QVERIFY(form.Unloaded());
    QVERIFY(bord.Bank.Script.Gezien.isEmpty());
}

/// The number cell as it has to be.
static QImage NummerVak(int nummer)
{
    Verwacht vak(Doek(31, 31, Zwart));
    vak.Vul(QRect(1, 1, 29, 29), Wit);
    vak.Vul(QRect(2, 2, 27, 27), Zwart);
    vak.Druk(QString::number(nummer), QPoint(nummer > 9 ? 6 : 10, 7), Lettertype(u"Arial"_s, 12, true), Wit);
    return vak.Beeld;
}

/// The visible board as it has to be.
struct VerwachtBord : Verwacht
{
    explicit VerwachtBord(const Bord &bord)
        : Verwacht(bord.Pic()), Vak1(bord.Venster.Vak1->Image()), Vak2(bord.Venster.Vak2->Image()),
          Naam(bord.Venster.Pic->FontName)
    {
    }
    void Nummer(QPoint cel, int nummer) { Plak(NummerVak(nummer), cel * 30); }
    /// Letters, a blank between two cells, beginning in this cell; "_" is an empty cell.
    void Letters(QPoint cel, const QString &letters, bool zoekwoord = false)
    {
        for (const QString &letter : letters.split(u' ')) {
            const int verschuiving = letter == u"W"_s ? -3 : letter == u"I"_s ? 4 : 0;
            Plak(zoekwoord ? Vak2 : Vak1, cel * 30);
            if (letter != u"_"_s)
                Druk(letter, cel * 30 + QPoint(10 + verschuiving, 7), Lettertype(Naam, 12, true), Grijs);
            cel += zoekwoord ? QPoint(0, 1) : QPoint(1, 0);
        }
    }

    QImage Vak1, Vak2;
    QString Naam;
};

class tst_FilippineForm : public QObject
{
    Q_OBJECT
private slots:
    void controlsAndTheirPlaces()
    {
        Filippinebord bord;
        FilippineForm form;
        QCOMPARE(Misplaatst(form, {{"Text1", 150, 180, 3900, 360},
                                   {"Label1", 4110, 240},
                                   {"Text2", 150, 570, 3900, 360},
                                   {"Label2", 4110, 630},
                                   {"PicZwart", 225, 1200, 465, 465},
                                   {"Label3", 900, 1365, 2100, 330},
                                   {"HScroll1", 930, 1395, 2040, 270},
                                   {"Label4", 3060, 1410},
                                   {"Option1", 330, 1950, 3300, 300},
                                   {"Option2", 330, 2250, 3300, 300},
                                   {"CancelKnop", 4290, 2370, 0, 360},
                                   {"OkKnop", 5310, 2370, 0, 360}}),
                 QString());
    }

    void theTabKeyGoesToWhatIsEnabled()
    {
        Filippinebord bord;
        FilippineForm form;
        QCOMPARE(TabVolgorde(form), u"Text1 Text2 HScroll1 Option1 CancelKnop OkKnop"_s);
        form.Option[1]->setFocus();
        form.Option[1]->click();
        form.Text2->setFocus();
        QCOMPARE(TabVolgorde(form), u"Text2 Option2 CancelKnop OkKnop"_s);
    }

    void asItOpens()
    {
        Filippinebord bord;
        Plaats(bord, {.Cel = {2, 5}, .Oplossing = u"aap"_s, .Nummer = 12, .Zoekwoord = true});
        bord.Wijs(2, 6);
        bord.InBewerking();
        const Stand ervoor = EditorStand(bord);
        FilippineForm form;
        QCOMPARE(form.objectName(), u"FilippineForm"_s);
        QCOMPARE(form.windowTitle(), u"Oplossing Plaatsen op 07"_s);
        QCOMPARE(form.size(), QSize((6600 - 90) / 15, (3390 - 450) / 15));
        QCOMPARE(form.palette().color(QPalette::Window), QColor(220, 250, 210));
        QVERIFY(form.Text1->text().isEmpty() && form.Text2->text().isEmpty());
        QVERIFY(form.Text1->isEnabled() && form.HScroll1->isEnabled());
        QCOMPARE(form.Label1->Caption(), u"Omschrijving"_s);
        QCOMPARE(form.Label2->Caption(), u"Oplossing (0)"_s);
        QCOMPARE(form.Label3->Caption(), QString());
        QCOMPARE(form.Label3->palette().color(QPalette::Window), QColor(150, 180, 180));
        QCOMPARE(form.Label4->Caption(), u"Vaknummer"_s);
        QCOMPARE(form.Option.size(), 2);
        QCOMPARE(form.Option[0]->text(), u"Horizontaal (Vaknummer met oplossing)"_s);
        QCOMPARE(form.Option[1]->text(), u"Vertikaal (Het te zoeken woord)"_s);
        QVERIFY(form.Option[0]->isChecked());
        QCOMPARE(form.HScroll1->minimum(), 1);
        QCOMPARE(form.HScroll1->maximum(), 19);
        QCOMPARE(form.HScroll1->value(), 7);
        QCOMPARE(form.focusWidget(), form.Text1);
        QCOMPARE(form.Text1->accessibleName(), u"Omschrijving"_s);
        QCOMPARE(form.Text2->accessibleName(), u"Oplossing"_s);
        QCOMPARE(form.PicZwart->accessibleName(), u"Voorbeeld van het vaknummer"_s);
        QCOMPARE(form.HScroll1->accessibleName(), u"Vaknummer"_s);
        QCOMPARE(PlaatjesOp(form), u"CancelKnop knop-annuleren, OkKnop knop-ok"_s);
        for (QRadioButton *optie : form.Option)
            QCOMPARE(Getoond(*optie).pixel(219, 19), qRgb(220, 250, 210)); // the ground of the window
        for (const LineBox *box : {form.Text1, form.Text2}) {
            QCOMPARE(box->palette().color(QPalette::Active, QPalette::Base), QColor(30, 0, 0));
            QCOMPARE(box->palette().color(QPalette::Active, QPalette::Text), QColor(230, 230, 230));
        }
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), QString());
    }

    void itOpensOnTheRowOfTheCell_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<int>("nummer");
        for (int rij = 1; rij <= 19; ++rij)
            Geval(QByteArray::number(rij), u"%1"_s.arg(rij, 2, 10, QChar(u'0')), rij);
        Geval("the pointer was never on the board", u"Coordinaten"_s, 1);
        Geval("of another kind of puzzle", u"C-07 / 99"_s, 1);
        Geval("empty", QString(), 1);
        Geval("nought", u"00"_s, 1);
        Geval("negative", u"-3"_s, 1);
        Geval("a row that has no number", u"20"_s, 19);
        Geval("above a byte", u"256"_s, 19);
        Geval("above 16 bits", u"40000"_s, 19);
        Geval("huge", u"999999999999"_s, 19);
    }
    void itOpensOnTheRowOfTheCell()
    {
        QFETCH(QString, label);
        QFETCH(int, nummer);
        Bord bord;
        bord.Begin(Filippine, 9, 9); // whatever its size: the label may be that of a larger board
        bord.Venster.Label6->SetCaption(label);
        FilippineForm form;
        QCOMPARE(form.windowTitle(), u"Oplossing Plaatsen op "_s + label);
        QCOMPARE(form.HScroll1->value(), nummer);
        QCOMPARE(Verschil(form.PicZwart->Image(), NummerVak(nummer)), QString());
    }

    void theNumberCellFollowsTheBar()
    {
        Bord bord;
        bord.Begin(Filippine, 9, 9); // whatever its size, the numbers go to 19
        FilippineForm form;
        for (const int nummer : {2, 19, 1, 9, 10, 1}) {
            form.HScroll1->setSliderDown(true);
            form.HScroll1->setSliderPosition(nummer); // before the thumb is released
            QCOMPARE(Verschil(form.PicZwart->Image(), NummerVak(nummer)), QString());
            form.HScroll1->setSliderDown(false);
        }
        QTest::keyClick(form.HScroll1, Qt::Key_PageDown); // one at a time
        QCOMPARE(Verschil(form.PicZwart->Image(), NummerVak(2)), QString());
        for (const int buiten : {-1, 0, 20, 300, INT_MAX}) {
            form.HScroll1->setValue(buiten);
            QCOMPARE(Verschil(form.PicZwart->Image(), NummerVak(buiten < 1 ? 1 : 19)), QString());
        }
    }

    void theSearchWordHasNeitherClueNorNumber()
    {
        Filippinebord bord;
        FilippineForm form;
        form.Text1->setText(u"dier"_s);
        form.Text2->setText(u"beer"_s);
        form.HScroll1->setValue(4);
        form.Option[1]->setFocus();
        form.Option[1]->click();
        QVERIFY(!form.Text1->isEnabled() && !form.HScroll1->isEnabled());
        QCOMPARE(form.Text1->text(), u"n.v.t."_s);
        QCOMPARE(form.Text1->palette().color(QPalette::Disabled, QPalette::Base), QColor(200, 230, 190));
        QCOMPARE(form.HScroll1->value(), 4);
        QCOMPARE(form.Text2->text(), u"beer"_s);
        form.Text2->setText(u"aap"_s);
        form.Option[0]->click();
        QVERIFY(form.Text1->isEnabled() && form.HScroll1->isEnabled());
        QCOMPARE(form.Text1->text(), QString());
        QCOMPARE(form.Text1->palette().color(QPalette::Active, QPalette::Base), QColor(30, 0, 0));
        QCOMPARE(form.Text1->palette().color(QPalette::Active, QPalette::Text), QColor(230, 230, 230));
        QCOMPARE(form.Text2->text(), u"aap"_s);
        QCOMPARE(form.HScroll1->value(), 4);
        QCOMPARE(form.focusWidget(), form.Option[1]); // it stays
    }

    void theCounterCountsCells_data()
    {
        QTest::addColumn<QString>("woord");
        QTest::addColumn<QString>("teller");
        Geval("lijst", u"lijst"_s, u"Oplossing (4)"_s);
        Geval("capitals are two", u"LIJST"_s, u"Oplossing (5)"_s);
        Geval("blanks count", u"a b"_s, u"Oplossing (3)"_s);
        Geval("nothing", QString(), u"Oplossing (0)"_s);
    }
    void theCounterCountsCells()
    {
        QFETCH(QString, woord);
        Filippinebord bord;
        FilippineForm form;
        form.Text2->setText(u"iets"_s);
        form.Text2->setText(woord);
        QTEST(form.Label2->Caption(), "teller");
    }

    void anAnswerStandsBehindItsNumber()
    {
        Filippinebord bord;
        VerwachtBord verwacht(bord);
        const QImage groot = bord.Groot();
        Plaats(bord, {{2, 6}, u"Wijntip"_s, u"Raad voor drinkers"_s});
        verwacht.Nummer({2, 6}, 7);
        verwacht.Letters({3, 6}, u"W IJ N T I P"_s);
        QCOMPARE(Verschil(bord.Pic(), verwacht.Beeld), QString());
        QVERIFY(bord.Groot() == groot);
        QCOMPARE(bord.Venster.Rijen(), (QList{Rij{u"07"_s, u"Raad voor drinkers"_s, u"Wijntip"_s, u"-"_s}}));
        QCOMPARE(bord.Venster.Label11->Caption(), u"1 Items"_s);
        QVERIFY(!PuzzelGewijzigd); // unlike after the other editors
    }

    void theNumberIsThatOfTheBar()
    {
        Filippinebord bord;
        VerwachtBord verwacht(bord);
        Plaats(bord, {{0, 0}, u"a"_s, u"x"_s, 12});
        verwacht.Nummer({0, 0}, 12);
        verwacht.Letters({1, 0}, u"A"_s);
        QCOMPARE(Verschil(bord.Pic(), verwacht.Beeld), QString());
        QCOMPARE(bord.Rij(0), u"01|x|a|-"_s);
    }

    void theSearchWordRunsDownwards()
    {
        Filippinebord bord;
        VerwachtBord verwacht(bord);
        bord.InBewerking();
        const Stand ervoor = EditorStand(bord);
        Plaats(bord, {.Cel = {4, 2}, .Oplossing = u"Wijzin"_s, .Zoekwoord = true});
        verwacht.Letters({4, 2}, u"W IJ Z I N"_s, true);
        QCOMPARE(Verschil(bord.Pic(), verwacht.Beeld), QString());
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), u"CurCell CurCol CurRow Label6 Pic Shape1"_s); // no row
    }

    void theWordIsTakenAsItIsTyped_data()
    {
        QTest::addColumn<QString>("getypt");
        QTest::addColumn<QString>("letters");
        QTest::addColumn<QString>("oplossing");
        Geval("capitals are two", u"LIJST"_s, u"L I J S T"_s, u"LIJST"_s);
        Geval("one small and one capital", u"lIjst iJ"_s, u"L I J S T _ I J"_s, u"lIjst iJ"_s);
        Geval("small letters are one", u"lijst"_s, u"L IJ S T"_s, u"lijst"_s);
        Geval("blanks stay", u" a b "_s, u"_ A _ B _"_s, u" a b "_s);
        Geval("nothing but blanks", u"  "_s, u"_ _"_s, u"  "_s);
        Geval("its sign", u"l?st"_s, u"L IJ S T"_s, u"lijst"_s);
        Geval("accents", u"café"_s, u"C A F É"_s, u"café"_s);
        Geval("letters without a capital", u"Weißµ"_s, u"W E I ß µ"_s, u"Weißµ"_s);
        Geval("a hard space", u"a\u00a0b"_s, u"A \u00a0 B"_s, u"a\u00a0b"_s);
    }
    void theWordIsTakenAsItIsTyped()
    {
        QFETCH(QString, getypt);
        QFETCH(QString, letters);
        QFETCH(QString, oplossing);
        for (const bool zoekwoord : {false, true}) {
            Filippinebord bord;
            VerwachtBord verwacht(bord);
            Plaats(bord, {.Cel = {1, 2}, .Oplossing = getypt, .Zoekwoord = zoekwoord});
            if (!zoekwoord)
                verwacht.Nummer({1, 2}, 3);
            verwacht.Letters(zoekwoord ? QPoint(1, 2) : QPoint(2, 2), letters, zoekwoord);
            QCOMPARE(Verschil(bord.Pic(), verwacht.Beeld), QString());
            QCOMPARE(bord.Rij(0), zoekwoord ? QString() : u"03|omschrijving|"_s + oplossing + u"|-"_s);
        }
    }

    void aWordBeyondTheBoardIsLostThere_data()
    {
        QTest::addColumn<QPoint>("cel");
        QTest::addColumn<int>("lengte");
        for (const int lengte : {20, 5000, 32767}) { // the most that a box takes
            Geval("from the first cell, " + QByteArray::number(lengte), QPoint(0, 0), lengte);
            Geval("from within, " + QByteArray::number(lengte), QPoint(11, 13), lengte);
            Geval("from the last cell, " + QByteArray::number(lengte), QPoint(15, 18), lengte);
        }
    }
    void aWordBeyondTheBoardIsLostThere()
    {
        QFETCH(QPoint, cel);
        QFETCH(int, lengte);
        for (const bool zoekwoord : {false, true}) {
            Filippinebord bord;
            VerwachtBord verwacht(bord);
            const QString woord(lengte, u'a');
            Plaats(bord, {.Cel = cel, .Oplossing = woord, .Zoekwoord = zoekwoord});
            if (!zoekwoord)
                verwacht.Nummer(cel, cel.y() + 1);
            const QString letters = QStringList(20, u"A"_s).join(u' ');
            verwacht.Letters(zoekwoord ? cel : cel + QPoint(1, 0), letters, zoekwoord);
            QCOMPARE(Verschil(bord.Pic(), verwacht.Beeld), QString());
            QCOMPARE(bord.Venster.ListView1->topLevelItemCount(), zoekwoord ? 0 : 1);
            if (!zoekwoord)
                QCOMPARE(bord.Venster.Rijen()[0].Oplossing, woord);
        }
    }

    void aBoxTakesNoMoreThanItHolds()
    {
        Filippinebord bord;
        FilippineForm form;
        form.Text2->setText(QString(40000, u'a'));
        QCOMPARE(form.Label2->Caption(), u"Oplossing (32767)"_s);
        form.Text2->setText(u"een\r\ntwee"_s); // one line
        QCOMPARE(form.Text2->text(), u"een"_s);
    }

    void whatOkLeavesBehind()
    {
        Filippinebord bord;
        bord.Venster.Pic->ZetLetter({.Naam = u"Courier New"_s, .Punten = 7.0, .Vet = false, .Kleur = Zwart});
        bord.InBewerking(); // it stays changed as well
        bord.Wijs(2, 6);
        VerwachtBord verwacht(bord);
        const Stand ervoor = EditorStand(bord);
        FilippineForm form;
        VulIn(form, {{2, 6}, u"bijtijd"_s, u" Op tijd, vroeg"_s});
        Klik(bord, *form.OkKnop, [&] {
            QVERIFY(!form.Unloaded());
            QCOMPARE(form.Text2->text(), u"bijtijd"_s);
        });
        QVERIFY(form.Unloaded());
        QCOMPARE(form.Text2->text(), u"bijtijd"_s);
        verwacht.Nummer({2, 6}, 7); // in the form's own font
        verwacht.Letters({3, 6}, u"B IJ T IJ D"_s);
        QCOMPARE(Verschil(bord.Pic(), verwacht.Beeld), QString());
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), u"Label11 ListView1 Pic"_s);
        QCOMPARE(bord.Venster.Label11->Caption(), u"2 Items"_s);
        QCOMPARE(bord.Rij(1), u"07| Op tijd, vroeg|bijtijd|-"_s);
        QCOMPARE(Lettersoort(*bord.Venster.Pic), u"Courier New 12 1 ff505050"_s);
    }

    void aPlacementReplacesWhatWasThere()
    {
        Filippinebord bord;
        VerwachtBord verwacht(bord);
        Plaats(bord, {{2, 6}, u"wwww"_s});
        Plaats(bord, {.Cel = {4, 5}, .Oplossing = u"xx"_s, .Zoekwoord = true});
        Plaats(bord, {{5, 6}, u"y"_s});
        verwacht.Nummer({2, 6}, 7);
        verwacht.Letters({3, 6}, u"W W W W"_s);
        verwacht.Letters({4, 5}, u"X X"_s, true);
        verwacht.Nummer({5, 6}, 7);
        verwacht.Letters({6, 6}, u"Y"_s);
        QCOMPARE(Verschil(bord.Pic(), verwacht.Beeld), QString());
    }

    void theSameAnswerAgainIsAnotherRow()
    {
        Filippinebord bord;
        for (int keer = 0; keer < 3; ++keer) {
            Plaats(bord, {{2, 6}, u"aap"_s});
            if (keer == 1)
                bord.Venster.ListView1->setCurrentItem(bord.Venster.ListView1->topLevelItem(1));
        }
        QCOMPARE(bord.Venster.Rijen(), QList<Rij>(3, {u"07"_s, u"omschrijving"_s, u"aap"_s, u"-"_s}));
        QVERIFY(bord.Venster.ListView1->topLevelItem(1)->isSelected()); // the choice stays
    }

    void aClueOfBlanksIsAClue()
    {
        Filippinebord bord;
        Plaats(bord, {{2, 6}, u"aap"_s, u" "_s});
        QCOMPARE(bord.Rij(0), u"07| |aap|-"_s);
    }

    void aClueIsTakenAsItIsTyped()
    {
        Filippinebord bord;
        const QString omschrijving = u"Welk dier? "_s + QString(32000, u'x');
        Plaats(bord, {{2, 6}, u"aap"_s, omschrijving});
        QCOMPARE(bord.Venster.Rijen()[0].Omschrijving, omschrijving);
    }

    void whatIsTypedDuringTheEffectCounts()
    {
        Filippinebord bord;
        VerwachtBord verwacht(bord);
        bord.Wijs(2, 6);
        FilippineForm form;
        KijkKlok klok([&] { VulIn(form, {{2, 6}, u"aap"_s, u"dier"_s, 9}); });
        form.OkKnop->click();
        QVERIFY(form.Unloaded());
        QCOMPARE(bord.Rij(0), u"07|dier|aap|-"_s);
        verwacht.Nummer({2, 6}, 9);
        verwacht.Letters({3, 6}, u"A A P"_s);
        QCOMPARE(Verschil(bord.Pic(), verwacht.Beeld), QString());
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void whatIsChosenDuringTheEffectCounts()
    {
        Filippinebord bord;
        VerwachtBord verwacht(bord);
        bord.Wijs(2, 6);
        FilippineForm form;
        VulIn(form, {{2, 6}, u"aap"_s});
        KijkKlok klok([&] {
            form.Option[1]->setChecked(true);
            bord.Wijs(4, 2);
        });
        form.OkKnop->click();
        QVERIFY(form.Unloaded());
        verwacht.Letters({4, 2}, u"A A P"_s, true);
        QCOMPARE(Verschil(bord.Pic(), verwacht.Beeld), QString());
        QCOMPARE(bord.Rij(0), QString());
    }

    void aWindowThatIsClosedDuringTheEffectPlacesNothing()
    {
        Filippinebord bord;
        bord.Wijs(2, 6);
        const Stand ervoor = EditorStand(bord);
        FilippineForm form;
        VulIn(form, {{2, 6}, u"aap"_s});
        form.show();
        KijkKlok klok([&] { form.close(); });
        form.OkKnop->click();
        QVERIFY(form.Unloaded());
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), QString());
    }

    void whatIsMissingIsSaid_data()
    {
        QTest::addColumn<QString>("omschrijving");
        QTest::addColumn<QString>("oplossing");
        QTest::addColumn<bool>("zoekwoord");
        Geval("no clue", QString(), u"aap"_s, false);
        Geval("no clue to an answer with a long letter", QString(), u"wijn?"_s, false);
        Geval("no answer", u"dier"_s, QString(), false);
        Geval("neither", QString(), QString(), false);
        Geval("no search word", QString(), QString(), true);
    }
    void whatIsMissingIsSaid()
    {
        QFETCH(QString, omschrijving);
        QFETCH(QString, oplossing);
        QFETCH(bool, zoekwoord);
        Filippinebord bord;
        bord.Wijs(2, 6);
        bord.Venster.Pic->ZetLetter({.Punten = 7.0, .Kleur = Wit});
        bord.InBewerking();
        const Stand ervoor = EditorStand(bord);
        FilippineForm form;
        VulIn(form, {.Cel = {2, 6}, .Oplossing = oplossing, .Omschrijving = omschrijving, .Zoekwoord = zoekwoord});
        form.Text2->setFocus();
        Klik(bord, *form.OkKnop);
        QCOMPARE(form.focusWidget(), form.Text2); // it stays where it was
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        const Bericht &bericht = bord.Bank.Script.Gezien[0];
        QCOMPARE(bericht.Tekst, u"Omschrijving en/of Oplossing intypen..."_s);
        QCOMPARE(bericht.Titel, u"Error"_s);
        QCOMPARE(bericht.Soort, Knoppen::Ok);
        QCOMPARE(bericht.Plaatje, Icoon::Geen);
        QVERIFY(!form.Unloaded());
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), QString());
        QCOMPARE(form.Text1->text(), zoekwoord ? u"n.v.t."_s : omschrijving);
        QCOMPARE(form.Text2->text(), oplossing);
    }

    void cancelChangesNothing()
    {
        Filippinebord bord;
        bord.InBewerking();
        bord.Wijs(2, 6);
        const Stand ervoor = EditorStand(bord);
        FilippineForm form;
        VulIn(form, {{2, 6}, u"aap"_s});
        Klik(bord, *form.CancelKnop, [&] { QVERIFY(!form.Unloaded()); });
        QVERIFY(form.Unloaded());
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), QString());
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void theFrameRoundTheCellGoesHoweverItEnds_data()
    {
        QTest::addColumn<QString>("hoe");
        for (const char *hoe : {"ok", "cancel", "escape", "close box"})
            Geval(hoe, QString::fromLatin1(hoe));
    }
    void theFrameRoundTheCellGoesHoweverItEnds()
    {
        QFETCH(QString, hoe);
        Filippinebord bord;
        bord.Venster.show();
        bord.Klik(Qt::LeftButton, 2, 6);
        QVERIFY(bord.Venster.Shape1->isVisible());
        {
            FilippineForm form;
            VulIn(form, {{2, 6}, u"aap"_s});
            form.show();
            QVERIFY(bord.Venster.Shape1->isVisible());
            if (hoe == "ok"_L1)
                form.OkKnop->click();
            else if (hoe == "cancel"_L1)
                form.CancelKnop->click();
            else if (hoe == "escape"_L1)
                QTest::keyClick(&form, Qt::Key_Escape);
            else
                form.close();
            QVERIFY(form.Unloaded());
        }
        QVERIFY(bord.Venster.Shape1->isHidden());
    }

    void addingARowIsNothingMore()
    {
        Filippinebord bord;
        bord.Wijs(2, 6);
        const Stand ervoor = EditorStand(bord);
        FilippineForm form;
        form.VoegFilippineRegelToe(u"Dier"_s, u"Aap?"_s);
        form.VoegFilippineRegelToe(QString(), u"noot"_s);
        QCOMPARE(bord.Venster.Rijen(),
                 (QList{Rij{u"07"_s, u"Dier"_s, u"Aap?"_s, u"-"_s}, Rij{u"07"_s, QString(), u"noot"_s, u"-"_s}}));
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), u"ListView1"_s);
        QVERIFY(!form.Unloaded());
    }

    // The pointer was never on the board: its label still has no row, and the row tells what the label tells.
    void aRowHasTheTextOfTheLabel()
    {
        Filippinebord bord;
        FilippineForm form;
        VulIn(form, {{0, 0}, u"aap"_s, u"dier"_s});
        form.OkKnop_Click();
        QCOMPARE(bord.Rij(0), u"Coordinaten|dier|aap|-"_s);
    }

    void aRowOfItShowsNoLine()
    {
        Filippinebord bord;
        Plaats(bord, {{2, 6}, u"aap"_s});
        bord.Venster.ListView1->setCurrentItem(bord.Venster.ListView1->topLevelItem(0));
        const Stand ervoor = bord.Nu();
        bord.Venster.ListView1_ItemClick();
        QCOMPARE(bord.Veranderd(ervoor), QString());
        QVERIFY(bord.Venster.Line1->isHidden());
    }

    void aSecondPressDuringTheEffectPlacesItOnce()
    {
        Filippinebord bord;
        bord.Wijs(2, 6);
        FilippineForm form;
        VulIn(form, {{2, 6}, u"aap"_s});
        form.show();
        QMetaObject::invokeMethod(form.OkKnop, &QAbstractButton::click, Qt::QueuedConnection);
        form.OkKnop->click(); // the queued press comes while this one waits
        QCOMPARE(bord.Venster.ListView1->topLevelItemCount(), 1);
        QVERIFY(form.Unloaded());
    }

    void theBlankPuzzleKeepsTheNumbersAndTheEmptyCells()
    {
        Filippinebord bord;
        VerwachtBord blanco(bord);
        blanco.Beeld = Doek(481, 571, Wit); // without the lines of the raster
        Plaats(bord, {{1, 0}, u"winter"_s});
        Plaats(bord, {{3, 1}, u"ijsbeer"_s});
        Plaats(bord, {.Cel = {5, 0}, .Oplossing = u"ne"_s, .Zoekwoord = true});
        VerwijderRaster(*bord.Venster.Pic);
        VerwijderLetters(*bord.Venster.Pic);
        blanco.Nummer({1, 0}, 1);
        blanco.Nummer({3, 1}, 2); // whose edges the cells beside it cover
        blanco.Letters({2, 0}, u"_ _ _ _ _ _"_s);
        blanco.Letters({4, 1}, u"_ _ _ _ _ _"_s);
        blanco.Letters({5, 0}, u"_ _"_s, true);
        QCOMPARE(Verschil(bord.Pic(), blanco.Beeld), QString());
        QCOMPARE(bord.Venster.ListView1->topLevelItemCount(), 2);
        QVERIFY(!PuzzelGewijzigd);
    }
};

RASTER_TEST(tst_FilippineForm)
#include "tst_FilippineForm.moc"

#include "editors/EditorStand.h"
#include "editors/VakForm.h"

using namespace Qt::StringLiterals;

static const QRgb Grijs = qRgb(80, 80, 80);
static const QRgb Zwart = qRgb(0, 0, 0);

/// A word as it is filled in.
struct Woord
{
    int Kolom, Rij;
    int Richting; // of the options, from 0
    QString Oplossing;
    QString Omschrijving = u"omschrijving"_s;
    QString Nummer = u"1"_s;
    bool Omgekeerd = false;
};

static void VulIn(TekstForm &form, const Woord &woord)
{
    form.Option[woord.Richting]->setChecked(true);
    form.Text1->setText(woord.Omschrijving);
    form.Text2->setText(woord.Oplossing);
    form.Combo1->setEditText(woord.Nummer);
    form.Check1->setChecked(woord.Omgekeerd);
}

/// Opens the editor on the word's cell, fills it in and presses Ok.
static void Plaats(Bord &bord, const Woord &woord)
{
    bord.Wijs(woord.Kolom, woord.Rij);
    TekstForm form;
    VulIn(form, woord);
    form.OkKnop_Click();
    QVERIFY(form.Unloaded());
    QVERIFY(bord.Bank.Script.Gezien.isEmpty());
}

/// Both boards as they have to be.
struct Borden
{
    explicit Borden(const Bord &bord)
        : Pic(bord.Pic()), Groot(bord.Groot()), Naam(bord.Venster.Pic->FontName),
          NaamGroot(bord.Venster.PicGroot->FontName)
    {
    }
    /// A letter of a word. @param verschuiving twips
    void Letter(QPoint cel, const QString &letter, int verschuiving = 0)
    {
        Pic.Druk(letter, QPoint(qRound((cel.x() * 450 + 165 + verschuiving) / 15.0), cel.y() * 30 + 7),
                 Lettertype(Naam, 12, true), Grijs);
    }
    void GroteLetter(QPoint cel, const QString &letter)
    {
        Groot.Druk(letter, QPoint(cel.x() * 120 + 40, cel.y() * 120 + 24), Lettertype(NaamGroot, 48, true), Grijs);
    }
    void Nummer(QPoint cel, const QString &nummer, bool vet = true, bool vetGroot = true)
    {
        Pic.Druk(nummer, cel * 30 + QPoint(3, 1), Lettertype(Naam, 6, vet), Zwart);
        Groot.Druk(nummer, cel * 120 + QPoint(10, 4), Lettertype(NaamGroot, 20, vetGroot), Zwart);
    }
    void Vergelijk(const Bord &bord) const
    {
        QCOMPARE(Verschil(bord.Pic(), Pic.Beeld), QString());
        QCOMPARE(Verschil(bord.Groot(), Groot.Beeld), QString());
    }

    Verwacht Pic, Groot;
    QString Naam, NaamGroot;
};

class tst_TekstFormOk : public QObject
{
    Q_OBJECT
private slots:
    void wijnTakesThreeCells()
    {
        Bord bord;
        Borden verwacht(bord);
        Plaats(bord, {2, 3, 0, u"Wijn"_s, u" Drank van Druiven? "_s});
        verwacht.Letter({2, 3}, u"W"_s, -45);
        verwacht.Letter({3, 3}, u"IJ"_s); // not moved as an I is: it is still one sign at that moment
        verwacht.Letter({4, 3}, u"N"_s);
        verwacht.Vergelijk(bord); // nothing on the large board
        QCOMPARE(bord.Rij(0), u"C-04 / 51-H| Drank van Druiven? |wijn|-"_s);
        QCOMPARE(LaatsteOplossing, u"wijn"_s);
        QVERIFY(PuzzelGewijzigd);
    }

    void theWordIsNormalised_data()
    {
        QTest::addColumn<QString>("getypt");
        QTest::addColumn<QStringList>("letters");
        QTest::addColumn<QString>("oplossing");
        const auto rij = [](const char *naam, const QString &getypt, const QString &letters, const QString &woord) {
            Geval(naam, getypt, letters.split(u' '), woord);
        };
        rij("capitals", u"IJsBEER"_s, u"IJ S B E E R"_s, u"ijsbeer"_s);
        rij("blanks", u"  de zee "_s, u"D E Z E E"_s, u"dezee"_s);
        rij("a blank within it", u"l I Jst"_s, u"L IJ S T"_s, u"lijst"_s); // blanks go before the two are joined
        rij("two of them", u"bijrij"_s, u"B IJ R IJ"_s, u"bijrij"_s);
        rij("its sign", u"l?st"_s, u"L IJ S T"_s, u"lijst"_s);
        rij("accents", u"CAFé"_s, u"C A F É"_s, u"café"_s);
        rij("letters without a capital", u"Maßstabµ"_s, u"M A ß S T A B µ"_s, u"maßstabµ"_s);
        rij("letters from outside the code page", u"Łódź"_s, u"Ł Ó D ź"_s, u"Łódź"_s);
        rij("a tab", u"a\tb"_s, u"A \t B"_s, u"a\tb"_s);
        rij("a hard space", u"\u00a0a\u00a0b"_s, u"\u00a0 A \u00a0 B"_s, u"\u00a0a\u00a0b"_s);
        rij("nothing but blanks", u"   "_s, QString(), QString());
    }
    void theWordIsNormalised()
    {
        QFETCH(QString, getypt);
        QFETCH(QStringList, letters);
        QFETCH(QString, oplossing);
        Bord bord;
        Borden verwacht(bord);
        bord.Wijs(1, 2);
        TekstForm form;
        VulIn(form, {1, 2, 0, getypt});
        form.OkKnop_Click();
        for (int i = 0; i < letters.size(); ++i)
            verwacht.Letter({1 + i, 2}, letters[i]);
        verwacht.Vergelijk(bord);
        QCOMPARE(bord.Venster.Rijen(), (QList{Rij{u"B-03 / 34-H"_s, u"omschrijving"_s, oplossing, u"-"_s}}));
        QCOMPARE(LaatsteOplossing, oplossing);
        QCOMPARE(form.Text2->text(), oplossing);
        QCOMPARE(Lettersoort(*bord.Venster.Pic), u"Arial 12 1 ff505050"_s); // without a letter too
        QCOMPARE(Lettersoort(*bord.Venster.PicGroot), u"Arial Narrow 48 1 ff505050"_s);
    }

    void wordsOnAndBeyondTheBoard_data()
    {
        QTest::addColumn<QPoint>("begin");
        QTest::addColumn<int>("richting");
        QTest::addColumn<QList<QPoint>>("cellen"); // of its letters that fall on the board
        const auto rij = [](const char *naam, int richting, const QList<QPoint> &cellen) {
            Geval(naam, cellen[0], richting, cellen);
        };
        rij("H", 0, {{2, 3}, {3, 3}, {4, 3}, {5, 3}, {6, 3}, {7, 3}});
        rij("V", 1, {{2, 3}, {2, 4}, {2, 5}, {2, 6}, {2, 7}, {2, 8}});
        rij("R", 2, {{2, 3}, {3, 4}, {4, 5}, {5, 6}, {6, 7}, {7, 8}});
        rij("L", 3, {{9, 3}, {8, 4}, {7, 5}, {6, 6}, {5, 7}, {4, 8}});
        rij("H beyond the right edge", 0, {{12, 3}, {13, 3}, {14, 3}, {15, 3}});
        rij("H from the last cell", 0, {{15, 18}});
        rij("V beyond the lower edge", 1, {{2, 15}, {2, 16}, {2, 17}, {2, 18}});
        rij("R beyond the right edge", 2, {{13, 3}, {14, 4}, {15, 5}});
        rij("R beyond the lower edge", 2, {{2, 16}, {3, 17}, {4, 18}});
        rij("L beyond the left edge", 3, {{2, 3}, {1, 4}, {0, 5}});
        rij("L from the first column", 3, {{0, 3}});
        rij("L beyond the lower edge", 3, {{9, 16}, {8, 17}, {7, 18}});
    }
    void wordsOnAndBeyondTheBoard()
    {
        QFETCH(QPoint, begin);
        QFETCH(int, richting);
        QFETCH(QList<QPoint>, cellen);
        const QStringList letters{u"K"_s, u"W"_s, u"IJ"_s, u"T"_s, u"I"_s, u"G"_s};
        const QList<int> verschuivingen{0, -45, 0, 0, 60, 0};
        for (const quint8 soort : {Zweeds, Woordzoeker, Kruiswoord}) {
            Bord bord;
            PuzzelType = soort;
            Borden verwacht(bord);
            Plaats(bord, {begin.x(), begin.y(), richting, u"kwijtig"_s});
            if (soort == Kruiswoord)
                verwacht.Nummer(begin, u"1"_s);
            for (int i = 0; i < cellen.size(); ++i) {
                verwacht.Letter(cellen[i], letters[i], verschuivingen[i]);
                if (soort == Woordzoeker)
                    verwacht.GroteLetter(cellen[i], letters[i]); // not moved there
            }
            verwacht.Vergelijk(bord);
            const QChar letter = u"HVRL"_s[richting];
            QCOMPARE(bord.Venster.Rijen(), (QList{Rij{.Vaknummer = bord.Venster.Label6->Caption() + u'-' + letter,
                                                      .Omschrijving = u"omschrijving"_s,
                                                      .Oplossing = u"kwijtig"_s,
                                                      .Nr = soort == Kruiswoord ? u"1"_s : u"-"_s}}));
        }
    }

    void aBoardOfATypedSize()
    {
        for (const quint8 soort : {Woordzoeker, Kruiswoord}) {
            Bord bord;
            bord.Begin(soort, 20, 22);
            Borden verwacht(bord);
            Plaats(bord, {17, 20, 0, u"vier"_s});
            if (soort == Kruiswoord)
                verwacht.Nummer({17, 20}, u"1"_s);
            const QStringList letters{u"V"_s, u"I"_s, u"E"_s};
            for (int i = 0; i < letters.size(); ++i) {
                verwacht.Letter({17 + i, 20}, letters[i], i == 1 ? 60 : 0);
                if (soort == Woordzoeker)
                    verwacht.GroteLetter({17 + i, 20}, letters[i]);
            }
            verwacht.Vergelijk(bord);
        }
    }

    void aWordOf254LettersMayRunOff()
    {
        Bord bord;
        PuzzelType = Woordzoeker;
        Borden verwacht(bord);
        Plaats(bord, {0, 3, 3, QString(254, u'o'), QString()});
        verwacht.Letter({0, 3}, u"O"_s);
        verwacht.GroteLetter({0, 3}, u"O"_s);
        verwacht.Vergelijk(bord);
        QCOMPARE(bord.Rij(0), u"A-04 / 49-L||"_s + QString(254, u'o') + u"|-"_s);
    }

    void blanksAndIjDoNotMakeAWordTooLong()
    {
        Bord bord;
        const QString lang(1000, u'x'); // a clue may be of any length
        Plaats(bord, {15, 3, 0, u"ij "_s.repeated(254), lang});
        QCOMPARE(bord.Rij(0), u"P-04 / 64-H|"_s + lang + u'|' + u"ij"_s.repeated(254) + u"|-"_s);
    }

    void aWordOfMoreThan254LettersFailsBeforeAnythingIsPrinted_data()
    {
        QTest::addColumn<int>("lengte");
        Geval("255", 255);
        Geval("300", 300);
        Geval("30000", 30000);
    }
    void aWordOfMoreThan254LettersFailsBeforeAnythingIsPrinted()
    {
        QFETCH(int, lengte);
        Bord bord;
        PuzzelType = Kruiswoord;
        const Stand ervoor = EditorStand(bord);
        TekstForm form;
        const QString woord = u"ij"_s + QString(lengte - 1, u'a');
        VulIn(form, {0, 0, 0, woord, u"dier"_s, u"7"_s});
        QCOMPARE(FoutVan([&] { form.OkKnop_Click(); }), int(Fout::Overloop));
        QVERIFY(TekstVanFout([&] { form.OkKnop_Click(); }).endsWith(u" (een woord van meer dan 254 letters)"_s));
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), QString());
        QVERIFY(!form.Unloaded());
        QCOMPARE(form.Text1->text(), u"dier"_s);
        QCOMPARE(form.Text2->text(), woord);
        QCOMPARE(form.Combo1->currentText(), u"7"_s);
    }

    void aReversedWordKeepsItsIj()
    {
        Bord bord;
        PuzzelType = Woordzoeker;
        Borden verwacht(bord);
        Plaats(bord, {2, 3, 0, u"Zij"_s, QString(), u"1"_s, true});
        verwacht.Letter({2, 3}, u"IJ"_s);
        verwacht.Letter({3, 3}, u"Z"_s);
        verwacht.GroteLetter({2, 3}, u"IJ"_s);
        verwacht.GroteLetter({3, 3}, u"Z"_s);
        verwacht.Vergelijk(bord);
        QCOMPARE(bord.Rij(0), u"C-04 / 51-H||zij|-"_s); // a word search has no clue
        QCOMPARE(LaatsteOplossing, u"zij"_s);
    }

    void theNumberOfAKruiswoord_data()
    {
        QTest::addColumn<QString>("getypt");
        QTest::addColumn<QString>("nr"); // in the row
        Geval("one digit", u"7"_s, u"7"_s);
        Geval("two digits", u"99"_s, u"99"_s);
        Geval("printed as typed", u"012"_s, u"12"_s);
        Geval("not from the list", u"100"_s, u"100"_s);
        Geval("below the list", u"-3"_s, u"-3"_s);
        Geval("between blanks", u" 7 "_s, u"7"_s);
        Geval("rounded to the even one", u"3.5"_s, u"4"_s);
    }
    void theNumberOfAKruiswoord()
    {
        QFETCH(QString, getypt);
        QFETCH(QString, nr);
        for (const bool vet : {true, false}) {
            Bord bord;
            PuzzelType = Kruiswoord;
            bord.Venster.Pic->FontBold = vet; // the number takes it as it is, on either board
            bord.Venster.PicGroot->FontBold = !vet;
            Borden verwacht(bord);
            Plaats(bord, {2, 3, 1, u"aap"_s, u"dier"_s, getypt});
            verwacht.Nummer({2, 3}, getypt, vet, !vet);
            verwacht.Letter({2, 3}, u"A"_s);
            verwacht.Letter({2, 4}, u"A"_s);
            verwacht.Letter({2, 5}, u"P"_s);
            verwacht.Vergelijk(bord); // no letters on the large board
            QCOMPARE(bord.Rij(0), u"C-04 / 51-V|dier|aap|"_s + nr);
        }
    }

    void whatOkLeavesBehind_data()
    {
        QTest::addColumn<int>("soort");
        Geval("Zweeds", 1);
        Geval("Woordzoeker", 2);
        Geval("Kruiswoord", 3);
    }
    void whatOkLeavesBehind()
    {
        QFETCH(int, soort);
        Bord bord;
        PuzzelType = static_cast<quint8>(soort);
        bord.Venster.Pic->ZetLetter({.Naam = u"Courier New"_s, .Punten = 7.0, .Vet = false, .Kleur = Zwart});
        bord.Venster.PicGroot->ZetLetter({.Naam = u"Arial"_s, .Punten = 7.0, .Vet = false, .Kleur = Zwart});
        bord.InBewerking();
        PuzzelGewijzigd = false;
        bord.Venster.CopyLabel->SetCaption(u"woord"_s);
        bord.Venster.Label11->SetCaption(u"7 Items"_s); // the rows are counted
        bord.Wijs(2, 3);
        LaatsteOplossing.clear();
        const Stand ervoor = EditorStand(bord);
        Borden verwacht(bord);
        Plaats(bord, {2, 3, 0, u"o"_s, u"letter"_s});
        QCOMPARE(Verschil(ervoor, EditorStand(bord)),
                 u"LaatsteOplossing Label11 ListView1 Pic PicGroot PuzzelGewijzigd"_s);
        if (soort == Kruiswoord)
            verwacht.Nummer({2, 3}, u"1"_s, false, false);
        verwacht.Letter({2, 3}, u"O"_s);
        if (soort == Woordzoeker)
            verwacht.GroteLetter({2, 3}, u"O"_s);
        verwacht.Vergelijk(bord); // in the fonts that the boards have
        QCOMPARE(Lettersoort(*bord.Venster.Pic), u"Courier New 12 1 ff505050"_s);
        QCOMPARE(Lettersoort(*bord.Venster.PicGroot), u"Arial 48 1 ff505050"_s);
        QCOMPARE(bord.Venster.Label11->Caption(), u"2 Items"_s);
        QCOMPARE(bord.Rij(0), u"A-01 / 1-H||aap|-"_s);
        QCOMPARE(bord.Venster.ListView1->currentIndex().row(), 0); // it stays the selected one
        QCOMPARE(bord.Rij(1), u"C-04 / 51-H|letter|o|"_s + (soort == Kruiswoord ? u"1"_s : u"-"_s));
        QCOMPARE(LaatsteOplossing, u"o"_s);
        QVERIFY(PuzzelGewijzigd);
    }

    void aWordIsPrintedOnTopOfWhatIsThere()
    {
        Bord bord;
        PuzzelType = Woordzoeker;
        Borden verwacht(bord);
        Plaats(bord, {2, 3, 0, u"oo"_s});
        Plaats(bord, {2, 3, 1, u"xx"_s});
        for (const QPoint cel : {QPoint(2, 3), QPoint(3, 3)}) {
            verwacht.Letter(cel, u"O"_s);
            verwacht.GroteLetter(cel, u"O"_s);
        }
        for (const QPoint cel : {QPoint(2, 3), QPoint(2, 4)}) {
            verwacht.Letter(cel, u"X"_s);
            verwacht.GroteLetter(cel, u"X"_s);
        }
        verwacht.Vergelijk(bord);
        QCOMPARE(bord.Venster.Label11->Caption(), u"2 Items"_s);
    }

    void addingARowIsNothingMore()
    {
        Bord bord;
        bord.Wijs(2, 3);
        TekstForm form;
        bord.Venster.Label6->SetCaption(u"hier"_s); // whatever stands there
        Stand ervoor = EditorStand(bord);
        form.VoegRegelToe(u"V"_s, u"Dier"_s, u"Aap"_s, 12);
        QList<Rij> rijen{{u"hier-V"_s, u"Dier"_s, u"Aap"_s, u"-"_s}};
        QCOMPARE(bord.Venster.Rijen(), rijen);
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), u"ListView1"_s);
        PuzzelType = Kruiswoord;
        ervoor = EditorStand(bord);
        form.VoegRegelToe(u"H"_s, QString(), u"noot"_s, 12);
        rijen += Rij{u"hier-H"_s, QString(), u"noot"_s, u"12"_s};
        QCOMPARE(bord.Venster.Rijen(), rijen);
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), u"ListView1"_s);
        QVERIFY(!form.Unloaded());
    }

    void thePressEffectComesFirst()
    {
        Bord bord;
        PuzzelType = Kruiswoord;
        bord.Wijs(2, 3);
        TekstForm form;
        VulIn(form, {2, 3, 0, u"WIJ"_s});
        Klik(bord, *form.OkKnop, [&] {
            QVERIFY(!form.Unloaded());
            QCOMPARE(form.Text2->text(), u"WIJ"_s);
        });
        QVERIFY(form.Unloaded());
        QCOMPARE(bord.Venster.ListView1->topLevelItemCount(), 1);
    }

    void whatStandsThereAfterThePressIsPlaced()
    {
        Bord bord;
        PuzzelType = Kruiswoord;
        Borden verwacht(bord);
        bord.Wijs(2, 3);
        TekstForm form;
        VulIn(form, {2, 3, 0, u"eerder"_s, u"vroeger"_s, u"1"_s, false});
        Klik(bord, *form.OkKnop, [&] {
            bord.Wijs(4, 6);
            VulIn(form, {4, 6, 1, u"wij"_s, u"later"_s, u"2"_s, true});
        });
        verwacht.Nummer({4, 6}, u"2"_s);
        verwacht.Letter({4, 6}, u"IJ"_s);
        verwacht.Letter({4, 7}, u"W"_s, -45);
        verwacht.Vergelijk(bord);
        QCOMPARE(bord.Rij(0), u"E-07 / 101-V|later|wij|2"_s);
    }

    void whatAKindDoesNotAskForIsNotMissed()
    {
        Bord bord;
        Plaats(bord, {0, 0, 0, u"aap"_s, u"dier"_s, u"0"_s});
        Plaats(bord, {0, 0, 0, u"aap"_s, u"dier"_s, u"een"_s});
        Plaats(bord, {0, 0, 0, u"aap"_s, u" "_s}); // a blank is a clue
        PuzzelType = Woordzoeker;
        Plaats(bord, {0, 0, 0, u"aap"_s, QString(), u"0"_s});
        Plaats(bord, {0, 0, 0, u"aap"_s, QString(), u"een"_s});
        Plaats(bord, {0, 0, 0, u" "_s, QString()}); // and a solution
        QCOMPARE(bord.Venster.Label11->Caption(), u"6 Items"_s);
    }

    void anInformationCellLeavesItsFontOnTheLargeBoard()
    {
        Bord bord;
        bord.Venster.PicGroot->FontName = u"Arial"_s;
        {
            VakForm vak;
            vak.OkKnop_Click();
        }
        PuzzelType = Woordzoeker;
        Borden verwacht(bord);
        QCOMPARE(verwacht.NaamGroot, u"Arial Narrow"_s);
        Plaats(bord, {5, 5, 0, u"w"_s});
        verwacht.Letter({5, 5}, u"W"_s, -45);
        verwacht.GroteLetter({5, 5}, u"W"_s);
        verwacht.Vergelijk(bord);
    }

    void aSecondPressDuringTheEffectPlacesTheWordOnce()
    {
        Bord bord;
        bord.Wijs(2, 3);
        TekstForm form;
        VulIn(form, {2, 3, 0, u"aap"_s});
        form.show();
        QMetaObject::invokeMethod(form.OkKnop, &QAbstractButton::click, Qt::QueuedConnection);
        form.OkKnop->click(); // the queued press comes while this one waits
        QCOMPARE(bord.Venster.ListView1->topLevelItemCount(), 1);
        QVERIFY(form.Unloaded());
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }
};

RASTER_TEST(tst_TekstFormOk)
#include "tst_TekstFormOk.moc"

#include "print/Proefdruk.h"
#include "support/Testbank.h"

using namespace Qt::StringLiterals;

static QList<Rij> Rijen(int aantal)
{
    QList<Rij> rijen;
    for (int i = 1; i <= aantal; ++i)
        rijen += Rij{u"A-%1 / %1-H"_s.arg(i), u"dier %1"_s.arg(i), u"Aap%1"_s.arg(i), u"-"_s};
    return rijen;
}

// --- what a page of the Zweeds list has ---

static QString Lijsttekst(int x, int y, bool vet, const QString &tekst)
{
    return Drukrol::Tekst(x, y, 10, vet, RGB(90, 90, 90), tekst);
}

static QStringList LijstKop()
{
    return {Lijsttekst(600, 900, true, u"Vaknummer"_s), Lijsttekst(2400, 900, true, u"Omschrijving"_s),
            Lijsttekst(5700, 900, true, u"Oplossing"_s), Lijsttekst(300, 1140, true, QString(162, u'-'))};
}

/// The row in the k-th place of a page.
static QStringList LijstRij(int k, const Rij &rij)
{
    const int y = 1380 + 255 * k;
    return {Lijsttekst(600, y, false, rij.Vaknummer), Lijsttekst(2400, y, false, rij.Omschrijving),
            Lijsttekst(5700, y, false, rij.Oplossing)};
}

static QStringList ZweedsBegin()
{
    return QStringList{Naamregel(), Drukrol::Beeld("Pic", 600, 900, 9 * 600, 10 * 600), Voet(),
                       u"blad"_s,   Drukrol::Beeld("PicGroot", 600, 600, 10200, 14400), Voet(),
                       u"blad"_s} +
           LijstKop();
}

/// A page change in the list.
static QStringList Omslag()
{
    return QStringList{Voet(), u"blad"_s} + LijstKop();
}

static const QStringList Slot{Voet(), u"einde"_s};

static QString Klein(int x, int y, double punten, const QString &tekst, bool vet = true)
{
    return Drukrol::Tekst(x, y, punten, vet, RGB(50, 50, 50), tekst);
}

class tst_PrintTaken : public QObject
{
    Q_OBJECT
private slots:
    void theKinds_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("titel");
        QTest::addColumn<QString>("sjabloon");
        Geval("Zweeds", 1, "Zweedse puzzel afdrukken op meerdere pagina's", "sjabloon1");
        Geval("Woordzoeker", 2, "Woordzoeker afdrukken", "sjabloon2");
        Geval("Kruiswoord", 3, "Kruiswoordpuzzel afdrukken op 2 pagina's", "sjabloon3");
        Geval("Sudoku", 4, "Sudoku Puzzel afdrukken", "sjabloon4");
        Geval("Filippine", 5, "Filippine Puzzel afdrukken", "sjabloon5");
    }
    void theKinds()
    {
        QFETCH(int, type);
        QFETCH(QString, titel);
        QFETCH(QString, sjabloon);
        static void (*const Taken[])(PagedCanvas &, const Drukwerk &) = {PrintZweeds, PrintWoordzoeker, PrintKruiswoord,
                                                                         PrintSudoku, PrintFilippine};
        const PrintTaak *taak = PrintTaakVan(static_cast<quint8>(type));
        QVERIFY(taak);
        QCOMPARE(taak->Titel, titel);
        QCOMPARE(taak->Sjabloon, sjabloon);
        QVERIFY(taak->Druk == Taken[type - 1]);
    }

    void aKindThatThereIsntHasNoJob()
    {
        for (const int type : {0, 6, 255})
            QVERIFY(!PrintTaakVan(static_cast<quint8>(type)));
    }

    void theHeadTellsTheTimeWhenAsked()
    {
        Drukwerk werk = Proef();
        werk.MetTijd = true;
        const QStringList met = Gedaan(PrintSudoku, werk);
        QCOMPARE(met[0], Naamregel());
        QCOMPARE(met[1], Drukrol::Tekst(9000, 300, 12, true, RGB(90, 0, 0), u"09:05:03 / 07-03-2026"_s));
        QStringList zonder = met;
        zonder.removeAt(1);
        QCOMPARE(Gedaan(PrintSudoku, Proef()), zonder);
    }

    void theHeadBeginsInTwipsAndNamesTheDocument()
    {
        Drukrol rol;
        rol.Scale(0, 0, 5, 5);
        rol.FontName = u"Courier New"_s;
        PrintSudoku(rol, Proef());
        QCOMPARE(rol.Gedaan[0], Naamregel());
        QCOMPARE(rol.Titel, u"Reis"_s);
    }

    void nameAndFootAsTheyAre_data()
    {
        QTest::addColumn<QString>("naam");
        QTest::addColumn<QString>("voet");
        Geval("empty", "", "");
        Geval("blanks round them", "  Reis ", " www.voorbeeld.nl  ");
        Geval("a thousand characters", QString(1000, u'n'), QString(1000, u'w'));
    }
    void nameAndFootAsTheyAre()
    {
        QFETCH(QString, naam);
        QFETCH(QString, voet);
        Drukwerk werk = Proef();
        werk.PuzzelNaam = naam;
        werk.PaginaTekst = voet;
        QCOMPARE(Gedaan(PrintSudoku, werk),
                 (QStringList{Naamregel(naam), Drukrol::Beeld("Pic", 600, 900, 6750, 7500), Voet(voet), u"einde"_s}));
    }

    void zweedsWithAnEmptyListHasThreePages() { QCOMPARE(Gedaan(PrintZweeds, Proef()), ZweedsBegin() + Slot); }

    void zweedsWithItsList_data()
    {
        QTest::addColumn<int>("rijen");
        for (const int rijen : {1, 53, 54, 55, 108, 5000})
            Geval(QByteArray::number(rijen), rijen);
    }
    void zweedsWithItsList()
    {
        QFETCH(int, rijen);
        const Drukwerk werk = Proef(Rijen(rijen));
        QStringList hoort = ZweedsBegin();
        for (int i = 0; i < rijen; ++i) {
            hoort += LijstRij(i % 54, werk.Rijen[i]);
            if (i % 54 == 53)
                hoort += Omslag();
        }
        const QStringList is = Gedaan(PrintZweeds, werk);
        QCOMPARE(is, hoort + Slot);
        QCOMPARE(is.count(u"blad"_s), 2 + rijen / 54); // 54 rows have a fourth page, with the head and the foot alone
    }

    void aLongClueRunsOn()
    {
        const Drukwerk werk = Proef({{u"A-01 / 1-H"_s, QString(10000, u'o'), u"aap"_s, u"-"_s}});
        QCOMPARE(Gedaan(PrintZweeds, werk), ZweedsBegin() + LijstRij(0, werk.Rijen[0]) + Slot);
    }

    void zweedsListsEveryRowAsItStandsThere()
    {
        const Drukwerk werk = Proef({{u"-"_s, u""_s, u"Auto"_s, u"-"_s},
                                     {u"B-02 / 18-R"_s, u"IJsje één ß"_s, u""_s, u"-"_s},
                                     {},
                                     {u"C-02 / 19-H"_s, u"-"_s, u"ijs"_s, u"-"_s},
                                     {u" A-01 "_s, u"  wat? "_s, u" r?k  "_s, u"-"_s},
                                     {u" A-01 "_s, u"  wat? "_s, u" r?k  "_s, u"-"_s}});
        QStringList hoort = ZweedsBegin();
        for (int i = 0; i < 6; ++i)
            hoort += LijstRij(i, werk.Rijen[i]);
        QCOMPARE(Gedaan(PrintZweeds, werk), hoort + Slot);
    }

    void woordzoekerWithAnEmptyList()
    {
        QCOMPARE(Gedaan(PrintWoordzoeker, Proef()),
                 QStringList({Naamregel(), Drukrol::Beeld("Pic", 600, 900, 5400, 6000)}) + Slot);
    }

    void woordzoekerInColumns()
    {
        const Drukwerk werk = Proef(Rijen(300));
        QStringList hoort{Naamregel(), Drukrol::Beeld("Pic", 600, 900, 5400, 6000)};
        for (int i = 0; i < 300; ++i) // from 7500 to 15420, and beyond the right edge
            hoort += Klein(600 + 2400 * (i / 34), 7500 + 240 * (i % 34), 9, u"AAP%1"_s.arg(i + 1));
        QCOMPARE(Gedaan(PrintWoordzoeker, werk), hoort + Slot);
    }

    void woordzoekerWhoseColumnEndsOnTheEdge()
    {
        Drukwerk werk = Proef(Rijen(3)); // a word at 15450 ends no column, one that would come behind it does
        werk.BoardHeight = 19;
        werk.BoardWidth = 16;
        QCOMPARE(Gedaan(PrintWoordzoeker, werk).mid(2, 3),
                 (QStringList{Klein(600, 12900, 9, u"AAP1"_s), Klein(600, 13140, 9, u"AAP2"_s),
                              Klein(600, 13380, 9, u"AAP3"_s)}));
        werk.Rijen = Rijen(60);
        werk.BoardHeight = 23; // 15300: the next one is at 15540
        QCOMPARE(Gedaan(PrintWoordzoeker, werk).at(3), Klein(3000, 15300, 9, u"AAP2"_s));
        werk.BoardHeight = 24; // each word fills a column
        QCOMPARE(Gedaan(PrintWoordzoeker, werk).mid(2, 2),
                 (QStringList{Klein(600, 15900, 9, u"AAP1"_s), Klein(3000, 15900, 9, u"AAP2"_s)}));
    }

    void woordzoekerTakesCapitalsWithinTheCodePage()
    {
        const Drukwerk werk = Proef({{u"-"_s, u"-"_s, u"ijsbeer één ß"_s, u"-"_s}});
        QCOMPARE(Gedaan(PrintWoordzoeker, werk).at(2), Klein(600, 7500, 9, u"IJSBEER ÉÉN ß"_s));
    }

    void woordzoekerGivesEveryWordItsLine()
    {
        QList<Rij> rijen;
        for (const QString &woord : {u""_s, u" aap "_s, u"wat?"_s, u"wat?"_s, QString(300, u'o')})
            rijen += Rij{u"-"_s, u"-"_s, woord, u"-"_s};
        QCOMPARE(Gedaan(PrintWoordzoeker, Proef(rijen)).mid(2),
                 QStringList({Klein(600, 7500, 9, QString()), Klein(600, 7740, 9, u" AAP "_s),
                              Klein(600, 7980, 9, u"WAT?"_s), Klein(600, 8220, 9, u"WAT?"_s),
                              Klein(600, 8460, 9, QString(300, u'O'))}) +
                     Slot);
    }

    void kruiswoordHasTwoPagesAndItsHeadings()
    {
        QCOMPARE(Gedaan(PrintKruiswoord, Proef()),
                 (QStringList{Naamregel(), Drukrol::Beeld("PicGroot", 600, 900, 5400, 6000), Voet(), u"blad"_s,
                              Drukrol::Tekst(600, 600, 9, true, RGB(0, 0, 0), u"Horizontaal"_s),
                              Drukrol::Tekst(4200, 600, 9, true, RGB(0, 0, 0), u"Vertikaal"_s)} +
                  Slot));
    }

    void kruiswoordByDirection()
    {
        const Drukwerk werk = Proef({{u"A-01 / 1-H"_s, u"HUIS Dier"_s, u"hond"_s, u"1"_s},
                                     {u"A-01 / 1-V"_s, u"Vloeibaar ÉN nat"_s, u"water"_s, u"1"_s},
                                     {u"A-09 / 12-H"_s, u"Boom"_s, u"eik"_s, u"9"_s},
                                     {u"B-02 / 12-V"_s, u"Vogel"_s, u"mees"_s, u"10"_s},
                                     {u"C-02 / 12-V"_s, u""_s, u"mees"_s, u"99"_s},
                                     {u"C-03 / 12-H"_s, u"Stad"_s, u"ede"_s, u"100"_s},
                                     {u"C-04 / 12-H"_s, u" Wie? "_s, u"-"_s, u"3"_s},
                                     {u"C-04 / 12-H"_s, u" Wie? "_s, u"-"_s, u"3"_s},
                                     {u"C-04 / 12-V"_s, u"-"_s, u"ik"_s, u"3"_s},
                                     {u"H-04 / 8-V"_s, QString(300, u'O'), u"ik"_s, u"4"_s}});
        QCOMPARE(
            Gedaan(PrintKruiswoord, werk).mid(6),
            (QStringList{Klein(690, 900, 8, u"1. huis dier"_s, false),
                         Klein(4290, 900, 8, u"1. vloeibaar én nat"_s, false), Klein(690, 1110, 8, u"9. boom"_s, false),
                         Klein(4200, 1110, 8, u"10. vogel"_s, false), Klein(4200, 1320, 8, u"99. "_s, false),
                         Klein(600, 1320, 8, u"100. stad"_s, false), Klein(690, 1530, 8, u"3.  wie? "_s, false),
                         Klein(690, 1740, 8, u"3.  wie? "_s, false), Klein(4290, 1530, 8, u"3. -"_s, false),
                         Klein(4290, 1740, 8, u"4. "_s + QString(300, u'o'), false)} +
             Slot));
    }

    void kruiswoordNumbers_data()
    {
        QTest::addColumn<QString>("nr");
        QTest::addColumn<QString>("gedrukt");
        QTest::addColumn<int>("x");
        Geval("none", "-", "7. b", 690);
        Geval("empty", "", "7. b", 690);
        Geval("half a number", "12a", "7. b", 690);
        Geval("too large", "99999999999", "7. b", 690);
        Geval("above a byte", "256", "256. b", 600);
        Geval("the largest", "2147483647", "2147483647. b", 600);
        Geval("one above it", "2147483648", "7. b", 690);
        Geval("blanks round it", " 12 ", "12. b", 600);
        Geval("below nothing", "-3", "-3. b", 690);
        Geval("a half, to the even one", "2.5", "2. b", 690);
    }
    void kruiswoordNumbers()
    {
        QFETCH(QString, nr);
        QFETCH(QString, gedrukt);
        QFETCH(int, x);
        const Drukwerk werk = Proef({{u"A-01 / 1-H"_s, u"a"_s, u"a"_s, u"7"_s}, {u"A-01 / 1-H"_s, u"b"_s, u"b"_s, nr}});
        QCOMPARE(Gedaan(PrintKruiswoord, werk).at(7), Klein(x, 1110, 8, gedrukt, false));
    }

    void kruiswoordBeforeTheFirstNumber()
    {
        const Drukwerk werk = Proef({{u"A-01 / 1-V"_s, u"a"_s, u"a"_s, u"-"_s}});
        QCOMPARE(Gedaan(PrintKruiswoord, werk).at(6), Klein(4290, 900, 8, u"0. a"_s, false));
    }

    void kruiswoordRowsWithoutADirection()
    {
        // Their numbers count all the same.
        const Drukwerk werk = Proef({{u"-"_s, u"a"_s, u"a"_s, u"11"_s},
                                     {u""_s, u"b"_s, u"b"_s, u"12"_s},
                                     {u"A-01 / 1-h"_s, u"c"_s, u"c"_s, u"13"_s},
                                     {u"A-01 / 1-R"_s, u"d"_s, u"d"_s, u"14"_s},
                                     {u"A-01 / 1-H "_s, u"e"_s, u"e"_s, u"15"_s},
                                     {u"V"_s, u"f"_s, u"f"_s, u"-"_s}});
        QCOMPARE(Gedaan(PrintKruiswoord, werk).mid(6), QStringList({Klein(4200, 900, 8, u"15. f"_s, false)}) + Slot);
    }

    void kruiswoordWithALongListRunsOffTheSheet()
    {
        QList<Rij> rijen;
        for (int i = 1; i <= 5000; ++i)
            rijen += Rij{u"A-01 / 1-V"_s, u"b"_s, u"b"_s, QString::number(i)};
        const QStringList is = Gedaan(PrintKruiswoord, Proef(rijen));
        QCOMPARE(is.count(u"blad"_s), 1);
        QCOMPARE(is.at(6 + 4999), Klein(4200, 900 + 210 * 4999, 8, u"5000. b"_s, false));
    }

    void sudoku()
    {
        Drukwerk werk = Proef({{u"-"_s, u"-"_s, u"aap"_s, u"-"_s}}); // rows are not printed
        werk.BoardHeight = 9;
        const QStringList hoort{Naamregel(), Drukrol::Beeld("Pic", 600, 900, 6750, 6750)};
        QCOMPARE(Gedaan(PrintSudoku, werk), hoort + Slot);
        werk.Oplossing = true;
        QCOMPARE(Gedaan(PrintSudoku, werk),
                 hoort + QStringList{Drukrol::Beeld("PicGroot", 600, 8400, 6750, 6750)} + Slot);
        werk.BoardHeight = 16; // the solution stays in its place, over the end of a board that is too high
        QCOMPARE(Gedaan(PrintSudoku, werk).mid(1, 2),
                 (QStringList{Drukrol::Beeld("Pic", 600, 900, 6750, 12000),
                              Drukrol::Beeld("PicGroot", 600, 8400, 6750, 12000)}));
    }

    void theSolutionIsForASudokuAlone()
    {
        for (auto *druk : {PrintZweeds, PrintWoordzoeker, PrintKruiswoord, PrintFilippine}) {
            Drukwerk werk = Proef(Rijen(3));
            const QStringList zonder = Gedaan(druk, werk);
            werk.Oplossing = true;
            QCOMPARE(Gedaan(druk, werk), zonder);
        }
    }

    void filippine()
    {
        QList<Rij> rijen;
        for (int i = 1; i <= 60; ++i)
            rijen += Rij{u"%1-H"_s.arg(i + 2), u"dier %1"_s.arg(i), u"aap"_s, u"-"_s};
        QStringList hoort{Naamregel(), Drukrol::Beeld("Pic", 600, 900, 4050, 4500)};
        for (int i = 0; i < 60; ++i) { // it goes by the row, not by the number; and beyond the foot
            hoort += Klein(i < 9 ? 705 : 600, 5850 + 240 * i, 9, u"%1."_s.arg(i + 3));
            hoort += Klein(990, 5850 + 240 * i, 9, u"DIER %1"_s.arg(i + 1));
        }
        QCOMPARE(Gedaan(PrintFilippine, Proef(rijen)), hoort + Slot);
        QCOMPARE(Gedaan(PrintFilippine, Proef()), hoort.first(2) + Slot);
        Drukwerk hoger = Proef(rijen);
        hoger.BoardHeight = 12; // not as the picture is
        QCOMPARE(Gedaan(PrintFilippine, hoger).at(2), Klein(705, 6750, 9, u"3."_s));
    }

    void filippineNumbers_data()
    {
        QTest::addColumn<QString>("vaknummer");
        QTest::addColumn<QString>("gedrukt");
        Geval("none", "-", "0.");
        Geval("empty", "", "0.");
        Geval("of a row below ten", "07", "7.");
        Geval("with its direction", "12-H", "12.");
        Geval("above a byte", "300", "300.");
        Geval("large", "123456789012", "123456789012.");
        Geval("a fraction", "2.5", "2.5.");
        Geval("a fraction that bits don't have", "0.1", "0.1.");
    }
    void filippineNumbers()
    {
        QFETCH(QString, vaknummer);
        QFETCH(QString, gedrukt);
        const Drukwerk werk = Proef({{vaknummer, u"a"_s, u"a"_s, u"-"_s}});
        QCOMPARE(Gedaan(PrintFilippine, werk).at(2), Klein(705, 5850, 9, gedrukt));
    }

    void filippineTakesCapitalsWithinTheCodePage()
    {
        const Drukwerk werk = Proef({{u"01"_s, u"ijsbeer één ß"_s, u"a"_s, u"-"_s}});
        QCOMPARE(Gedaan(PrintFilippine, werk).at(3), Klein(990, 5850, 9, u"IJSBEER ÉÉN ß"_s));
    }

    void filippineGivesEveryRowItsLine()
    {
        QList<Rij> rijen;
        for (const QString &omschrijving : {u""_s, u"-"_s, u" wie? "_s, u" wie? "_s, QString(300, u'o')})
            rijen += Rij{u"07"_s, omschrijving, u"a"_s, u"-"_s};
        QStringList hoort;
        for (int i = 0; i < 5; ++i)
            hoort += {Klein(705, 5850 + 240 * i, 9, u"7."_s),
                      Klein(990, 5850 + 240 * i, 9, rijen[i].Omschrijving.toUpper())};
        QCOMPARE(Gedaan(PrintFilippine, Proef(rijen)).mid(2), hoort + Slot);
    }

    void boardsOfAnySize_data()
    {
        QTest::addColumn<int>("maat");
        for (const int maat : {0, 1, 16, 40})
            Geval(QByteArray::number(maat), maat);
    }
    void boardsOfAnySize()
    {
        QFETCH(int, maat);
        Drukwerk werk = Proef(Rijen(60));
        werk.BoardWidth = werk.BoardHeight = maat;
        werk.Oplossing = true;
        if (maat == 0)
            werk.Pic = werk.PicGroot = QImage();
        const struct
        {
            void (*druk)(PagedCanvas &, const Drukwerk &);
            int schaal;
        } taken[] = {{PrintZweeds, 600},
                     {PrintWoordzoeker, 600},
                     {PrintKruiswoord, 600},
                     {PrintSudoku, 750},
                     {PrintFilippine, 450}};
        for (const auto &taak : taken) {
            const QStringList is = Gedaan(taak.druk, werk);
            const QString plaats = u" 600,900 %1x%1"_s.arg(maat * taak.schaal);
            QVERIFY2(is[1].endsWith(plaats), qPrintable(is[1]));
            QCOMPARE(is.last(2), Slot);
            QCOMPARE(is.contains(Drukrol::Beeld("PicGroot", 600, 600, 10200, 14400)), taak.druk == PrintZweeds);
        }
    }

    void whatFailsBehindTheHeadIsPassedOver_data()
    {
        QTest::addColumn<int>("type");
        for (int type = 1; type <= 5; ++type)
            Geval(QByteArray::number(type), type);
    }
    void whatFailsBehindTheHeadIsPassedOver()
    {
        QFETCH(int, type);
        const PrintTaak *taak = PrintTaakVan(static_cast<quint8>(type));
        Drukwerk werk = Proef(Rijen(3));
        werk.MetTijd = werk.Oplossing = true;
        const QStringList alles = Gedaan(taak->Druk, werk);
        for (int mis = 2; mis < alles.size(); ++mis) {
            QStringList hoort = alles;
            hoort.removeAt(mis);
            QCOMPARE(Gedaan(taak->Druk, werk,
                            [&](int nummer) {
                                if (nummer == mis)
                                    throw Fout(Fout::SchijfFout);
                            }),
                     hoort);
        }
        QCOMPARE(Gedaan(taak->Druk, werk,
                        [](int nummer) {
                            if (nummer > 1)
                                throw std::bad_alloc();
                        }),
                 alles.first(2));
        for (const int mis : {0, 1})
            QCOMPARE(FoutVan([&] {
                         Gedaan(taak->Druk, werk, [&](int nummer) {
                             if (nummer == mis)
                                 throw Fout(Fout::SchijfFout);
                         });
                     }),
                     int{Fout::SchijfFout});
    }
};

QTEST_MAIN(tst_PrintTaken)
#include "tst_PrintTaken.moc"

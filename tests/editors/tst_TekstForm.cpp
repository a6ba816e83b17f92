#include "editors/TekstForm.h"
#include "editors/VakForm.h"
#include "support/Bord.h"

using namespace Qt::StringLiterals;

static const QRgb Grijs = qRgb(80, 80, 80);

class tst_TekstForm : public QObject
{
    Q_OBJECT

    /// Opens the editor on a cell, fills it in and presses Ok.
    static void Plaats(Bord &bord, int kolom, int rij, int richting, const QString &woord,
                       const QString &omschrijving = u"omschrijving"_s, bool omgekeerd = false)
    {
        bord.Wijs(kolom, rij);
        TekstForm form;
        form.Option[static_cast<std::size_t>(richting)]->setChecked(true);
        form.Text1->setText(omschrijving);
        form.Text2->setText(woord);
        form.Check1->setChecked(omgekeerd);
        form.OkKnop_Click();
        QVERIFY(form.Unloaded());
    }

    /// Whether the inside of a cell on Pic is just this letter, with its cell of text at this many twips in the cell.
    static bool IsLetter(const Bord &bord, int kolom, int rij, const QString &letter, int verschuiving = 0)
    {
        QImage los = Gedrukt(bord.Pic().size(), letter, Twips::NaarPixels(kolom * 450 + 165 + verschuiving),
                             Twips::NaarPixels(rij * 450 + 105), u"Arial"_s, 12, true, Grijs);
        const QRect cel = Binnen(kolom, rij);
        return HeeftInkt(los, cel) && bord.Pic().copy(cel) == los.copy(cel);
    }
    static bool IsGroteLetter(const Bord &bord, int kolom, int rij, const QString &letter)
    {
        QImage los =
            Gedrukt(bord.Groot().size(), letter, kolom * 120 + 40, rij * 120 + 24, u"Arial Narrow"_s, 48, true, Grijs);
        const QRect cel = BinnenGroot(kolom, rij);
        return HeeftInkt(los, cel) && bord.Groot().copy(cel) == los.copy(cel);
    }

private slots:
    void controlsAndTheirPlaces_data()
    {
        QTest::addColumn<QString>("naam");
        QTest::addColumn<QRect>("vlak"); // twips: left, top, width, height; a null size is not fixed
        QTest::newRow("Text1") << "Text1" << QRect(150, 180, 3900, 360);
        QTest::newRow("Label1") << "Label1" << QRect(4080, 240, 0, 0);
        QTest::newRow("Text2") << "Text2" << QRect(150, 570, 3900, 360);
        QTest::newRow("Label2") << "Label2" << QRect(4080, 630, 0, 0);
        QTest::newRow("CopyKnop") << "CopyKnop" << QRect(5250, 570, 0, 0);
        QTest::newRow("Option1") << "Option1" << QRect(390, 1200, 2700, 360);
        QTest::newRow("Option2") << "Option2" << QRect(390, 1500, 2700, 360);
        QTest::newRow("Option3") << "Option3" << QRect(390, 1800, 3300, 360);
        QTest::newRow("Option4") << "Option4" << QRect(390, 2100, 3300, 360);
        QTest::newRow("Image1") << "Image1" << QRect(3300, 1320, 0, 0);
        QTest::newRow("Check1") << "Check1" << QRect(4350, 1440, 2100, 0);
        QTest::newRow("Combo1") << "Combo1" << QRect(270, 2640, 810, 0);
        QTest::newRow("Label3") << "Label3" << QRect(1150, 2700, 0, 0);
        QTest::newRow("CancelKnop") << "CancelKnop" << QRect(4290, 2670, 0, 360);
        QTest::newRow("OkKnop") << "OkKnop" << QRect(5295, 2670, 0, 360);
    }
    void controlsAndTheirPlaces()
    {
        QFETCH(QString, naam);
        QFETCH(QRect, vlak);
        Bord bord;
        TekstForm form;
        QVERIFY(StaatOp(form, naam, vlak));
    }

    void asItOpens()
    {
        Bord bord;
        bord.Wijs(2, 6);
        TekstForm form;
        QCOMPARE(form.windowTitle(), u"Oplossing Plaatsen op C-07 / 99"_s);
        QCOMPARE(form.size(), QSize((6600 - 90) / 15, (3690 - 450) / 15));
        QCOMPARE(form.palette().color(QPalette::Window), QColor(230, 250, 190));
        QVERIFY(form.Text1->text().isEmpty() && form.Text2->text().isEmpty());
        QCOMPARE(form.Label1->Caption(), u"Omschrijving"_s);
        QCOMPARE(form.Label2->Caption(), u"Oplossing (0)"_s);
        QCOMPARE(form.Label3->Caption(), u"Vaknummer Kruiswoordpuzzel"_s);
        QStringList opties;
        for (const QRadioButton *optie : form.Option)
            opties += optie->text();
        QCOMPARE(opties.join(u'|'), u"Oplossing Horizontaal Plaatsen|Oplossing Vertikaal Plaatsen|"
                                    "Diagonaal naar rechtsonder Plaatsen|"
                                    "Diagonaal naar linksonder plaatsen"_s);
        QVERIFY(form.Option[0]->isChecked());
        QCOMPARE(form.Check1->text(), u"Oplossing omgekeerd"_s);
        QVERIFY(!form.Check1->isChecked());
        QCOMPARE(form.Combo1->count(), 99);
        QCOMPARE(form.Combo1->itemText(98), u"99"_s);
        QCOMPARE(form.Combo1->currentText(), u"1"_s);
        QCOMPARE(form.CopyKnop->toolTip(), u" Copy tekst vanaf hoofdscherm "_s);
        for (const QWidget *box : std::initializer_list<QWidget *>{form.Text1, form.Text2, form.Combo1}) {
            QCOMPARE(box->palette().color(QPalette::Active, QPalette::Base), QColor(30, 0, 0));
            QCOMPARE(box->palette().color(QPalette::Active, QPalette::Text), QColor(230, 230, 230));
        }
    }

    void whatIsEnabledByKind_data()
    {
        QTest::addColumn<int>("soort");
        QTest::addColumn<bool>("omschrijving");
        QTest::addColumn<bool>("diagonaal");
        QTest::addColumn<bool>("nummer");
        QTest::newRow("Zweeds") << 1 << true << false << false;
        QTest::newRow("Woordzoeker") << 2 << false << true << false;
        QTest::newRow("Kruiswoord") << 3 << true << false << true;
    }
    void whatIsEnabledByKind()
    {
        QFETCH(int, soort);
        QFETCH(bool, omschrijving);
        QFETCH(bool, diagonaal);
        QFETCH(bool, nummer);
        Bord bord;
        PuzzelType = static_cast<quint8>(soort);
        TekstForm form;
        QCOMPARE(form.Text1->isEnabled(), omschrijving);
        QCOMPARE(form.Label1->isEnabled(), omschrijving);
        QCOMPARE(form.Option[2]->isEnabled(), diagonaal);
        QCOMPARE(form.Option[3]->isEnabled(), diagonaal);
        QCOMPARE(form.Check1->isEnabled(), diagonaal);
        QCOMPARE(form.Combo1->isEnabled(), nummer);
        QCOMPARE(form.Label3->isEnabled(), nummer);
        QVERIFY(form.Option[0]->isEnabled() && form.Option[1]->isEnabled() && form.Text2->isEnabled());
    }

    void theDirectionShowsItsPicture()
    {
        Bord bord;
        PuzzelType = Woordzoeker;
        TekstForm form;
        const QString plaatjes[]{u"richting-h"_s, u"richting-v"_s, u"richting-r"_s, u"richting-l"_s};
        QCOMPARE(form.Image1->Picture(), plaatjes[0]);
        for (const qsizetype i : {3, 2, 1, 0}) {
            form.Option[i]->click();
            QCOMPARE(form.Image1->Picture(), plaatjes[i]);
        }
    }

    void theCounterCountsCells_data()
    {
        QTest::addColumn<QString>("woord");
        QTest::addColumn<QString>("teller");
        QTest::newRow("lijst") << "lijst"
                               << "Oplossing (4)";
        QTest::newRow("capitals are two") << "LIJST"
                                          << "Oplossing (5)";
        QTest::newRow("blanks count") << "a b"
                                      << "Oplossing (3)";
        QTest::newRow("nothing") << ""
                                 << "Oplossing (0)";
    }
    void theCounterCountsCells()
    {
        QFETCH(QString, woord);
        QFETCH(QString, teller);
        Bord bord;
        TekstForm form;
        form.Text2->setText(u"iets"_s);
        form.Text2->setText(woord);
        QCOMPARE(form.Label2->Caption(), teller);
    }

    void theCopyButtonTakesTheWordOfTheMainWindow()
    {
        Bord bord;
        bord.Venster.CopyLabel->SetCaption(u"doetinchem"_s);
        TekstForm form;
        form.CopyKnop_Click();
        QCOMPARE(form.Text2->text(), u"doetinchem"_s);
        QVERIFY(qAbs(bord.Bank.TestKlok.Gewacht() - 0.2) < 1e-6);
        QVERIFY(!form.Unloaded());
    }

    void whatIsMissingIsSaid_data()
    {
        QTest::addColumn<int>("soort");
        QTest::addColumn<QString>("omschrijving");
        QTest::addColumn<QString>("oplossing");
        QTest::addColumn<QString>("nummer");
        QTest::addColumn<QString>("melding");
        const QString beide = u"Omschrijving en/of Oplossing intypen..."_s;
        QTest::newRow("Zweeds, no clue") << 1 << ""
                                         << "aap"
                                         << "1" << beide;
        QTest::newRow("Zweeds, no solution") << 1 << "dier"
                                             << ""
                                             << "1" << beide;
        QTest::newRow("Kruiswoord, no clue") << 3 << ""
                                             << "aap"
                                             << "1" << beide;
        QTest::newRow("Kruiswoord, no solution") << 3 << "dier"
                                                 << ""
                                                 << "1" << beide;
        QTest::newRow("Woordzoeker, no solution") << 2 << ""
                                                  << ""
                                                  << "1"
                                                  << "Oplossing intypen...";
        QTest::newRow("Kruiswoord, number 0") << 3 << "dier"
                                              << "aap"
                                              << "0"
                                              << "Vaknummer selecteren (1..99)";
    }
    void whatIsMissingIsSaid()
    {
        QFETCH(int, soort);
        QFETCH(QString, omschrijving);
        QFETCH(QString, oplossing);
        QFETCH(QString, nummer);
        QFETCH(QString, melding);
        Bord bord;
        PuzzelType = static_cast<quint8>(soort);
        const QImage pic = bord.Pic();
        TekstForm form;
        form.Text1->setText(omschrijving);
        form.Text2->setText(oplossing);
        form.Combo1->setEditText(nummer);
        form.OkKnop->setFocus();
        form.OkKnop_Click();
        QCOMPARE(form.focusWidget() == form.Text2, soort == Woordzoeker);
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        QCOMPARE(bord.Bank.Script.Gezien[0].Tekst, melding);
        QCOMPARE(bord.Bank.Script.Gezien[0].Titel, u"Error"_s);
        QVERIFY(!form.Unloaded());
        QVERIFY(bord.Pic() == pic);
        QCOMPARE(bord.Venster.ListView1->topLevelItemCount(), 0);
        QVERIFY(!PuzzelGewijzigd);
    }

    void aNumberThatIsNoneFails()
    {
        Bord bord;
        PuzzelType = Kruiswoord;
        const QImage pic = bord.Pic(), groot = bord.Groot();
        TekstForm form;
        form.Text1->setText(u"dier"_s);
        form.Text2->setText(u"aap"_s);
        form.Combo1->setEditText(u"een"_s);
        QCOMPARE(FoutVan([&] { form.OkKnop_Click(); }), int(Fout::TypeOnjuist));
        QVERIFY(bord.Pic() == pic);
        QVERIFY(bord.Groot() == groot);
        QVERIFY(!form.Unloaded());
    }

    void wijnTakesThreeCells()
    {
        Bord bord;
        const QImage groot = bord.Groot();
        Plaats(bord, 2, 3, 0, u"Wijn"_s, u"drank van druiven"_s);
        QVERIFY(IsLetter(bord, 2, 3, u"W"_s, -45));
        QVERIFY(IsLetter(bord, 3, 3, u"IJ"_s, 0)); // no offset: it is still one sign at that moment
        QVERIFY(IsLetter(bord, 4, 3, u"N"_s, 0));
        QVERIFY(!HeeftInkt(bord.Pic(), Binnen(5, 3)));
        QVERIFY(bord.Groot() == groot);
        QCOMPARE(bord.Rij(0), u"C-04 / 51-H|drank van druiven|wijn|-"_s);
        QCOMPARE(bord.Venster.Label11->Caption(), u"1 Items"_s);
        QCOMPARE(LaatsteOplossing, u"wijn"_s);
        QVERIFY(PuzzelGewijzigd);
    }

    void theLetterIIsMovedToTheMiddle()
    {
        Bord bord;
        Plaats(bord, 0, 0, 0, u"wit"_s);
        QVERIFY(IsLetter(bord, 1, 0, u"I"_s, 60));
        QVERIFY(IsLetter(bord, 2, 0, u"T"_s, 0));
    }

    void capitalsAndBlanksAreNormalised()
    {
        Bord bord;
        Plaats(bord, 0, 0, 0, u"IJs Beer"_s);
        QVERIFY(IsLetter(bord, 0, 0, u"IJ"_s));
        QVERIFY(IsLetter(bord, 5, 0, u"R"_s));
        QCOMPARE(bord.Rij(0), u"A-01 / 1-H|omschrijving|ijsbeer|-"_s);
    }

    void theFourDirections_data()
    {
        QTest::addColumn<int>("richting");
        QTest::addColumn<QString>("letter");
        QTest::addColumn<QPoint>("stap");
        QTest::newRow("H") << 0 << "H" << QPoint(1, 0);
        QTest::newRow("V") << 1 << "V" << QPoint(0, 1);
        QTest::newRow("R") << 2 << "R" << QPoint(1, 1);
        QTest::newRow("L") << 3 << "L" << QPoint(-1, 1);
    }
    void theFourDirections()
    {
        QFETCH(int, richting);
        QFETCH(QString, letter);
        QFETCH(QPoint, stap);
        Bord bord;
        PuzzelType = Woordzoeker;
        Plaats(bord, 5, 6, richting, u"kwijt"_s, QString());
        const QStringList letters{u"K"_s, u"W"_s, u"IJ"_s, u"T"_s};
        for (int i = 0; i < letters.size(); ++i) {
            const QPoint cel = QPoint(5, 6) + i * stap;
            QVERIFY2(IsLetter(bord, cel.x(), cel.y(), letters[i], letters[i] == "W"_L1 ? -45 : 0),
                     qPrintable(letters[i]));
            QVERIFY2(IsGroteLetter(bord, cel.x(), cel.y(), letters[i]), qPrintable(letters[i]));
        }
        QCOMPARE(bord.Rij(0), u"F-07 / 102-%1||kwijt|-"_s.arg(letter)); // a word search has no clue
    }

    void aReversedWordKeepsItsIj()
    {
        Bord bord;
        PuzzelType = Woordzoeker;
        Plaats(bord, 2, 3, 0, u"zij"_s, QString(), true);
        QVERIFY(IsLetter(bord, 2, 3, u"IJ"_s));
        QVERIFY(IsLetter(bord, 3, 3, u"Z"_s));
        QCOMPARE(bord.Rij(0), u"C-04 / 51-H||zij|-"_s);
    }

    void aKruiswoordGetsItsNumber()
    {
        Bord bord;
        PuzzelType = Kruiswoord;
        bord.Wijs(2, 3);
        TekstForm form;
        form.Text1->setText(u"dier"_s);
        form.Text2->setText(u"aap"_s);
        form.Option[1]->setChecked(true);
        form.Combo1->setEditText(u"12"_s);
        form.OkKnop_Click();
        const QImage klein =
            Gedrukt(bord.Pic().size(), u"12"_s, 2 * 30 + 3, 3 * 30 + 1, u"Arial"_s, 6, true, qRgb(0, 0, 0));
        const QImage groot = Gedrukt(bord.Groot().size(), u"12"_s, 2 * 120 + 10, 3 * 120 + 4, u"Arial Narrow"_s, 20,
                                     true, qRgb(0, 0, 0));
        const QRect hoek = InktVlak(klein, Binnen(2, 3)).adjusted(0, 0, 0, -1);
        QVERIFY(bord.Pic().copy(hoek) == klein.copy(hoek));
        QVERIFY(bord.Groot().copy(BinnenGroot(2, 3)) == groot.copy(BinnenGroot(2, 3)));
        QVERIFY(IsLetter(bord, 2, 4, u"A"_s));
        QVERIFY(!HeeftInkt(bord.Groot(), BinnenGroot(2, 4)));
        QCOMPARE(bord.Rij(0), u"C-04 / 51-V|dier|aap|12"_s);
        // After the number the pictures stand as for the other kinds.
        QCOMPARE(bord.Venster.Pic->FontSize, 12.0);
        QCOMPARE(bord.Venster.PicGroot->FontSize, 48.0);
        QCOMPARE(bord.Venster.Pic->ForeColor, Grijs);
        QCOMPARE(bord.Venster.PicGroot->ForeColor, Grijs);
        QVERIFY(bord.Venster.Pic->FontBold && bord.Venster.PicGroot->FontBold);
    }

    void fontNamesStayWhatTheyAre()
    {
        Bord bord;
        bord.Venster.Pic->FontName = u"Courier New"_s;
        bord.Venster.PicGroot->FontName = u"Arial"_s;
        Plaats(bord, 0, 0, 0, u"aap"_s);
        QCOMPARE(bord.Venster.Pic->FontName, u"Courier New"_s);
        QCOMPARE(bord.Venster.PicGroot->FontName, u"Arial"_s);
    }

    void lettersBeyondTheEdgeAreLost_data()
    {
        QTest::addColumn<int>("kolom");
        QTest::addColumn<int>("rij");
        QTest::addColumn<int>("richting");
        QTest::newRow("right") << 15 << 0 << 0;
        QTest::newRow("down") << 0 << 18 << 1;
        QTest::newRow("lower right") << 15 << 18 << 2;
        QTest::newRow("lower left from the first column") << 0 << 3 << 3;
    }
    void lettersBeyondTheEdgeAreLost()
    {
        QFETCH(int, kolom);
        QFETCH(int, rij);
        QFETCH(int, richting);
        Bord bord;
        PuzzelType = Woordzoeker;
        Plaats(bord, kolom, rij, richting, QString(254, u'o'), QString());
        QVERIFY(IsLetter(bord, kolom, rij, u"O"_s));
        QCOMPARE(InktVlak(bord.Pic(), Binnen(7, 8)), QRect());
        QCOMPARE(bord.Venster.ListView1->topLevelItemCount(), 1);
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void aWordOfMoreThan254LettersFailsBeforeAnythingIsPrinted_data()
    {
        QTest::addColumn<int>("lengte");
        QTest::newRow("255") << 255;
        QTest::newRow("300") << 300;
        QTest::newRow("30000") << 30000;
    }
    void aWordOfMoreThan254LettersFailsBeforeAnythingIsPrinted()
    {
        QFETCH(int, lengte);
        Bord bord;
        PuzzelType = Kruiswoord;
        const QImage pic = bord.Pic(), groot = bord.Groot();
        TekstForm form;
        const QString woord = u"ij"_s + QString(lengte - 1, u'a');
        form.Text1->setText(u"lang"_s);
        form.Text2->setText(woord);
        QCOMPARE(FoutVan([&] { form.OkKnop_Click(); }), int(Fout::Overloop));
        QVERIFY(bord.Pic() == pic);
        QVERIFY(bord.Groot() == groot);
        QCOMPARE(bord.Venster.ListView1->topLevelItemCount(), 0);
        QVERIFY(!PuzzelGewijzigd);
        QCOMPARE(form.Text2->text(), woord);
    }

    void aLetterLandsOnTopOfWhatIsThere()
    {
        Bord bord;
        Plaats(bord, 2, 3, 0, u"o"_s);
        const QImage eerst = bord.Pic();
        Plaats(bord, 2, 3, 0, u"x"_s);
        const QRect cel = Binnen(2, 3);
        int gebleven = 0;
        for (int y = cel.top(); y <= cel.bottom(); ++y)
            for (int x = cel.left(); x <= cel.right(); ++x)
                if (eerst.pixel(x, y) == Grijs)
                    gebleven += bord.Pic().pixel(x, y) == Grijs;
        QVERIFY(gebleven > 0);
        QVERIFY(!IsLetter(bord, 2, 3, u"X"_s));
        QCOMPARE(bord.Venster.ListView1->topLevelItemCount(), 2);
    }

    void aSecondPressDuringTheEffectPlacesTheWordOnce()
    {
        Bord bord;
        bord.Wijs(2, 3);
        TekstForm form;
        form.Text1->setText(u"dier"_s);
        form.Text2->setText(u"aap"_s);
        form.show();
        QMetaObject::invokeMethod(form.OkKnop, &QAbstractButton::click, Qt::QueuedConnection);
        form.OkKnop->click(); // the queued press comes while this one waits
        QCOMPARE(bord.Venster.ListView1->topLevelItemCount(), 1);
        QVERIFY(form.Unloaded());
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void cancelChangesNothing()
    {
        Bord bord;
        const QImage pic = bord.Pic();
        TekstForm form;
        form.Text1->setText(u"dier"_s);
        form.Text2->setText(u"aap"_s);
        form.CancelKnop_Click();
        QVERIFY(form.Unloaded());
        QVERIFY(bord.Pic() == pic);
        QCOMPARE(bord.Venster.ListView1->topLevelItemCount(), 0);
        QVERIFY(!PuzzelGewijzigd);
        QVERIFY(qAbs(bord.Bank.TestKlok.Gewacht() - 0.2) < 1e-6);
    }
};

RASTER_TEST(tst_TekstForm)
#include "tst_TekstForm.moc"

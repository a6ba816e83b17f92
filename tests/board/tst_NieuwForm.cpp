#include "board/NieuwForm.h"
#include "board/Soorten.h"
#include "support/Bord.h"

#include <QTimer>

using namespace Qt::StringLiterals;

class tst_NieuwForm : public QObject
{
    Q_OBJECT
private slots:
    void controlsAndTheirPlaces_data()
    {
        QTest::addColumn<QString>("naam");
        QTest::addColumn<QRect>("vlak"); // pixels; a null size is not checked
        QTest::newRow("Combo1") << "Combo1" << QRect(12, 12, 66, 0);
        QTest::newRow("Label1") << "Label1" << QRect(84, 16, 0, 0);
        QTest::newRow("Combo2") << "Combo2" << QRect(12, 40, 66, 0);
        QTest::newRow("Label2") << "Label2" << QRect(84, 44, 0, 0);
        QTest::newRow("Option1") << "Option1" << QRect(36, 74, 180, 24);
        QTest::newRow("Option2") << "Option2" << QRect(36, 93, 180, 24);
        QTest::newRow("Option3") << "Option3" << QRect(36, 112, 180, 24);
        QTest::newRow("Option4") << "Option4" << QRect(36, 131, 180, 24);
        QTest::newRow("Option5") << "Option5" << QRect(36, 150, 180, 24);
        QTest::newRow("Image1") << "Image1" << QRect(284, 46, 0, 0);
        QTest::newRow("Text1") << "Text1" << QRect(12, 184, 160, 24);
        QTest::newRow("Label3") << "Label3" << QRect(176, 189, 0, 0);
        QTest::newRow("CancelKnop") << "CancelKnop" << QRect(272, 184, 0, 0);
        QTest::newRow("OkKnop") << "OkKnop" << QRect(338, 184, 0, 24);
    }
    void controlsAndTheirPlaces()
    {
        QFETCH(QString, naam);
        QFETCH(QRect, vlak);
        Bord bord;
        NieuwForm form;
        const QRect plaats = Vind<QWidget>(form, naam)->geometry();
        QCOMPARE(plaats.topLeft(), vlak.topLeft());
        if (vlak.width() > 0)
            QCOMPARE(plaats.width(), vlak.width());
        if (vlak.height() > 0)
            QCOMPARE(plaats.height(), vlak.height());
    }

    void asItOpens()
    {
        Bord bord;
        bord.Begin(Kruiswoord, 12, 14);
        NieuwForm form;
        QCOMPARE(form.windowTitle(), u"Nieuwe puzzel ontwerpen"_s);
        QCOMPARE(form.size(), QSize((6300 - 90) / 15, (3720 - 450) / 15));
        QCOMPARE(form.palette().color(QPalette::Window), QColor(190, 230, 230));
        QCOMPARE(form.Combo1->currentText(), u"12"_s);
        QCOMPARE(form.Combo2->currentText(), u"14"_s);
        QCOMPARE(form.Label1->Caption(), u"Vakjes Horizontaal (12)"_s);
        QCOMPARE(form.Label2->Caption(), u"Vakjes Vertikaal (14)"_s);
        QVERIFY(form.Option[0]->isChecked()); // always Zweeds, whatever the current puzzle
        QVERIFY(form.Text1->text().isEmpty());
        QCOMPARE(form.Label3->Caption(), u"Naam Puzzel"_s);
        QStringList breedtes, hoogtes;
        for (int i = 0; i < form.Combo1->count(); ++i)
            breedtes += form.Combo1->itemText(i);
        for (int i = 0; i < form.Combo2->count(); ++i)
            hoogtes += form.Combo2->itemText(i);
        QCOMPARE(breedtes.join(u' '), u"9 10 11 12 13 14 15 16"_s);
        QCOMPARE(hoogtes.join(u' '), u"9 10 11 12 13 14 15 16 17 18 19"_s);
        QStringList opties;
        for (const QRadioButton *optie : form.Option)
            opties += optie->text();
        QCOMPARE(opties.join(u'|'), u"Zweedse Puzzel|Woordzoeker|Kruiswoord Puzzel|Sudoku Puzzel|Filippine Puzzel"_s);
        QCOMPARE(form.Combo1->palette().color(QPalette::Base), QColor(30, 0, 0));
        QCOMPARE(form.Combo2->palette().color(QPalette::Text), QColor(230, 230, 230));
        QCOMPARE(form.Text1->palette().color(QPalette::Base), QColor(0, 30, 0));
        QCOMPARE(form.Text1->palette().color(QPalette::Text), QColor(230, 230, 230));
    }

    void typingAndChoosingASizeShowsIt()
    {
        Bord bord;
        NieuwForm form;
        form.Combo1->setEditText(u"11"_s);
        form.Combo2->setCurrentIndex(1);
        QCOMPARE(form.Label1->Caption(), u"Vakjes Horizontaal (11)"_s);
        QCOMPARE(form.Label2->Caption(), u"Vakjes Vertikaal (10)"_s);
    }

    void theKindShowsItsPreviewAndFixesTheSize()
    {
        Bord bord;
        NieuwForm form;
        const bool vrij[] = {true, true, true, false, false};
        const QString plaatjes[]{u"soort-zweeds"_s, u"soort-woordzoeker"_s, u"soort-kruiswoord"_s, u"soort-sudoku"_s,
                                 u"soort-filippine"_s};
        QCOMPARE(form.Image1->Picture(), plaatjes[0]);
        for (const qsizetype i : {4, 3, 4, 2, 1, 0}) { // from Sudoku to Filippine the combos stay disabled
            form.Option[i]->click();
            QCOMPARE(form.Image1->Picture(), plaatjes[i]);
            QCOMPARE(form.Combo1->isEnabled(), vrij[i]);
            QCOMPARE(form.Combo2->isEnabled(), vrij[i]);
        }
    }

    void aNameOfBlanksOnlyGivesTheMessage()
    {
        Bord bord;
        PuzzelNaam = u"oud"_s;
        NieuwForm form;
        form.Text1->setText(u"   "_s);
        form.Option[3]->click();
        form.OkKnop_Click();
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        QCOMPARE(bord.Bank.Script.Gezien[0].Tekst, u"Naam Puzzel invullen a.u.b. (Alleen letters a..z)"_s);
        QVERIFY(!form.Unloaded());
        QCOMPARE(PuzzelNaam, u"oud"_s);
        QCOMPARE(PuzzelType, Zweeds);
        QCOMPARE(BoardWidth, 16);
    }

    void okStartsAnEmptyBoard_data()
    {
        QTest::addColumn<int>("optie");
        QTest::addColumn<QSize>("maat");
        QTest::newRow("Zweeds") << 0 << QSize(12, 14);
        QTest::newRow("Woordzoeker") << 1 << QSize(12, 14);
        QTest::newRow("Kruiswoord") << 2 << QSize(12, 14);
        QTest::newRow("Sudoku") << 3 << QSize(9, 9);
        QTest::newRow("Filippine") << 4 << QSize(16, 19);
    }
    void okStartsAnEmptyBoard()
    {
        QFETCH(int, optie);
        QFETCH(QSize, maat);
        Bord bord;
        MainForm &main = bord.Venster;
        main.VoegRijenToe({{u"A-01 / 1-H"_s, {}, u"aap"_s, u"-"_s}});
        main.ToonAantal();
        main.ListView1_ItemClick();
        bord.Klik(Qt::LeftButton, 1, 1);
        main.SoortPlaatsing->close();
        main.Pic->BoxFull(0, 0, 4000, 4000, qRgb(1, 2, 3));
        VakZwart[5] = true;
        main.CopyLabel->SetCaption(u"kopie"_s);
        NieuwForm form;
        form.Combo1->setEditText(u"12"_s);
        form.Combo2->setEditText(u"14"_s);
        form.Text1->setText(u"  mijn nieuwe puzzel "_s);
        form.Option[static_cast<std::size_t>(optie)]->click();
        form.OkKnop_Click();

        QVERIFY(form.Unloaded());
        QVERIFY(qAbs(bord.Bank.TestKlok.Gewacht() - 0.4) < 1e-6);
        QCOMPARE(PuzzelNaam, u"mijnnieuwepuzzel"_s);
        QCOMPARE(main.Bestandsnaam->text(), PuzzelNaam);
        QCOMPARE(PuzzelType, quint8(optie + 1));
        QCOMPARE(QSize(BoardWidth, BoardHeight), maat);
        QCOMPARE(bord.Pic().size(), maat * 30 + QSize(1, 1));
        QCOMPARE(bord.Groot().size(), maat * 120 + QSize(3, 3));
        QVERIFY(!HeeftInkt(bord.Pic(), Binnen(1, 1)));
        QCOMPARE(main.windowTitle(), u"Raster Atelier (%1x%2)"_s.arg(maat.width()).arg(maat.height()));
        QCOMPARE(main.ListView1->topLevelItemCount(), 0);
        QCOMPARE(main.Label11->Caption(), u"0 Items"_s);
        QVERIFY(main.Shape1->isHidden());
        QVERIFY(main.Line1->isHidden());
        QVERIFY(VakZwart[5]);
        QCOMPARE(main.CopyLabel->Caption(), u"kopie"_s);
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void whatAKindChanges_data()
    {
        QTest::addColumn<int>("optie");
        QTest::addColumn<QString>("opschrift");
        QTest::addColumn<bool>("paneel");
        QTest::addColumn<bool>("verwijderen");
        QTest::newRow("Zweeds") << 0 << "Soortpuzzel : Zweeds" << false << false;
        QTest::newRow("Woordzoeker") << 1 << "Soortpuzzel : Woordzoeker" << false << false;
        QTest::newRow("Kruiswoord") << 2 << "Soortpuzzel : Kruiswoord" << false << false;
        QTest::newRow("Sudoku") << 3 << "Soortpuzzel : Sudoku" << true << false;
        QTest::newRow("Filippine") << 4 << "Soortpuzzel : Filippine" << false << true;
    }
    void whatAKindChanges()
    {
        QFETCH(int, optie);
        QFETCH(QString, opschrift);
        QFETCH(bool, paneel);
        QFETCH(bool, verwijderen);
        Bord bord;
        for (const int keuze : {3, 4, optie}) { // coming from the two kinds that show more
            NieuwForm form;
            form.Text1->setText(u"naam"_s);
            form.Option[static_cast<std::size_t>(keuze)]->click();
            form.OkKnop_Click();
        }
        QCOMPARE(bord.Venster.Label12->Caption(), opschrift);
        QCOMPARE(!bord.Venster.Frame9->isHidden(), paneel);
        QCOMPARE(bord.Venster.EditDeleteRaster->isEnabled(), verwijderen);
        QCOMPARE(bord.Venster.EditDeleteLetters->isEnabled(), verwijderen);
    }

    void theChangedFlagStaysAsItIs()
    {
        for (const bool gewijzigd : {false, true}) {
            Bord bord;
            PuzzelGewijzigd = gewijzigd;
            NieuwForm form;
            form.Text1->setText(u"naam"_s);
            form.OkKnop_Click();
            QCOMPARE(PuzzelGewijzigd, gewijzigd);
        }
    }

    void impossibleSizesKeepThePuzzle_data()
    {
        QTest::addColumn<QString>("breedte");
        QTest::addColumn<int>("fout");
        QTest::newRow("word") << "negen" << int(Fout::TypeOnjuist);
        QTest::newRow("empty") << "" << int(Fout::TypeOnjuist);
        QTest::newRow("too large for a number") << "99999999999" << int(Fout::Overloop);
        QTest::newRow("negative") << "-1" << int(Fout::OngeldigeWaarde);
        QTest::newRow("too large for a board") << "100000" << int(Fout::GeheugenVol);
    }
    void impossibleSizesKeepThePuzzle()
    {
        QFETCH(QString, breedte);
        QFETCH(int, fout);
        Bord bord;
        bord.Venster.VoegRijenToe({{u"A-01 / 1-H"_s, {}, u"aap"_s, u"-"_s}});
        bord.Klik(Qt::RightButton, 2, 2);
        const QImage pic = bord.Pic(), groot = bord.Groot();
        NieuwForm form;
        form.Text1->setText(u"nieuw"_s);
        form.Combo1->setEditText(breedte);
        QCOMPARE(FoutVan([&] { form.OkKnop_Click(); }), fout);
        QCOMPARE(PuzzelNaam, u"nieuw"_s);
        QVERIFY(!form.Unloaded());
        QVERIFY(bord.Pic() == pic);
        QVERIFY(bord.Groot() == groot);
        QCOMPARE(QSize(BoardWidth, BoardHeight), QSize(16, 19));
        QCOMPARE(bord.Venster.ListView1->topLevelItemCount(), 1);
        QCOMPARE(bord.Venster.windowTitle(), u"Raster Atelier (16x19)"_s);
    }

    void sizesOutsideTheListsAreTaken_data()
    {
        QTest::addColumn<QString>("tekst");
        QTest::addColumn<int>("maat");
        QTest::newRow("zero") << "0" << 0;
        QTest::newRow("larger") << "20" << 20;
        QTest::newRow("rounded to even") << "10.5" << 10;
        QTest::newRow("blanks") << " 11 " << 11;
    }
    void sizesOutsideTheListsAreTaken()
    {
        QFETCH(QString, tekst);
        QFETCH(int, maat);
        Bord bord;
        NieuwForm form;
        form.Text1->setText(u"naam"_s);
        form.Combo1->setEditText(tekst);
        form.Combo2->setEditText(tekst);
        form.OkKnop_Click();
        QCOMPARE(QSize(BoardWidth, BoardHeight), QSize(maat, maat));
        QCOMPARE(bord.Pic().size(), QSize(maat * 30 + 1, maat * 30 + 1));
    }

    void closingDuringTheSecondWaitChangesNothing()
    {
        Bord bord;
        NieuwForm form;
        form.show();
        form.Text1->setText(u"naam"_s);
        QTimer::singleShot(0, &form, [&form] { // the first wait; the next turn of events is in the second one
            QTimer::singleShot(0, &form, [&form] { form.Unload(); });
        });
        QVERIFY_EXCEPTION_THROWN(form.OkKnop_Click(), Afgebroken);
        QVERIFY(form.Unloaded());
        QVERIFY(PuzzelNaam.isEmpty());
        QVERIFY(qAbs(bord.Bank.TestKlok.Gewacht() - 0.4) < 1e-6);
    }

    void cancelChangesNothing()
    {
        Bord bord;
        NieuwForm form;
        form.Text1->setText(u"naam"_s);
        form.Option[3]->click();
        form.CancelKnop_Click();
        QVERIFY(form.Unloaded());
        QVERIFY(qAbs(bord.Bank.TestKlok.Gewacht() - 0.4) < 1e-6);
        QVERIFY(PuzzelNaam.isEmpty());
        QCOMPARE(PuzzelType, Zweeds);
        QCOMPARE(bord.Venster.Bestandsnaam->text(), u"Puzzelnaam"_s);
    }
};

RASTER_TEST(tst_NieuwForm)
#include "tst_NieuwForm.moc"

#include "board/NieuwForm.h"
#include "board/Soorten.h"
#include "support/Bord.h"
#include "support/Venster.h"
#include "support/Verloop.h"

#include <QFile>
#include <QTimer>

#include <ctime>

using namespace Qt::StringLiterals;

/// What the process holds in memory, in bytes.
static qint64 Geheugen()
{
    QFile status(u"/proc/self/statm"_s);
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    constexpr qint64 Page = 4096;
    return status.readAll().split(' ').value(1).toLongLong() * Page;
}

class tst_NieuwForm : public QObject
{
    Q_OBJECT

    static void VulIn(NieuwForm &form, const QString &naam, const QString &breedte, const QString &hoogte,
                      int optie = 0)
    {
        form.Text1->setText(naam);
        form.Combo1->setEditText(breedte);
        form.Combo2->setEditText(hoogte);
        form.Option[optie]->click();
    }
    /// Three rows, the line of one, the frame on a cell, something on both boards: all that goes. And all that may stay
    /// has another value than it starts with.
    static void Vul(Bord &bord)
    {
        MainForm &main = bord.Venster;
        bord.AllesAnders();
        main.VoegRijenToe(
            {{u"A-01 / 1-H"_s, {}, u"aap"_s, {}}, {u"B-01 / 2-V"_s, {}, u"noot"_s, {}}, {u"-"_s, {}, u"mies"_s, {}}});
        main.ToonAantal();
        main.ListView1_ItemClick();
        bord.Klik(Qt::LeftButton, 1, 1);
        main.SoortPlaatsing->close();
        main.Pic->BoxFull(0, 0, 1e5, 1e5, qRgb(1, 2, 3));
        main.PicGroot->BoxFull(0, 0, 1e6, 1e6, qRgb(1, 2, 3));
    }

private slots:
    void controlsAndTheirPlaces()
    {
        Bord bord;
        NieuwForm form;
        QCOMPARE(Misplaatst(form, {{"Combo1", 180, 180, 990, 315},
                                   {"Label1", 1260, 240},
                                   {"Combo2", 180, 600, 990, 315},
                                   {"Label2", 1260, 660},
                                   {"Option1", 540, 1110, 2700, 360},
                                   {"Option2", 540, 1395, 2700, 360},
                                   {"Option3", 540, 1680, 2700, 360},
                                   {"Option4", 540, 1965, 2700, 360},
                                   {"Option5", 540, 2250, 2700, 360},
                                   {"Image1", 4260, 690, 1800, 1800},
                                   {"Text1", 180, 2760, 2400, 360},
                                   {"Label3", 2640, 2835},
                                   {"CancelKnop", 4080, 2760},
                                   {"OkKnop", 5070, 2760, 0, 360}}),
                 QString());
    }

    void theTabKeyGoesFromTheNameOn()
    {
        Bord bord;
        NieuwForm form;
        QCOMPARE(TabVolgorde(form), u"Text1 CancelKnop OkKnop Combo1 Combo2 Option1"_s);
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
        QCOMPARE(Items(*form.Combo1).join(u' '), u"9 10 11 12 13 14 15 16"_s);
        QCOMPARE(Items(*form.Combo2).join(u' '), u"9 10 11 12 13 14 15 16 17 18 19"_s);
        QVERIFY(form.Combo1->isEditable() && form.Combo2->isEditable());
        QVERIFY(form.Combo1->isEnabled() && form.Combo2->isEnabled());
        QCOMPARE(form.Label1->Caption(), u"Vakjes Horizontaal (12)"_s);
        QCOMPARE(form.Label2->Caption(), u"Vakjes Vertikaal (14)"_s);
        QCOMPARE(form.Label3->Caption(), u"Naam Puzzel"_s);
        QCOMPARE(Leesnamen(form),
                 (QStringList{u"CancelKnop=Annuleren"_s, u"Combo1=Vakjes Horizontaal"_s, u"Combo2=Vakjes Vertikaal"_s,
                              u"Image1=Voorbeeld van de soort"_s, u"OkKnop=Ok"_s, u"Option1=Zweedse Puzzel"_s,
                              u"Option2=Woordzoeker"_s, u"Option3=Kruiswoord Puzzel"_s, u"Option4=Sudoku Puzzel"_s,
                              u"Option5=Filippine Puzzel"_s, u"Text1=Naam Puzzel"_s}));
        QCOMPARE(form.Text1->text(), QString());
        QCOMPARE(PlaatjesOp(form), u"CancelKnop knop-annuleren, Image1 soort-zweeds, OkKnop knop-ok"_s);
        for (const QWidget *box : {static_cast<QWidget *>(form.Combo1), static_cast<QWidget *>(form.Combo2)})
            QCOMPARE(box->palette().color(QPalette::Base), QColor(30, 0, 0));
        QCOMPARE(form.Text1->palette().color(QPalette::Base), QColor(0, 30, 0));
        for (const QWidget *box : {static_cast<QWidget *>(form.Combo1), static_cast<QWidget *>(form.Combo2),
                                   static_cast<QWidget *>(form.Text1)})
            QCOMPARE(box->palette().color(QPalette::Text), QColor(230, 230, 230));
    }

    void itOpensTheSameAfterAnyKind_data() { ElkeSoort(); }
    void itOpensTheSameAfterAnyKind()
    {
        QFETCH(int, soort);
        Bord bord;
        bord.Begin(static_cast<quint8>(soort), 9, 10);
        PuzzelNaam = u"oud"_s;
        bord.Venster.ToonPuzzel(u"Raster Atelier"_s);
        NieuwForm form;
        QCOMPARE(form.Text1->text(), QString());
        QCOMPARE(form.Image1->Picture(), u"soort-zweeds"_s);
        QVERIFY(form.Combo1->isEnabled() && form.Combo2->isEnabled());
        QCOMPARE(form.Combo1->currentText() + u'x' + form.Combo2->currentText(), u"9x10"_s);
        QStringList opties;
        for (QRadioButton *optie : form.Option) {
            opties += optie->text();
            QCOMPARE(optie->isChecked(), optie == form.Option[0]);
            QCOMPARE(optie->grab().toImage().pixelColor(optie->width() - 1, 0), QColor(190, 230, 230));
        }
        QCOMPARE(opties.join(u'|'), u"Zweedse Puzzel|Woordzoeker|Kruiswoord Puzzel|Sudoku Puzzel|Filippine Puzzel"_s);
    }

    void typingAndChoosingASizeShowsIt()
    {
        Bord bord;
        NieuwForm form;
        form.Combo2->setCurrentIndex(1);
        form.Combo1->setEditText(u" 11"_s);
        QCOMPARE(form.Label1->Caption(), u"Vakjes Horizontaal ( 11)"_s);
        QCOMPARE(form.Label2->Caption(), u"Vakjes Vertikaal (10)"_s);
        form.Combo1->setCurrentIndex(0);
        form.Combo2->setEditText(u" veel "_s);
        QCOMPARE(form.Label1->Caption(), u"Vakjes Horizontaal (9)"_s);
        QCOMPARE(form.Label2->Caption(), u"Vakjes Vertikaal ( veel )"_s); // as it stands there
        form.Combo1->clearEditText();
        form.Combo2->clearEditText();
        QCOMPARE(form.Label1->Caption() + form.Label2->Caption(), u"Vakjes Horizontaal ()Vakjes Vertikaal ()"_s);
    }

    void theKindShowsItsPreviewAndFixesTheSize()
    {
        Bord bord;
        NieuwForm form;
        const bool vrij[] = {true, true, true, false, false};
        const QString plaatjes[]{u"soort-zweeds"_s, u"soort-woordzoeker"_s, u"soort-kruiswoord"_s, u"soort-sudoku"_s,
                                 u"soort-filippine"_s};
        form.OkKnop->setFocus();
        for (int van = 0; van < AantalSoorten; ++van) {
            for (int naar = 0; naar < AantalSoorten; ++naar) {
                form.Option[van]->click();
                form.Option[naar]->click();
                QCOMPARE(form.Image1->Picture(), plaatjes[naar]);
                QCOMPARE(form.Combo1->isEnabled(), vrij[naar]);
                QCOMPARE(form.Combo2->isEnabled(), vrij[naar]);
            }
        }
        QCOMPARE(form.focusWidget(), form.OkKnop); // the choice by itself does not move it
    }

    void aNameOfBlanksOnlyGivesTheMessage_data()
    {
        QTest::addColumn<QString>("naam");
        QTest::addColumn<QString>("breedte");
        Geval("nothing", "", "12");
        Geval("blanks", "   ", "12");
        Geval("and no size", " ", "negen"); // which is not looked at yet
    }
    void aNameOfBlanksOnlyGivesTheMessage()
    {
        QFETCH(QString, naam);
        QFETCH(QString, breedte);
        Bord bord;
        Vul(bord);
        PuzzelNaam = u"oud"_s;
        const Stand ervoor = bord.Nu();
        NieuwForm form;
        form.show();
        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        VulIn(form, naam, breedte, u"14"_s, 3);
        form.OkKnop->setFocus();
        form.OkKnop_Click();
        QCOMPARE(form.Text1->text(), naam); // the dialog stays as it is, too
        QVERIFY(form.Option[3]->isChecked());
        QCOMPARE(form.Label1->Caption() + form.Label2->Caption(),
                 u"Vakjes Horizontaal (%1)Vakjes Vertikaal (14)"_s.arg(breedte));
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        QCOMPARE(bord.Bank.Script.Gezien[0].Tekst, u"Naam Puzzel invullen a.u.b. (Alleen letters a..z)"_s);
        QCOMPARE(bord.Bank.Script.Gezien[0].Titel, u"Rasteratelier"_s);
        QCOMPARE(bord.Bank.Script.Gezien[0].Soort, Knoppen::Ok);
        QCOMPARE(bord.Bank.Script.Gezien[0].Plaatje, Icoon::Geen);
        QVERIFY(form.isVisible() && !form.Unloaded());
        QVERIFY(form.Text1->hasFocus() && !form.Text1->hasSelectedText());
        QCOMPARE(bord.Veranderd(ervoor), QString());
        QCOMPARE(bord.Bank.TestKlok.Gewacht(), 0.4);
        form.OkKnop_Click(); // and so each time
        QCOMPARE(bord.Bank.Script.Gezien.size(), 2);
        QCOMPARE(bord.Bank.TestKlok.Gewacht(), 0.8);
        QCOMPARE(bord.Veranderd(ervoor), QString());
    }

    void okStartsAnEmptyBoard_data()
    {
        QTest::addColumn<int>("optie");
        QTest::addColumn<QSize>("maat");
        QTest::addColumn<QString>("opschrift");
        Geval("Zweeds", 0, QSize(12, 14), "Soortpuzzel : Zweeds");
        Geval("Woordzoeker", 1, QSize(12, 14), "Soortpuzzel : Woordzoeker");
        Geval("Kruiswoord", 2, QSize(12, 14), "Soortpuzzel : Kruiswoord");
        Geval("Sudoku", 3, QSize(9, 9), "Soortpuzzel : Sudoku");
        Geval("Filippine", 4, QSize(16, 19), "Soortpuzzel : Filippine");
    }
    void okStartsAnEmptyBoard()
    {
        QFETCH(int, optie);
        QFETCH(QSize, maat);
        QFETCH(QString, opschrift);
        const auto type = static_cast<quint8>(optie + 1);
        const Stand leeg = [&] {
            Bord bord;
            bord.Begin(type, maat.width(), maat.height());
            return bord.Nu();
        }();
        for (const quint8 eerst : {Zweeds, Sudoku, Filippine}) { // coming from the two kinds that show more, too
            Bord bord;
            PuzzelType = eerst;
            bord.Venster.ToonSoort();
            bord.Venster.ToonPuzzel(u"Iets anders"_s);
            Vul(bord);
            QCOMPARE(bord.Venster.Label11->Caption(), u"3 Items"_s);
            const QList<QWidget *> tekens{bord.Venster.Shape1, bord.Venster.Line1};
            for (const QWidget *teken : tekens)
                QCOMPARE(teken->isHidden(), eerst != Zweeds && teken == bord.Venster.Line1);
            bord.Venster.Timer1->stop();
            bord.Venster.KlokLabel->SetCaption(u"7-3-2026 / 9:05:03"_s);
            for (int kolom = 0; kolom < 4; ++kolom)
                bord.Venster.ListView1->setColumnWidth(kolom, 70 + kolom); // as a person has drawn them
            const Stand ervoor = bord.Nu();
            NieuwForm form;
            VulIn(form, u"  mijn nieuwe puzzel "_s, u"12"_s, u"14"_s, optie);
            form.OkKnop_Click();

            QVERIFY(form.Unloaded());
            QCOMPARE(bord.Bank.TestKlok.Gewacht(), 0.4);
            QVERIFY(bord.Bank.Script.Gezien.isEmpty());
            QCOMPARE(PuzzelNaam, u"mijnnieuwepuzzel"_s);
            QCOMPARE(bord.Venster.Bestandsnaam->text(), u"mijnnieuwepuzzel"_s);
            QVERIFY(!bord.Venster.Bestandsnaam->isEnabled());
            QCOMPARE(bord.Venster.windowTitle(), u"Raster Atelier (%1x%2)"_s.arg(maat.width()).arg(maat.height()));
            QCOMPARE(bord.Venster.Label12->Caption(), opschrift);
            QCOMPARE(bord.Venster.Label11->Caption(), u"0 Items"_s);
            QVERIFY(bord.Venster.Rijen().isEmpty());
            for (const QWidget *teken : tekens)
                QVERIFY(teken->isHidden());
            QCOMPARE(!bord.Venster.Frame9->isHidden(), type == Sudoku);
            QCOMPARE(bord.Venster.EditDeleteRaster->isEnabled(), type == Filippine);
            QCOMPARE(bord.Venster.EditDeleteLetters->isEnabled(), type == Filippine);
            QCOMPARE(bord.Venster.KlokLabel->Caption(), u"7-3-2026 / 9:05:03"_s);
            for (int kolom = 0; kolom < 4; ++kolom)
                QCOMPARE(bord.Venster.ListView1->columnWidth(kolom), 70 + kolom);
            QCOMPARE(bord.VeranderdBuitenPuzzel(ervoor), QString());
            Stand nu = bord.Nu();
            for (const char *naam : {"PuzzelType", "BoardWidth", "BoardHeight", "Pic", "PicGroot", "PicR", "PicO",
                                     "Label1", "Frame8", "ListView1"})
                QCOMPARE(nu[QLatin1String(naam)], leeg[QLatin1String(naam)]);
        }
    }

    void anAmpersandOfTheNameIsShown()
    {
        Bord bord;
        NieuwForm form;
        VulIn(form, u"vraag & antwoord && meer"_s, u"12"_s, u"14"_s);
        form.OkKnop_Click();
        QCOMPARE(PuzzelNaam, u"vraag&antwoord&&meer"_s);
        QCOMPARE(bord.Venster.Bestandsnaam->iconText(), PuzzelNaam); // what is seen of its text
        QCOMPARE(bord.Venster.GetoondeNaam(), PuzzelNaam);
    }

    void theStepsOfBothButtons_data()
    {
        QTest::addColumn<QString>("knop");
        Geval("OkKnop", "OkKnop");
        Geval("CancelKnop", "CancelKnop");
    }
    void theStepsOfBothButtons()
    {
        QFETCH(QString, knop);
        Bord bord;
        const Stand ervoor = bord.Nu();
        NieuwForm form;
        auto *button = Vind<ImageButton>(form, knop);
        const QPoint plaats = button->pos();
        Verloop verloop([&] { return button->pos() == plaats ? QString() : u"gedrukt"_s; });
        verloop.Bijwerk = [&] {
            QCOMPARE(bord.Veranderd(ervoor), QString());
            QVERIFY(!form.Unloaded());
        };
        VulIn(form, u"naam"_s, u"12"_s, u"14"_s);
        button->click();
        QCOMPARE(verloop.Stappen, (QStringList{u"0.2 s | gedrukt"_s, u"0.2 s |"_s}));
        QVERIFY(form.Unloaded());
    }

    void whatStandsThereAfterTheWaitsCounts()
    {
        Bord bord;
        NieuwForm form;
        Verloop verloop;
        verloop.Bijwerk = [&] {
            if (verloop.Stappen.size() == 2)
                VulIn(form, u"later"_s, u"10"_s, u"11"_s, 2);
        };
        form.OkKnop->click(); // of an empty name
        QVERIFY(form.Unloaded() && verloop.Gezien.isEmpty());
        QCOMPARE(PuzzelNaam, u"later"_s);
        QCOMPARE(PuzzelType, Kruiswoord);
        QCOMPARE(QSize(BoardWidth, BoardHeight), QSize(10, 11));
    }

    void onlyBlanksAreTakenOutOfTheName_data()
    {
        QTest::addColumn<QString>("naam");
        QTest::addColumn<QString>("wordt");
        Geval("within and around", "  de  zomer ", "dezomer");
        Geval("a hard blank alone", u" \u00A0 "_s, u"\u00A0"_s);
        Geval("hard blanks and tabs", u"\u00A0een\ttwee \u00A0drie\t"_s, u"\u00A0een\ttwee\u00A0drie\t"_s);
        Geval("other signs", "a.b \"c\" 'd'-1", "a.b\"c\"'d'-1");
        Geval("long", QString(300, u'x') + u" y"_s, QString(300, u'x') + u'y');
    }
    void onlyBlanksAreTakenOutOfTheName()
    {
        QFETCH(QString, naam);
        Bord bord;
        NieuwForm form;
        VulIn(form, naam, u"12"_s, u"14"_s);
        form.OkKnop_Click();
        QTEST(PuzzelNaam, "wordt");
        QTEST(bord.Venster.Bestandsnaam->text(), "wordt");
        QVERIFY(form.Unloaded());
    }

    void aKindOfFixedSizeLooksAtTheBoxesAllTheSame()
    {
        for (const int optie : {3, 4}) {
            Bord bord;
            NieuwForm form;
            VulIn(form, u"naam"_s, u"negen"_s, u"9"_s, optie); // what is no number is refused
            QCOMPARE(FoutVan([&] { form.OkKnop_Click(); }), int(Fout::TypeOnjuist));
            QCOMPARE(PuzzelNaam, u"naam"_s); // the name is taken before
            VulIn(form, u"naam"_s, u"9"_s, u""_s, optie);
            QCOMPARE(FoutVan([&] { form.OkKnop_Click(); }), int(Fout::TypeOnjuist));
            VulIn(form, u"naam"_s, u"99999999999"_s, u"9"_s, optie);
            QCOMPARE(FoutVan([&] { form.OkKnop_Click(); }), int(Fout::Overloop));
            QCOMPARE(PuzzelType, Zweeds);
            VulIn(form, u"naam"_s, u"-5"_s, u"99999"_s, optie); // no such board has to be made
            form.OkKnop_Click();
            QCOMPARE(QSize(BoardWidth, BoardHeight), optie == 3 ? QSize(9, 9) : QSize(16, 19));
        }
    }

    void aKindOfFixedSizeLeavesTheTypedSize()
    {
        Bord bord;
        NieuwForm form;
        VulIn(form, u"naam"_s, u"12"_s, u"14"_s, 3);
        form.Option[4]->click();
        form.Option[2]->click();
        QCOMPARE(form.Combo1->currentText() + u'x' + form.Combo2->currentText(), u"12x14"_s);
        QCOMPARE(form.Label1->Caption() + form.Label2->Caption(), u"Vakjes Horizontaal (12)Vakjes Vertikaal (14)"_s);
        form.OkKnop_Click();
        QCOMPARE(QSize(BoardWidth, BoardHeight), QSize(12, 14));
    }

    void theChangedFlagStaysAsItIs()
    {
        for (const bool gewijzigd : {false, true}) {
            Bord bord;
            PuzzelGewijzigd = gewijzigd;
            NieuwForm form;
            VulIn(form, u"naam"_s, u"12"_s, u"14"_s);
            form.OkKnop_Click();
            QCOMPARE(PuzzelGewijzigd, gewijzigd);
        }
    }

    void whatIsNoSizeKeepsThePuzzle_data()
    {
        QTest::addColumn<QString>("breedte");
        QTest::addColumn<QString>("hoogte");
        QTest::addColumn<QString>("melding");
        const QString typen = u"Fout 13 bij 'Ok': Typen komen niet overeen: hier hoort een getal"_s;
        const QString overloop = u"Fout 6 bij 'Ok': Overloop: het getal is te groot of te klein"_s;
        const QString negatief = u"Fout 380 bij 'Ok': Ongeldige waarde (een negatieve maat)."_s;
        const QString vol = u"Fout 7 bij 'Ok': Onvoldoende geheugen (een te grote afbeelding)."_s;
        Geval("word", "negen", "9", typen + u" (negen)."_s);
        Geval("word below", "9", "negen", typen + u" (negen)."_s);
        Geval("two words", "negen", "tien", typen + u" (negen)."_s); // the first one is told
        Geval("empty", "", "9", typen + u'.');
        Geval("too large for a number", "99999999999", "9", overloop + u" (99999999999)."_s);
        Geval("negative", "-1", "9", negatief);
        Geval("negative height", "9", "-1", negatief);
        Geval("both negative", "-16", "-19", negatief);
        Geval("largest number", "2147483647", "2147483647", vol);
        Geval("1 by 4400", "1", "4400", vol);
        Geval("4400 by 1", "4400", "1", vol);
        Geval("32767 by 0", "32767", "0", vol);
        Geval("0 by 32767", "0", "32767", vol);
        Geval("111000 by 0", "111000", "0", vol);
        Geval("just too wide", "245", "19", vol);
        Geval("just too high", "16", "291", vol);
        Geval("just too large", "69", "69", vol);
    }
    void whatIsNoSizeKeepsThePuzzle()
    {
        QFETCH(QString, breedte);
        QFETCH(QString, hoogte);
        QFETCH(QString, melding);
        Bord bord;
        Vul(bord);
        const Stand ervoor = bord.Nu();
        const qint64 geheugen = Geheugen();
        NieuwForm form;
        form.show();
        VulIn(form, u"nieuw"_s, breedte, hoogte);
        form.OkKnop->click();
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        QCOMPARE(bord.Bank.Script.Gezien[0].Tekst, melding);
        QCOMPARE(bord.Bank.Script.Gezien[0].Plaatje, Icoon::Kritiek);
        QVERIFY(form.isVisible() && !form.Unloaded());
        QCOMPARE(bord.Veranderd(ervoor), u"Bestandsnaam PuzzelNaam"_s); // the name is taken before
        QVERIFY(Geheugen() - geheugen < 64 << 20);
    }

    void anyOtherSizeIsTaken_data()
    {
        QTest::addColumn<QString>("breedte");
        QTest::addColumn<QString>("hoogte");
        QTest::addColumn<QSize>("maat");
        Geval("nothing", "0", "0", QSize(0, 0));
        Geval("no height", "240", "0", QSize(240, 0));
        Geval("no width", "0", "290", QSize(0, 290));
        Geval("smaller", "8", "1", QSize(8, 1));
        Geval("larger", "20", "21", QSize(20, 21));
        Geval("rounded to even", "10.5", "11.5", QSize(10, 12));
        Geval("blanks", " 11 ", "12", QSize(11, 12));
        Geval("widest", "244", "19", QSize(244, 19));
        Geval("highest", "16", "290", QSize(16, 290));
        Geval("largest", "68", "68", QSize(68, 68));
    }
    void anyOtherSizeIsTaken()
    {
        QFETCH(QString, breedte);
        QFETCH(QString, hoogte);
        QFETCH(QSize, maat);
        Bord bord;
        bord.Venster.show();
        const qint64 geheugen = Geheugen();
        NieuwForm form;
        VulIn(form, u"naam"_s, breedte, hoogte);
        const std::clock_t begin = std::clock();
        form.OkKnop->click();
        const double seconden = double(std::clock() - begin) / CLOCKS_PER_SEC;
        const qint64 erbij = Geheugen() - geheugen;
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
        QCOMPARE(QSize(BoardWidth, BoardHeight), maat);
        QCOMPARE(bord.Venster.Pic->size(), QSize(maat.width() * 30 + 1, maat.height() * 30 + 1));
        QCOMPARE(bord.Venster.PicGroot->size(), QSize(maat.width() * 120 + 3, maat.height() * 120 + 3));
        QVERIFY2(seconden < 1, qPrintable(QString::number(seconden)));
        QVERIFY2(erbij < qint64{256 + 64} << 20, qPrintable(QString::number(erbij >> 20)));
        QVERIFY(!bord.Venster.grab().isNull()); // all is painted, and nothing raised on the way
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
        const NieuwForm weer; // proposes it as it is
        QCOMPARE(weer.Combo1->currentText() + u'x' + weer.Combo2->currentText(),
                 u"%1x%2"_s.arg(maat.width()).arg(maat.height()));
    }

    void enterStartsNothing()
    {
        Bord bord;
        const Stand ervoor = bord.Nu();
        NieuwForm form;
        form.show();
        VulIn(form, u"naam"_s, u"12"_s, u"14"_s);
        for (QWidget *control : {static_cast<QWidget *>(form.Text1), static_cast<QWidget *>(form.Combo1),
                                 static_cast<QWidget *>(form.Combo2), static_cast<QWidget *>(form.Option[0])})
            QTest::keyClick(control, Qt::Key_Return);
        QVERIFY(form.isVisible());
        QCOMPARE(bord.Veranderd(ervoor), QString());
    }

    void closingDuringTheSecondWaitChangesNothing()
    {
        Bord bord;
        const Stand ervoor = bord.Nu();
        NieuwForm form;
        form.show();
        VulIn(form, u"naam"_s, u"12"_s, u"14"_s);
        QTimer::singleShot(0, &form, [&form] { // the first wait; the next turn of events is in the second one
            QTimer::singleShot(0, &form, [&form] { form.Unload(); });
        });
        QVERIFY_THROWS_EXCEPTION(Afgebroken, form.OkKnop_Click());
        QVERIFY(form.Unloaded());
        QCOMPARE(bord.Veranderd(ervoor), QString());
        QCOMPARE(bord.Bank.TestKlok.Gewacht(), 0.4);
    }

    void cancelChangesNothing()
    {
        Bord bord;
        Vul(bord);
        const Stand ervoor = bord.Nu();
        NieuwForm form;
        VulIn(form, u"naam"_s, u"12"_s, u"14"_s, 3);
        QTest::keyClicks(form.Text1, u"typen"_s);
        form.CancelKnop->click();
        QVERIFY(form.Unloaded());
        QCOMPARE(bord.Bank.TestKlok.Gewacht(), 0.4);
        QCOMPARE(bord.Veranderd(ervoor), QString());
    }
};

RASTER_TEST(tst_NieuwForm)
#include "tst_NieuwForm.moc"

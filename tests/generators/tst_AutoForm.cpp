#include "generators/AutoForm.h"
#include "platform/Toeval.h"
#include "support/Venster.h"
#include "support/Verloop.h"
#include "support/Verwacht.h"

#include <QElapsedTimer>
#include <QMenuBar>
#include <QScrollBar>
#include <QTimer>

using namespace Qt::StringLiterals;

static const QRgb Achter = qRgb(220, 220, 240); // of the grid

/// The picture of a grid as it has to be: cell c, r (from 1) has its middle at c, r of so many + 1 equal parts.
static QImage GridBeeld(const QString &letters, int breedte, int hoogte, int punten)
{
    constexpr int Zijde = 305;
    QImage beeld = Doek(Zijde, Zijde, Achter);
    QPainter painter(&beeld);
    const QFont font = Lettertype(u"Arial"_s, punten, true);
    const QFontMetricsF maten(font);
    const auto plaats = [](double deel, int delen) { return deel * Zijde / (delen + 1); };
    painter.setFont(font);
    for (int i = 0; i < letters.size(); ++i) {
        const double x = plaats(i % breedte + 1, breedte) - maten.horizontalAdvance(letters[i]) / 2;
        const double y = plaats(i / breedte + 1, hoogte) - std::round(maten.ascent() + maten.descent()) / 2;
        painter.drawText(QPoint(qRound(x), qRound(y) + qRound(maten.ascent())), letters.mid(i, 1));
    }
    const auto lijn = [&](double x1, double y1, double x2, double y2) {
        const QPoint van(qRound(plaats(x1, breedte)), qRound(plaats(y1, hoogte)));
        const QPoint tot(qRound(plaats(x2, breedte)), qRound(plaats(y2, hoogte)));
        painter.fillRect(QRect(van, tot), QColor(150, 150, 150));
    };
    for (int r = 0; r <= hoogte; ++r)
        lijn(0.5, r + 0.5, breedte + 0.5, r + 0.5);
    for (int c = 0; c <= breedte; ++c)
        lijn(c + 0.5, 0.5, c + 0.5, hoogte + 0.5);
    return beeld;
}

/// The visible board with a character a cell, as it has to be.
static QImage BordBeeld(const QString &letters, int breedte, int hoogte, const QList<int> &banden = {})
{
    Verwacht beeld(Raster(breedte, hoogte, banden));
    for (int i = 0; i < letters.size(); ++i) {
        const QChar letter = letters[i];
        const int verschuiving = letter == u'W' ? -3 : letter == u'I' ? 4 : 0;
        beeld.Druk(letter == u'?' ? u"IJ"_s : QString(letter),
                   QPoint(i % breedte * 30 + 11 + verschuiving, i / breedte * 30 + 7), Lettertype(u"Arial"_s, 12, true),
                   qRgb(80, 80, 80));
    }
    return beeld.Beeld;
}

/// So many characters: the alphabet, the code of the long IJ and what else a word may have, again and again.
static QString Letters(int aantal)
{
    return u"WI?Éµ4'ABCDEFGHJKLMNOPQRSTUVXYZ"_s.repeated(aantal).left(aantal);
}

/// Whether a word can be read in a grid, in any of the eight directions.
static bool StaatIn(const QString &grid, int breedte, const QString &woord)
{
    const auto hoogte = static_cast<int>(grid.size()) / breedte;
    const auto leest = [&](int kolom, int rij, int dx, int dy) {
        return std::all_of(woord.begin(), woord.end(), [&](QChar letter) {
            const bool binnen = kolom >= 0 && kolom < breedte && rij >= 0 && rij < hoogte;
            const bool is = binnen && grid[rij * breedte + kolom] == letter;
            kolom += dx;
            rij += dy;
            return is;
        });
    };
    for (int i = 0; i < grid.size(); ++i)
        for (int richting = 0; richting < 9; ++richting)
            if (richting != 4 && leest(i % breedte, i / breedte, richting % 3 - 1, richting / 3 - 1))
                return true;
    return false;
}

static bool ZijnHoofdletters(const QString &tekst)
{
    return std::all_of(tekst.begin(), tekst.end(), [](QChar c) { return c >= u'A' && c <= u'Z'; });
}

static void VulIn(AutoForm &form, const QString &woorden, const QString &breedte, const QString &hoogte)
{
    form.Text1->SetText(woorden);
    form.Combo1->setEditText(breedte);
    form.Combo2->setEditText(hoogte);
}

/// The words that the engine has.
static QString Woorden(const AutoForm &form)
{
    QStringList woorden;
    for (const clsWord &woord : form.WordSearch.Words)
        woorden += woord.Word;
    return woorden.join(u'|');
}

static QString PastNiet(const QString &woord)
{
    return u"Het woord \""_s + woord +
           u"\" kan niet worden geplaatst, probeer het raster te vergroten of probeer het nogmaals."_s;
}

static void MaakActief(AutoForm &form)
{
    form.show();
    form.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&form));
}

/// The main window, and the window on top of it.
struct Blad
{
    Bord Scherm;
    AutoForm Form;

    Blad() { WoordzoekerRaster.clear(); }
    const QList<Bericht> &Gezien() const { return Scherm.Bank.Script.Gezien; }
};

class tst_AutoForm : public QObject
{
    Q_OBJECT
private slots:
    void controlsAndTheirPlaces()
    {
        Blad blad;
        QCOMPARE(Misplaatst(blad.Form, {{"picGrid", 180, 210, 4575, 4575},
                                        {"Text1", 4980, 210, 2700, 3750},
                                        {"Text2", 4980, 4050, 2430, 375},
                                        {"Label5", 4980, 4440},
                                        {"AddKnop", 7500, 4065, 930, 330},
                                        {"Label4", 8520, 4110},
                                        {"Label3", 7890, 240, 2010, 3000},
                                        {"Combo1", 180, 4890, 900, 315},
                                        {"Combo2", 1200, 4890, 900, 315},
                                        {"Label1", 180, 5280},
                                        {"OkKnop", 3795, 4890},
                                        {"Label2", 2760, 4950},
                                        {"CancelKnop", 8025, 5130, 0, 360},
                                        {"ExportKnop", 9030, 5130, 870, 360}}),
                 QString());
    }

    void theTabKeyGoesFromTheWordOn()
    {
        Blad blad;
        QCOMPARE(TabVolgorde(blad.Form), u"Text2 AddKnop Combo1 Combo2 OkKnop CancelKnop ExportKnop Text1"_s);
    }

    void theNamesForAScreenReader()
    {
        Blad blad;
        QCOMPARE(
            Leesnamen(blad.Form),
            (QStringList{u"AddKnop=Woord toevoegen"_s, u"CancelKnop=Annuleren"_s, u"Combo1=Breedte"_s,
                         u"Combo2=Hoogte"_s, u"ExportKnop=Puzzel exporteren naar hoofdveld"_s, u"OkKnop=Draw puzzel"_s,
                         u"Text1=Woordenlijst"_s, u"Text2=Woord invoer"_s, u"picGrid=Puzzelveld"_s}));
    }

    void asItOpens()
    {
        Blad blad;
        AutoForm &form = blad.Form;
        QCOMPARE(form.windowTitle(), u"Automatische woordzoeker"_s);
        QCOMPARE(form.palette().color(QPalette::Window), QColor(230, 230, 190));
        QCOMPARE(form.picGrid->parentWidget()->size(), QSize((10200 - 90) / 15, (6450 - 450 - 300) / 15));
        QCOMPARE(form.maximumWidth(), (10200 - 90) / 15); // it grows no further
        QCOMPARE(form.Text1->Text() + form.Text2->text(), QString());
        QCOMPARE(form.Text1->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
        QCOMPARE(Items(*form.Combo1).join(u' '), u"9 10 11 12 13 14 15 16"_s);
        QCOMPARE(Items(*form.Combo2).join(u' '), u"9 10 11 12 13 14 15 16 17 18 19"_s);
        QCOMPARE(form.Combo1->currentIndex(), 3);
        QCOMPARE(form.Combo2->currentIndex(), 6);
        QCOMPARE(form.Combo1->currentText() + u'x' + form.Combo2->currentText(), u"12x15"_s);
        QVERIFY(form.Combo1->isEditable() && form.Combo2->isEditable());
        QCOMPARE(form.ExportKnop->toolTip(), u" Puzzel exporteren naar hoofdveld "_s);
        QCOMPARE(form.Label1->Caption(), u"Breedte          Hoogte"_s);
        QCOMPARE(form.Label2->Caption(), u"Draw puzzel"_s);
        QCOMPARE(form.Label4->Caption(), u"Woord toevoegen"_s);
        QCOMPARE(form.Label5->Caption(), u"Woord invoer (0)"_s);
        QCOMPARE(form.Label3->Caption(),
                 u"Typ steeds een woord in de tekstbalk en klik op de button 'Add' om het woord toe te voegen aan de "
                 "lijst. Voor het maken van een nieuwe puzzel klik dan linksboven op het menuitem "
                 "'Bewerken/Nieuwe puzzel'\n\nDe lange 'IJ' wordt tijdelijk vervangen door het vraagteken ? in het "
                 "linker puzzelveld."_s);
        QCOMPARE(PlaatjesOp(form), u"AddKnop knop-toevoegen, CancelKnop knop-annuleren, ExportKnop knop-export, OkKnop "
                                   "knop-ok"_s);
    }

    void itsColours()
    {
        Blad blad;
        AutoForm &form = blad.Form;
        const auto kleuren = [](const QWidget &box) {
            return box.palette().color(QPalette::Base).name() + u' ' + box.palette().color(QPalette::Text).name();
        };
        QCOMPARE(kleuren(*form.Text1), u"#c8c8c8 #000000"_s);
        QCOMPARE(kleuren(*form.Text2), u"#500000 #e6e6e6"_s);
        QCOMPARE(kleuren(*form.Combo1), u"#1e0000 #e6e6e6"_s);
        QCOMPARE(kleuren(*form.Combo2), u"#1e0000 #e6e6e6"_s);
        QCOMPARE(form.picGrid->Image(), Doek(305, 305, Achter));
        QCOMPARE(form.picGrid->FontName, u"Arial"_s);
        QVERIFY(form.picGrid->FontBold);
        QVERIFY(form.WordSearch.Canvas == form.picGrid);
        QCOMPARE(form.WordSearch.FontColor, qRgb(0, 0, 0));
        QVERIFY(!form.WordSearch.GridColor.isValid());
    }

    void itsMenu()
    {
        Blad blad;
        const QList<QAction *> menus = blad.Form.findChild<QMenuBar *>()->actions();
        QCOMPARE(menus.size(), 1);
        const QMenu *menu = menus[0]->menu();
        QCOMPARE(menu->objectName() + u'=' + menu->title(), u"Edit=Bewerken"_s);
        QStringList items;
        for (const QAction *item : menu->actions())
            items += item->objectName() + u'=' + (item->isSeparator() ? u"-"_s : item->text());
        QCOMPARE(items.join(u'|'), u"EditNew=Nieuwe puzzel|EditStreep1=-|EditVoorbeeld=Voorbeeld woorden"_s);
    }

    void theSampleWords()
    {
        Blad blad;
        MaakActief(blad.Form);
        blad.Form.Text1->SetText(u"WEG"_s);
        blad.Form.Text2->setText(u"blijft"_s);
        blad.Form.Combo2->setFocus();
        blad.Form.OkKnop_Click();
        const QImage beeld = blad.Form.picGrid->Image();
        blad.Form.EditVoorbeeld->trigger();
        QCOMPARE(blad.Form.picGrid->Image(), beeld);
        QVERIFY(blad.Form.Combo2->hasFocus()); // neither moves it
        QCOMPARE(blad.Form.Text1->Text(),
                 u"Amsterdam\r\nRotterdam\r\nAssen\r\nArnhem\r\nDoetinchem\r\nIJsselstein\r\nMaastricht\r\n"
                 "Leeuwarden\r\nAlmelo\r\nGroningen\r\nUtrecht\r\nEindhoven\r\nOmmen\r\nUlft\r\nNijmegen\r\nUrk"_s);
        QCOMPARE(blad.Form.Text2->text(), u"blijft"_s);
    }

    void newEmptiesTheWordsAndTheGrid()
    {
        Blad blad;
        AutoForm &form = blad.Form;
        MaakActief(form);
        VulIn(form, u"AAP"_s, u"10"_s, u"11"_s);
        form.Text2->setText(u"woord"_s);
        form.OkKnop_Click();
        QCOMPARE(form.Text2->text(), u"woord"_s);
        form.OkKnop->setFocus();
        const Stand ervoor = blad.Scherm.Nu();
        const QString grid = WoordzoekerRaster;
        form.EditNew->trigger();
        QCOMPARE(form.Text1->Text() + form.Text2->text(), QString());
        QVERIFY(form.Text2->hasFocus());
        QCOMPARE(form.picGrid->Image(), Doek(305, 305, Achter));
        QCOMPARE(form.Label5->Caption(), u"Woord invoer (0)"_s);
        QCOMPARE(form.Combo1->currentText() + u'x' + form.Combo2->currentText(), u"10x11"_s);
        QCOMPARE(WoordzoekerRaster, grid);
        QCOMPARE(blad.Scherm.Veranderd(ervoor), QString());
    }

    void theLengthOfTheWordIsShown_data()
    {
        QTest::addColumn<QString>("woord");
        QTest::addColumn<QString>("opschrift");
        Geval("one", "a", "Woord invoer (1)");
        Geval("blanks count", "  aap ", "Woord invoer (6)");
        Geval("the long IJ is two", "IJs", "Woord invoer (3)");
        Geval("long", QString(100, u'x'), "Woord invoer (100)");
    }
    void theLengthOfTheWordIsShown()
    {
        QFETCH(QString, woord);
        Blad blad;
        QTest::keyClicks(blad.Form.Text2, woord);
        QTEST(blad.Form.Label5->Caption(), "opschrift");
        blad.Form.Text2->clear();
        QCOMPARE(blad.Form.Label5->Caption(), u"Woord invoer (0)"_s);
    }

    void aWordIsAdded_data()
    {
        QTest::addColumn<QString>("lijst");
        QTest::addColumn<QString>("woord");
        QTest::addColumn<QString>("wordt");
        Geval("first", "", "Aap", "AAP");
        Geval("second", "AAP", "noot", "AAP\r\nNOOT");
        Geval("the list itself stays as it is", "Nijmegen", "mies", "Nijmegen\r\nMIES");
        Geval("blanks at both ends", "AAP", "  noot   ", "AAP\r\nNOOT");
        Geval("a blank within", "", " een twee ", "EEN TWEE");
        Geval("a tab is no blank", "", "\taap", "\tAAP");
        Geval("accents", "", "reünie", "REÜNIE");
        Geval("the long IJ", "", "ijs", "IJS");
        Geval("behind a line end", "AAP\r\n", "noot", "AAP\r\n\r\nNOOT");
        Geval("once more", "AAP", "aap", "AAP\r\nAAP");
        Geval("a question mark", "", "wat?", "WAT?");
        Geval("nothing", "AAP", "", "AAP");
        Geval("nothing to nothing", "", "", "");
        Geval("blanks only", "AAP", "   ", "AAP");
    }
    void aWordIsAdded()
    {
        QFETCH(QString, lijst);
        QFETCH(QString, woord);
        Blad blad;
        AutoForm &form = blad.Form;
        MaakActief(form);
        form.Text1->SetText(lijst);
        form.Text2->setText(woord);
        form.AddKnop->setFocus();
        KlikMetDruk(*form.AddKnop, [&] {
            QCOMPARE(form.Text1->Text(), lijst);
            QCOMPARE(form.Text2->text(), woord);
        });
        QTEST(form.Text1->Text(), "wordt");
        QCOMPARE(form.Text2->text(), QString());
        QCOMPARE(form.Label5->Caption(), u"Woord invoer (0)"_s);
        QVERIFY(form.Text2->hasFocus());
        QVERIFY(blad.Gezien().isEmpty());
    }

    void theWordThatWasAddedIsInSight()
    {
        Blad blad;
        AutoForm &form = blad.Form;
        form.show();
        form.Text1->SetText(u"AAP\r\n"_s.repeated(50));
        form.Text2->setText(u"noot"_s);
        form.AddKnop->click();
        QTextCursor einde(form.Text1->document());
        einde.movePosition(QTextCursor::End);
        QVERIFY(form.Text1->viewport()->rect().contains(form.Text1->cursorRect(einde)));
    }

    void whatIsTypedDuringThePressCounts_data()
    {
        QTest::addColumn<QString>("gevolg");
        Geval("AddKnop", "NOOT MIES");
        Geval("OkKnop", "NOOT 160 10");
        Geval("ExportKnop", "16x10 -|-|NOOT|-");
    }
    void whatIsTypedDuringThePressCounts()
    {
        Blad blad;
        AutoForm &form = blad.Form;
        VulIn(form, u"AAP"_s, u"9"_s, u"9"_s);
        auto *knop = Vind<ImageButton>(form, QLatin1String(QTest::currentDataTag()));
        KlikMetDruk(*knop, [&] {
            VulIn(form, u"NOOT"_s, u"16"_s, u"10"_s);
            form.Text2->setText(u"mies"_s);
        });
        QString gevolg = form.Text1->Text().replace("\r\n"_L1, " "_L1);
        if (knop == form.OkKnop)
            gevolg = u"%1 %2 %3"_s.arg(Woorden(form)).arg(WoordzoekerRaster.size()).arg(form.picGrid->FontSize);
        if (knop == form.ExportKnop)
            gevolg = u"%1x%2 "_s.arg(BoardWidth).arg(BoardHeight) + blad.Scherm.Rij(0);
        QTEST(gevolg, "gevolg");
    }

    void theSizeOfTheLetters_data()
    {
        QTest::addColumn<QString>("breedte");
        QTest::addColumn<QString>("hoogte");
        QTest::addColumn<double>("punten");
        Geval("81", "9", "9", 12.0);
        Geval("119", "7", "17", 12.0);
        Geval("120", "10", "12", 11.0);
        Geval("159", "3", "53", 11.0);
        Geval("160", "16", "10", 10.0);
        Geval("180", "12", "15", 10.0);
        Geval("199", "49.75", "4", 10.0);
        Geval("200", "10", "20", 9.0);
        Geval("239", "4", "59.75", 9.0);
        Geval("240", "16", "15", 8.0);
        Geval("304", "16", "19", 8.0);
        Geval("32761", "181", "181", 8.0);
    }
    void theSizeOfTheLetters()
    {
        QFETCH(QString, breedte);
        QFETCH(QString, hoogte);
        Blad blad;
        VulIn(blad.Form, u"AAP"_s, breedte, hoogte);
        blad.Form.picGrid->FontSize = 99;
        blad.Form.OkKnop->click();
        QVERIFY(blad.Gezien().isEmpty());
        QTEST(blad.Form.picGrid->FontSize, "punten");
        QCOMPARE(blad.Form.picGrid->FontName, u"Arial"_s);
        QVERIFY(blad.Form.picGrid->FontBold);
    }

    void theSizeOfTheLettersIsThatOfSizesThatAreRefusedToo()
    {
        Blad blad;
        VulIn(blad.Form, u"AAP"_s, u"16"_s, u"19"_s);
        blad.Form.OkKnop->click();
        QCOMPARE(blad.Form.picGrid->FontSize, 8.0);
        VulIn(blad.Form, u"NOOT"_s, u"1"_s, u"19"_s);
        blad.Form.OkKnop->click();
        QCOMPARE(blad.Gezien().size(), 1);
        QCOMPARE(blad.Form.picGrid->FontSize, 12.0);
        QCOMPARE(Woorden(blad.Form), u"AAP"_s); // the words come behind them
    }

    void theLongIJWhileTheEngineWorks_data()
    {
        QTest::addColumn<QString>("lijst");
        QTest::addColumn<QString>("meanwhile");
        QTest::addColumn<QString>("woorden");
        QTest::addColumn<QString>("daarna");
        Geval("capitals", "IJSBEER", "?SBEER", "?SBEER", "IJSBEER");
        Geval("twice", "IJIJ\r\nRIJ", "??\r\nR?", "??|R?", "IJIJ\r\nRIJ");
        Geval("capitals at the front", "IJsselstein", "?sselstein", "?SSELSTEIN", "IJsselstein");
        Geval("small letters", "Nijmegen", "Nijmegen", "NIJMEGEN", "Nijmegen");
        Geval("half and half", "Ijs\r\niJs", "Ijs\r\niJs", "IJS|IJS", "Ijs\r\niJs");
        Geval("a question mark", "WAT?", "WAT?", "WAT?", "WATIJ");
        Geval("over a line end", "I\r\nJS", "I\r\nJS", "I|JS", "I\r\nJS");
    }
    void theLongIJWhileTheEngineWorks()
    {
        QFETCH(QString, lijst);
        QFETCH(QString, meanwhile);
        Blad blad;
        AutoForm &form = blad.Form;
        VulIn(form, lijst + u"\r\nX"_s, u"9"_s, u"10"_s);
        QStringList gezien;
        form.WordSearch.CannotFitWord = [&](QString &woord, bool &gaDoor) { // a single letter fits nowhere
            if (woord == "X"_L1)
                gezien += form.Text1->Text().chopped(3);
            gaDoor = true;
        };
        form.OkKnop_Click();
        QCOMPARE(gezien, QStringList{meanwhile});
        QTEST(Woorden(form).chopped(2), "woorden");
        QTEST(form.Text1->Text().chopped(3), "daarna");
    }

    void addedWordsHaveTheirDigraphJoined()
    {
        Blad blad;
        AutoForm &form = blad.Form;
        for (const QString &woord : {u"ijsselstein"_s, u"Nijmegen"_s}) {
            form.Text2->setText(woord);
            form.AddKnop_Click();
        }
        form.OkKnop_Click();
        QCOMPARE(Woorden(form), u"?SSELSTEIN|N?MEGEN"_s);
        QVERIFY(StaatIn(WoordzoekerRaster, 12, u"?SSELSTEIN"_s)); // ten cells
        QCOMPARE(form.Text1->Text(), u"IJSSELSTEIN\r\nNIJMEGEN"_s);
    }

    void theSizesGoToTheEngine()
    {
        Blad blad;
        VulIn(blad.Form, u"AAP"_s, u"10"_s, u"13"_s);
        blad.Form.OkKnop_Click();
        QCOMPARE(blad.Form.WordSearch.GridWidth(), qint16(10));
        QCOMPARE(blad.Form.WordSearch.GridHeight(), qint16(13));
        QCOMPARE(WoordzoekerRaster.size(), 130);
        VulIn(blad.Form, u"NOOT"_s, u"16.5"_s, u" 9x"_s);
        blad.Form.OkKnop_Click();
        QCOMPARE(blad.Form.WordSearch.GridWidth(), qint16(16));
        QCOMPARE(WoordzoekerRaster.size(), 16 * 9);
        QCOMPARE(Woorden(blad.Form), u"NOOT"_s); // and no more those of before
    }

    void aWordThatDoesNotFitIsTold()
    {
        Blad blad;
        AutoForm &form = blad.Form;
        const QString lijst = u"AAP\r\nABCDEFGHIJKLMNOPQRS\r\nNOOT\r\nIJIJIJIJIJIJIJIJIJIJIJ"_s;
        VulIn(form, lijst, u"10"_s, u"10"_s);
        form.OkKnop->click();
        QCOMPARE(blad.Gezien().size(), 2);
        QCOMPARE(blad.Gezien()[0].Tekst, PastNiet(u"ABCDEFGH?KLMNOPQRS"_s));
        QCOMPARE(blad.Gezien()[1].Tekst, PastNiet(u"???????????"_s));
        for (const Bericht &bericht : blad.Gezien()) {
            QCOMPARE(bericht.Titel, u"Rasteratelier"_s); // it has none of its own
            QCOMPARE(bericht.Plaatje, Icoon::Informatie);
            QCOMPARE(bericht.Soort, Knoppen::Ok);
        }
        QCOMPARE(form.Text1->Text(), lijst);
        QVERIFY(StaatIn(WoordzoekerRaster, 10, u"AAP"_s) && StaatIn(WoordzoekerRaster, 10, u"NOOT"_s));
        QVERIFY(WoordzoekerRaster.size() == 100 && ZijnHoofdletters(WoordzoekerRaster));
        QCOMPARE(form.picGrid->Image(), GridBeeld(WoordzoekerRaster, 10, 10, 12));
    }

    void itIsToldWhileTheGridIsMade()
    {
        Blad blad;
        AutoForm &form = blad.Form;
        VulIn(form, u"X\r\nIJS\r\nY"_s, u"9"_s, u"9"_s);
        form.OkKnop_Click();
        const QImage beeld = form.picGrid->Image();
        const QString grid = WoordzoekerRaster;
        Verloop verloop([&] {
            const bool isOud = form.picGrid->Image() == beeld && WoordzoekerRaster == grid;
            return form.Text1->Text().replace("\r\n"_L1, " "_L1) + (isOud ? u" oud"_s : u" nieuw"_s);
        });
        form.OkKnop_Click();
        QCOMPARE(verloop.Stappen.join(u'\n'), u"0.2 s | X IJS Y oud\nRasteratelier: "_s + PastNiet(u"X"_s) +
                                                  u" | X ?S Y oud\nRasteratelier: "_s + PastNiet(u"Y"_s) +
                                                  u" | X ?S Y oud"_s);
        QVERIFY(form.picGrid->Image() != beeld && WoordzoekerRaster != grid);
    }

    void whatIsNoWordIsToldToo_data()
    {
        QTest::addColumn<QString>("lijst");
        QTest::addColumn<QString>("woord");
        Geval("nothing", "", "");
        Geval("a line end at the end", "AAP\r\n", "");
        Geval("an empty line", "AAP\r\n\r\nNOOT", "");
        Geval("a single letter", "A", "A");
        Geval("a blank within", "EEN TWEE", "EEN TWEE");
        Geval("a blank in front", " AAP\r\nAAP ", " AAP"); // one behind it takes a cell that is filled later
    }
    void whatIsNoWordIsToldToo()
    {
        QFETCH(QString, lijst);
        QFETCH(QString, woord);
        Blad blad;
        VulIn(blad.Form, lijst, u"12"_s, u"15"_s);
        blad.Form.OkKnop->click();
        QCOMPARE(blad.Gezien().size(), 1);
        QCOMPARE(blad.Gezien()[0].Tekst, PastNiet(woord));
        QVERIFY(WoordzoekerRaster.size() == 180 && ZijnHoofdletters(WoordzoekerRaster));
        QCOMPARE(blad.Form.Text1->Text(), lijst);
    }

    void fiveHundredWords()
    {
        Blad blad;
        AutoForm &form = blad.Form;
        QStringList woorden;
        for (int i = 0; i < 500; ++i)
            woorden += u"QX"_s + QChar(u'A' + i / 26) + QChar(u'A' + i % 26);
        VulIn(form, woorden.join(u"\r\n"_s), u"16"_s, u"19"_s);
        QElapsedTimer tijd;
        tijd.start();
        form.OkKnop->click();
        QVERIFY2(tijd.elapsed() < 5000, qPrintable(QString::number(tijd.elapsed())));
        woorden.replaceInStrings(u"IJ"_s, u"?"_s); // of one: QXIJ
        QCOMPARE(Woorden(form), woorden.join(u'|'));
        QStringList mist;
        for (const Bericht &bericht : blad.Gezien())
            mist += bericht.Tekst.section(u'"', 1, 1);
        QVERIFY(mist.size() > 500 - 304 / 4 - 1 && mist.size() < 500);
        for (const QString &woord : woorden)
            QVERIFY(mist.contains(woord) || StaatIn(WoordzoekerRaster, 16, woord));
        form.ExportKnop->click();
        QCOMPARE(blad.Scherm.Venster.Label11->Caption(), u"500 Items"_s);
    }

    void eachDrawGivesAnotherGrid()
    {
        Blad blad;
        AutoForm &form = blad.Form;
        form.EditVoorbeeld->trigger();
        const auto teken = [&] {
            form.OkKnop_Click();
            return qMakePair(WoordzoekerRaster, form.picGrid->Image());
        };
        const auto eerste = teken(), tweede = teken();
        QVERIFY(eerste.first != tweede.first && eerste.second != tweede.second);
        Toeval::Zaad(7);
        const auto gezaaid = teken(), verder = teken();
        QVERIFY(gezaaid.first != verder.first); // the series isn't begun again
        Toeval::Zaad(7);
        QVERIFY(teken() == gezaaid);
    }

    void theGrid_data()
    {
        QTest::addColumn<int>("breedte");
        QTest::addColumn<int>("hoogte");
        QTest::addColumn<int>("punten");
        Geval("small", 10, 10, 12); // sizes of which no letter's place is half a pixel
        Geval("broad", 13, 11, 11);
        Geval("as it opens", 12, 15, 10);
        Geval("wide", 16, 13, 9);
        Geval("high", 14, 18, 8);
    }
    void theGrid()
    {
        QFETCH(int, breedte);
        QFETCH(int, hoogte);
        QFETCH(int, punten);
        Blad blad;
        AutoForm &form = blad.Form;
        Toeval::Zaad(3);
        form.picGrid->BoxFull(0, 0, 5000, 5000, qRgb(1, 2, 3)); // what stood there goes
        VulIn(form, u"IJSBEER\r\nWINTER"_s, QString::number(breedte), QString::number(hoogte));
        form.OkKnop_Click();
        QCOMPARE(Verschil(form.picGrid->Image(), GridBeeld(WoordzoekerRaster, breedte, hoogte, punten)), QString());
        form.OkKnop_Click(); // the lines of the first have left their colour
        QVERIFY(WoordzoekerRaster.contains(u'?'));
        const QImage grid = form.picGrid->Image();
        QCOMPARE(Verschil(grid, GridBeeld(WoordzoekerRaster, breedte, hoogte, punten)), QString());
        for (int i = 0; i < breedte * hoogte; ++i) { // a letter lies in the middle of its cell, clear of the lines
            const double dx = 305.0 / (breedte + 1), dy = 305.0 / (hoogte + 1);
            const QPointF midden((i % breedte + 1) * dx, (i / breedte + 1) * dy);
            const QRect cel(QPoint(int(midden.x() - dx / 2) + 2, int(midden.y() - dy / 2) + 2),
                            QPoint(int(midden.x() + dx / 2) - 1, int(midden.y() + dy / 2) - 1));
            const QRectF inkt = InktVlak(grid, cel, Achter);
            QVERIFY(qAbs(inkt.center().x() - midden.x()) < 2 && qAbs(inkt.center().y() - midden.y()) < 3);
        }
    }

    void whatIsNoSizeDrawsNothing_data()
    {
        QTest::addColumn<QString>("breedte");
        QTest::addColumn<QString>("hoogte");
        QTest::addColumn<QString>("melding");
        const QString breed = u"Fout -2147221502 bij 'Draw puzzel': "
                              "You have entered an invalid grid width, it must be more then 1."_s;
        const QString hoog = u"Fout -2147221503 bij 'Draw puzzel': "
                             "You have entered an invalid grid height, it must be more then 1."_s;
        const QString overloop = u"Fout 6 bij 'Draw puzzel': Overloop: het getal is te groot of te klein"_s;
        for (const QString &tekst : {u"0"_s, u"1"_s, u"-3"_s, u"abc"_s, u"1e9"_s, u""_s, u"1.5x"_s}) {
            const bool isTwee = tekst == "1.5x"_L1; // rounded
            Geval("width " + tekst.toUtf8(), tekst, u"15"_s, isTwee ? QString() : breed);
            Geval("height " + tekst.toUtf8(), u"12"_s, tekst, isTwee ? QString() : hoog);
        }
        Geval("width 40000", u"40000"_s, u"15"_s, overloop + u" (40000)."_s);
        Geval("height 40000", u"12"_s, u"40000"_s, overloop + u" (40000)."_s);
        Geval("both wrong", u"0"_s, u"0"_s, hoog);
        Geval("too many cells", u"182"_s, u"182"_s, overloop + u'.');
    }
    void whatIsNoSizeDrawsNothing()
    {
        QFETCH(QString, breedte);
        QFETCH(QString, hoogte);
        QFETCH(QString, melding);
        Blad blad;
        AutoForm &form = blad.Form;
        form.show();
        VulIn(form, u"IJS"_s, u"12"_s, u"15"_s);
        form.OkKnop->click();
        const QImage beeld = form.picGrid->Image();
        const QString grid = WoordzoekerRaster;
        const Stand ervoor = blad.Scherm.Nu();
        VulIn(form, u"IJS"_s, breedte, hoogte);
        form.OkKnop->click();
        QCOMPARE(form.Text1->Text(), u"IJS"_s);
        QCOMPARE(blad.Gezien().size(), melding.isEmpty() ? 0 : 1);
        QVERIFY(form.isVisible() && !form.Unloaded());
        QCOMPARE(blad.Scherm.Veranderd(ervoor), QString());
        QCOMPARE(form.picGrid->Image() == beeld && WoordzoekerRaster == grid, !melding.isEmpty());
        if (!melding.isEmpty()) {
            QCOMPARE(blad.Gezien()[0].Tekst, melding);
            QCOMPARE(blad.Gezien()[0].Plaatje, Icoon::Kritiek);
        }
        VulIn(form, u"IJS"_s, u"9"_s, u"9"_s);
        form.OkKnop->click();
        QCOMPARE(WoordzoekerRaster.size(), 81);
    }

    void theExport()
    {
        Blad blad;
        MainForm &main = blad.Scherm.Venster;
        blad.Scherm.AllesAnders();
        main.VoegRijenToe({{u"A-01 / 1-H"_s, {}, u"aap"_s, {}}});
        main.ListView1_ItemClick();
        blad.Scherm.Klik(Qt::LeftButton, 1, 1);
        main.SoortPlaatsing->close();
        main.Pic->BoxFull(0, 0, 1e5, 1e5, qRgb(1, 2, 3));
        main.PicGroot->BoxFull(0, 0, 1e6, 1e6, qRgb(1, 2, 3));
        QVERIFY(!main.Line1->isHidden() && !main.Shape1->isHidden());
        main.Pic->FontBold = false;
        main.GeefWoorden({u"blijft"_s});
        main.CopyLabel->SetCaption(u"BLIJFT"_s);
        VakZwart[20] = true;
        PijlSoort = 3;
        const QString letter = Lettersoort(*main.PicGroot);
        PuzzelNaam = u"blijft"_s;
        WoordzoekerRaster = Letters(180);
        VulIn(blad.Form, u"Ijs\r\nRIJ\r\nwat?\r\n kaap \r\nNijmegen\r\nNijmegen"_s, u"12"_s, u"15"_s);
        const Stand ervoor = blad.Scherm.Nu();
        KlikMetDruk(*blad.Form.ExportKnop, [&] { QCOMPARE(blad.Scherm.Veranderd(ervoor), QString()); });

        QVERIFY(blad.Form.Unloaded() && blad.Gezien().isEmpty());
        QCOMPARE(QSize(BoardWidth, BoardHeight), QSize(12, 15));
        QCOMPARE(PuzzelType, Woordzoeker);
        QCOMPARE(main.windowTitle(), u"Raster Atelier (12x15)"_s);
        QCOMPARE(main.Label12->Caption(), u"Soortpuzzel : Woordzoeker"_s);
        QCOMPARE(Verschil(blad.Scherm.Pic(), BordBeeld(Letters(180), 12, 15)), QString());
        QCOMPARE(Verschil(blad.Scherm.Groot(), Tegels(main.PicVak->Image(), 12, 15)), QString()); // without a letter
        QCOMPARE(main.Pic->FontSize, 12.0);
        QCOMPARE(main.Pic->ForeColor, qRgb(80, 80, 80));
        QCOMPARE(Lettersoort(*main.PicGroot), letter);
        QStringList rijen;
        for (int i = 0; i < main.ListView1->topLevelItemCount(); ++i)
            rijen += blad.Scherm.Rij(i);
        QCOMPARE(rijen.join(u' '), u"-|-|IJS|- -|-|RIJ|- -|-|WATIJ|- -|-| KAAP |- -|-|NIJMEGEN|- -|-|NIJMEGEN|-"_s);
        QCOMPARE(main.Label11->Caption(), u"6 Items"_s);
        QVERIFY(main.Line1->isHidden());
        QCOMPARE(blad.Scherm.Veranderd(ervoor),
                 u"BoardHeight BoardWidth Frame8 Label1 Label11 Label12 Line1 ListView1 Main Pic PicGroot PicO PicR "
                 "PuzzelType Shape1"_s); // not PuzzelGewijzigd, not the name
        QCOMPARE(WoordzoekerRaster, Letters(180));
    }

    void theExportLeavesTheFontOfTheBoard()
    {
        Blad blad;
        blad.Scherm.Venster.Pic->FontName = u"Courier New"_s;
        blad.Form.ExportKnop->click();
        QCOMPARE(Lettersoort(*blad.Scherm.Venster.Pic), u"Courier New 12 1 ff505050"_s);
    }

    void theExportLeavesWhetherThePuzzleIsChanged()
    {
        for (const bool gewijzigd : {false, true}) {
            Blad blad;
            PuzzelGewijzigd = gewijzigd;
            blad.Form.ExportKnop->click();
            QCOMPARE(PuzzelGewijzigd, gewijzigd);
        }
    }

    void theExportedGridIsTheOneThatWasDrawn()
    {
        Blad blad;
        VulIn(blad.Form, u"IJSBEER\r\nWINTER"_s, u"10"_s, u"11"_s);
        blad.Form.OkKnop->click();
        blad.Form.Unload();
        AutoForm nieuwe; // the grid outlives the window that made it, and isn't shown in another one
        QCOMPARE(nieuwe.picGrid->Image(), Doek(305, 305, Achter));
        QCOMPARE(nieuwe.Combo1->currentText() + u'x' + nieuwe.Combo2->currentText(), u"12x15"_s);
        nieuwe.Combo1->setEditText(u"10"_s);
        nieuwe.Combo2->setEditText(u"11"_s);
        nieuwe.ExportKnop->click();
        QVERIFY(WoordzoekerRaster.size() == 110 && WoordzoekerRaster.contains(u'?'));
        QCOMPARE(Verschil(blad.Scherm.Pic(), BordBeeld(WoordzoekerRaster, 10, 11)), QString());
        QCOMPARE(blad.Scherm.Rij(0), u"-|-||-"_s); // its list is empty: one line, an empty one
        QCOMPARE(blad.Scherm.Venster.Label11->Caption(), u"1 Items"_s);
    }

    void theSizesAndTheListOfTheExportCountNotThoseOfTheDrawing()
    {
        Blad blad;
        VulIn(blad.Form, u"IJSBEER\r\nWINTER"_s, u"12"_s, u"15"_s);
        blad.Form.OkKnop->click();
        VulIn(blad.Form, u"AAP"_s, u"10"_s, u"11"_s);
        blad.Form.ExportKnop->click();
        QCOMPARE(WoordzoekerRaster.size(), 180);
        QCOMPARE(QSize(BoardWidth, BoardHeight), QSize(10, 11));
        QCOMPARE(Verschil(blad.Scherm.Pic(), BordBeeld(WoordzoekerRaster.left(110), 10, 11)), QString());
        QCOMPARE(blad.Scherm.Rij(0) + blad.Scherm.Rij(1), u"-|-|AAP|-"_s);

        AutoForm tweede; // over the word search that is on the board now
        VulIn(tweede, u"NOOT\r\nMIES"_s, u"16"_s, u"9"_s);
        tweede.ExportKnop->click();
        QCOMPARE(Verschil(blad.Scherm.Pic(), BordBeeld(WoordzoekerRaster.left(144), 16, 9)), QString());
        QCOMPARE(blad.Scherm.Rij(0) + blad.Scherm.Rij(1) + blad.Scherm.Rij(2), u"-|-|NOOT|--|-|MIES|-"_s);
        QCOMPARE(blad.Scherm.Venster.Label11->Caption(), u"2 Items"_s);
    }

    void aLineEndAtTheEndIsARow()
    {
        Blad blad;
        VulIn(blad.Form, u"AAP\r\n"_s, u"9"_s, u"9"_s);
        blad.Form.ExportKnop->click();
        QCOMPARE(blad.Scherm.Rij(0) + blad.Scherm.Rij(1) + blad.Scherm.Rij(2), u"-|-|AAP|--|-||-"_s);
    }

    void theExportTakesWhatGridThereIs_data()
    {
        QTest::addColumn<int>("letters");
        QTest::addColumn<QString>("breedte");
        QTest::addColumn<QString>("hoogte");
        QTest::addColumn<QSize>("maat");
        Geval("none", 0, "12", "15", QSize(12, 15));
        Geval("larger", 180, "9", "10", QSize(9, 10));
        Geval("smaller", 100, "16", "19", QSize(16, 19));
        Geval("one letter", 1, "9", "9", QSize(9, 9));
        Geval("rounded to even", 180, "10.5", "16.5", QSize(10, 16));
        Geval("a board without cells", 180, "0", "0", QSize(0, 0));
        Geval("without columns", 180, "0", "9", QSize(0, 9));
        Geval("without rows", 180, "9", "0", QSize(9, 0));
    }
    void theExportTakesWhatGridThereIs()
    {
        QFETCH(int, letters);
        QFETCH(QString, breedte);
        QFETCH(QString, hoogte);
        QFETCH(QSize, maat);
        Blad blad;
        WoordzoekerRaster = Letters(letters);
        for (PictureBox *box : {blad.Scherm.Venster.Pic, blad.Scherm.Venster.PicGroot})
            box->BoxFull(0, 0, 1e6, 1e6, qRgb(1, 2, 3)); // the board starts anew, also in the size that it has
        VulIn(blad.Form, u"AAP"_s, breedte, hoogte);
        blad.Form.ExportKnop->click();
        QVERIFY(blad.Gezien().isEmpty() && blad.Form.Unloaded());
        const QString past = WoordzoekerRaster.left(maat.width() * maat.height());
        QCOMPARE(Verschil(blad.Scherm.Pic(), BordBeeld(past, maat.width(), maat.height())), QString());
        QCOMPARE(blad.Scherm.Groot(), Tegels(blad.Scherm.Venster.PicVak->Image(), maat.width(), maat.height()));
        QCOMPARE(QSize(BoardWidth, BoardHeight), maat);
    }

    void whatIsNoSizeKeepsThePuzzle_data()
    {
        QTest::addColumn<QString>("breedte");
        QTest::addColumn<QString>("hoogte");
        QTest::addColumn<QString>("melding");
        const QString typen = u"13 bij 'Puzzel exporteren naar hoofdveld': Typen komen niet overeen: hier hoort een "
                              "getal"_s;
        const QString negatief =
            u"380 bij 'Puzzel exporteren naar hoofdveld': Ongeldige waarde (een negatieve maat)."_s;
        const QString vol = u"7 bij 'Puzzel exporteren naar hoofdveld': Onvoldoende geheugen (een te grote "
                            "afbeelding)."_s;
        Geval("negative width", "-3", "15", negatief);
        Geval("negative height", "12", "-3", negatief);
        Geval("word for a width", "abc", "15", typen + u" (abc)."_s);
        Geval("word for a height", "12", "abc", typen + u" (abc)."_s);
        Geval("no width", "", "15", typen + u'.');
        Geval("no height", "12", "", typen + u'.');
        Geval("huge width", "1e9", "15", vol);
        Geval("huge height", "12", "1e9", vol);
        Geval("wide", "40000", "15", vol);
        Geval("high", "12", "40000", vol);
    }
    void whatIsNoSizeKeepsThePuzzle()
    {
        QFETCH(QString, breedte);
        QFETCH(QString, hoogte);
        QFETCH(QString, melding);
        Blad blad;
        blad.Form.show();
        WoordzoekerRaster = Letters(180);
        VulIn(blad.Form, u"AAP"_s, breedte, hoogte);
        const Stand ervoor = blad.Scherm.Nu();
        blad.Form.ExportKnop->click();
        QCOMPARE(blad.Gezien().size(), 1);
        QCOMPARE(blad.Gezien()[0].Tekst, u"Fout "_s + melding);
        QCOMPARE(blad.Scherm.Veranderd(ervoor), QString());
        QVERIFY(blad.Form.isVisible() && !blad.Form.Unloaded());
    }

    void overAnotherKind_data()
    {
        QTest::addColumn<quint8>("soort");
        QTest::addColumn<QList<int>>("banden");
        QTest::addColumn<QList<int>>("bandenGroot");
        // The kind changes behind the drawing, so that its bands come once more, on both boards.
        Geval("Sudoku", Sudoku, Banden, BandenGroot);
        Geval("Filippine", Filippine, QList<int>(), QList<int>());
    }
    void overAnotherKind()
    {
        QFETCH(quint8, soort);
        QFETCH(QList<int>, banden);
        QFETCH(QList<int>, bandenGroot);
        Blad blad;
        MainForm &main = blad.Scherm.Venster;
        blad.Scherm.Begin(soort, 9, 9);
        main.ToonPuzzel(u"Raster Atelier"_s);
        QCOMPARE(!main.Frame9->isHidden(), soort == Sudoku);
        QCOMPARE(main.EditDeleteRaster->isEnabled(), soort == Filippine);
        WoordzoekerRaster = Letters(180);
        blad.Form.ExportKnop->click();
        QVERIFY(main.Frame9->isHidden());
        QVERIFY(!main.EditDeleteRaster->isEnabled() && !main.EditDeleteLetters->isEnabled());
        QCOMPARE(PuzzelType, Woordzoeker);
        QCOMPARE(Verschil(blad.Scherm.Pic(), BordBeeld(Letters(180), 12, 15, banden)), QString());
        QCOMPARE(Verschil(blad.Scherm.Groot(), Tegels(main.PicVak->Image(), 12, 15, bandenGroot)), QString());
    }

    void aWordThatWrapsIsTwoRows()
    {
        Blad blad;
        const QString lang(20, u'M');  // wider than the box, and not as wide as two of it
        const QString klein(30, u'l'); // it fits as it stands, and would not in capitals
        VulIn(blad.Form, u"AAP\r\n"_s + lang + u"\r\n"_s + klein + u"\r\nNOOT"_s, u"12"_s, u"15"_s);
        blad.Form.OkKnop->click();
        QCOMPARE(Woorden(blad.Form), u"AAP|"_s + lang + u'|' + klein.toUpper() + u"|NOOT"_s); // there it is one
        blad.Form.ExportKnop->click();
        const QList<Rij> rijen = blad.Scherm.Venster.Rijen();
        QCOMPARE(rijen.size(), 5);
        QCOMPARE(rijen.first().Oplossing + u' ' + rijen.last().Oplossing, u"AAP NOOT"_s);
        QCOMPARE(rijen[1].Oplossing + rijen[2].Oplossing, lang);
        QCOMPARE(rijen[3].Oplossing, klein.toUpper());
        QCOMPARE(blad.Scherm.Venster.Label11->Caption(), u"5 Items"_s);
    }

    void cancelChangesNothing()
    {
        Blad blad;
        WoordzoekerRaster = Letters(180);
        VulIn(blad.Form, u"AAP"_s, u"9"_s, u"9"_s);
        const Stand ervoor = blad.Scherm.Nu();
        KlikMetDruk(*blad.Form.CancelKnop, [&] { QVERIFY(!blad.Form.Unloaded()); });
        QVERIFY(blad.Form.Unloaded());
        QCOMPARE(blad.Scherm.Veranderd(ervoor), QString());
        QCOMPARE(WoordzoekerRaster, Letters(180));
    }

    void closingDuringThePressEffectChangesNothing_data()
    {
        QTest::addColumn<QString>("knop");
        for (const char *knop : {"AddKnop", "OkKnop", "ExportKnop", "CancelKnop"})
            Geval(knop, QString(QLatin1String(knop)));
    }
    void closingDuringThePressEffectChangesNothing()
    {
        QFETCH(QString, knop);
        Blad blad;
        AutoForm &form = blad.Form;
        form.show();
        VulIn(form, u"AAP"_s, u"9"_s, u"9"_s);
        form.Text2->setText(u"noot"_s);
        const Stand ervoor = blad.Scherm.Nu();
        QTimer::singleShot(0, &form, [&form] { form.Unload(); });
        Vind<ImageButton>(form, knop)->click();
        QVERIFY(form.Unloaded() && blad.Gezien().isEmpty());
        QCOMPARE(blad.Scherm.Veranderd(ervoor), QString());
        QCOMPARE(form.Text1->Text() + form.Text2->text() + WoordzoekerRaster, u"AAPnoot"_s);
    }
};

RASTER_TEST(tst_AutoForm)
#include "tst_AutoForm.moc"

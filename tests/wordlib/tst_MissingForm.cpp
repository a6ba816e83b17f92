#include "support/Venster.h"
#include "support/Verloop.h"
#include "support/Woordbord.h"
#include "wordlib/MissingForm.h"
#include "wordlib/Overdracht.h"

#include <QMenuBar>

using namespace Qt::StringLiterals;

static const QColor Vrij(230, 240, 250), InGebruik(200, 200, 200);

/// Sets the length, and a bar for each letter.
static void ZetPatroon(MissingForm &form, const QList<int> &waarden)
{
    form.HScroll1->setValue(static_cast<int>(waarden.size()));
    for (qsizetype i = 0; i < waarden.size(); ++i)
        form.VScroll[static_cast<size_t>(i + 1)]->setValue(waarden[i]);
}

/// The values of the bars for a pattern: "*" is the letter IJ, "-" an unknown one.
static QList<int> Waarden(const QString &patroon)
{
    QList<int> waarden;
    for (const QChar letter : patroon)
        waarden += letter == u'*' ? 91 : letter == u'-' ? 64 : letter.unicode();
    return waarden;
}

/// What is found, as a person sees it.
static QString Zoek(MissingForm &form, const QString &patroon)
{
    ZetPatroon(form, Waarden(patroon));
    form.OkKnop->click();
    return form.List1->Items().join(u' ');
}

/// The letters as they are shown. One whose bar can be moved is a capital or "-", another one stands in brackets.
static QString Letters(const MissingForm &form)
{
    QString letters;
    for (size_t i = 1; i <= 19; ++i) {
        const QString letter = form.Label1[i]->Caption();
        letters += form.VScroll[i]->isEnabled() ? letter : u'(' + letter + u')';
    }
    return letters;
}

/// From which letter on the colour is that of a letter that isn't used.
static QString Kleuren(const MissingForm &form)
{
    QString kleuren;
    for (size_t i = 1; i <= 19; ++i) {
        const QColor kleur = form.Label1[i]->palette().color(QPalette::Window);
        kleuren += kleur == Vrij ? u'.' : kleur == InGebruik ? u'x' : u'?';
    }
    return kleuren;
}

static QString Herhaal(const QString &wat, int aantal)
{
    return wat.repeated(aantal);
}

class tst_MissingForm : public QObject
{
    Q_OBJECT
private slots:
    void controlsAndTheirPlaces()
    {
        Woordbord bord;
        MissingForm form;
        QList<Plek> tabel{{"List1", 150, 180, 2400, 3840},
                          {"Label8", 150, 4070},
                          {"Label6", 2700, 180, 5175, 345},
                          {"Label2", 2700, 660, 5190, 2100},
                          {"Label3", 2700, 2880, 5190, 360},
                          {"HScroll1", 2730, 2910, 5130, 300},
                          {"Label4", 2700, 3270},
                          {"Label5", 3945, 3270},
                          {"OkKnop", 2700, 3660, 840, 330},
                          {"Label7", 3750, 3720},
                          {"CancelKnop", 6060, 3840},
                          {"ExportKnop", 7065, 3840, 810, 360},
                          {"HelpPic", 2700, 180, 5205, 3840}};
        QByteArrayList namen;
        for (int i = 1; i <= 19; ++i) {
            const int links = 2730 + 270 * (i - 1);
            namen += "VScroll(" + QByteArray::number(i) + ')';
            tabel += Plek{namen.last().constData(), links, 690, 270, 2040};
            namen += "Label1(" + QByteArray::number(i) + ')';
            tabel += Plek{namen.last().constData(), links, 225, 255, 270};
        }
        QCOMPARE(Misplaatst(form, tabel), QString());
        const QSize vlak((8145 - 90) / 15, (5130 - 450 - 300) / 15);
        QCOMPARE(form.List1->parentWidget()->size(), vlak);
        QCOMPARE(form.size(), vlak + QSize(0, form.findChild<QMenuBar *>()->sizeHint().height()));
    }

    void theTabKeyGoesFromTheListOn()
    {
        Woordbord bord;
        MissingForm form;
        QCOMPARE(TabVolgorde(form), u"List1 HScroll1 OkKnop CancelKnop ExportKnop"_s);
        QStringList namen{u"CancelKnop=Annuleren"_s,   u"ExportKnop=Woordenlijst exporteren naar hoofdscherm"_s,
                          u"HScroll1=Woordlengte"_s,   u"HelpPic=Uitleg Ontbrekende letters"_s,
                          u"List1=Gevonden woorden"_s, u"OkKnop=Ok"_s};
        for (int i = 1; i <= 19; ++i)
            namen += u"VScroll(%1)=Letter %1"_s.arg(i);
        namen.sort();
        QCOMPARE(Leesnamen(form), namen);
        form.HScroll1->setValue(2);
        QCOMPARE(TabVolgorde(form), u"List1 VScroll(1) VScroll(2) HScroll1 OkKnop CancelKnop ExportKnop"_s);
    }

    void asItOpens()
    {
        Woordbord bord;
        MissingForm form;
        QCOMPARE(form.windowTitle(), u"Ontbrekende Letters"_s);
        QCOMPARE(form.List1->Items(), QStringList());
        QVERIFY(!form.List1->Sorted);
        QCOMPARE(form.Label8->Caption(), u"0 Woorden gevonden"_s);
        QCOMPARE(form.HScroll1->minimum(), 0);
        QCOMPARE(form.HScroll1->maximum(), 19);
        QCOMPARE(form.HScroll1->value(), 0);
        QCOMPARE(form.Label4->Caption(), u"Woordlengte : "_s);
        QCOMPARE(form.Label5->Caption(), u"0 letters"_s);
        QCOMPARE(form.Label7->Caption(), u"Start zoeken"_s);
        QCOMPARE(form.ExportKnop->toolTip(), u" Woordenlijst exporteren naar hoofdscherm "_s);
        for (const Label *plaat : {form.Label2, form.Label3, form.Label6})
            QCOMPARE(plaat->Caption(), QString());
        QCOMPARE(Letters(form), Herhaal(u"(-)"_s, 19));
        for (size_t i = 1; i <= 19; ++i) {
            QCOMPARE(form.VScroll[i]->minimum(), 64);
            QCOMPARE(form.VScroll[i]->maximum(), 91);
            QCOMPARE(form.VScroll[i]->value(), 64);
            QCOMPARE(form.VScroll[i]->orientation(), Qt::Vertical);
        }
        QVERIFY(form.HelpPic->isHidden());
        QCOMPARE(PlaatjesOp(form), u"CancelKnop knop-annuleren, ExportKnop knop-export, OkKnop knop-ok"_s);
        QVERIFY(form.Label4->geometry().right() < form.Label5->geometry().left());
    }

    void coloursAndFonts()
    {
        Woordbord bord;
        MissingForm form;
        QCOMPARE(form.palette().color(QPalette::Window), QColor(230, 230, 190));
        QCOMPARE(form.List1->palette().color(QPalette::Base), QColor(30, 0, 0));
        QCOMPARE(form.List1->palette().color(QPalette::Text), QColor(230, 230, 230));
        QCOMPARE(Kleuren(form), QString(19, u'.'));
        for (size_t i = 1; i <= 19; ++i) {
            QCOMPARE(form.Label1[i]->palette().color(QPalette::WindowText), QColor(30, 30, 30));
            QCOMPARE(form.Label1[i]->font().pixelSize(), 17); // 13 points
            QVERIFY(!form.Label1[i]->font().bold());
            QCOMPARE(form.Label1[i]->frameShape(), QFrame::NoFrame);
            QCOMPARE(form.Label1[i]->alignment(), Qt::AlignCenter);
        }
        // The plates are seen round what lies on them, and the letters are filled.
        const QImage beeld = Getoond(*form.List1->parentWidget());
        for (const Label *plaat : {form.Label2, form.Label3, form.Label6})
            QCOMPARE(beeld.pixelColor(plaat->pos()), QColor(150, 180, 180));
        QCOMPARE(beeld.pixelColor(form.Label1[19]->pos()), Vrij);
    }

    void theMenu()
    {
        Woordbord bord;
        MissingForm form;
        const QList<QAction *> balk = form.findChild<QMenuBar *>()->actions();
        QCOMPARE(balk.size(), 1);
        QCOMPARE(balk[0]->text(), u"Help"_s);
        QCOMPARE(balk[0]->menu()->objectName(), u"Help"_s);
        QCOMPARE(balk[0]->menu()->actions(), QList<QAction *>{form.HelpUitleg});
        QCOMPARE(form.HelpUitleg->objectName(), u"HelpUitleg"_s);
        QCOMPARE(form.HelpUitleg->text(), u"Uitleg Ontbrekende letters"_s);
        QVERIFY(!form.HelpUitleg->isChecked());
        QVERIFY(form.HelpUitleg->isEnabled());
    }

    void theLengthOfTheWord_data()
    {
        QTest::addColumn<QList<int>>("lengtes"); // one after another, the letters set to A before each
        QTest::addColumn<QString>("letters");
        QTest::addColumn<QString>("kleuren");
        const auto rij = [](const char *naam, const QList<int> &lengtes, const QString &letters, int inGebruik) {
            Geval(naam, lengtes, letters, QString(inGebruik, u'x') + QString(19 - inGebruik, u'.'));
        };
        rij("1", {1}, u"-"_s + Herhaal(u"(-)"_s, 18), 1);
        rij("18", {18}, Herhaal(u"-"_s, 18) + u"(-)"_s, 18);
        rij("19", {19}, Herhaal(u"-"_s, 19), 19);
        rij("up", {2, 4}, u"AA--"_s + Herhaal(u"(-)"_s, 15), 4);
        rij("down", {4, 2}, u"AA"_s + Herhaal(u"(-)"_s, 17), 2);
        rij("down and up", {4, 2, 4}, u"AA--"_s + Herhaal(u"(-)"_s, 15), 4);
        // Nothing changes but the first letter, which keeps its value.
        Geval("down to 0", QList<int>{3, 0}, u"(A)AA"_s + Herhaal(u"(-)"_s, 16), u".xx................"_s);
        Geval("from 19 down to 0", QList<int>{19, 0}, u"(A)"_s + QString(18, u'A'), u'.' + QString(18, u'x'));
        rij("down to 0 and up", {3, 0, 2}, u"AA"_s + Herhaal(u"(-)"_s, 17), 2);
    }
    void theLengthOfTheWord()
    {
        QFETCH(QList<int>, lengtes);
        Woordbord bord;
        MissingForm form;
        for (const int lengte : lengtes) {
            for (size_t i = 1; i <= 19; ++i)
                if (form.VScroll[i]->isEnabled())
                    form.VScroll[i]->setValue('A');
            form.HScroll1->setValue(lengte);
            QCOMPARE(form.Label5->Caption(), u"%1 letters"_s.arg(lengte));
        }
        QTEST(Letters(form), "letters");
        QTEST(Kleuren(form), "kleuren");
        for (size_t i = 1; i <= 19; ++i)
            QCOMPARE(form.VScroll[i]->value(), form.Label1[i]->Caption() == "-"_L1 ? 64 : 65);
    }

    void theLettersOfABar()
    {
        Woordbord bord;
        MissingForm form;
        form.HScroll1->setValue(19);
        QStringList letters;
        for (int waarde = 64; waarde <= 91; ++waarde) {
            form.VScroll[19]->setValue(waarde);
            letters += form.Label1[19]->Caption();
            const Label *letter = form.Label1[19];
            QVERIFY2(letter->fontMetrics().horizontalAdvance(letter->Caption()) <= letter->width(),
                     qPrintable(letter->Caption()));
        }
        QCOMPARE(letters.join(u' '), u"- A B C D E F G H I J K L M N O P Q R S T U V W X Y Z IJ"_s);
        form.VScroll[19]->setValue(64);
        QCOMPARE(form.Label1[19]->Caption(), u"-"_s);
        QCOMPARE(Letters(form), Herhaal(u"-"_s, 19));
    }

    void theLettersFollowWhileABarIsDragged()
    {
        Woordbord bord;
        MissingForm form;
        form.HScroll1->setSliderDown(true);
        form.HScroll1->setSliderPosition(3);
        QCOMPARE(form.Label5->Caption(), u"3 letters"_s);
        form.VScroll[2]->setSliderDown(true);
        form.VScroll[2]->setSliderPosition('Q');
        QCOMPARE(Letters(form), u"-Q-"_s + Herhaal(u"(-)"_s, 16));
        form.VScroll[3]->triggerAction(QAbstractSlider::SliderPageStepAdd); // a click beside the slider is one letter
        QCOMPARE(Letters(form), u"-QA"_s + Herhaal(u"(-)"_s, 16));
    }

    // --- the search ---

    void theStepsOfASearch()
    {
        Woordbord bord("kat\r\noog\r\n");
        MissingForm form;
        form.List1->AddItem(u"oud"_s);
        ZetPatroon(form, Waarden(u"-A-"_s));
        form.OkKnop->setFocus();
        const Stand ervoor = StandVan(form);
        const QPoint plaats = form.OkKnop->pos();
        Verloop verloop([&] {
            return form.OkKnop->pos() == plaats ? form.List1->Items().join(u' ') + u' ' + form.Label8->Caption()
                                                : u"gedrukt"_s;
        });
        verloop.Volg(*form.List1);
        form.OkKnop->click();
        QCOMPARE(verloop.Stappen, (QStringList{u"0.2 s | gedrukt"_s, u"0 s | zandloper oud 0 Woorden gevonden"_s,
                                               u"lijst | zandloper  0 Woorden gevonden"_s,
                                               u"lijst KAT | zandloper KAT 0 Woorden gevonden"_s}));
        QCOMPARE(form.Label8->Caption(), u"1 Woorden gevonden"_s);
        QCOMPARE(Verschil(ervoor, StandVan(form)), u"Label8 List1"_s); // the pattern stays for the next one
        QCOMPARE(form.List1->ListIndex(), -1);
        QVERIFY(!Zandloper());
        QVERIFY(!form.Unloaded());
    }

    void thePatternIsTheOneBehindThePress()
    {
        Woordbord bord("kat\r\nvos\r\n");
        MissingForm form;
        Verloop verloop;
        verloop.Bijwerk = [&] { ZetPatroon(form, Waarden(u"K--"_s)); };
        form.OkKnop->click();
        QCOMPARE(form.List1->Items().join(u' '), u"KAT"_s);
        verloop.Stappen.clear();
        verloop.Bijwerk = [&] { form.VScroll[1]->setValue(verloop.Stappen.size() == 1 ? 'V' : 'K'); };
        form.OkKnop->click();
        QCOMPARE(form.List1->Items().join(u' '), u"VOS"_s); // not that behind the wait that comes then
        verloop.Stappen.clear();
        verloop.Bijwerk = [&] { form.HScroll1->setValue(0); };
        form.OkKnop->click();
        QCOMPARE(form.List1->Items().join(u' '), u"VOS"_s);
        QCOMPARE(verloop.Stappen.size(), 1); // the press was all
    }

    void withoutALengthNothingHappens()
    {
        Woordbord bord("kat\r\n\r\n");
        MissingForm form;
        form.HScroll1->setValue(3);
        form.VScroll[1]->setValue('K');
        form.HScroll1->setValue(0);
        form.List1->AddItem(u"oud"_s);
        form.Label8->SetCaption(u"7 Woorden gevonden"_s);
        Verloop verloop;
        verloop.Volg(*form.List1);
        form.OkKnop->click();
        QCOMPARE(verloop.Stappen, QStringList{u"0.2 s |"_s}); // the press effect
        QCOMPARE(form.List1->Items(), QStringList{u"oud"_s});
        QCOMPARE(form.Label8->Caption(), u"7 Woorden gevonden"_s);
    }

    void whatIsFound_data()
    {
        QTest::addColumn<QString>("patroon");
        QTest::addColumn<QString>("gevonden");
        Geval("known letters", "--A---EN-", "AFAARDENS KLAARMENS");
        Geval("nothing is known: every word of the length, in the order of the file", "---", "VOS KAT ÉÉN IJSA");
        Geval("all is known", "KAT", "KAT");
        Geval("a line twice", "TWEE", "TWEE TWEE");
        Geval("none", "X--", "");
        Geval("the last letter counts", "VOT", "");
        Geval("one cell", "-", "A IJ");
        Geval("IJ is one cell", "*-----", "IJSBEER");
        Geval("and fits an unknown one", "-S----", "IJSBEER");
        Geval("two known IJs", "**", "IJIJ");
        Geval("IJ at the end", "-*", "ZIJ IJIJ");
        Geval("a word with IJ is one shorter", "-------", "");
        Geval("I and J in two cells: the letters behind shift, the last cell is not looked at", "IJS-", "IJSAB IJSXY");
        Geval("18 cells", "------------------", "ACHTTIENLETTERWOOR");
        Geval("19 cells", "-------------------", "NEGENTIENLETTERWOOR");
        Geval("19 cells and a letter", "N------------------", "NEGENTIENLETTERWOOR");
    }
    void whatIsFound()
    {
        QFETCH(QString, patroon);
        QFETCH(QString, gevonden);
        Woordbord bord(Regels({"twee",
                               "vos",
                               "kat",
                               "twee",
                               "afaardens",
                               "klaarmens",
                               "a",
                               "ij",
                               "ijsbeer",
                               "zij",
                               "ijij",
                               "\xE9\xE9n",
                               "ijsab",
                               "ijsxy",
                               "ijsa",
                               "",
                               "achttienletterwoor",
                               "negentienletterwoor",
                               "twintigletterwoorden",
                               QByteArray(10000, 'a')}));
        MissingForm form;
        QCOMPARE(Zoek(form, patroon), gevonden);
        const qsizetype aantal = gevonden.split(u' ', Qt::SkipEmptyParts).size();
        QCOMPARE(form.Label8->Caption(), u"%1 Woorden gevonden"_s.arg(aantal));
        QVERIFY(bord.Bank.Script.Gezien.isEmpty()); // that there is none is not said
    }

    void onlyTheCellsOfTheLengthCount()
    {
        Woordbord bord("kat\r\nvos\r\n");
        MissingForm form;
        ZetPatroon(form, Waarden(u"KAT"_s));
        form.HScroll1->setValue(0); // the letters stay
        form.HScroll1->setValue(4);
        QCOMPARE(Letters(form), u"KAT-"_s + Herhaal(u"(-)"_s, 15));
        form.HScroll1->setValue(2);
        form.HScroll1->setValue(3);
        form.OkKnop->click();
        QCOMPARE(form.List1->Items().join(u' '), u"KAT"_s);
    }

    void withoutADatabaseTheSearchFails()
    {
        Woordbord bord("kat");
        MissingForm form;
        bord.GeenDatabase();
        form.List1->AddItem(u"oud"_s);
        form.Label8->SetCaption(u"7 Woorden gevonden"_s);
        QCOMPARE(Zoek(form, u"KAT"_s), QString());
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        QVERIFY(bord.Bank.Script.Gezien[0].Tekst.startsWith(u"Fout 53 bij 'Ok': Bestand niet gevonden"_s));
        QCOMPARE(form.Label8->Caption(), u"7 Woorden gevonden"_s);
        QVERIFY(!Zandloper());
        bord.Database("kat");
        QCOMPARE(Zoek(form, u"KAT"_s), u"KAT"_s); // the file is read at each search
    }

    void closingTheWindowEndsASearch()
    {
        for (const qsizetype wacht : {1, 2}) { // during the press, and while pending events are run
            Woordbord bord("kat");
            MissingForm form;
            form.HScroll1->setValue(3);
            form.show();
            Verloop verloop;
            verloop.SluitBijStap(wacht, form);
            form.OkKnop->click();
            QCOMPARE(verloop.Stappen.size(), wacht);
            QCOMPARE(form.List1->Items(), QStringList());
            QVERIFY(!Zandloper());
        }
    }

    // --- the other buttons ---

    void closingTheWindowDuringThePressHandsNothingOver()
    {
        Woordbord bord;
        MissingForm form;
        QCOMPARE(SluitBijOvergave(form, bord), QString());
        QVERIFY(!Zandloper());
    }

    void whatIsHandedOver_data()
    {
        QTest::addColumn<QStringList>("woorden");
        QTest::addColumn<QString>("gegeven");
        QTest::addColumn<QString>("aantal");
        Geval("up to 20 characters, in their order",
              QStringList{u"vos"_s, QString(20, u'c'), QString(21, u'd'), u"één"_s},
              u"VOS "_s + QString(20, u'C') + u" ÉÉN"_s, u"3 Woorden gevonden"_s);
        Geval("IJ is two characters", QStringList{u"IJ"_s + QString(18, u'A'), u"IJ"_s + QString(19, u'B')},
              u"IJ"_s + QString(18, u'A'), u"1 Woorden gevonden"_s);
        Geval("a word twice", QStringList{u"KAT"_s, u"AAL"_s, u"KAT"_s}, u"KAT AAL KAT"_s, u"3 Woorden gevonden"_s);
        Geval("none", QStringList{}, QString(), u"0 Woorden gevonden"_s);
    }
    void whatIsHandedOver()
    {
        QFETCH(QStringList, woorden);
        QFETCH(QString, gegeven);
        Woordbord bord;
        bord.VulList1();
        MissingForm form;
        const Stand ervoor = bord.Nu();
        QCOMPARE(GeefOver(form, bord, woorden),
                 (QStringList{u"0.2 s | gedrukt"_s, (u"lijst "_s + gegeven).trimmed() + u" | zandloper"_s}));
        QCOMPARE(bord.List1(), gegeven);
        QTEST(bord.Venster.Label3->Caption(), "aantal");
        QCOMPARE(bord.Veranderd(ervoor), u"Label3 List1"_s);
        QVERIFY(form.Unloaded());
        QVERIFY(!Zandloper());
    }

    void cancelOnlyCloses()
    {
        Woordbord bord;
        bord.VulList1();
        const Stand ervoor = bord.Nu();
        MissingForm form;
        form.List1->AddItem(u"kat"_s);
        const QPoint plaats = form.CancelKnop->pos();
        Verloop verloop([&] { return form.CancelKnop->pos() == plaats ? QString() : u"gedrukt"_s; });
        form.CancelKnop->click();
        QCOMPARE(verloop.Stappen, QStringList{u"0.2 s | gedrukt"_s});
        QVERIFY(form.Unloaded());
        QCOMPARE(bord.Veranderd(ervoor), QString());
    }

    void theHelpSheetIsShownAndHidden()
    {
        Woordbord bord;
        MissingForm form;
        const auto zichtbaar = [&] {
            QString namen;
            for (const QWidget *control :
                 {static_cast<QWidget *>(form.HelpPic), static_cast<QWidget *>(form.CancelKnop),
                  static_cast<QWidget *>(form.ExportKnop), static_cast<QWidget *>(form.OkKnop)})
                namen += control->isHidden() ? QString() : control->objectName() + u' ';
            return namen + (form.HelpUitleg->isChecked() ? u"aangevinkt"_s : QString());
        };
        ZetPatroon(form, Waarden(u"-A-"_s));
        form.List1->AddItem(u"KAT"_s);
        form.List1->SetListIndex(0);
        form.HScroll1->setFocus();
        const Stand ervoor = StandVan(form);
        form.HelpUitleg_Click();
        QCOMPARE(zichtbaar(), u"HelpPic OkKnop aangevinkt"_s);
        form.HelpUitleg_Click();
        for (int keer = 0; keer < 2; ++keer) {
            QCOMPARE(zichtbaar(), u"CancelKnop ExportKnop OkKnop "_s);
            QCOMPARE(Verschil(ervoor, StandVan(form)), QString());
            form.HelpUitleg->trigger();
            QCOMPARE(zichtbaar(), u"HelpPic OkKnop aangevinkt"_s);
            QCOMPARE(Verschil(ervoor, StandVan(form)), u"CancelKnop ExportKnop HelpPic HelpUitleg"_s);
            const QImage beeld = Getoond(*form.HelpPic->parentWidget()).copy(form.HelpPic->geometry());
            QCOMPARE(beeld, form.HelpPic->Image()); // it covers the bars and the button
            form.HelpUitleg->trigger();
        }
        QVERIFY(form.HelpPic->geometry().contains(form.OkKnop->geometry()));
        bord.Database("kat");
        form.HelpUitleg->trigger();
        form.OkKnop->click(); // the keyboard reaches it
        QCOMPARE(zichtbaar(), u"HelpPic OkKnop aangevinkt"_s);
    }

    void theHelpSheet()
    {
        Woordbord bord;
        MissingForm form;
        QWidget venster;
        PictureBox blad(&venster);
        blad.resize(5205 / 15, 3840 / 15);
        blad.BackColor = qRgb(0, 50, 0);
        blad.Cls();
        const QRgb geel = qRgb(250, 250, 100), grijs = qRgb(200, 200, 200);
        const auto druk = [&](int x, int y, const QString &tekst, QRgb kleur, bool vet) {
            blad.ZetLetter({.Vet = vet, .Kleur = kleur});
            blad.PrintOp(x, y, tekst);
            QVERIFY2(x + blad.TextWidth(tekst) <= 5205, qPrintable(tekst));
        };
        druk(90, 90, u"Uitleg Ontbrekende letters"_s, geel, true);
        druk(90, 450, u"1. Bepaal de lengte van het te zoeken woord d.m.v. de"_s, grijs, false);
        druk(330, 690, u"horizontale scrollbalk te verschuiven."_s, grijs, false);
        druk(90, 930, u"2. Verschuif d.m.v. de 19 vertikale scrollbalkjes de"_s, grijs, false);
        druk(330, 1150, u"letters die bekend zijn in het te zoeken woord."_s, grijs, false);
        druk(90, 1390, u"3. b.v. in het te zoeken woord van 9 letters zijn de"_s, grijs, false);
        druk(330, 1630, u"volgende letters bekend --A---EN- op deze plaatsen."_s, grijs, false);
        druk(90, 1870, u"4. Klik op de 'Ok' button om het zoeken te starten,"_s, grijs, false);
        druk(330, 2110, u"dit kan naargelang de woordlengte even duren."_s, grijs, false);
        druk(90, 2350, u"5. In de linkerlijst komen nu de puzzelwoorden waarvan"_s, grijs, false);
        druk(330, 2590, u"de letters op de juiste plaats voorkomen."_s, grijs, false);
        druk(90, 2830, u"6. Klik op de button 'Export' om de gevonden woorden"_s, grijs, false);
        druk(330, 3050, u"naar het hoofdscherm te copyeren."_s, grijs, false);
        druk(90, 3420, u"Klik nogmaals op 'Help' om dit scherm weer te verlaten."_s, geel, false);
        QCOMPARE(form.HelpPic->Image(), blad.Image());
        QCOMPARE(form.HelpPic->Image().pixel(0, 0), qRgb(0, 50, 0));
    }
};

RASTER_TEST(tst_MissingForm)
#include "tst_MissingForm.moc"

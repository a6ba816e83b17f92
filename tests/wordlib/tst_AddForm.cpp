#include "support/Onbevoegd.h"
#include "support/Venster.h"
#include "support/Verloop.h"
#include "support/Woordbord.h"
#include "wordlib/AddForm.h"

using namespace Qt::StringLiterals;

static QString Woorden(const AddForm &form)
{
    return form.List1->Items().join(u'|');
}

/// Chooses a subject.
static void Kies(const AddForm &form, const QString &onderwerp)
{
    form.List2->SetListIndex(static_cast<int>(form.List2->Items().indexOf(onderwerp)));
}

/// Saves these words under a name.
static void Bewaar(const QString &naam, const QStringList &woorden)
{
    AddForm form;
    form.List1->SetItems(woorden);
    form.Text2->setText(naam);
    form.SaveKnop->click();
    QVERIFY(form.Unloaded());
    QVERIFY(!Zandloper());
}

class tst_AddForm : public QObject
{
    Q_OBJECT
private slots:
    void controlsAndTheirPlaces()
    {
        Woordbord bord;
        AddForm form;
        QCOMPARE(Misplaatst(form, {{"Label4", 150, 120, 2490, 360},
                                   {"List2", 120, 570, 2430, 3660},
                                   {"List1", 2700, 120, 2400, 3660},
                                   {"Text1", 2700, 3840, 2400, 390},
                                   {"Bar", 2700, 3850, 2400, 390},
                                   {"Label2", 5310, 3090},
                                   {"Text2", 5310, 240, 2610, 360},
                                   {"Label1", 8010, 315},
                                   {"Label3", 5310, 1260, 3600, 2100},
                                   {"NieuwKnop", 5310, 750},
                                   {"DelKnop", 5310, 3390},
                                   {"AddKnop", 5310, 3855},
                                   {"CancelKnop", 7035, 3855},
                                   {"SaveKnop", 8040, 3855, 840, 360},
                                   {"Image1", 7500, 2850, 1380, 930}}),
                 QString());
        QCOMPARE(form.size(), QSize((9150 - 90) / 15, (4800 - 450) / 15));
    }

    void theTabKeyGoesFromTheSubjectsOn()
    {
        Woordbord bord;
        AddForm form;
        QCOMPARE(TabVolgorde(form), u"List2 List1 Text1 Text2 NieuwKnop DelKnop AddKnop CancelKnop SaveKnop"_s);
        QCOMPARE(Leesnamen(form),
                 (QStringList{u"AddKnop=Woord toevoegen"_s, u"Bar=Voortgang"_s, u"CancelKnop=Annuleren"_s,
                              u"DelKnop=Woord verwijderen"_s, u"List1=Woorden"_s, u"List2=Onderwerpen"_s,
                              u"NieuwKnop=Nieuwe woordlijst aanmaken"_s, u"SaveKnop=Woordlijst opslaan"_s,
                              u"Text1=Puzzelwoord"_s, u"Text2=Onderwerp"_s}));
    }

    void asItOpens()
    {
        Woordbord bord;
        bord.Lijst(u"Dieren"_s, "KAT");
        AddForm form;
        QCOMPARE(form.windowTitle(), u"Woordlijsten bewerken"_s);
        QCOMPARE(form.Label4->Caption(), u"Onderwerp"_s);
        QCOMPARE(form.List2->Items(), QStringList{u"Dieren"_s});
        QCOMPARE(form.List2->ListIndex(), -1);
        QCOMPARE(Woorden(form), QString());
        QVERIFY(form.List1->Sorted && form.List2->Sorted);
        QCOMPARE(form.Text1->text(), QString());
        QVERIFY(!form.Text1->isHidden());
        QVERIFY(form.Bar->isHidden());
        QCOMPARE(form.Label2->Caption(), u"0"_s);
        QCOMPARE(form.Text2->text(), QString());
        QCOMPARE(form.Label1->Caption(), u"Onderwerp"_s);
        QCOMPARE(
            form.Label3->Caption(),
            u"Selecteer in de linkerlijst een onderwerp. Nu kun je in de tweede lijst een puzzelwoord toevoegen of "
            "verwijderen door onder de tweede lijst een puzzelwoord in te typen met de buttons 'Add' en 'Delete'. "
            "Klik als laatste op de button 'Opslaan' om de woordlijst naar de map 'Woordlijsten' te saven."_s);
        const int hoogte = form.Label3->heightForWidth(form.Label3->width());
        QVERIFY(hoogte <= (2850 - 1260) / 15); // above the decoration and the count
        QCOMPARE(form.NieuwKnop->toolTip(), u" Nieuwe woordlijst aanmaken "_s);
        QCOMPARE(form.DelKnop->toolTip(), u" Woord verwijderen "_s);
        QCOMPARE(form.AddKnop->toolTip(), u" Woord toevoegen "_s);
        QCOMPARE(form.SaveKnop->toolTip(), u" Woordlijst opslaan "_s);
        QCOMPARE(PlaatjesOp(form), u"AddKnop knop-toevoegen, CancelKnop knop-annuleren, DelKnop knop-delete, Image1 "
                                   "woordlijst, NieuwKnop knop-nieuw, SaveKnop knop-opslaan"_s);
    }

    void coloursAndFonts()
    {
        Woordbord bord;
        AddForm form;
        QCOMPARE(form.palette().color(QPalette::Window), QColor(230, 230, 190));
        QCOMPARE(form.Label4->palette().color(QPalette::Window), QColor(0, 0, 40));
        QCOMPARE(form.Label4->palette().color(QPalette::WindowText), QColor(80, 80, 80));
        QCOMPARE(form.Label4->font().pixelSize(), 19); // 14 points
        QVERIFY(!form.Label4->font().bold());
        for (const ListBox *lijst : {form.List1, form.List2}) {
            QCOMPARE(lijst->palette().color(QPalette::Base), QColor(40, 0, 0));
            QCOMPARE(lijst->palette().color(QPalette::Text), QColor(230, 230, 230));
        }
        QCOMPARE(form.Text1->palette().color(QPalette::Base), QColor(0, 0, 40));
        QCOMPARE(form.Text1->palette().color(QPalette::Text), QColor(230, 230, 230));
        QVERIFY(!HeeftInkt(form.Bar->Image(), QRect(0, 0, 160, 26), qRgb(0, 0, 40)));
        QCOMPARE(Getoond(form).pixelColor(form.Label4->geometry().topRight()), QColor(0, 0, 40));
    }

    // --- the subjects ---

    void theSubjectsAreTheTextFilesOfTheFolder()
    {
        Woordbord bord;
        for (const char *naam : {"Zee.txt", "appels.TXT", "Boom.txt", "Boom.lst", "txt", "\xC3\xA9\xC3\xA9n.txt"})
            bord.Bank.Schrijf(u"Woordlijsten/"_s + QString::fromUtf8(naam), "x");
        AddForm form;
        QCOMPARE(form.List2->Items().join(u' '), u"appels Boom één Zee"_s);
        bord.Lijst(u"Kaas"_s, "x");
        form.VulOnderwerpen();
        QCOMPARE(form.List2->Items().join(u' '), u"appels Boom één Kaas Zee"_s);
    }

    void withoutAFolderThereAreNoSubjects()
    {
        Woordbord bord;
        QDir(bord.Bank.Map()).rmdir(u"Woordlijsten"_s);
        AddForm form;
        QCOMPARE(form.List2->Items(), QStringList());
        form.List2->AddItem(u"Dieren"_s);
        form.VulOnderwerpen();
        QCOMPARE(form.List2->Items(), QStringList());
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void theWordsOfASubject_data()
    {
        QTest::addColumn<QByteArray>("inhoud");
        QTest::addColumn<QString>("woorden");
        QTest::addColumn<QString>("aantal");
        Geval("in small letters, sorted", QByteArray("TAK\r\nKat\r\nAAL\r\n"), "aal|kat|tak", "3");
        Geval("a comma parts two words", QByteArray("TAK,KAT\r\n"), "kat|tak", "2");
        Geval("quotes go", QByteArray("\"TAK, OUD\"\r\n \"KAT\r\n"), "kat\r\n|tak, oud", "2");
        Geval("blanks at the ends go", QByteArray("  OP EEN  \r\n"), "op een", "1");
        Geval("an empty line is a word", QByteArray("TAK\r\n\r\n"), "|tak", "2");
        Geval("a word twice", QByteArray("KAT\r\nTAK\r\nKAT\r\n"), "kat|kat|tak", "3");
        Geval("empty", QByteArray(""), "", "0");
        Geval("bytes above 127", QByteArray("ZEE\xCBN\r\n\x80\r\n\xFF\r\n"), "zeeën|ÿ|€", "3");
        Geval("a long line", QByteArray(10000, 'A'), QString(10000, u'a'), "1");
    }
    void theWordsOfASubject()
    {
        QFETCH(QByteArray, inhoud);
        QFETCH(QString, woorden);
        Woordbord bord;
        bord.Lijst(u"Dieren"_s, inhoud);
        AddForm form;
        form.List1->AddItem(u"oud"_s);
        form.Text1->setText(u"getypt"_s);
        form.Label2->SetCaption(u"7"_s);
        form.List2->setFocus();
        const Stand ervoor = StandVan(form);
        Kies(form, u"Dieren"_s);
        QCOMPARE(Verschil(ervoor, StandVan(form)), u"Label2 List1 List2 Text2"_s);
        QCOMPARE(form.List1->ListIndex(), -1);
        QCOMPARE(form.Text2->text(), u"Dieren"_s);
        QStringList gelezen = form.List1->Items(), verwacht = woorden.split(u'|');
        if (inhoud.isEmpty())
            verwacht.clear();
        if (inhoud.contains('\x80')) { // where signs stand is the list's affair
            gelezen.sort();
            verwacht.sort();
        }
        QCOMPARE(gelezen, verwacht);
        QTEST(form.Label2->Caption(), "aantal");
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void aListThatVanished()
    {
        Woordbord bord;
        bord.Lijst(u"Dieren"_s, "KAT");
        AddForm form;
        QFile::remove(bord.Bank.Map() + u"/Woordlijsten/Dieren.txt"_s);
        form.List1->AddItem(u"oud"_s);
        form.Label2->SetCaption(u"7"_s);
        Kies(form, u"Dieren"_s);
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        QVERIFY(bord.Bank.Script.Gezien[0].Tekst.startsWith(u"Fout 53 bij 'Onderwerpen': Bestand niet gevonden"_s));
        QCOMPARE(form.Text2->text(), u"Dieren"_s);
        QCOMPARE(Woorden(form), QString());
        QCOMPARE(form.Label2->Caption(), u"7"_s);
        QVERIFY(!form.Unloaded());
    }

    // --- the words ---

    void aWordIsAdded_data()
    {
        QTest::addColumn<QString>("getypt");
        QTest::addColumn<QString>("woorden");
        Geval("as it was typed", "Mus", "kat|Mus|vos");
        Geval("without the blanks at its ends", "  op Een ", "kat|op Een|vos");
        Geval("tabs and hard spaces are no blanks", u" \tmus\u00A0 "_s, u"\tmus\u00A0|kat|vos"_s);
        Geval("with a comma", "mus,mees", "kat|mus,mees|vos");
        Geval("once more", "kat", "kat|kat|vos");
        Geval("once more in other letters", "Kat", "kat|Kat|vos");
        Geval("a long one", QString(3000, u'm'), u"kat|"_s + QString(3000, u'm') + u"|vos"_s);
    }
    void aWordIsAdded()
    {
        QFETCH(QString, getypt);
        Woordbord bord;
        AddForm form;
        form.List1->SetItems({u"kat"_s, u"vos"_s});
        form.Text1->setText(getypt);
        form.Text2->setText(u"Dieren"_s);
        form.AddKnop->setFocus();
        const Stand ervoor = StandVan(form);
        const QPoint plaats = form.AddKnop->pos();
        Verloop verloop([&] { return form.AddKnop->pos() == plaats ? QString() : u"gedrukt "_s + Woorden(form); });
        form.AddKnop->click();
        QCOMPARE(verloop.Stappen, QStringList{u"0.2 s | gedrukt kat|vos"_s});
        QTEST(Woorden(form), "woorden");
        QCOMPARE(form.Text1->text(), QString());
        QCOMPARE(form.focusWidget(), form.Text1);
        QCOMPARE(form.Label2->Caption(), u"3"_s);
        QCOMPARE(form.List1->ListIndex(), -1);
        QCOMPARE(Verschil(ervoor, StandVan(form)), u"Focus Label2 List1 Text1"_s);
    }

    void theWordIsTheOneThatStandsThereBehindThePress()
    {
        Woordbord bord;
        AddForm form;
        Verloop verloop;
        verloop.Bijwerk = [&] { form.Text1->setText(u"kat"_s); };
        form.AddKnop->click();
        QCOMPARE(Woorden(form), u"kat"_s);
    }

    void aWordThatComesLeavesTheChoice()
    {
        Woordbord bord;
        AddForm form;
        form.List1->SetItems({u"kat"_s, u"vos"_s});
        form.List1->SetListIndex(1);
        for (const auto &[woord, gekozen] : {std::pair(u"aal"_s, 2), std::pair(u"zwaan"_s, 2)}) {
            form.Text1->setText(woord);
            form.AddKnop->click();
            QCOMPARE(form.List1->ListIndex(), gekozen);
            QCOMPARE(form.List1->Text(), u"vos"_s);
        }
    }

    void enterAddsWhatWasTyped()
    {
        Woordbord bord;
        AddForm form;
        form.show();
        form.Text1->setFocus();
        for (const auto &[woord, toets] : {std::pair(u"vos"_s, Qt::Key_Return), std::pair(u"kat"_s, Qt::Key_Enter)}) {
            QTest::keyClicks(form.Text1, woord);
            QTest::keyClick(form.Text1, toets);
        }
        QCOMPARE(Woorden(form), u"kat|vos"_s);
        QCOMPARE(form.Label2->Caption(), u"2"_s);
        QCOMPARE(form.focusWidget(), form.Text1);
        QTest::keyClick(form.Text1, Qt::Key_Return);
        QCOMPARE(Woorden(form), u"kat|vos"_s);
        QVERIFY(!form.Unloaded());
    }

    void noWordIsAdded_data()
    {
        QTest::addColumn<QString>("getypt");
        Geval("empty", "");
        Geval("blanks", "   ");
    }
    void noWordIsAdded()
    {
        QFETCH(QString, getypt);
        Woordbord bord;
        AddForm form;
        form.Text1->setText(getypt);
        form.Label2->SetCaption(u"7"_s);
        form.AddKnop->setFocus();
        Verloop verloop;
        form.AddKnop->click();
        QCOMPARE(verloop.Stappen, QStringList{u"0.2 s |"_s});
        QCOMPARE(form.List1->Items(), QStringList());
        QCOMPARE(form.Text1->text(), getypt);
        QCOMPARE(form.Label2->Caption(), u"7"_s);
        QCOMPARE(form.focusWidget(), form.AddKnop);
    }

    void aWordIsDeleted_data()
    {
        QTest::addColumn<int>("rij");
        QTest::addColumn<QString>("woord");
        QTest::addColumn<bool>("ja");
        QTest::addColumn<QString>("woorden");
        QTest::addColumn<QString>("aantal");
        Geval("yes", 1, "kat", true, "aal|vos", "2");
        Geval("no", 1, "kat", false, "aal|kat|vos", "7");
        Geval("the first", 0, "aal", true, "kat|vos", "2");
        Geval("the last", 2, "vos", true, "aal|kat", "2");
    }
    void aWordIsDeleted()
    {
        QFETCH(int, rij);
        QFETCH(QString, woord);
        QFETCH(bool, ja);
        Woordbord bord;
        AddForm form;
        form.List1->SetItems({u"aal"_s, u"kat"_s, u"vos"_s});
        form.List1->SetListIndex(rij);
        form.Label2->SetCaption(u"7"_s);
        form.Text1->setText(u"getypt"_s);
        form.DelKnop->setFocus();
        const Stand ervoor = StandVan(form);
        const QPoint plaats = form.DelKnop->pos();
        Verloop verloop([&] { return form.DelKnop->pos() == plaats ? QString() : u"gedrukt"_s; });
        verloop.Antwoorden = {ja ? Antwoord::Ja : Antwoord::Nee};
        form.DelKnop->click();
        const QString vraag = u"Delete: Wilt je het puzzelwoord '%1' verwijderen? (ja of nee) |"_s.arg(woord);
        QCOMPARE(verloop.Stappen, (QStringList{u"0.2 s | gedrukt"_s, vraag}));
        QTEST(Woorden(form), "woorden");
        QTEST(form.Label2->Caption(), "aantal");
        QCOMPARE(form.List1->ListIndex(), ja ? -1 : rij);
        QCOMPARE(Verschil(ervoor, StandVan(form)), ja ? u"Label2 List1"_s : QString());
    }

    void theWordThatGoesIsTheOneChosenBehindThePress()
    {
        Woordbord bord;
        AddForm form;
        form.List1->SetItems({u"aal"_s, u"kat"_s, u"vos"_s});
        form.List1->SetListIndex(0);
        Verloop verloop;
        verloop.Antwoorden = {Antwoord::Ja};
        verloop.Bijwerk = [&] { form.List1->SetListIndex(2); };
        form.DelKnop->click();
        QCOMPARE(Woorden(form), u"aal|kat"_s);
    }

    void ofDoubleWordsTheChosenOneGoes()
    {
        Woordbord bord;
        AddForm form;
        form.List1->SetItems({u"kat"_s, u"Kat"_s, u"Kat"_s, u"KAT"_s});
        form.List1->SetListIndex(1);
        bord.Bank.Script.Antwoorden = {Antwoord::Ja};
        form.DelKnop->click();
        QCOMPARE(Woorden(form), u"kat|Kat|KAT"_s);
    }

    void nothingIsDeletedWithoutAChoice()
    {
        for (const QStringList &woorden : {QStringList{}, QStringList{u"kat"_s}}) {
            Woordbord bord;
            AddForm form;
            form.List1->SetItems(woorden);
            Verloop verloop;
            form.DelKnop->click();
            QCOMPARE(verloop.Stappen, QStringList{u"0.2 s |"_s});
            QCOMPARE(form.List1->Items(), woorden);
        }
    }

    void aNewListKeepsTheOldCount()
    {
        Woordbord bord;
        bord.Lijst(u"Dieren"_s, "KAT\r\nVOS\r\n");
        AddForm form;
        Kies(form, u"Dieren"_s);
        form.Text1->setText(u"getypt"_s);
        form.NieuwKnop->setFocus();
        const QPoint plaats = form.NieuwKnop->pos();
        Verloop verloop([&] { return form.NieuwKnop->pos() == plaats ? QString() : u"gedrukt "_s + Woorden(form); });
        form.NieuwKnop->click();
        QCOMPARE(verloop.Stappen, QStringList{u"0.2 s | gedrukt kat|vos"_s});
        QCOMPARE(Woorden(form), QString());
        QCOMPARE(form.Text2->text(), QString());
        QCOMPARE(form.Text1->text(), u"getypt"_s);
        QCOMPARE(form.focusWidget(), form.Text2);
        QCOMPARE(form.Label2->Caption(), u"2"_s); // until the next change
        form.AddKnop->click();
        QCOMPARE(form.Label2->Caption(), u"1"_s);
    }

    void closingTheWindowDuringAPressLeavesTheWords()
    {
        for (ImageButton *AddForm::*knop : {&AddForm::AddKnop, &AddForm::DelKnop, &AddForm::NieuwKnop}) {
            Woordbord bord;
            AddForm form;
            form.List1->SetItems({u"kat"_s, u"vos"_s});
            form.List1->SetListIndex(0);
            form.Text1->setText(u"mus"_s);
            form.Text2->setText(u"Dieren"_s);
            form.show();
            Verloop verloop;
            verloop.Bijwerk = [&] { form.close(); };
            (form.*knop)->click();
            QCOMPARE(verloop.Stappen, QStringList{u"0.2 s |"_s}); // nothing is asked
            QCOMPARE(Woorden(form), u"kat|vos"_s);
            QCOMPARE(form.Text2->text(), u"Dieren"_s);
        }
    }

    void theChosenSubjectCanBeReadAgain()
    {
        Woordbord bord;
        bord.Lijst(u"Dieren"_s, "KAT\r\nVOS\r\n");
        bord.Lijst(u"Vogels"_s, "MUS\r\n");
        AddForm form;
        form.show();
        Kies(form, u"Dieren"_s);
        form.NieuwKnop->click();
        QCOMPARE(form.List2->Text(), u"Dieren"_s);
        bord.Lijst(u"Dieren"_s, "KAT\r\nVOS\r\nAAP\r\n"); // as it is by now
        QTest::mouseClick(form.List2->viewport(), Qt::LeftButton, {},
                          form.List2->visualRect(form.List2->model()->index(0, 0)).center());
        QCOMPARE(Woorden(form), u"aap|kat|vos"_s);
        QCOMPARE(form.Text2->text(), u"Dieren"_s);
    }

    void cancelAsksNothing()
    {
        Woordbord bord;
        bord.Lijst(u"Dieren"_s, "KAT");
        AddForm form;
        Kies(form, u"Dieren"_s);
        form.List1->AddItem(u"vos"_s);
        const QPoint plaats = form.CancelKnop->pos();
        Verloop verloop([&] { return form.CancelKnop->pos() == plaats ? QString() : u"gedrukt"_s; });
        form.CancelKnop->click();
        QCOMPARE(verloop.Stappen, (QStringList{u"0.2 s | gedrukt"_s, u"0.2 s |"_s}));
        QVERIFY(form.Unloaded());
        QCOMPARE(bord.Lijst(u"Dieren"_s), QByteArray("KAT"));
    }

    // --- saving ---

    void whatIsWritten_data()
    {
        QTest::addColumn<QStringList>("woorden");
        QTest::addColumn<QByteArray>("inhoud");
        Geval("in capitals, as sorted", QStringList{u"vos"_s, u"Kat"_s, u"ijsje"_s},
              QByteArray("IJSJE\r\nKAT\r\nVOS\r\n"));
        Geval("in the order of the list, whatever the bytes", QStringList{u"zon"_s, u"école"_s, u"eb"_s},
              QByteArray("EB\r\n\xC9"
                         "COLE\r\nZON\r\n"));
        Geval("a word twice, and an empty one", QStringList{u"kat"_s, QString(), u"kat"_s},
              QByteArray("\r\nKAT\r\nKAT\r\n"));
        Geval("bytes of the code page", QStringList{u"zeeën €"_s, u"Ω"_s}, QByteArray("ZEE\xCBN \x80\r\n?\r\n"));
        Geval("a comma, quotes and blanks as they stand", QStringList{u"\"a\", b"_s}, QByteArray("\"A\", B\r\n"));
        Geval("a tab and a hard space too", QStringList{u"\tmus\u00A0"_s}, QByteArray("\tMUS\xA0\r\n"));
        Geval("no words: an empty file", QStringList{}, QByteArray(""));
        Geval("a long word", QStringList{QString(10000, u'a')}, QByteArray(10000, 'A') + "\r\n");
    }
    void whatIsWritten()
    {
        QFETCH(QStringList, woorden);
        QFETCH(QByteArray, inhoud);
        Woordbord bord;
        Bewaar(u"  Nieuw "_s, woorden);
        QCOMPARE(bord.Lijsten(), QStringList{u"Nieuw.txt"_s}); // without the blanks at the ends
        QByteArray geschreven = bord.Lijst(u"Nieuw"_s);
        if (woorden.contains(u"Ω"_s) && geschreven.startsWith('?'))
            geschreven = geschreven.mid(3) + geschreven.first(3);
        QCOMPARE(geschreven, inhoud);
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void aWordWithACommaComesBackAsTwo()
    {
        Woordbord bord;
        Bewaar(u"Dieren"_s, {u"mus, mees"_s, u"Kat"_s});
        QCOMPARE(bord.Lijst(u"Dieren"_s), QByteArray("KAT\r\nMUS, MEES\r\n"));
        AddForm form;
        Kies(form, u"Dieren"_s);
        QCOMPARE(Woorden(form), u"kat|mees|mus"_s);
    }

    void withoutANameNothingIsSaved_data()
    {
        QTest::addColumn<QString>("naam");
        Geval("empty", "");
        Geval("blanks", "   ");
    }
    void withoutANameNothingIsSaved()
    {
        QFETCH(QString, naam);
        Woordbord bord;
        AddForm form;
        form.List1->AddItem(u"kat"_s);
        form.Text2->setText(naam);
        form.SaveKnop->setFocus();
        const Stand ervoor = StandVan(form);
        const QPoint plaats = form.SaveKnop->pos();
        Verloop verloop([&] { return form.SaveKnop->pos() == plaats ? QString() : u"gedrukt"_s; });
        form.SaveKnop->click();
        QCOMPARE(verloop.Stappen,
                 (QStringList{u"0.2 s | gedrukt"_s, u"0.2 s |"_s, u"Rasteratelier: Omschrijving invullen a.u.b. |"_s}));
        QCOMPARE(form.focusWidget(), form.Text2);
        QVERIFY(!form.Unloaded());
        QCOMPARE(Verschil(ervoor, StandVan(form)), u"Focus"_s);
        QCOMPARE(bord.Lijsten(), QStringList());
    }

    void theNameAndTheWordsAreThoseBehindTheWaits()
    {
        Woordbord bord;
        AddForm form;
        Verloop verloop;
        verloop.Bijwerk = [&] {
            const auto wacht = verloop.Stappen.size();
            if (wacht > 2)
                return;
            form.Text2->setText(u"Dieren%1\u00A0"_s.arg(wacht)); // a hard space is no blank
            form.List1->AddItem(u"woord%1"_s.arg(wacht));
        };
        form.SaveKnop->click();
        QCOMPARE(bord.Lijsten(), QStringList{u"Dieren2\u00A0.txt"_s});
        QCOMPARE(bord.Lijst(u"Dieren2\u00A0"_s), QByteArray("WOORD1\r\nWOORD2\r\n"));
        QVERIFY(form.Unloaded());
    }

    void closingTheWindowBeforeAllIsWrittenSavesNothing()
    {
        for (const qsizetype wacht : {1, 2}) {
            Woordbord bord;
            AddForm form;
            form.Text2->setText(u"Dieren"_s);
            form.show();
            Verloop verloop;
            verloop.SluitBijStap(wacht, form);
            form.SaveKnop->click();
            QCOMPARE(verloop.Stappen.size(), wacht);
            QCOMPARE(bord.Lijsten(), QStringList());
            QVERIFY(form.Unloaded());
        }
    }

    void theStepsOfSaving()
    {
        Woordbord bord;
        AddForm form;
        form.List1->AddItem(u"kat"_s);
        form.Text2->setText(u"Dieren"_s);
        const QPoint plaats = form.SaveKnop->pos();
        QList<QImage> balken;
        Verloop verloop([&] {
            if (!form.Bar->isHidden())
                balken += form.Bar->Image().copy(0, 0, 160, 26);
            return QStringList{form.SaveKnop->pos() == plaats ? QString() : u"gedrukt"_s,
                               form.Text1->isHidden() ? QString() : u"Text1"_s,
                               form.Bar->isHidden() ? QString() : u"Bar"_s,
                               QString::fromLatin1(bord.Lijst(u"Dieren"_s)).trimmed()}
                .join(u' ')
                .simplified();
        });
        form.SaveKnop->click();
        QStringList verwacht{u"0.2 s | gedrukt Text1"_s, u"0.2 s | Text1"_s};
        verwacht += QStringList(181, u"0.02 s zonder invoer | zandloper Bar KAT"_s); // all is written by then
        verwacht += u"0.2 s zonder invoer | Bar KAT"_s; // what was clicked meanwhile isn't done then either
        QCOMPARE(verloop.Stappen, verwacht);
        QVERIFY(form.Unloaded());
        QVERIFY(!Zandloper());
        // The bar fills from the left in ever lighter green, a pixel a round; it is 160 wide.
        QCOMPARE(balken.size(), 182);
        QImage balk(160, 26, QImage::Format_RGB32);
        balk.fill(qRgb(0, 0, 40));
        for (int i = 0; i <= 180; ++i) {
            const int groen = static_cast<int>(std::nearbyint(0.75 * i + 60));
            for (int y = 0; y < 26 && i < 160; ++y)
                balk.setPixel(i, y, qRgb(0, groen, 0));
            QCOMPARE(balken[i], balk);
        }
        QCOMPARE(balken[0].pixel(0, 0), qRgb(0, 60, 0));
        QCOMPARE(balk.pixel(2, 0), qRgb(0, 62, 0)); // 61.5, to the even one
        QCOMPARE(balk.pixel(6, 0), qRgb(0, 64, 0)); // 64.5
    }

    void anExistingListIsAskedFor_data()
    {
        QTest::addColumn<QString>("oud");
        QTest::addColumn<QString>("naam");
        QTest::addColumn<bool>("ja");
        for (const bool ja : {false, true}) {
            Geval(ja ? "yes" : "no", "Dieren.txt", "Dieren", ja);
            Geval(ja ? "another case, yes" : "another case, no", "DIEREN.TXT", "dieren", ja);
        }
    }
    void anExistingListIsAskedFor()
    {
        QFETCH(QString, oud);
        QFETCH(QString, naam);
        QFETCH(bool, ja);
        Woordbord bord;
        const QByteArray lang(5000, 'X');
        bord.Bank.Schrijf(u"Woordlijsten/"_s + oud, lang);
        AddForm form;
        form.List1->AddItem(u"kat"_s);
        form.Text2->setText(naam);
        Verloop verloop([&] { return form.Text1->isHidden() && !form.Bar->isHidden() ? u"Bar"_s : QString(); });
        verloop.Antwoorden = {ja ? Antwoord::Ja : Antwoord::Nee};
        form.SaveKnop->click();
        QCOMPARE(verloop.Stappen[2], u" Exist: Naam puzzel bestaat al, overschrijven? (ja of nee) | Bar"_s.trimmed());
        QCOMPARE(verloop.Gezien.size(), 1);
        QCOMPARE(verloop.Gezien[0].Titel, u" Exist"_s);
        QCOMPARE(verloop.Stappen.size(), ja ? 3 + 181 + 1 : 4);
        QCOMPARE(verloop.Stappen.last(), u"0.2 s zonder invoer | Bar"_s);
        QVERIFY(form.Unloaded()); // in both cases
        QVERIFY(!Zandloper());
        QCOMPARE(bord.Lijsten(), QStringList{ja ? naam + u".txt"_s : oud}); // the new file has the name as typed
        QCOMPARE(bord.Bank.Inhoud(u"Woordlijsten/"_s + bord.Lijsten()[0]), ja ? QByteArray("KAT\r\n") : lang);
    }

    void theWordsAreSavedUnderTheNameThatIsGiven()
    {
        Woordbord bord;
        AddForm form;
        form.List1->AddItem(u"kat"_s);
        form.Text2->setText(u"Dieren"_s);
        form.SaveKnop->setFocus();
        const Stand ervoor = StandVan(form);
        form.SaveWoorden(u"Vogels"_s);
        QCOMPARE(bord.Lijsten(), QStringList{u"Vogels.txt"_s});
        QCOMPARE(Verschil(ervoor, StandVan(form)), u"Bar Text1"_s);
        QVERIFY(!form.Unloaded());
    }

    void aNewNameLeavesTheOldList()
    {
        Woordbord bord;
        bord.Lijst(u"Dieren"_s, "KAT");
        AddForm form;
        Kies(form, u"Dieren"_s);
        form.Text2->setText(u"Huisdieren"_s);
        form.SaveKnop->click();
        QCOMPARE(bord.Lijsten(), (QStringList{u"Dieren.txt"_s, u"Huisdieren.txt"_s}));
        QCOMPARE(bord.Lijst(u"Dieren"_s), QByteArray("KAT"));
        QCOMPARE(bord.Lijst(u"Huisdieren"_s), QByteArray("KAT\r\n"));
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void anEmptyListOverAnOldOne()
    {
        Woordbord bord;
        bord.Lijst(u"Dieren"_s, "KAT");
        bord.Bank.Script.Antwoorden = {Antwoord::Ja};
        Bewaar(u"Dieren"_s, {});
        QCOMPARE(bord.Lijsten(), QStringList{u"Dieren.txt"_s});
        QCOMPARE(bord.Lijst(u"Dieren"_s), QByteArray());
    }

    void namesThatTheFileSystemRefuses_data()
    {
        QTest::addColumn<QString>("naam");
        Geval("slash", "a/b");
        Geval("up", "../weg");
        Geval("backslash", "..\\weg");
        Geval("quotes", "\"naam\"");
        Geval("colon", "c:weg");
        Geval("star", "a*");
        Geval("too long", QString(400, u'x'));
        Geval("half a pair", u"a"_s + QChar(0xD800));
    }
    void namesThatTheFileSystemRefuses()
    {
        QFETCH(QString, naam);
        Woordbord bord;
        Bewaar(naam, {u"kat"_s}); // as if it were saved
        QCOMPARE(bord.Lijsten(), QStringList());
        QCOMPARE(bord.Bank.Bestanden(QString()), QStringList());
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void aFolderThatCannotBeWritten_data()
    {
        QTest::addColumn<QString>("hoe");
        for (const char *hoe : {"missing", "forbidden", "a folder in the file's place"})
            Geval(hoe, QString::fromLatin1(hoe));
    }
    void aFolderThatCannotBeWritten()
    {
        QFETCH(QString, hoe);
        Woordbord bord;
        if (hoe == "missing"_L1)
            QDir(bord.Bank.Map()).rmdir(u"Woordlijsten"_s);
        else if (hoe == "forbidden"_L1)
            bord.Lijst(u"Kat"_s, "OUD");
        else
            QDir(bord.Bank.Map()).mkpath(u"Woordlijsten/Kat.txt/bezet"_s);
        const Onbevoegd onbevoegd(bord.Bank, {u"Woordlijsten"_s});
        AddForm form;
        form.List1->AddItem(u"kat"_s);
        form.Text2->setText(u"Kat"_s);
        Verloop verloop;
        verloop.Antwoorden = {Antwoord::Ja};
        form.SaveKnop->click();
        QCOMPARE(verloop.Gezien.size(), hoe == "forbidden"_L1 ? 1 : 0); // the question alone
        QCOMPARE(verloop.Stappen.size() - verloop.Gezien.size(), 2 + 181 + 1);
        QVERIFY(form.Unloaded());
        QVERIFY(!Zandloper());
        QCOMPARE(bord.Lijsten(), hoe == "forbidden"_L1 ? QStringList{u"Kat.txt"_s} : QStringList());
        QCOMPARE(bord.Lijst(u"Kat"_s), hoe == "forbidden"_L1 ? QByteArray("OUD") : QByteArray());
    }
};

RASTER_TEST(tst_AddForm)
#include "tst_AddForm.moc"

#include "support/HaperendeSchijf.h"
#include "support/Onbevoegd.h"
#include "support/Venster.h"
#include "support/Woordbord.h"
#include "wordlib/KladblokForm.h"

#include <QAction>
#include <QLayout>
#include <QMenuBar>
#include <QScrollBar>

using namespace Qt::StringLiterals;

/// The items of a menu, those with a mark behind an "x", those of a menu within it between brackets.
static QString Menu(const QMenu &menu)
{
    QStringList items;
    for (const QAction *item : menu.actions())
        items += (item->isChecked() ? u"x "_s : QString()) + item->text() +
                 (item->menu() ? u" ("_s + Menu(*item->menu()) + u')' : QString());
    return items.join(u'|');
}

/// Shows the window in a size of its own, in pixels.
static void Toon(KladblokForm &form, QSize maat)
{
    form.show();
    form.resize(maat);
    QCoreApplication::processEvents();
}

static QString LetterVan(const KladblokForm &form)
{
    const QFont letter = form.Text1->font();
    return QString::number(letter.pixelSize()) + (letter.bold() ? u" vet"_s : QString()) +
           (letter.italic() ? u" schuin"_s : QString());
}

class tst_KladblokForm : public QObject
{
    Q_OBJECT
private slots:
    void asItOpens()
    {
        Woordbord bord;
        KladblokForm form;
        QCOMPARE(form.windowTitle(), u"Kladblok"_s);
        QCOMPARE(form.palette().color(QPalette::Window), QColor(230, 190, 230));
        QCOMPARE(form.Text1->Text(), QString());
        QCOMPARE(form.Text1->palette().color(QPalette::Base), QColor(230, 230, 190));
        QCOMPARE(form.Text1->palette().color(QPalette::Text), QColor(0, 0, 0));
        QCOMPARE(form.Text1->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
        QCOMPARE(LetterVan(form), u"13"_s); // 9.75 points
        QCOMPARE(QFontInfo(form.Text1->font()).family(), u"Liberation Sans"_s);
        QCOMPARE(Menu(*form.findChild<QMenu *>(u"Bestand"_s)), u"Tekst Opslaan|Exit"_s);
        QCOMPARE(Menu(*form.findChild<QMenu *>(u"Edit"_s)),
                 u"Tekstgrootte (8 Pixels|9 Pixels|x 10 Pixels|11 Pixels|12 Pixels|13 Pixels|14 Pixels)|Vette Tekst|"
                 "Schuinschrift"_s);
        QStringList namen;
        for (const QAction *item :
             {form.FileSave, form.FileExit, form.TG.first(), form.TG.last(), form.EditBold, form.EditItalic})
            namen += item->objectName();
        QCOMPARE(namen.join(u' '), u"FileSave FileExit TG(8) TG(14) EditBold EditItalic"_s);
        QCOMPARE(Misplaatst(form, {{"Text1", 0, 0, 9000 - 210, 6000 - 840}}), QString());
        form.show();
        QCOMPARE(form.focusWidget(), form.Text1);
        QCOMPARE(Leesnamen(form).join(u'|'), u"Text1=Tekst"_s);
    }

    void theBoxFollowsTheWindow_data()
    {
        QTest::addColumn<QSize>("maat");
        Geval("as it opens", QSize(594, 350));
        Geval("larger", QSize(1001, 777));
        Geval("narrow and low", QSize(150, 100));
    }
    void theBoxFollowsTheWindow()
    {
        QFETCH(QSize, maat);
        Woordbord bord;
        KladblokForm form;
        const int balk = form.layout()->menuBar()->sizeHint().height();
        Toon(form, maat + QSize(0, balk));
        QCOMPARE(form.size(), maat + QSize(0, balk));
        QCOMPARE(form.Text1->pos(), QPoint(0, 0));
        QCOMPARE(form.Text1->size(), maat - QSize(8, 6)); // 210 and 840 twips less than the outer size
        QCOMPARE(form.Text1->parentWidget()->size(), maat);
    }

    void itCanBeMaximisedAndMinimised()
    {
        Woordbord bord;
        KladblokForm form;
        QVERIFY(form.windowFlags() & Qt::WindowMinimizeButtonHint);
        QVERIFY(form.windowFlags() & Qt::WindowMaximizeButtonHint);
        QVERIFY(form.windowFlags() & Qt::WindowCloseButtonHint);
        QCOMPARE(form.maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    }

    // --- letters ---

    void theSizeOfTheLetters_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("letter");
        const char *pixels[] = {"11", "12", "13", "15", "16", "17", "19"}; // points x 96 / 72
        for (int i = 0; i < 7; ++i)
            Geval(QByteArray::number(8 + i), i, QString::fromLatin1(pixels[i]));
    }
    void theSizeOfTheLetters()
    {
        QFETCH(int, index);
        QFETCH(QString, letter);
        Woordbord bord;
        KladblokForm form;
        QFont hoort = form.Text1->font();
        form.TG[index]->trigger();
        hoort.setPixelSize(letter.toInt());
        QCOMPARE(form.Text1->font(), hoort); // nothing else of it changes
        form.EditBold->trigger();
        hoort.setBold(true);
        QCOMPARE(form.Text1->font(), hoort);
        form.EditItalic->trigger();
        hoort.setItalic(true);
        QCOMPARE(form.Text1->font(), hoort);
        for (int ervoor = 0; ervoor < 7; ++ervoor) { // from each of the others, and from itself
            form.TG[ervoor]->trigger();
            form.TG[index]->trigger();
            QCOMPARE(LetterVan(form), letter + u" vet schuin"_s);
            for (int i = 0; i < 7; ++i)
                QCOMPARE(form.TG[i]->isChecked(), i == index);
        }
    }

    void boldAndItalic()
    {
        Woordbord bord;
        KladblokForm form;
        form.Text1->SetText(u"woord"_s);
        form.EditBold->trigger();
        QCOMPARE(LetterVan(form), u"13 vet"_s);
        QVERIFY(form.EditBold->isChecked() && !form.EditItalic->isChecked());
        form.EditItalic->trigger();
        QCOMPARE(LetterVan(form), u"13 vet schuin"_s);
        QVERIFY(form.EditBold->isChecked() && form.EditItalic->isChecked());
        form.EditBold->trigger();
        QCOMPARE(LetterVan(form), u"13 schuin"_s);
        QVERIFY(!form.EditBold->isChecked() && form.EditItalic->isChecked());
        form.EditBold->trigger();
        QCOMPARE(LetterVan(form), u"13 vet schuin"_s);
        QVERIFY(form.EditBold->isChecked() && form.EditItalic->isChecked());
        form.EditBold->trigger();
        form.EditItalic->trigger();
        QCOMPARE(LetterVan(form), u"13"_s);
        QVERIFY(!form.EditItalic->isChecked());
        form.EditBold_Click();
        form.EditItalic_Click();
        QCOMPARE(LetterVan(form), u"13 vet schuin"_s);
        QVERIFY(form.EditBold->isChecked() && form.EditItalic->isChecked());
        QCOMPARE(form.Text1->Text(), u"woord"_s);
    }

    void theNextOpeningKnowsNothingOfIt()
    {
        Woordbord bord;
        {
            KladblokForm form;
            form.TG[0]->trigger();
            form.EditBold->trigger();
            form.Text1->SetText(u"woord"_s);
            form.FileExit->trigger();
            QVERIFY(form.Unloaded());
        }
        KladblokForm form;
        QCOMPARE(LetterVan(form), u"13"_s);
        QCOMPARE(form.Text1->Text(), QString());
        QVERIFY(form.TG[2]->isChecked() && !form.EditBold->isChecked());
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
        QVERIFY(bord.Lijsten().isEmpty());
    }

    // --- saving ---

    void theNameIsAskedFor_data()
    {
        QTest::addColumn<QString>("naam");
        QTest::addColumn<QStringList>("bestanden");
        Geval("small letters", "dieren", QStringList{u"Dieren.txt"_s});
        Geval("capitals", "DIEREN UIT ZEE", QStringList{u"Dieren uit zee.txt"_s});
        Geval("an accent", "école", QStringList{u"École.txt"_s});
        Geval("no answer", "", QStringList());
        Geval("a blank is an answer", " ", QStringList{u" .txt"_s});
        Geval("blanks round it", " Mijn dieren ", QStringList{u" mijn dieren .txt"_s});
        Geval("dots and a quote", "Jan's a.B", QStringList{u"Jan's a.b.txt"_s});
        Geval("a sign that no name may hold", "a/b", QStringList());
        Geval("a folder above", "..", QStringList{u"...txt"_s});
        Geval("outside the code page", "日本", QStringList{u"日本.txt"_s});
        Geval("long", QString(200, u'a'), QStringList{u'A' + QString(199, u'a') + u".txt"_s});
        Geval("longer than a name may be", QString(300, u'a'), QStringList());
    }
    void theNameIsAskedFor()
    {
        QFETCH(QString, naam);
        Woordbord bord;
        KladblokForm form;
        form.Text1->SetText(u"koe"_s);
        bord.Bank.Script.Teksten = {naam};
        const Stand ervoor = bord.Nu();
        form.FileSave->trigger();
        QCOMPARE(bord.Veranderd(ervoor), QString());
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        QCOMPARE(bord.Bank.Script.Gezien[0].Tekst, u"Geef de naam voor deze woordlijst..."_s);
        QCOMPARE(bord.Bank.Script.Gezien[0].Titel, u"Rasteratelier"_s);
        QTEST(bord.Lijsten(), "bestanden");
        QCOMPARE(form.Text1->Text(), u"koe"_s);
        QVERIFY(!form.Unloaded());
    }

    void anEmptyBoxIsSavedToo()
    {
        Woordbord bord;
        KladblokForm form;
        bord.Bank.Script.Teksten = {u"dieren"_s};
        form.FileSave->trigger();
        QCOMPARE(bord.Lijsten(), QStringList{u"Dieren.txt"_s});
        QCOMPARE(bord.Lijst(u"Dieren"_s), QByteArray());
    }

    void theLinesOfTheFile_data()
    {
        QTest::addColumn<QString>("tekst");
        QTest::addColumn<QByteArray>("inhoud");
        Geval("as typed", "koe\nPaard\nÉén ezel, oud", QByteArray("koe\r\nPaard\r\n\xC9\xE9n ezel, oud\r\n"));
        Geval("the same line twice", "koe\nos\nkoe", QByteArray("koe\r\nos\r\nkoe\r\n"));
        Geval("blank lines vanish", "\nkoe\n   \n\n  os \n", QByteArray("koe\r\nos\r\n"));
        Geval("a tab is no blank", "\tkoe", QByteArray("\tkoe\r\n"));
        Geval("nothing", "", QByteArray(""));
        Geval("blanks alone", QString(5000, u' '), QByteArray(""));
        Geval("outside the code page", "日", QByteArray("?\r\n"));
    }
    void theLinesOfTheFile()
    {
        QFETCH(QString, tekst);
        Woordbord bord;
        KladblokForm form;
        form.Text1->SetText(tekst);
        QTest::keyClicks(form.Text1, u" "_s); // can be undone
        form.Text1->moveCursor(QTextCursor::End);
        const Stand ervoor = StandVan(form);
        form.SaveKladblok(u"Lijst"_s);
        QCOMPARE(Verschil(ervoor, StandVan(form)), QString());
        QCOMPARE(bord.Lijsten(), QStringList{u"Lijst.txt"_s});
        QTEST(bord.Lijst(u"Lijst"_s), "inhoud");
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void aLongLineIsBrokenWhereTheBoxBreaksIt()
    {
        Woordbord bord;
        KladblokForm form;
        const QString zin = u"een twee drie vier vijf zes zeven acht negen tien elf twaalf dertien veertien"_s;
        form.Text1->SetText(zin);
        const auto regels = [&] {
            form.SaveKladblok(u"Lijst"_s);
            const QByteArray inhoud = bord.Lijst(u"Lijst"_s);
            bord.Bank.Script.Antwoorden = {Antwoord::Ja};
            return inhoud;
        };
        Toon(form, QSize(594, 350));
        QCOMPARE(regels(), zin.toLatin1() + "\r\n");
        Toon(form, QSize(300, 350)); // a narrower window
        const QByteArray smal = regels();
        QVERIFY(smal.count("\r\n") > 1);
        QCOMPARE(QByteArray(smal).replace("\r\n", " ").trimmed(), zin.toLatin1());
        form.TG[6]->trigger(); // larger letters
        const QByteArray groot = regels();
        QVERIFY(groot.count("\r\n") > smal.count("\r\n"));
        form.EditBold->trigger();
        QVERIFY(regels() != groot);
    }

    void theBoxBreaksBesideItsScrollBar()
    {
        Woordbord bord;
        KladblokForm form;
        form.show();
        QTest::keyClicks(form.Text1, QString(200, u'm'));
        QVERIFY(form.Text1->LineCount() > 1);
        QCOMPARE(form.Text1->lineWrapColumnOrWidth(), form.Text1->viewport()->width());
        QVERIFY(form.Text1->verticalScrollBar()->isVisible());
    }

    void aListThatThereIs_data()
    {
        QTest::addColumn<QString>("naam");
        QTest::addColumn<bool>("ja");
        QTest::addColumn<QStringList>("bestanden");
        QTest::addColumn<QByteArray>("inhoud");
        Geval("it is overwritten", "dieren", true, QStringList{u"Dieren.txt"_s}, QByteArray("koe\r\n"));
        Geval("it is kept", "Dieren", false, QStringList{u"DIEREN.TXT"_s}, QByteArray("oud"));
    }
    void aListThatThereIs()
    {
        QFETCH(QString, naam);
        QFETCH(bool, ja);
        QFETCH(QStringList, bestanden);
        Woordbord bord;
        bord.Bank.Schrijf(u"Woordlijsten/DIEREN.TXT"_s, "oud");
        KladblokForm form;
        form.Text1->SetText(u"koe"_s);
        bord.Bank.Script.Antwoorden = {ja ? Antwoord::Ja : Antwoord::Nee};
        form.SaveKladblok(naam);
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        const Bericht vraag = bord.Bank.Script.Gezien[0];
        QCOMPARE(vraag.Tekst, u"Naam woordlijst bestaat al, overschrijven?"_s);
        QCOMPARE(vraag.Titel, u" Exist"_s);
        QCOMPARE(vraag.Soort, Knoppen::JaNee);
        QCOMPARE(bord.Lijsten(), bestanden);
        QTEST(bord.Bank.Inhoud(u"Woordlijsten/"_s + bestanden[0]), "inhoud");
        QCOMPARE(form.Text1->Text(), u"koe"_s);
        QCOMPARE(form.windowTitle(), u"Kladblok"_s);
        QVERIFY(!form.Unloaded());
    }

    void ofTwoListsTheOneAsTypedGoes()
    {
        Woordbord bord;
        bord.Lijst(u"dieren"_s, "oud");
        bord.Lijst(u"Dieren"_s, "ouder");
        KladblokForm form;
        form.Text1->SetText(u"koe"_s);
        bord.Bank.Script.Antwoorden = {Antwoord::Ja};
        form.SaveKladblok(u"dieren"_s);
        QCOMPARE(bord.Lijsten(), QStringList{u"Dieren.txt"_s});
        QCOMPARE(bord.Lijst(u"Dieren"_s), QByteArray("koe\r\n"));
    }

    void aWriteThatFailsLeavesNoList()
    {
        Woordbord bord;
        bord.Lijst(u"Dieren"_s, "oud");
        KladblokForm form;
        form.Text1->SetText(u"koe"_s);
        bord.Bank.Script.Antwoorden = {Antwoord::Ja};
        HaperendeSchijf schijf(5); // a full disk: after the delete and the making of the new file
        form.SaveKladblok(u"Dieren"_s);
        QCOMPARE(schijf.Logboek[0], u"Verwijder Dieren.txt"_s);
        QVERIFY2(schijf.Logboek[4].startsWith(u"Schrijf"_s), qPrintable(schijf.Logboek.join(u'\n')));
        QCOMPARE(bord.Lijsten(), QStringList());
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        QCOMPARE(form.Text1->Text(), u"koe"_s);
    }

    void nothingIsSaidOfAFolderThatCannotBeWritten()
    {
        Woordbord bord;
        bord.Lijst(u"Dieren"_s, "oud");
        KladblokForm form;
        form.Text1->SetText(u"koe"_s);
        bord.Bank.Script.Antwoorden = {Antwoord::Ja};
        {
            const Onbevoegd onbevoegd(bord.Bank, {u"Woordlijsten"_s});
            form.SaveKladblok(u"Dieren"_s);
            form.SaveKladblok(u"Vissen"_s);
        }
        QCOMPARE(bord.Lijsten(), QStringList{u"Dieren.txt"_s});
        QCOMPARE(bord.Lijst(u"Dieren"_s), QByteArray("oud"));
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        QDir(bord.Bank.Map() + u"/Woordlijsten"_s).removeRecursively();
        form.SaveKladblok(u"Vissen"_s);
        QCOMPARE(bord.Lijsten(), QStringList());
        QCOMPARE(form.Text1->Text(), u"koe"_s);
    }

    void longTexts_data()
    {
        QTest::addColumn<QString>("tekst");
        QTest::addColumn<int>("regels");
        QString lang;
        for (int i = 0; i < 13000; ++i)
            lang += u"een regel van zo'n tachtig tekens, die de gebruiker in zijn kladblok plakt: %1\n"_s.arg(i, 5);
        Geval("1 MiB", lang, 13000);
        Geval("one line", QString(100000, u'm'), 0);
    }
    void longTexts()
    {
        QFETCH(QString, tekst);
        QFETCH(int, regels);
        Woordbord bord;
        KladblokForm form;
        form.show();
        form.Text1->SetText(tekst);
        form.SaveKladblok(u"Lijst"_s);
        const QByteArray inhoud = bord.Lijst(u"Lijst"_s);
        if (regels > 0)
            QCOMPARE(inhoud.count("\r\n"), regels);
        QCOMPARE(QByteArray(inhoud).replace("\r\n", ""), tekst.remove(u'\n').toLatin1());
    }
};

RASTER_TEST(tst_KladblokForm)
#include "tst_KladblokForm.moc"

#include "editors/EditorStand.h"
#include "editors/LetterForm.h"
#include "editors/NummerForm.h"
#include "support/Venster.h"

using namespace Qt::StringLiterals;

static const QRgb Grijs = qRgb(80, 80, 80);
static const QRgb Zwart = qRgb(0, 0, 0);
static const QRgb Wit = qRgb(255, 255, 255);

/// One of the two windows, with what it has of its own.
struct Soortvenster
{
    QString Naam, Titel, Begin, Uitleg, Leesnaam;
    int Van, Tot;
    std::function<std::unique_ptr<SchuifForm>()> Maak;
};

static QList<Soortvenster> Vensters()
{
    return {{u"LetterForm"_s, u"1 Letter Plaatsen op "_s, u"A"_s,
             u"Hiermee kun je op het puzzelveld één letter plaatsen. Verschuif de scrolbalk totdat je de juiste letter "
             "hebt gevonden, de letter IJ komt na de Z. Druk als laatste op de button 'Ok'"_s,
             u"Letter"_s, 0, 26, std::make_unique<LetterForm>},
            {u"NummerForm"_s, u"Vaknummer Plaatsen op "_s, u"1"_s,
             u"Hiermee kun je op een vakje een getal plaatsen in de linkerbovenhoek. Verschuif de scrolbalk totdat je "
             "het juiste getal hebt gevonden, druk als laatste op de button 'Ok'"_s,
             u"Vaknummer"_s, 1, 99, std::make_unique<NummerForm>}};
}

/// The puzzle, and what both windows keep beside it.
static Stand SchuifStand(const Bord &bord)
{
    Stand stand = EditorStand(bord);
    stand["GekozenLetter"] = GekozenLetter;
    stand["GekozenNummer"] = GekozenNummer;
    return stand;
}

/// Both boards in other letters than any editor leaves.
static void AndereLetters(const Bord &bord)
{
    bord.Venster.Pic->ZetLetter({.Naam = u"Courier New"_s, .Punten = 7.0, .Vet = false, .Kleur = Wit});
    bord.Venster.PicGroot->ZetLetter({.Naam = u"Arial"_s, .Punten = 7.0, .Vet = false, .Kleur = Wit});
}

/// The board with a number in a cell: a white box, and the digits a blank to the right of its corner.
static QImage MetNummer(const QImage &begin, QRect wit, const QString &nummer, const QFont &font)
{
    Verwacht beeld(begin);
    beeld.Vul(wit, Wit);
    beeld.Druk(u' ' + nummer, wit.topLeft(), font, Zwart);
    return beeld.Beeld;
}

/// Opens the number editor on a cell, scrolls if a number is given, and presses Ok.
static void PlaatsNummer(Bord &bord, QPoint cel, int nummer = 0)
{
    bord.Wijs(cel.x(), cel.y());
    NummerForm form;
    if (nummer > 0)
        form.HScroll1->setValue(nummer);
    form.OkKnop_Click();
    QVERIFY(form.Unloaded());
}

static void PlaatsLetter(Bord &bord, QPoint cel, int plaats)
{
    bord.Wijs(cel.x(), cel.y());
    LetterForm form;
    form.HScroll1->setValue(plaats);
    form.OkKnop_Click();
    QVERIFY(form.Unloaded());
}

class tst_SchuifForm : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        QCOMPARE(GekozenNummer, 0); // before anything is picked
        QCOMPARE(GekozenLetter, QString());
    }
    void init()
    {
        GekozenLetter.clear();
        GekozenNummer = 0;
    }

    void controlsAndTheirPlaces()
    {
        Bord bord;
        for (const Soortvenster &venster : Vensters()) {
            const auto form = venster.Maak();
            QCOMPARE(Misplaatst(*form, {{"Label1", 180, 210, 4140, 360},
                                        {"HScroll1", 210, 240, 4080, 300},
                                        {"Label2", 3810, 690},
                                        {"Label3", 240, 690, 3300, 900},
                                        {"CancelKnop", 2310, 1800, 0, 360},
                                        {"OkKnop", 3315, 1800, 0, 360}}),
                     QString());
            QCOMPARE(TabVolgorde(*form), u"HScroll1 CancelKnop OkKnop"_s);
        }
    }

    void asTheyOpen()
    {
        Bord bord;
        bord.Wijs(2, 18);
        bord.InBewerking();
        GekozenLetter = u"Q"_s; // of an earlier use
        GekozenNummer = 42;
        const Stand ervoor = SchuifStand(bord);
        for (const Soortvenster &venster : Vensters()) {
            const auto form = venster.Maak();
            QCOMPARE(form->objectName(), venster.Naam);
            QCOMPARE(form->windowTitle(), venster.Titel + u"C-19 / 291"_s);
            QCOMPARE(form->size(), QSize((4590 - 90) / 15, (2790 - 450) / 15));
            QCOMPARE(form->palette().color(QPalette::Window), QColor(230, 250, 190));
            QCOMPARE(form->HScroll1->minimum(), venster.Van);
            QCOMPARE(form->HScroll1->maximum(), venster.Tot);
            QCOMPARE(form->HScroll1->value(), venster.Van);
            QCOMPARE(form->HScroll1->accessibleName(), venster.Leesnaam);
            QCOMPARE(form->Label1->Caption(), QString());
            QCOMPARE(form->Label1->palette().color(QPalette::Window), QColor(150, 180, 180));
            QCOMPARE(form->Label2->Caption(), venster.Begin);
            QCOMPARE(form->Label3->Caption(), venster.Uitleg);
            QCOMPARE(PlaatjesOp(*form), u"CancelKnop knop-annuleren, OkKnop knop-ok"_s);
            QCOMPARE(form->focusWidget(), form->HScroll1);
        }
        QCOMPARE(Verschil(ervoor, SchuifStand(bord)), QString());
    }

    // The pointer was never on the board: its label still has no place, and the title tells what the label tells.
    void theTitleHasTheTextOfTheLabel()
    {
        Bord bord;
        for (const Soortvenster &venster : Vensters())
            QCOMPARE(venster.Maak()->windowTitle(), venster.Titel + u"Coordinaten"_s);
    }

    void theValueIsShownBigAndWhole()
    {
        Bord bord;
        for (const Soortvenster &venster : Vensters()) {
            const auto form = venster.Maak();
            QCOMPARE(form->Label2->font(), Lettertype(u"Arial"_s, 20, true));
            for (int waarde = venster.Van; waarde <= venster.Tot; ++waarde) {
                form->HScroll1->setValue(waarde);
                QVERIFY(form->Label2->geometry().right() < form->width());
                QVERIFY(!form->Label2->geometry().intersects(form->OkKnop->geometry()));
                QVERIFY(HeeftInkt(Getoond(*form->Label2), form->Label2->rect(), qRgb(230, 250, 190)));
            }
        }
    }

    void scrollingPicksTheLetter()
    {
        Bord bord;
        LetterForm form;
        QString letters;
        const Stand ervoor = EditorStand(bord);
        for (int plaats = 1; plaats <= 26; ++plaats) {
            form.HScroll1->setValue(plaats);
            QCOMPARE(form.Label2->Caption(), GekozenLetter);
            letters += GekozenLetter;
        }
        form.HScroll1->setValue(0);
        QCOMPARE(form.Label2->Caption(), u"A"_s);
        QCOMPARE(letters + GekozenLetter, u"BCDEFGHIJKLMNOPQRSTUVWXYZIJA"_s);
        QCOMPARE(GekozenNummer, 0);
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), QString());
    }

    void scrollingPicksTheNumber()
    {
        Bord bord;
        NummerForm form;
        const Stand ervoor = EditorStand(bord);
        for (const int nummer : {2, 1, 9, 10, 99, 1}) { // back at the first counts as well
            form.HScroll1->setValue(nummer);
            QCOMPARE(GekozenNummer, nummer);
            QCOMPARE(form.Label2->Caption(), QString::number(nummer));
        }
        QCOMPARE(GekozenLetter, QString());
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), QString());
    }

    void theBarHoldsWhatIsBeyondIt_data()
    {
        QTest::addColumn<int>("gevraagd");
        QTest::addColumn<int>("nummer");
        QTest::addColumn<QString>("letter");
        Geval("negative", -3, 1, "A");
        Geval("above a byte", 300, 99, "IJ");
        Geval("huge", INT_MAX, 99, "IJ");
        Geval("as low as can be", INT_MIN, 1, "A");
    }
    void theBarHoldsWhatIsBeyondIt()
    {
        QFETCH(int, gevraagd);
        Bord bord;
        NummerForm nummer;
        LetterForm letter;
        nummer.HScroll1->setValue(50);
        letter.HScroll1->setValue(13);
        nummer.HScroll1->setValue(gevraagd);
        letter.HScroll1->setValue(gevraagd);
        QTEST(int(GekozenNummer), "nummer");
        QTEST(GekozenLetter, "letter");
    }

    void theArrowKeysScroll()
    {
        Bord bord;
        NummerForm form;
        QTest::keyClick(form.HScroll1, Qt::Key_Right);
        QTest::keyClick(form.HScroll1, Qt::Key_Down);
        QCOMPARE(form.Label2->Caption(), u"3"_s);
        QTest::keyClick(form.HScroll1, Qt::Key_Left);
        QCOMPARE(form.Label2->Caption(), u"2"_s);
        QTest::keyClick(form.HScroll1, Qt::Key_End);
        QCOMPARE(form.Label2->Caption(), u"99"_s);
    }

    void whileTheThumbIsDraggedTheValueFollows()
    {
        Bord bord;
        LetterForm letter;
        NummerForm nummer;
        for (SchuifForm *form : QList<SchuifForm *>{&letter, &nummer}) {
            form->HScroll1->setSliderDown(true);
            form->HScroll1->setSliderPosition(22);
        }
        QCOMPARE(letter.Label2->Caption(), u"W"_s); // before it is released
        QCOMPARE(nummer.Label2->Caption(), u"22"_s);
        QCOMPARE(GekozenLetter, u"W"_s);
        QCOMPARE(GekozenNummer, 22);
    }

    void everyLetterInItsCell()
    {
        Bord bord;
        AndereLetters(bord);
        const QImage groot = bord.Groot();
        Verwacht verwacht(bord.Pic());
        for (int plaats = 0; plaats <= 26; ++plaats) {
            const QPoint cel(plaats % 16, 17 * (plaats / 16)); // the last cells of the board among them
            const QString letter = u"A B C D E F G H I J K L M N O P Q R S T U V W X Y Z IJ"_s.split(u' ')[plaats];
            const int verschuiving = letter == u"W"_s ? -3 : letter == u"I"_s ? 4 : 0; // "IJ" has none
            PlaatsLetter(bord, cel, plaats);
            verwacht.Druk(letter, cel * 30 + QPoint(11 + verschuiving, 7), Lettertype(u"Courier New"_s, 12, true),
                          Grijs);
            QCOMPARE(Verschil(bord.Pic(), verwacht.Beeld), QString());
        }
        QVERIFY(bord.Groot() == groot);
    }

    void whatALetterLeavesBehind_data() { ElkeSoort(); }
    void whatALetterLeavesBehind()
    {
        QFETCH(int, soort);
        Bord bord;
        bord.Begin(static_cast<quint8>(soort), 9, 9);
        bord.Wijs(2, 3);
        VakZwart[CurCell] = true; // it is not looked at
        AndereLetters(bord);
        bord.InBewerking();
        PuzzelGewijzigd = false;
        const Stand ervoor = SchuifStand(bord);
        const QImage groot = bord.Groot();
        Verwacht verwacht(bord.Pic());
        LetterForm form;
        Klik(bord, *form.OkKnop, [&] { QVERIFY(!form.Unloaded()); });
        QVERIFY(form.Unloaded());
        verwacht.Druk(u"A"_s, QPoint(71, 97), Lettertype(u"Courier New"_s, 12, true), Grijs);
        QCOMPARE(Verschil(bord.Pic(), verwacht.Beeld), QString());
        QCOMPARE(Verschil(ervoor, SchuifStand(bord)), u"Pic PicGroot PuzzelGewijzigd"_s); // no row
        QVERIFY(PuzzelGewijzigd);
        QVERIFY(bord.Groot() == groot); // of which the font alone is set
        QCOMPARE(Lettersoort(*bord.Venster.Pic), u"Courier New 12 1 ff505050"_s);
        QCOMPARE(Lettersoort(*bord.Venster.PicGroot), u"Arial Narrow 48 1 ff505050"_s);
    }

    void okAtOncePrintsTheLetterThatIsShown()
    {
        Bord bord;
        GekozenLetter = u"Q"_s; // of an earlier use
        bord.Wijs(2, 3);
        Verwacht verwacht(bord.Pic());
        LetterForm form;
        form.OkKnop_Click();
        verwacht.Druk(u"A"_s, QPoint(71, 97), Lettertype(u"Arial"_s, 12, true), Grijs);
        QCOMPARE(Verschil(bord.Pic(), verwacht.Beeld), QString());
        QCOMPARE(GekozenLetter, u"Q"_s);
    }

    void aSecondLetterLandsOnTopOfTheFirst()
    {
        Bord bord;
        Verwacht verwacht(bord.Pic());
        for (const int plaats : {14, 23}) {
            PlaatsLetter(bord, {2, 3}, plaats);
            verwacht.Druk(QChar(u'A' + plaats), QPoint(71, 97), Lettertype(u"Arial"_s, 12, true), Grijs);
        }
        QCOMPARE(Verschil(bord.Pic(), verwacht.Beeld), QString());
    }

    void numbersOnBothBoards_data()
    {
        QTest::addColumn<QPoint>("cel");
        QTest::addColumn<int>("nummer");
        QTest::addColumn<bool>("vet");
        for (const bool vet : {true, false}) { // which stays as it is
            Geval(vet ? "one digit, bold" : "one digit", QPoint(2, 3), 7, vet);
            Geval(vet ? "two digits, bold" : "two digits", QPoint(0, 0), 99, vet);
            Geval(vet ? "last cell, bold" : "last cell", QPoint(15, 18), 10, vet);
        }
    }
    void numbersOnBothBoards()
    {
        QFETCH(QPoint, cel);
        QFETCH(int, nummer);
        QFETCH(bool, vet);
        Bord bord;
        AndereLetters(bord);
        bord.Venster.Pic->FontBold = bord.Venster.PicGroot->FontBold = vet;
        bord.Venster.Pic->BoxFull(0, 0, 7215, 8565, qRgb(10, 200, 30)); // so that the white boxes are seen
        bord.Venster.PicGroot->BoxFull(0, 0, 28845, 34245, qRgb(10, 200, 30));
        const QImage pic = MetNummer(bord.Pic(), QRect(cel * 30 + QPoint(1, 1), QSize(11, 9)), QString::number(nummer),
                                     Lettertype(u"Courier New"_s, 6, vet));
        const QImage groot = MetNummer(bord.Groot(), QRect(cel * 120 + QPoint(4, 4), QSize(35, 29)),
                                       QString::number(nummer), Lettertype(u"Arial"_s, 20, vet));
        PlaatsNummer(bord, cel, nummer);
        QCOMPARE(Verschil(bord.Pic(), pic), QString());
        QCOMPARE(Verschil(bord.Groot(), groot), QString());
        QCOMPARE(Lettersoort(*bord.Venster.Pic), u"Courier New 6 %1 ff000000"_s.arg(vet));
        QCOMPARE(Lettersoort(*bord.Venster.PicGroot), u"Arial 20 %1 ff000000"_s.arg(vet));
    }

    void whatANumberLeavesBehind_data() { ElkeSoort(); }
    void whatANumberLeavesBehind()
    {
        QFETCH(int, soort);
        Bord bord;
        bord.Begin(static_cast<quint8>(soort), 9, 9);
        bord.Wijs(2, 3);
        VakZwart[CurCell] = true; // it is not looked at
        bord.InBewerking();
        PuzzelGewijzigd = false;
        bord.Venster.Pic->BoxFull(900, 1350, 1350, 1800, Zwart);
        const QImage pic = MetNummer(bord.Pic(), QRect(61, 91, 11, 9), u"0"_s, Lettertype(u"Arial"_s, 6, true));
        const QImage groot =
            MetNummer(bord.Groot(), QRect(244, 364, 35, 29), u"0"_s, Lettertype(u"Arial Narrow"_s, 20, true));
        const Stand ervoor = SchuifStand(bord);
        NummerForm form;
        Klik(bord, *form.OkKnop, [&] { QVERIFY(!form.Unloaded()); });
        QVERIFY(form.Unloaded());
        QCOMPARE(Verschil(ervoor, SchuifStand(bord)), u"Pic PicGroot PuzzelGewijzigd"_s);
        QCOMPARE(Verschil(bord.Pic(), pic), QString());
        QCOMPARE(Verschil(bord.Groot(), groot), QString());
        QVERIFY(PuzzelGewijzigd);
    }

    void okAtOncePrintsTheNumberOfAnEarlierUse()
    {
        Bord bord;
        const auto metNummer = [](const QImage &begin, const QString &nummer) {
            return MetNummer(begin, QRect(61, 91, 11, 9), nummer, Lettertype(u"Arial"_s, 6, true));
        };
        const QImage leeg = bord.Pic();
        PlaatsNummer(bord, {2, 3}); // the first time of all
        QCOMPARE(Verschil(bord.Pic(), metNummer(leeg, u"0"_s)), QString());
        PlaatsNummer(bord, {2, 3}, 42);
        PlaatsNummer(bord, {2, 3});
        QCOMPARE(Verschil(bord.Pic(), metNummer(leeg, u"42"_s)), QString());
        {
            NummerForm form; // scrolled and cancelled
            form.HScroll1->setValue(8);
            form.CancelKnop_Click();
        }
        PlaatsNummer(bord, {2, 3});
        QCOMPARE(Verschil(bord.Pic(), metNummer(leeg, u"8"_s)), QString());
        bord.Wijs(2, 3);
        NummerForm form; // to 2 and back: what is shown is printed
        form.HScroll1->setValue(2);
        form.HScroll1->setValue(1);
        form.OkKnop_Click();
        QCOMPARE(Verschil(bord.Pic(), metNummer(leeg, u"1"_s)), QString());
        QCOMPARE(GekozenNummer, 1);
    }

    void aNewNumberReplacesAnEarlierOne()
    {
        Bord bord;
        PlaatsNummer(bord, {2, 3}, 8);
        const QImage pic = bord.Pic(), groot = bord.Groot();
        PlaatsNummer(bord, {2, 3}, 2);
        QVERIFY(bord.Pic() != pic && bord.Groot() != groot);
        PlaatsNummer(bord, {2, 3}, 8); // nothing of the 2 is left
        QCOMPARE(Verschil(bord.Pic(), pic), QString());
        QCOMPARE(Verschil(bord.Groot(), groot), QString());
    }

    void cancelChangesNothing()
    {
        Bord bord;
        bord.Wijs(2, 3);
        bord.InBewerking();
        const Stand ervoor = EditorStand(bord);
        for (const Soortvenster &venster : Vensters()) {
            const auto form = venster.Maak();
            form->HScroll1->setValue(8);
            Klik(bord, *form->CancelKnop, [&] { QVERIFY(!form->Unloaded()); });
            QVERIFY(form->Unloaded());
        }
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), QString());
        QCOMPARE(GekozenLetter, u"I"_s); // what was picked is kept
        QCOMPARE(GekozenNummer, 8);
    }

    void whatIsPickedDuringTheEffectIsPrinted()
    {
        Bord bord;
        bord.Wijs(2, 3);
        Verwacht verwacht(bord.Pic());
        LetterForm letter;
        NummerForm nummer;
        {
            KijkKlok klok([&] {
                letter.HScroll1->setValue(16);
                bord.Wijs(3, 3);
            });
            letter.OkKnop->click();
        }
        verwacht.Druk(u"Q"_s, QPoint(101, 97), Lettertype(u"Arial"_s, 12, true), Grijs);
        QCOMPARE(Verschil(bord.Pic(), verwacht.Beeld), QString());
        KijkKlok klok([&] {
            nummer.HScroll1->setValue(25);
            bord.Wijs(2, 3);
        });
        nummer.OkKnop->click();
        QCOMPARE(Verschil(bord.Pic(),
                          MetNummer(verwacht.Beeld, QRect(61, 91, 11, 9), u"25"_s, Lettertype(u"Arial"_s, 6, true))),
                 QString());
    }

    void aCellBeyondTheBoardIsLost()
    {
        Bord bord;
        bord.Begin(Kruiswoord, 9, 9);
        CurCol = 15; // the pointer has not moved since there was a larger board
        CurRow = 18;
        const QImage pic = bord.Pic(), groot = bord.Groot();
        for (const Soortvenster &venster : Vensters()) {
            PuzzelGewijzigd = false;
            const auto form = venster.Maak();
            form->OkKnop_Click();
            QVERIFY(form->Unloaded() && PuzzelGewijzigd); // as ever
        }
        QVERIFY(bord.Pic() == pic && bord.Groot() == groot);
    }

    void aWindowThatIsClosedDuringTheEffectPlacesNothing()
    {
        Bord bord;
        bord.Wijs(2, 3);
        for (const Soortvenster &venster : Vensters()) {
            const auto form = venster.Maak();
            form->show();
            const Stand ervoor = SchuifStand(bord);
            KijkKlok klok([&] { form->close(); });
            form->OkKnop->click();
            QVERIFY(form->Unloaded());
            QCOMPARE(Verschil(ervoor, SchuifStand(bord)), QString());
        }
    }

    void aSecondPressDuringTheEffectPlacesItOnce()
    {
        Bord bord;
        for (const Soortvenster &venster : Vensters()) {
            const auto form = venster.Maak();
            form->show();
            PuzzelGewijzigd = false;
            QMetaObject::invokeMethod(form->OkKnop, &QAbstractButton::click, Qt::QueuedConnection);
            form->OkKnop->click(); // the queued press comes while this one waits
            QVERIFY(form->Unloaded() && PuzzelGewijzigd);
            QVERIFY(bord.Bank.Script.Gezien.isEmpty());
        }
    }
};

RASTER_TEST(tst_SchuifForm)
#include "tst_SchuifForm.moc"

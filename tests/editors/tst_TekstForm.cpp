#include "editors/Verwacht.h"
#include "platform/Plaatjes.h"

using namespace Qt::StringLiterals;

class tst_TekstForm : public QObject
{
    Q_OBJECT
private slots:
    void controlsAndTheirPlaces_data()
    {
        QTest::addColumn<QString>("naam");
        QTest::addColumn<QByteArray>("soort");
        QTest::addColumn<QRect>("vlak"); // twips: left, top, width, height; a null size is not fixed
        const auto rij = [](const char *naam, const char *soort, QRect vlak) {
            QTest::newRow(naam) << naam << QByteArray(soort) << vlak;
        };
        rij("Text1", "QLineEdit", QRect(150, 180, 3900, 360));
        rij("Label1", "Label", QRect(4080, 240, 0, 0));
        rij("Text2", "QLineEdit", QRect(150, 570, 3900, 360));
        rij("Label2", "Label", QRect(4080, 630, 0, 0));
        rij("CopyKnop", "ImageButton", QRect(5250, 570, 0, 0));
        rij("Option1", "QRadioButton", QRect(390, 1200, 2700, 360));
        rij("Option2", "QRadioButton", QRect(390, 1500, 2700, 360));
        rij("Option3", "QRadioButton", QRect(390, 1800, 3300, 360));
        rij("Option4", "QRadioButton", QRect(390, 2100, 3300, 360));
        rij("Image1", "ImageBox", QRect(3300, 1320, 480, 480));
        rij("Check1", "QCheckBox", QRect(4350, 1440, 2100, 315));
        rij("Combo1", "QComboBox", QRect(270, 2640, 810, 315));
        rij("Label3", "Label", QRect(1150, 2700, 0, 0));
        rij("CancelKnop", "ImageButton", QRect(4290, 2670, 0, 360));
        rij("OkKnop", "ImageButton", QRect(5295, 2670, 0, 360));
    }
    void controlsAndTheirPlaces()
    {
        QFETCH(QString, naam);
        QFETCH(QByteArray, soort);
        QFETCH(QRect, vlak);
        Bord bord;
        TekstForm form;
        QVERIFY(StaatOp(form, naam, vlak));
        QVERIFY(Vind<QWidget>(form, naam)->inherits(soort));
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
        QCOMPARE(form.CopyKnop->toolTip(), u" Copy tekst vanaf hoofdscherm "_s);
        for (const QWidget *box : std::initializer_list<QWidget *>{form.Text1, form.Text2, form.Combo1}) {
            QCOMPARE(box->palette().color(QPalette::Active, QPalette::Base), QColor(30, 0, 0));
            QCOMPARE(box->palette().color(QPalette::Active, QPalette::Text), QColor(230, 230, 230));
        }
    }

    void theNumbersAre1To99()
    {
        Bord bord;
        TekstForm form;
        QCOMPARE(form.Combo1->currentText(), u"1"_s);
        QCOMPARE(form.Combo1->currentIndex(), 0);
        QCOMPARE(form.Combo1->count(), 99);
        for (int i = 0; i < 99; ++i)
            QCOMPARE(form.Combo1->itemText(i), QString::number(i + 1));
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
        QVERIFY(form.CopyKnop->isEnabled() && form.CancelKnop->isEnabled() && form.OkKnop->isEnabled());
        QCOMPARE(form.focusWidget(), omschrijving ? form.Text1 : form.Text2); // where one begins to type
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
        const auto rij = [](const char *naam, const QString &woord, const QString &teller) {
            QTest::newRow(naam) << woord << teller;
        };
        rij("lijst", u"lijst"_s, u"Oplossing (4)"_s);
        rij("two of them", u"ijsjeij"_s, u"Oplossing (5)"_s);
        rij("capitals are two", u"LIJST"_s, u"Oplossing (5)"_s);
        rij("blanks count", u"a b"_s, u"Oplossing (3)"_s);
        rij("nothing", QString(), u"Oplossing (0)"_s);
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
        form.Text2->setText(u"eerder"_s);
        Klik(bord, *form.CopyKnop, [&] { QCOMPARE(form.Text2->text(), u"eerder"_s); });
        QCOMPARE(form.Text2->text(), u"doetinchem"_s);
        QCOMPARE(form.Label2->Caption(), u"Oplossing (10)"_s);
        QVERIFY(!form.Unloaded());
    }

    void whatIsMissingIsSaid_data()
    {
        QTest::addColumn<int>("soort");
        QTest::addColumn<QString>("omschrijving");
        QTest::addColumn<QString>("oplossing");
        QTest::addColumn<QString>("nummer");
        QTest::addColumn<QString>("melding");
        const auto rij = [](const char *naam, int soort, const QString &omschrijving, const QString &oplossing,
                            const QString &nummer, const QString &melding) {
            QTest::newRow(naam) << soort << omschrijving << oplossing << nummer << melding;
        };
        const QString dier = u"dier"_s, aap = u"aap"_s, niets;
        const QString beide = u"Omschrijving en/of Oplossing intypen..."_s;
        const QString geenNummer = u"Vaknummer selecteren (1..99)"_s;
        rij("Zweeds, no clue", 1, niets, aap, u"1"_s, beide);
        rij("Zweeds, no solution", 1, dier, niets, u"1"_s, beide);
        rij("Zweeds, neither", 1, niets, niets, u"1"_s, beide);
        rij("Kruiswoord, no clue", 3, niets, aap, u"1"_s, beide);
        rij("Kruiswoord, no solution", 3, dier, niets, u"1"_s, beide);
        rij("Kruiswoord, nothing at all", 3, niets, niets, u"0"_s, beide);
        rij("Woordzoeker, no solution", 2, niets, niets, u"0"_s, u"Oplossing intypen..."_s);
        rij("Kruiswoord, number 0", 3, dier, aap, u"0"_s, geenNummer);
        rij("Kruiswoord, number 0.5", 3, dier, aap, u"0.5"_s, geenNummer);
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
        const EditorStand ervoor(bord);
        TekstForm form;
        form.Text1->setText(omschrijving);
        form.Text2->setText(oplossing);
        form.Combo1->setEditText(nummer);
        form.OkKnop->setFocus();
        Klik(bord, *form.OkKnop);
        QCOMPARE(form.focusWidget() == form.Text2, soort == Woordzoeker);
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        QCOMPARE(bord.Bank.Script.Gezien[0].Tekst, melding);
        QCOMPARE(bord.Bank.Script.Gezien[0].Titel, u"Error"_s);
        QVERIFY(!form.Unloaded());
        QVERIFY(EditorStand(bord) == ervoor);
        QCOMPARE(form.Text2->text(), oplossing);
    }

    void aNumberThatIsNoneFails_data()
    {
        QTest::addColumn<QString>("nummer");
        QTest::addColumn<int>("fout");
        QTest::newRow("a word") << u"een"_s << int(Fout::TypeOnjuist);
        QTest::newRow("nothing") << QString() << int(Fout::TypeOnjuist);
        QTest::newRow("too large") << u"99999999999"_s << int(Fout::Overloop);
    }
    void aNumberThatIsNoneFails()
    {
        QFETCH(QString, nummer);
        QFETCH(int, fout);
        Bord bord;
        PuzzelType = Kruiswoord;
        const EditorStand ervoor(bord);
        TekstForm form;
        form.Text1->setText(u"dier"_s);
        form.Text2->setText(u"aap"_s);
        form.Combo1->setEditText(nummer);
        QCOMPARE(FoutVan([&] { form.OkKnop_Click(); }), fout);
        QVERIFY(EditorStand(bord) == ervoor);
        QVERIFY(!form.Unloaded());
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void cancelChangesNothing()
    {
        Bord bord;
        bord.Wijs(2, 3);
        const EditorStand ervoor(bord);
        TekstForm form;
        form.Text1->setText(u"dier"_s);
        form.Text2->setText(u"aap"_s);
        Klik(bord, *form.CancelKnop, [&] { QVERIFY(!form.Unloaded()); });
        QVERIFY(form.Unloaded());
        QVERIFY(EditorStand(bord) == ervoor);
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void thePictureOfADirection_data()
    {
        QTest::addColumn<QString>("plaatje");
        QTest::addColumn<QPoint>("richting");
        QTest::newRow("H") << u"richting-h"_s << QPoint(1, 0);
        QTest::newRow("V") << u"richting-v"_s << QPoint(0, 1);
        QTest::newRow("R") << u"richting-r"_s << QPoint(1, 1);
        QTest::newRow("L") << u"richting-l"_s << QPoint(-1, 1);
    }
    void thePictureOfADirection()
    {
        QFETCH(QString, plaatje);
        QFETCH(QPoint, richting);
        const QImage beeld = Plaatjes::Beeld(plaatje);
        QList<QPoint> pijl; // the blue of the picture
        for (int y = 0; y < beeld.height(); ++y)
            for (int x = 0; x < beeld.width(); ++x)
                if (const QColor kleur = beeld.pixelColor(x, y); kleur.blue() > kleur.red() + 40)
                    pijl += QPoint(x, y);
        // An arrow is pointed where it goes to and broad where it comes from.
        const auto breedte = [&pijl](QPoint kant) {
            int verst = INT_MIN;
            for (const QPoint punt : pijl)
                verst = std::max(verst, QPoint::dotProduct(punt, kant));
            return std::count_if(pijl.begin(), pijl.end(),
                                 [&](QPoint punt) { return QPoint::dotProduct(punt, kant) >= verst - 1; });
        };
        QVERIFY(breedte(richting) > 0);
        QVERIFY(2 * breedte(richting) < breedte(-richting));
    }
};

RASTER_TEST(tst_TekstForm)
#include "tst_TekstForm.moc"

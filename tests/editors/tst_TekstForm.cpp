#include "editors/EditorStand.h"
#include "platform/Plaatjes.h"
#include "support/Venster.h"

using namespace Qt::StringLiterals;

class tst_TekstForm : public QObject
{
    Q_OBJECT
private slots:
    void controlsAndTheirPlaces()
    {
        Bord bord;
        TekstForm form;
        QCOMPARE(Misplaatst(form, {{"Text1", 150, 180, 3900, 360},
                                   {"Label1", 4080, 240},
                                   {"Text2", 150, 570, 3900, 360},
                                   {"Label2", 4080, 630},
                                   {"CopyKnop", 5250, 570},
                                   {"Option1", 390, 1200, 2700, 360},
                                   {"Option2", 390, 1500, 2700, 360},
                                   {"Option3", 390, 1800, 3300, 360},
                                   {"Option4", 390, 2100, 3300, 360},
                                   {"Image1", 3300, 1320, 480, 480},
                                   {"Check1", 4350, 1440, 2100, 315},
                                   {"Combo1", 270, 2640, 810, 315},
                                   {"Label3", 1150, 2700},
                                   {"CancelKnop", 4290, 2670, 0, 360},
                                   {"OkKnop", 5295, 2670, 0, 360}}),
                 QString());
    }

    void theTabKeyGoesToWhatIsEnabled_data()
    {
        QTest::addColumn<int>("soort");
        QTest::addColumn<QString>("volgorde");
        Geval("Zweeds", 1, "Text1 Text2 CopyKnop Option1 CancelKnop OkKnop");
        Geval("Woordzoeker", 2, "Text2 CopyKnop Option1 Check1 CancelKnop OkKnop");
        Geval("Kruiswoord", 3, "Text1 Text2 CopyKnop Option1 Combo1 CancelKnop OkKnop");
    }
    void theTabKeyGoesToWhatIsEnabled()
    {
        QFETCH(int, soort);
        Bord bord;
        PuzzelType = static_cast<quint8>(soort);
        TekstForm form;
        QTEST(TabVolgorde(form), "volgorde");
        QCOMPARE(Leesnamen(form),
                 (QStringList{
                     u"CancelKnop=Annuleren"_s, u"Check1=Oplossing omgekeerd"_s, u"Combo1=Vaknummer Kruiswoordpuzzel"_s,
                     u"CopyKnop=Copy tekst vanaf hoofdscherm"_s, u"Image1=Richting"_s, u"OkKnop=Ok"_s,
                     u"Option1=Oplossing Horizontaal Plaatsen"_s, u"Option2=Oplossing Vertikaal Plaatsen"_s,
                     u"Option3=Diagonaal naar rechtsonder Plaatsen"_s, u"Option4=Diagonaal naar linksonder plaatsen"_s,
                     u"Text1=Omschrijving"_s, u"Text2=Oplossing"_s}));
    }

    void asItOpens_data()
    {
        QTest::addColumn<int>("soort");
        Geval("Zweeds", 1);
        Geval("Woordzoeker", 2);
        Geval("Kruiswoord", 3);
    }
    void asItOpens()
    {
        QFETCH(int, soort);
        Bord bord;
        PuzzelType = static_cast<quint8>(soort);
        bord.InBewerking();
        QCOMPARE(TekstForm().windowTitle(), u"Oplossing Plaatsen op Coordinaten"_s); // nothing was pointed at yet
        bord.Wijs(2, 6);
        {
            TekstForm eerder;
            eerder.Option[1]->setChecked(true);
            eerder.Text1->setText(u"dier"_s);
            eerder.Text2->setText(u"aap"_s);
            eerder.Combo1->setCurrentIndex(6);
            eerder.Check1->setChecked(true);
            eerder.OkKnop_Click();
        }
        const Stand ervoor = EditorStand(bord);
        TekstForm form;
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), QString());
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
        QCOMPARE(form.Combo1->currentText(), u"1"_s);
        QCOMPARE(form.CopyKnop->toolTip(), u" Copy tekst vanaf hoofdscherm "_s);
        QCOMPARE(PlaatjesOp(form),
                 u"CancelKnop knop-annuleren, CopyKnop knop-kopie, Image1 richting-h, OkKnop knop-ok"_s);
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
        Geval("Zweeds", 1, true, false, false);
        Geval("Woordzoeker", 2, false, true, false);
        Geval("Kruiswoord", 3, true, false, true);
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
        form.CopyKnop->setFocus();
        for (const qsizetype i : {3, 2, 1, 0}) {
            form.Option[i]->click();
            QCOMPARE(form.Image1->Picture(), plaatjes[i]);
            QCOMPARE(form.focusWidget(), form.CopyKnop);
        }
    }

    void theCounterCountsCells_data()
    {
        QTest::addColumn<QString>("woord");
        QTest::addColumn<QString>("teller");
        Geval("lijst", u"lijst"_s, u"Oplossing (4)"_s);
        Geval("two of them", u"ijsjeij"_s, u"Oplossing (5)"_s);
        Geval("capitals are two", u"LIJST"_s, u"Oplossing (5)"_s);
        Geval("blanks count", u"a b"_s, u"Oplossing (3)"_s);
        Geval("nothing", QString(), u"Oplossing (0)"_s);
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
        bord.InBewerking();
        bord.Venster.CopyLabel->SetCaption(u"Delft"_s);
        TekstForm form;
        form.Text2->setText(u"eerder"_s);
        const Stand ervoor = EditorStand(bord);
        Klik(bord, *form.CopyKnop, [&] {
            QCOMPARE(form.Text2->text(), u"eerder"_s);
            bord.Venster.CopyLabel->SetCaption(u"Den Haag "_s);
        });
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), u"CopyLabel"_s);
        QCOMPARE(form.focusWidget(), form.Text1);     // it stays where it was
        QCOMPARE(form.Text2->text(), u"Den Haag "_s); // as it stands there
        QCOMPARE(form.Label2->Caption(), u"Oplossing (9)"_s);
        bord.Venster.CopyLabel->SetCaption(QString()); // nothing is copied too
        form.CopyKnop->click();
        QCOMPARE(form.Text2->text(), QString());
        QVERIFY(!form.Unloaded());
    }

    void enterInABoxPlacesNothing()
    {
        Bord bord;
        bord.Wijs(2, 3);
        const Stand ervoor = EditorStand(bord);
        TekstForm form;
        form.Text1->setText(u"dier"_s);
        form.Text2->setText(u"aap"_s);
        for (QWidget *box : std::initializer_list<QWidget *>{form.Text1, form.Text2, form.Combo1})
            QTest::keyClick(box, Qt::Key_Return);
        QVERIFY(!form.Unloaded());
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), QString());
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void whatIsMissingIsSaid_data()
    {
        QTest::addColumn<int>("soort");
        QTest::addColumn<QString>("omschrijving");
        QTest::addColumn<QString>("oplossing");
        QTest::addColumn<QString>("nummer");
        QTest::addColumn<QString>("melding");
        const QString dier = u"dier"_s, aap = u"aap"_s, niets;
        const QString beide = u"Omschrijving en/of Oplossing intypen..."_s;
        const QString geenNummer = u"Vaknummer selecteren (1..99)"_s;
        Geval("Zweeds, no clue", 1, niets, aap, u"1"_s, beide);
        Geval("Zweeds, no solution", 1, dier, niets, u"1"_s, beide);
        Geval("Zweeds, neither", 1, niets, niets, u"1"_s, beide);
        Geval("Kruiswoord, no clue", 3, niets, aap, u"1"_s, beide);
        Geval("Kruiswoord, no solution", 3, dier, niets, u"1"_s, beide);
        Geval("Kruiswoord, nothing at all", 3, niets, niets, u"0"_s, beide);
        Geval("Woordzoeker, no solution", 2, niets, niets, u"0"_s, u"Oplossing intypen..."_s);
        Geval("Kruiswoord, number 0", 3, dier, aap, u"0"_s, geenNummer);
        Geval("Kruiswoord, number 0.5", 3, dier, aap, u"0.5"_s, geenNummer);
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
        bord.InBewerking();
        const Stand ervoor = EditorStand(bord);
        TekstForm form;
        form.Text1->setText(omschrijving);
        form.Text2->setText(oplossing);
        form.Combo1->setEditText(nummer);
        form.Option[1]->setChecked(true);
        form.Check1->setChecked(true);
        form.OkKnop->setFocus();
        Klik(bord, *form.OkKnop);
        QCOMPARE(form.focusWidget(), soort == Woordzoeker ? static_cast<QWidget *>(form.Text2) : form.OkKnop);
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        QCOMPARE(bord.Bank.Script.Gezien[0].Tekst, melding);
        QCOMPARE(bord.Bank.Script.Gezien[0].Titel, u"Error"_s);
        QCOMPARE(bord.Bank.Script.Gezien[0].Soort, Knoppen::Ok);
        QCOMPARE(bord.Bank.Script.Gezien[0].Plaatje, Icoon::Geen);
        QVERIFY(!form.Unloaded());
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), QString());
        QCOMPARE(form.Text1->text(), omschrijving); // all that was filled in stays
        QCOMPARE(form.Text2->text(), oplossing);
        QCOMPARE(form.Combo1->currentText(), nummer);
        QVERIFY(form.Option[1]->isChecked() && form.Check1->isChecked());
    }

    void aNumberThatIsNoneFails_data()
    {
        QTest::addColumn<QString>("nummer");
        QTest::addColumn<int>("fout");
        Geval("a word", u"een"_s, int(Fout::TypeOnjuist));
        Geval("nothing", QString(), int(Fout::TypeOnjuist));
        Geval("too large", u"99999999999"_s, int(Fout::Overloop));
    }
    void aNumberThatIsNoneFails()
    {
        QFETCH(QString, nummer);
        QFETCH(int, fout);
        Bord bord;
        PuzzelType = Kruiswoord;
        const Stand ervoor = EditorStand(bord);
        TekstForm form;
        form.Text1->setText(u"dier"_s);
        form.Text2->setText(u"aap"_s);
        form.Combo1->setEditText(nummer);
        QCOMPARE(FoutVan([&] { form.OkKnop_Click(); }), fout);
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), QString());
        QVERIFY(!form.Unloaded());
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void cancelChangesNothing()
    {
        Bord bord;
        bord.Wijs(2, 3);
        bord.InBewerking();
        const Stand ervoor = EditorStand(bord);
        TekstForm form;
        form.Text1->setText(u"dier"_s);
        form.Text2->setText(u"aap"_s);
        Klik(bord, *form.CancelKnop, [&] { QVERIFY(!form.Unloaded()); });
        QVERIFY(form.Unloaded());
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), QString());
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void thePictureOfADirection_data()
    {
        QTest::addColumn<QString>("plaatje");
        QTest::addColumn<QPoint>("richting");
        Geval("H", u"richting-h"_s, QPoint(1, 0));
        Geval("V", u"richting-v"_s, QPoint(0, 1));
        Geval("R", u"richting-r"_s, QPoint(1, 1));
        Geval("L", u"richting-l"_s, QPoint(-1, 1));
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

#include "board/MainForm.h"
#include "board/Soorten.h"
#include "support/Bord.h"

#include <QHeaderView>
#include <QMenuBar>
#include <QScrollArea>

using namespace Qt::StringLiterals;

class tst_MainForm : public QObject
{
    Q_OBJECT
private slots:
    void everyControlIsAtItsPlace_data()
    {
        QTest::addColumn<QString>("naam");
        QTest::addColumn<QString>("ouder"); // empty: the window itself
        QTest::addColumn<int>("boven");     // twips
        QTest::addColumn<int>("links");
        QTest::addColumn<int>("breedte"); // 0: not fixed
        QTest::addColumn<int>("hoogte");
        const auto rij = [](const char *naam, const char *ouder, int boven, int links, int breedte = 0,
                            int hoogte = 0) {
            QTest::newRow(naam) << naam << ouder << boven << links << breedte << hoogte;
        };
        rij("Frame8", "", 90, 180, 7410, 540); // the board's load gives it the width of the plate
        rij("Label12", "Frame8", 180, 90);
        rij("Label1", "", 780, 180, 7410, 8760);
        rij("Pic", "", 870, 270, 7215, 8565);
        rij("PicR", "", 780, 7605, 450, 8760);
        rij("PicO", "", 9555, 180, 7410, 300);
        rij("Label2", "", 3000, 2565);
        rij("Frame1", "", 9855, 180, 7815, 540);
        rij("Label6", "Frame1", 180, 120);
        rij("KlokLabel", "Frame1", 180, 7020);
        rij("Frame9", "", 5400, 180, 4275, 4410);
        rij("ListView1", "", 195, 8160, 5145, 5145);
        rij("Frame7", "", 5400, 8160, 5175, 750);
        rij("DelKnop", "Frame7", 240, 120);
        rij("Label10", "Frame7", 315, 1170);
        rij("Label11", "Frame7", 315, 4350);
        rij("List1", "", 6285, 8160, 2910, 4110);
        rij("Frame10", "", 6195, 11230, 2100, 600);
        rij("Label18", "Frame10", 180, 60, 1965, 345);
        rij("CopyLabel", "Frame10", 240, 135);
        rij("Frame2", "", 6840, 11230, 2100, 3570);
        rij("Label3", "Frame2", 210, 120);
        rij("Label16", "Frame2", 780, 150);
        rij("Label15", "Frame2", 1050, 135, 1800, 330);
        rij("ScrolLengte", "Frame2", 1080, 165, 1740, 270);
        rij("OkKnop", "Frame2", 1500, 135);
        rij("Label17", "Frame2", 1560, 780);
        rij("Image1", "Frame2", 2100, 450);
        rij("Label9", "Frame2", 3240, 120);
        rij("List2", "", 195, 13500, 4815, 2535);
        rij("Frame6", "", 2730, 13500, 4830, 750);
        rij("Combo1", "Frame6", 240, 120, 1200);
        rij("Label7", "Frame6", 285, 1410);
        rij("Label8", "Frame6", 285, 4560);
        rij("Frame3", "", 3495, 13500, 4830, 3300);
        rij("List3", "Frame3", 240, 2580, 2100, 2910);
        rij("Label4", "Frame3", 240, 180);
        rij("Label5", "Frame3", 690, 180, 2190, 2100);
        rij("LoadKnop", "Frame3", 2805, 1560, 840, 330);
        rij("Frame4", "", 6840, 13500, 4830, 2490);
        rij("LogoPic", "Frame4", 240, 120, 4575, 2100);
        rij("Frame5", "", 9390, 13500, 4830, 1020);
        rij("HelpKnop", "Frame5", 240, 120);
        rij("AboutKnop", "Frame5", 240, 840);
        rij("ExitKnop", "Frame5", 240, 4050);
    }
    void everyControlIsAtItsPlace()
    {
        QFETCH(QString, naam);
        QFETCH(QString, ouder);
        QFETCH(int, boven);
        QFETCH(int, links);
        QFETCH(int, breedte);
        QFETCH(int, hoogte);
        Bord bord;
        const auto *control = Vind<QWidget>(bord.Venster, naam);
        if (!ouder.isEmpty())
            QCOMPARE(control->parentWidget()->objectName(), ouder);
        QCOMPARE(control->pos(), QPoint(Twips::NaarPixels(links), Twips::NaarPixels(boven)));
        if (breedte > 0)
            QCOMPARE(control->width(), Twips::NaarPixels(breedte));
        if (hoogte > 0)
            QCOMPARE(control->height(), Twips::NaarPixels(hoogte));
        const auto *houder = control->parentWidget();
        QVERIFY2(houder->rect().contains(control->geometry()), "it sticks out of what holds it");
    }

    void frame8StartsAsWideAsTheStatusBar()
    {
        Testbank bank;
        MainForm venster; // before the board is drawn
        QCOMPARE(venster.Frame8->width(), 521);
    }

    void texts_data()
    {
        QTest::addColumn<QString>("naam");
        QTest::addColumn<QString>("tekst");
        const auto rij = [](const char *naam, const QString &tekst) { QTest::newRow(naam) << naam << tekst; };
        rij("Label12", u"Soortpuzzel : Zweeds"_s);
        rij("Label2", u" Load Database "_s);
        rij("Label6", u"Coordinaten"_s);
        rij("KlokLabel", u"00:00"_s);
        rij("Label10", u"Item verwijderen"_s);
        rij("Label11", u"0 Items"_s);
        rij("CopyLabel", QString());
        rij("Label3", u"0 Woorden in lijst"_s);
        rij("Label16", u"Woordlengte (2)"_s);
        rij("Label17", u"Zoeken"_s);
        rij("Label9", QString());
        rij("Label7", u"Lengte woorden"_s);
        rij("Label8", u"0"_s);
        rij("Label4", u"Woordlijsten"_s);
        rij("Label5", u"Klik op de button 'Load' om de woordlijsten te openen, selecteer vervolgens één van de "
                      "woorden uit de lijst voor de bijbehorende omschrijvingen.\n\nOnder het menu-item 'Tools' "
                      "kun je deze woordlijsten nog bewerken en / of uitbreiden."_s);
    }
    void texts()
    {
        QFETCH(QString, naam);
        QFETCH(QString, tekst);
        Bord bord;
        QCOMPARE(Vind<Label>(bord.Venster, naam)->Caption(), tekst);
    }

    void toolTips_data()
    {
        QTest::addColumn<QString>("naam");
        QTest::addColumn<QString>("tekst");
        QTest::newRow("DelKnop") << "DelKnop"
                                 << " Verwijder een item uit bovenstaande lijst ";
        QTest::newRow("CopyLabel") << "CopyLabel"
                                   << " Copytekst ";
        QTest::newRow("OkKnop") << "OkKnop"
                                << " Start zoeken op woordlengte ";
        QTest::newRow("HelpKnop") << "HelpKnop"
                                  << " Uitleg en Hulp ";
        QTest::newRow("AboutKnop") << "AboutKnop"
                                   << " Over de ontwerper ";
        QTest::newRow("ExitKnop") << "ExitKnop"
                                  << " Programma Stoppen ";
    }
    void toolTips()
    {
        QFETCH(QString, naam);
        QFETCH(QString, tekst);
        Bord bord;
        QCOMPARE(Vind<QWidget>(bord.Venster, naam)->toolTip(), tekst);
    }

    void colours_data()
    {
        QTest::addColumn<QString>("naam");
        QTest::addColumn<int>("rol");
        QTest::addColumn<QColor>("kleur");
        const auto rij = [](const char *naam, QPalette::ColorRole rol, QColor kleur) {
            QTest::addRow("%s %d", naam, rol) << naam << int(rol) << kleur;
        };
        for (const char *frame :
             {"Frame1", "Frame2", "Frame3", "Frame4", "Frame5", "Frame6", "Frame7", "Frame8", "Frame9", "Frame10"})
            rij(frame, QPalette::Window, QColor(230, 230, 190));
        rij("Label1", QPalette::Window, QColor(150, 150, 150));
        rij("Label2", QPalette::Window, QColor(230, 230, 0));
        rij("Label18", QPalette::Window, QColor(150, 180, 180));
        rij("CopyLabel", QPalette::WindowText, QColor(0, 0, 0));
        rij("ListView1", QPalette::Base, QColor(220, 220, 250));
        rij("List1", QPalette::Base, QColor(180, 180, 150));
        rij("List2", QPalette::Base, QColor(180, 180, 150));
        rij("List3", QPalette::Base, QColor(220, 220, 220));
        rij("List3", QPalette::Text, QColor(90, 90, 90));
        rij("Combo1", QPalette::Base, QColor(250, 250, 250));
        rij("Combo1", QPalette::Text, QColor(0, 0, 0));
    }
    void colours()
    {
        QFETCH(QString, naam);
        QFETCH(int, rol);
        QFETCH(QColor, kleur);
        Bord bord;
        const auto *control = Vind<QWidget>(bord.Venster, naam);
        QCOMPARE(control->palette().color(static_cast<QPalette::ColorRole>(rol)), kleur);
    }

    void hiddenAtTheStart_data()
    {
        QTest::addColumn<QString>("naam");
        QTest::addColumn<bool>("verborgen");
        for (const char *naam : {"Label2", "Frame9", "PicGroot", "PicVak", "Vak1", "Vak2", "Shape1", "Line1"})
            QTest::newRow(naam) << naam << true;
        for (const char *naam : {"Pic", "ListView1", "Frame1", "List1", "CopyLabel"})
            QTest::newRow(naam) << naam << false;
    }
    void hiddenAtTheStart()
    {
        QFETCH(QString, naam);
        QFETCH(bool, verborgen);
        Bord bord;
        QCOMPARE(Vind<QWidget>(bord.Venster, naam)->isHidden(), verborgen);
    }

    void theWindow()
    {
        Bord bord;
        QCOMPARE(bord.Venster.windowTitle(), u"Raster Atelier (16x19)"_s);
        QCOMPARE(bord.Venster.palette().color(QPalette::Window), QColor(230, 230, 190));
        QCOMPARE(bord.Venster.Pic->parentWidget()->size(), QSize((18600 - 90) / 15, (11340 - 450 - 300) / 15));
        QVERIFY(bord.Venster.Label2->fontMetrics().height() > 40); // size 30
        QVERIFY(&Main() == &bord.Venster);
    }

    void onASmallScreenTheWindowScrolls()
    {
        Bord bord;
        bord.Venster.resize(800, 500);
        bord.Venster.show();
        auto *rol = bord.Venster.findChild<QScrollArea *>();
        QVERIFY(rol->horizontalScrollBar()->maximum() > 0);
        QVERIFY(rol->verticalScrollBar()->maximum() > 0);
        rol->ensureWidgetVisible(bord.Venster.ExitKnop);
        QVERIFY(!bord.Venster.ExitKnop->visibleRegion().isEmpty());
    }

    void theCellPicturesOfAFilippine()
    {
        Bord bord;
        QCOMPARE(bord.Venster.Vak1->size(), QSize(31, 31));
        QCOMPARE(bord.Venster.Vak2->size(), QSize(31, 31));
        QCOMPARE(qRed(bord.Venster.Vak1->GetPixel(5, 5)), 240);
        QCOMPARE(qRed(bord.Venster.Vak2->GetPixel(5, 5)), 174);
    }

    void fontsOfThePictures()
    {
        Bord bord;
        const MainForm &main = bord.Venster;
        const auto font = [](const PictureBox &box) {
            return u"%1 %2 %3"_s.arg(box.FontName).arg(box.FontSize).arg(box.FontBold ? "vet" : "");
        };
        QCOMPARE(font(*main.Pic), u"Arial 8.25 vet"_s);
        QCOMPARE(font(*main.PicGroot), u"Arial Narrow 8.25 vet"_s);
        QCOMPARE(font(*main.PicR), u"Arial 9.75 vet"_s);
        QCOMPARE(font(*main.PicO), u"Arial 9.75 vet"_s);
    }

    void theLengthsToChooseFrom()
    {
        Bord bord;
        QStringList lengtes;
        for (int i = 0; i < bord.Venster.Combo1->count(); ++i)
            lengtes += bord.Venster.Combo1->itemText(i);
        QCOMPARE(lengtes.join(u' '), u"Alles 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 Alles"_s);
        QCOMPARE(bord.Venster.Combo1->currentIndex(), 0);
        QCOMPARE(bord.Venster.ScrolLengte->minimum(), 2);
        QCOMPARE(bord.Venster.ScrolLengte->maximum(), 19);
        QCOMPARE(bord.Venster.ScrolLengte->value(), 2);
    }

    void theMenuBar()
    {
        Bord bord;
        QStringList balk;
        for (const QAction *item : bord.Venster.findChild<QMenuBar *>()->actions()) {
            QString tekst = (item->menu() ? item->menu()->objectName() : item->objectName()) + u'=' + item->text();
            if (item->menu()) {
                QStringList items;
                for (const QAction *regel : item->menu()->actions())
                    items += regel->objectName() + (regel->isSeparator() ? QString() : u'=' + regel->text());
                tekst += u'[' + items.join(u',') + u']';
            }
            balk += tekst;
        }
        const QStringList verwacht{
            u"Bestand=Bestand[FileNew=Nieuwe puzzel ontwerpen,FileStreep1,FileOpen=Puzzel openen,"
            "FileSave=Puzzel opslaan,FilePrint=Puzzel afdrukken,FileStreep2,FileExit=Exit]"_s,
            u"ShowGroot=Show[ShowOrgineel=Orgineel puzzelveld]"_s,
            u"Edit=Bewerken[EditDeleteRaster=Verwijder raster Filippine,"
            "EditDeleteLetters=Verwijder letters Filippine]"_s,
            u"Biebliotheek=Bibliotheek[BiebOnlineWoordenboek=Online woordenboek,BiebStreep1,"
            "BiebInternZoeken=Database doorzoeken,BiebWoordzoeker=Woorden wisseling,"
            "BiebOntbrekendeLetters=Ontbrekende letters,BiebStreep2,"
            "BiebSpreekwoorden=Spreekwoorden en gezegden,BiebChemisch=Scheikundige symbolen]"_s,
            u"Tools=Tools[ToolsAdd=Woordlijsten bewerken,ToolsConfig=Instellingen,"
            "ToolsKlemboard=Copy puzzelveld naar Clipboard,ToolsKladblok=Kladblok,ToolsStreep1,"
            "ToolsAutoWoordzoeker=Automatische woordzoeker]"_s,
            u"Exporteren=Website[Export(1)=Html webpagina maken]"_s,
            u"Help=Help[HelpHelp=Uitleg en hulp,HelpSpecialeTekens=Speciale tekens,"
            "HelpMeerSoftware=Meer software,helpStreep1,HelpMail=Mail sturen,helpStreep2,"
            "HelpWoordlijstAanmaken=Woordlijsten aanmaken]"_s,
            u"Spatie=|"_s,
            u"Bestandsnaam=Puzzelnaam"_s,
        };
        QCOMPARE(balk, verwacht);
        QVERIFY(!bord.Venster.Spatie->isEnabled());
        QVERIFY(!bord.Venster.Bestandsnaam->isEnabled());
        QVERIFY(!bord.Venster.EditDeleteRaster->isEnabled());
        QVERIFY(!bord.Venster.EditDeleteLetters->isEnabled());
    }

    void theClockTicksEverySecond()
    {
        Bord bord;
        QCOMPARE(bord.Venster.KlokLabel->Caption(), u"00:00"_s);
        QCOMPARE(bord.Venster.Timer1->interval(), 1000);
        QVERIFY(bord.Venster.Timer1->isActive());
        bord.Bank.TestKlok.ZetNu(QDateTime(QDate(2026, 3, 7), QTime(9, 5, 3)));
        const int rechts = bord.Venster.KlokLabel->geometry().right();
        bord.Venster.Timer1_Timer();
        QCOMPARE(bord.Venster.KlokLabel->Caption(),
                 QLocale::system().toString(QDate(2026, 3, 7), QLocale::ShortFormat) + u" / 9:05:03"_s);
        bord.Bank.TestKlok.ZetNu(QDateTime(QDate(2026, 3, 7), QTime(17, 0, 0)));
        bord.Venster.Timer1_Timer();
        QVERIFY(bord.Venster.KlokLabel->Caption().endsWith(u" / 17:00:00"_s));
        QCOMPARE(bord.Venster.KlokLabel->geometry().right(), rechts); // it grows to the left, inside its frame
    }

    void everyControlHasANameForAScreenReader()
    {
        Bord bord;
        for (const QWidget *control : bord.Venster.findChildren<QWidget *>()) {
            const bool doetIets = qobject_cast<const ImageButton *>(control) ||
                                  qobject_cast<const ListBox *>(control) ||
                                  qobject_cast<const QTreeWidget *>(control) ||
                                  (qobject_cast<const QComboBox *>(control) && !control->objectName().isEmpty());
            if (doetIets)
                QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
        }
    }

    void escapeDoesNotCloseTheWindow()
    {
        Bord bord;
        bord.Venster.show();
        QTest::keyClick(&bord.Venster, Qt::Key_Escape);
        QVERIFY(bord.Venster.isVisible());
    }

    void whatTheKindsShow_data()
    {
        QTest::addColumn<int>("soort");
        QTest::addColumn<QString>("opschrift");
        QTest::newRow("1") << 1 << "Soortpuzzel : Zweeds";
        QTest::newRow("2") << 2 << "Soortpuzzel : Woordzoeker";
        QTest::newRow("3") << 3 << "Soortpuzzel : Kruiswoord";
        QTest::newRow("4") << 4 << "Soortpuzzel : Sudoku";
        QTest::newRow("5") << 5 << "Soortpuzzel : Filippine";
        QTest::newRow("none") << 200 << "Soortpuzzel : Zweeds"; // left alone
    }
    void whatTheKindsShow()
    {
        QFETCH(int, soort);
        QFETCH(QString, opschrift);
        Bord bord;
        PuzzelType = static_cast<quint8>(soort);
        bord.Venster.ToonSoort();
        bord.Venster.ToonPuzzel(u"Raster Atelier"_s);
        QCOMPARE(bord.Venster.Label12->Caption(), opschrift);
        QCOMPARE(!bord.Venster.Frame9->isHidden(), soort == 4);
        QCOMPARE(bord.Venster.EditDeleteRaster->isEnabled(), soort == 5);
        QCOMPARE(bord.Venster.EditDeleteLetters->isEnabled(), soort == 5);
    }
};

RASTER_TEST(tst_MainForm)
#include "tst_MainForm.moc"

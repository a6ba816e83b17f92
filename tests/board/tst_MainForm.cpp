#include "board/MainForm.h"
#include "board/Soorten.h"
#include "support/Bord.h"
#include "support/Venster.h"

#include <QHeaderView>
#include <QMenuBar>
#include <QScrollArea>

using namespace Qt::StringLiterals;

class tst_MainForm : public QObject
{
    Q_OBJECT
private slots:
    void everyControlIsAtItsPlace()
    {
        VersBord bord;
        const MainForm &main = bord.Venster;
        QCOMPARE(Misplaatst(main, {{"Frame8", 180, 90, 7410, 540}, // the board's load gives it the width of the plate
                                   {"Label1", 180, 780, 7410, 8760},
                                   {"Pic", 270, 870, 7215, 8565},
                                   {"PicR", 7605, 780, 450, 8760},
                                   {"PicO", 180, 9555, 7410, 300},
                                   {"PicGroot", 0, 0, 28845, 34245},
                                   {"PicVak", 0, 0, 1845, 1845},
                                   {"Vak1", 0, 0, 465, 465},
                                   {"Vak2", 0, 0, 465, 465},
                                   {"Label2", 2565, 3000},
                                   {"Frame1", 180, 9855, 7815, 540},
                                   {"Frame9", 180, 5400, 4275, 4410},
                                   {"ListView1", 8160, 195, 5145, 5145},
                                   {"Frame7", 8160, 5400, 5175, 750},
                                   {"List1", 8160, 6285, 2910, 4110},
                                   {"Frame10", 11230, 6195, 2100, 600},
                                   {"Frame2", 11230, 6840, 2100, 3570},
                                   {"List2", 13500, 195, 4815, 2535},
                                   {"Frame6", 13500, 2730, 4830, 750},
                                   {"Frame3", 13500, 3495, 4830, 3300},
                                   {"Frame4", 13500, 6840, 4830, 2490},
                                   {"Frame5", 13500, 9390, 4830, 1020}}),
                 QString());
        QCOMPARE(Misplaatst(*main.Pic, {{"Shape1"}, {"Line1"}}), QString());
        QCOMPARE(Misplaatst(*main.Frame8, {{"Label12", 90, 180}}), QString());
        QCOMPARE(Misplaatst(*main.Frame1, {{"Label6", 120, 180}, {"KlokLabel", 7020, 180}}), QString());
        QCOMPARE(Misplaatst(*main.Frame7, {{"DelKnop", 120, 240}, {"Label10", 1170, 315}, {"Label11", 4350, 315}}),
                 QString());
        QCOMPARE(Misplaatst(*main.Frame9, {{"StartKnop", 180, 285},
                                           {"Label13", 1230, 345},
                                           {"Option1", 390, 900, 2700, 360},
                                           {"Option2", 390, 1200, 2700, 360},
                                           {"Option3", 390, 1500, 3300, 360},
                                           {"Label14", 180, 3210, 3840, 1200}}),
                 QString());
        QCOMPARE(Misplaatst(*main.Frame10, {{"Label18", 60, 180, 1965, 345}, {"CopyLabel", 135, 240}}), QString());
        QCOMPARE(Misplaatst(*main.Frame2, {{"Label3", 120, 210},
                                           {"Label16", 150, 780},
                                           {"Label15", 135, 1050, 1800, 330},
                                           {"ScrolLengte", 165, 1080, 1740, 270},
                                           {"OkKnop", 135, 1500},
                                           {"Label17", 780, 1560},
                                           {"Image1", 450, 2100, 1080, 1080},
                                           {"Label9", 120, 3240}}),
                 QString());
        QCOMPARE(
            Misplaatst(*main.Frame6, {{"Combo1", 120, 240, 1200, 315}, {"Label7", 1410, 285}, {"Label8", 4560, 285}}),
            QString());
        QCOMPARE(Misplaatst(*main.Frame3, {{"List3", 2580, 240, 2100, 2910},
                                           {"Label4", 180, 240},
                                           {"Label5", 180, 690, 2190, 2100},
                                           {"LoadKnop", 1560, 2805, 840, 330}}),
                 QString());
        QCOMPARE(Misplaatst(*main.Frame4, {{"LogoPic", 120, 240, 4575, 2100}}), QString());
        QCOMPARE(Misplaatst(*main.Frame5, {{"HelpKnop", 120, 240}, {"AboutKnop", 840, 240}, {"ExitKnop", 4050, 240}}),
                 QString());
    }

    void beforeTheBoardIsDrawnItsPartsHaveAPlaceToo()
    {
        Testbank bank;
        MainForm venster;
        const auto vlak = [](int links, int boven, int breedte, int hoogte) { // in twips
            return QRect(links / 15, boven / 15, breedte / 15, hoogte / 15);
        };
        QCOMPARE(venster.Frame8->geometry(), vlak(180, 90, 7815, 540)); // as wide as the status bar
        QCOMPARE(venster.Label1->geometry(), vlak(180, 780, 7410, 8760));
        QCOMPARE(venster.Pic->geometry(), vlak(270, 870, 7215, 8565));
        QCOMPARE(venster.PicR->geometry(), vlak(7605, 780, 450, 8760));
        QCOMPARE(venster.PicO->geometry(), vlak(180, 9555, 7410, 300));
    }

    void theCopyTextLiesOnItsPlate()
    {
        Bord bord;
        bord.Venster.CopyLabel->SetCaption(u"WOORD"_s);
        const QImage met = Getoond(*bord.Venster.Frame10);
        bord.Venster.CopyLabel->hide();
        QVERIFY(Getoond(*bord.Venster.Frame10) != met);
    }

    void theTabKeyGoesThroughThePanels()
    {
        Bord bord;
        QCOMPARE(
            TabVolgorde(bord.Venster),
            u"ListView1 DelKnop List1 ScrolLengte OkKnop List2 Combo1 List3 LoadKnop HelpKnop AboutKnop ExitKnop"_s);
    }

    void theTabKeyGoesThroughTheSudokuPanel()
    {
        VersBord bord;
        bord.Begin(Sudoku, 9, 9);
        bord.Venster.ToonPuzzel(u"Raster Atelier"_s);
        const QString volgorde = TabVolgorde(bord.Venster);
        QVERIFY2(volgorde.startsWith("StartKnop Option2 ListView1 "_L1),
                 qPrintable(volgorde)); // the level that is chosen
    }

    void texts()
    {
        VersBord bord;
        QStringList teksten;
        for (const Label *label : bord.Venster.findChildren<Label *>())
            teksten += label->objectName() + u'=' + label->Caption();
        teksten.sort();
        const QStringList verwacht{
            u"CopyLabel="_s,
            u"KlokLabel=00:00"_s,
            u"Label10=Item verwijderen"_s,
            u"Label11=0 Items"_s,
            u"Label12=Soortpuzzel : Zweeds"_s,
            u"Label13=Nieuwe puzzel"_s,
            u"Label14=Klik op de 'Ok' button voor het schudden van de puzzel. Door met de linkermuisknop op een leeg "
            u"vakje "
            "te klikken kun je een ontbrekend getal plaatsen. Als de kleur van het getal rood is dan heb je een fout "
            "getal, "
            "is de kleur groen dan is het getal juist."_s,
            u"Label15="_s,
            u"Label16=Woordlengte (2)"_s,
            u"Label17=Zoeken"_s,
            u"Label18="_s,
            u"Label1="_s,
            u"Label2= Load Database "_s,
            u"Label3=0 Woorden in lijst"_s,
            u"Label4=Woordlijsten"_s,
            u"Label5=Klik op de button 'Load' om de woordlijsten te openen, selecteer vervolgens één van de "
            "woorden uit de lijst voor de bijbehorende omschrijvingen.\n\nOnder het menu-item 'Tools' "
            "kun je deze woordlijsten nog bewerken en / of uitbreiden."_s,
            u"Label6=Coordinaten"_s,
            u"Label7=Lengte woorden"_s,
            u"Label8=0"_s,
            u"Label9="_s,
        };
        QCOMPARE(teksten, verwacht);
    }

    void toolTips()
    {
        Bord bord;
        QStringList tips;
        for (const QWidget *control : bord.Venster.findChildren<QWidget *>())
            if (!control->toolTip().isEmpty())
                tips += control->objectName() + u'=' + control->toolTip() + u'|';
        tips.sort();
        QCOMPARE(tips, (QStringList{u"AboutKnop= Over de ontwerper |"_s, u"CopyLabel= Copytekst |"_s,
                                    u"DelKnop= Verwijder een item uit bovenstaande lijst |"_s,
                                    u"ExitKnop= Programma Stoppen |"_s, u"HelpKnop= Uitleg en Hulp |"_s,
                                    u"OkKnop= Start zoeken op woordlengte |"_s}));
    }

    void colours_data()
    {
        QTest::addColumn<QString>("naam");
        QTest::addColumn<int>("rol");
        QTest::addColumn<QColor>("kleur");
        const auto rij = [](const QByteArray &naam, QPalette::ColorRole rol, QColor kleur) {
            Geval(naam + ' ' + QByteArray::number(rol), QString::fromLatin1(naam), int(rol), kleur);
        };
        for (int i = 1; i <= 10; ++i)
            rij("Frame" + QByteArray::number(i), QPalette::Window, QColor(230, 230, 190));
        rij("Label1", QPalette::Window, QColor(150, 150, 150));
        rij("Label2", QPalette::Window, QColor(230, 230, 0));
        rij("Label15", QPalette::Window, QColor(150, 180, 180));
        rij("Label18", QPalette::Window, QColor(150, 180, 180));
        rij("CopyLabel", QPalette::WindowText, QColor(0, 0, 0));
        rij("ListView1", QPalette::Base, QColor(220, 220, 250));
        rij("ListView1", QPalette::Text, QColor(0, 0, 0));
        rij("List1", QPalette::Base, QColor(180, 180, 150));
        rij("List1", QPalette::Text, QColor(0, 0, 0));
        rij("List2", QPalette::Base, QColor(180, 180, 150));
        rij("List2", QPalette::Text, QColor(0, 0, 0));
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

    void thePlatesAreFilledWithTheirColour()
    {
        Bord bord;
        for (Label *plaat : {bord.Venster.Label1, bord.Venster.Label2, bord.Venster.Label15, bord.Venster.Label18})
            QCOMPARE(Getoond(*plaat).pixelColor(0, 0), plaat->palette().color(QPalette::Window));
    }

    // Where a side falls between two pixels of the screen it has to be seen all the same.
    void everyOutlineIsWholeAtAnyScale_data()
    {
        QTest::addColumn<double>("ratio");
        for (const double ratio : {1.0, 1.25, 1.5, 1.75, 2.0})
            Geval(QByteArray::number(ratio), ratio);
    }
    void everyOutlineIsWholeAtAnyScale()
    {
        QFETCH(double, ratio);
        Bord bord;
        bord.Venster.Frame9->show();
        QWidget &inhoud = *bord.Venster.Pic->parentWidget();
        const QColor lijn = Getoond(*bord.Venster.Frame1).pixelColor(0, 10);
        QVERIFY(lijn != QColor(230, 230, 190)); // that of the panels
        QImage beeld((QSizeF(inhoud.size()) * ratio).toSize(), QImage::Format_RGB32);
        beeld.setDevicePixelRatio(ratio);
        inhoud.render(&beeld);
        const auto heeftLijn = [&](QPointF punt, QPointF dwars) { // across that side
            for (int i = -1; i <= 2; ++i)
                if (beeld.pixelColor((punt * ratio).toPoint() + (dwars * i).toPoint()) == lijn)
                    return true;
            return false;
        };
        for (int i = 1; i <= 10; ++i) {
            const auto *frame = Vind<QFrame>(bord.Venster, u"Frame%1"_s.arg(i));
            const QRectF vlak(frame->pos(), frame->size());
            const QPointF midden = vlak.center();
            QVERIFY2(heeftLijn({vlak.left(), midden.y()}, {1, 0}), qPrintable(frame->objectName() + u" links"_s));
            QVERIFY2(heeftLijn({vlak.right(), midden.y()}, {-1, 0}), qPrintable(frame->objectName() + u" rechts"_s));
            QVERIFY2(heeftLijn({midden.x(), vlak.top()}, {0, 1}), qPrintable(frame->objectName() + u" boven"_s));
            QVERIFY2(heeftLijn({midden.x(), vlak.bottom()}, {0, -1}), qPrintable(frame->objectName() + u" onder"_s));
        }
    }

    void hiddenAtTheStart()
    {
        Bord bord;
        QStringList verborgen;
        for (const QWidget *control : bord.Venster.findChildren<QWidget *>())
            if (control->isHidden() && !control->isWindow() && !control->objectName().isEmpty() &&
                !control->objectName().startsWith("qt_"_L1))
                verborgen += control->objectName();
        verborgen.sort();
        QCOMPARE(verborgen.join(u' '), u"Frame9 Label2 Line1 PicGroot PicVak Shape1 Vak1 Vak2"_s);
    }

    void theSudokuPanel()
    {
        VersBord bord;
        MainForm &main = bord.Venster;
        const QColor paneel(230, 230, 190);
        QCOMPARE(main.Frame9->grab().toImage().pixelColor(3, 3), paneel);
        QStringList niveaus;
        for (QRadioButton *optie : main.Option) {
            niveaus += optie->text();
            QCOMPARE(optie->isChecked(), optie == main.Option[1]);
            QCOMPARE(optie->grab().toImage().pixelColor(optie->width() - 1, 0), paneel);
        }
        QCOMPARE(niveaus.join(u' '), u"Gemakkelijk Normaal Moeilijk"_s);
        main.Option[2]->click();
        QVERIFY(!main.Option[1]->isChecked()); // one at a time
        bord.Begin(Sudoku, 9, 9);
        main.ToonPuzzel(u"Raster Atelier"_s);
        QVERIFY(main.Option[2]->isChecked()); // another puzzle keeps the level
    }

    void thePicturesOfTheWindow()
    {
        Bord bord;
        QCOMPARE(
            PlaatjesOp(bord.Venster),
            u"AboutKnop knop-over, DelKnop knop-wissen, ExitKnop knop-stop, HelpKnop knop-help, Image1 woordenboek, "
            "LoadKnop knop-laden, LogoPic logo, OkKnop knop-zoeken, StartKnop knop-ok"_s);
    }

    void theWindow()
    {
        Bord bord;
        QCOMPARE(bord.Venster.windowTitle(), u"Raster Atelier (16x19)"_s);
        QCOMPARE(bord.Venster.palette().color(QPalette::Window), QColor(230, 230, 190));
        QCOMPARE(bord.Venster.Pic->parentWidget()->size(), QSize((18600 - 90) / 15, (11340 - 450 - 300) / 15));
        QCOMPARE(bord.Venster.Label2->font().pixelSize(), 40); // size 30
        QVERIFY(!bord.Venster.Label2->font().bold());
        QCOMPARE(bord.Venster.windowType(), Qt::Window); // it can be minimised, as no dialog can
        QCOMPARE(bord.Venster.windowIcon().availableSizes(), QList{QSize(128, 128)});
        QCOMPARE(bord.Venster.windowIcon().pixmap(128).toImage(),
                 Plaatjes::Pixmap(u"rasteratelier"_s, QSize(128, 128), 1).toImage());
        const int balk = bord.Venster.findChild<QMenuBar *>()->sizeHint().height();
        QCOMPARE(bord.Venster.maximumSize(), bord.Venster.Pic->parentWidget()->size() + QSize(0, balk));
        QVERIFY(&Main() == &bord.Venster);
    }

    void itClosesWhenItMay()
    {
        Bord bord;
        bool mag = false;
        bord.Venster.MagSluiten = [&mag] { return mag; };
        bord.Venster.show();
        QVERIFY(!bord.Venster.close());
        QVERIFY(bord.Venster.isVisible());
        mag = true;
        QVERIFY(bord.Venster.close());
        QVERIFY(!bord.Venster.isVisible());
        bord.Venster.MagSluiten = nullptr;
        bord.Venster.show();
        QVERIFY(bord.Venster.close());
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
        QCOMPARE(qRed(bord.Venster.Vak1->GetPixel(5, 5)), 240);
        QCOMPARE(qRed(bord.Venster.Vak2->GetPixel(5, 5)), 174);
    }

    void fontsOfThePictures()
    {
        Bord bord;
        const MainForm &main = bord.Venster;
        QCOMPARE(Lettersoort(*main.Pic), u"Arial 8.25 1 ff000000"_s);
        QCOMPARE(Lettersoort(*main.PicGroot), u"Arial Narrow 8.25 1 ff000000"_s);
        QCOMPARE(Lettersoort(*main.PicR), u"Arial 9.75 1 ff000000"_s);
        QCOMPARE(Lettersoort(*main.PicO), u"Arial 9.75 1 ff000000"_s);
    }

    void theLengthsToChooseFrom()
    {
        VersBord bord;
        QCOMPARE(Items(*bord.Venster.Combo1).join(u' '),
                 u"Alles 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 Alles"_s);
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
        const Label &klok = *bord.Venster.KlokLabel;
        QCOMPARE(bord.Venster.Timer1->objectName(), u"Timer1"_s);
        QCOMPARE(bord.Venster.Timer1->interval(), 1000);
        QVERIFY(bord.Venster.Timer1->isActive() && !bord.Venster.Timer1->isSingleShot());
        bord.Venster.Timer1->setInterval(3600000);
        QCoreApplication::processEvents();
        QCOMPARE(klok.Caption(), u"00:00"_s); // until the first tick
        bord.Bank.TestKlok.ZetNu(QDateTime(QDate(2026, 3, 7), QTime(9, 5, 3)));
        const int rechts = klok.geometry().right();
        bord.Venster.Timer1->setInterval(0); // the next tick is there at once
        QCoreApplication::processEvents();
        QCOMPARE(klok.Caption(), QLocale::system().toString(QDate(2026, 3, 7), QLocale::ShortFormat) + u" / 9:05:03"_s);
        bord.Bank.TestKlok.ZetNu(QDateTime(QDate(2026, 3, 7), QTime(17, 0, 0)));
        const Stand ervoor = bord.Nu();
        QCoreApplication::processEvents();
        QVERIFY(klok.Caption().endsWith(u" / 17:00:00"_s));
        QCOMPARE(klok.geometry().right(), rechts); // it grows to the left, inside its frame
        bord.Bank.TestKlok.ZetNu(QDateTime(QDate(2026, 3, 8), QTime(0, 0, 9)));
        QCoreApplication::processEvents();
        QCOMPARE(klok.Caption(), QLocale::system().toString(QDate(2026, 3, 8), QLocale::ShortFormat) + u" / 0:00:09"_s);
        QCOMPARE(bord.Veranderd(ervoor), QString());
    }

    void whatAScreenReaderCallsTheControls()
    {
        Bord bord;
        QCOMPARE(Leesnamen(bord.Venster), (QStringList{u"AboutKnop=Over de ontwerper"_s,
                                                       u"Combo1=Lengte woorden"_s,
                                                       u"DelKnop=Verwijder een item uit bovenstaande lijst"_s,
                                                       u"ExitKnop=Programma Stoppen"_s,
                                                       u"Frame10=Copytekst"_s,
                                                       u"Frame1=Statusbalk"_s,
                                                       u"Frame2=Zoeken op woordlengte"_s,
                                                       u"Frame3=Woordlijsten"_s,
                                                       u"Frame4=Raster Atelier"_s,
                                                       u"Frame5=Programma"_s,
                                                       u"Frame6=Lengte woorden"_s,
                                                       u"Frame7=Lijst"_s,
                                                       u"Frame8=Soort puzzel"_s,
                                                       u"Frame9=Sudoku"_s,
                                                       u"HelpKnop=Uitleg en Hulp"_s,
                                                       u"List1=Gevonden woorden"_s,
                                                       u"List2=Woorden van de lijst"_s,
                                                       u"List3=Woordlijsten"_s,
                                                       u"ListView1=Lijst van geplaatste woorden"_s,
                                                       u"LoadKnop=Load"_s,
                                                       u"LogoPic=Raster Atelier"_s,
                                                       u"OkKnop=Start zoeken op woordlengte"_s,
                                                       u"Option1=Gemakkelijk"_s,
                                                       u"Option2=Normaal"_s,
                                                       u"Option3=Moeilijk"_s,
                                                       u"Pic=Puzzelveld"_s,
                                                       u"PicO=Kolomletters"_s,
                                                       u"PicR=Rijnummers"_s,
                                                       u"ScrolLengte=Woordlengte"_s,
                                                       u"StartKnop=Nieuwe puzzel"_s}));
    }

    void escapeDoesNotCloseTheWindow()
    {
        Bord bord;
        bord.InBewerking();
        bord.Venster.show();
        const Stand ervoor = bord.Nu();
        QTest::keyClick(&bord.Venster, Qt::Key_Escape);
        QVERIFY(bord.Venster.isVisible());
        QCOMPARE(bord.Veranderd(ervoor), QString());
    }

    void whatTheKindsShow_data()
    {
        QTest::addColumn<quint8>("soort");
        QTest::addColumn<QString>("opschrift");
        Geval("1", Zweeds, "Soortpuzzel : Zweeds");
        Geval("2", Woordzoeker, "Soortpuzzel : Woordzoeker");
        Geval("3", Kruiswoord, "Soortpuzzel : Kruiswoord");
        Geval("4", Sudoku, "Soortpuzzel : Sudoku");
        Geval("5", Filippine, "Soortpuzzel : Filippine");
        Geval("none", quint8(200), "iets"); // left alone
    }
    void whatTheKindsShow()
    {
        QFETCH(quint8, soort);
        QFETCH(QString, opschrift);
        Bord bord;
        MainForm &main = bord.Venster;
        for (const quint8 eerst : {Zweeds, Sudoku, Filippine}) { // coming from those that show more, too
            PuzzelType = eerst;
            main.ToonPuzzel(u"Raster Atelier"_s);
            main.Label12->SetCaption(u"iets"_s);
            main.Label11->SetCaption(u"7 Items"_s);
            main.Shape1->show();
            main.Line1->show();
            PuzzelType = soort;
            BoardWidth = 12;
            BoardHeight = 14;
            PuzzelNaam = u"Reis"_s;
            main.ToonSoort();
            main.ToonPuzzel(u"Programma"_s);
            QCOMPARE(main.Label12->Caption(), opschrift);
            QCOMPARE(!main.Frame9->isHidden(), soort == Sudoku);
            QCOMPARE(main.EditDeleteRaster->isEnabled(), soort == Filippine);
            QCOMPARE(main.EditDeleteLetters->isEnabled(), soort == Filippine);
            QCOMPARE(main.windowTitle(), u"Programma (12x14)"_s);
            QCOMPARE(main.Bestandsnaam->text(), u"Reis"_s);
            QCOMPARE(main.Label11->Caption(), u"0 Items"_s);
            QVERIFY(main.Shape1->isHidden() && main.Line1->isHidden());
        }
    }
};

RASTER_TEST(tst_MainForm)
#include "tst_MainForm.moc"

#include "platform/Printers.h"
#include "platform/Screen.h"
#include "support/HaperendeSchijf.h"
#include "support/Onbevoegd.h"
#include "support/PdfLezer.h"
#include "support/PixelBox.h"

#include <QRegularExpression>

#include <optional>

using namespace Qt::StringLiterals;

static constexpr QRgb Blauw = qRgb(0, 0, 90), Rood = qRgb(255, 0, 0), Zwart = qRgb(0, 0, 0);

class tst_Printer : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(u"."_s));
        bank_.emplace();
        printer_.emplace(QString());
    }
    void cleanup()
    {
        printer_.reset();
        bank_.reset();
    }

    // --- letters ---

    void textStandsInItsPlaceAsText()
    {
        Begin();
        printer_->ZetLetter({.Naam = u"Arial"_s, .Punten = 12, .Vet = true, .Kleur = Blauw});
        printer_->PrintOp(600, 300, u"Puzzelnaam : fijn fluiten & <één> ĳ"_s);
        printer_->ZetLetter({.Punten = 9, .Vet = false, .Kleur = Zwart});
        printer_->PrintOp(600, 16200, u"voet"_s);
        QCOMPARE(Klaar().Teksten(1), (QStringList{u"600,300 12 vet #00005a Puzzelnaam : fijn fluiten & <één> ĳ"_s,
                                                  u"600,16200 9 #000000 voet"_s}));
    }

    void aSizeIsExactInPoints()
    {
        Begin();
        QStringList verwacht;
        double y = 0;
        for (const double punten : {6.0, 8.0, 8.25, 9.0, 10.0, 12.0, 16.0})
            for (const bool vet : {false, true}) {
                printer_->ZetLetter({.Punten = punten, .Vet = vet});
                printer_->PrintOp(1000, y += 500, u"Letter"_s);
                verwacht += u"1000,%1 %2%3 #000000 Letter"_s.arg(y).arg(punten).arg(vet ? u" vet"_s : QString());
            }
        QCOMPARE(Klaar().Teksten(1), verwacht);
    }

    void theLettersAreInTheFile()
    {
        Begin();
        printer_->Print(u"gewoon"_s);
        printer_->FontBold = true;
        printer_->Print(u"vet"_s);
        QCOMPARE(Klaar().Letters(), (QStringList{u"LiberationSans ingesloten doorzoekbaar"_s,
                                                 u"LiberationSans-Bold ingesloten doorzoekbaar"_s}));
    }

    void printingGoesToTheNextLine()
    {
        Begin();
        printer_->FontSize = 12; // a cell of 268.2 twips
        printer_->PrintOp(600, 300, u"een"_s);
        QCOMPARE(printer_->CurrentX, 0.0);
        QCOMPARE(printer_->CurrentY, 568.0);
        QCOMPARE(printer_->TextHeight(u"een"_s), 268.0);
        printer_->Print(u"twee"_s);
        QCOMPARE(Klaar().Teksten(1), (QStringList{u"600,300 12 #000000 een"_s, u"0,568 12 #000000 twee"_s}));
    }

    void aNumberHasItsBlank()
    {
        Begin();
        printer_->FontSize = 9; // a blank of 50 twips
        printer_->PrintOp(600, 300, 5);
        printer_->PrintOp(600, 600, -5);
        QCOMPARE(Klaar().Teksten(1), (QStringList{u"650,300 9 #000000 5"_s, u"600,600 9 #000000 -5"_s}));
    }

    void textIsMeasuredAsItIsPrinted()
    {
        Begin();
        printer_->FontSize = 10;
        printer_->PrintOp(600, 300, u"omschrijving"_s);
        printer_->PrintOp(600 + printer_->TextWidth(u"omschrijving "_s), 300, u"verder"_s);
        QCOMPARE(Klaar().Teksten(1), QStringList{u"600,300 10 #000000 omschrijving verder"_s});
    }

    // --- pictures and lines ---

    void aPictureIsWholeInItsOwnPixels()
    {
        const QImage groot = Bont(120, 90), klein = Bont(30, 40);
        Begin();
        printer_->PaintPicture(groot, QRectF(600, 900, 9600, 11400), QRectF(0, 0, 120 * 15, 90 * 15));
        printer_->NewPage();
        printer_->PaintPicture(klein, QRectF(600, 8400, 150, 6750), QRectF(0, 0, 30 * 15, 40 * 15));
        printer_->PaintPicture(groot, QRectF(0, 0, 300, 450), QRectF(150, 75, 300, 450)); // a part of it
        const PdfLezer pdf = Klaar();
        QCOMPARE(pdf.Beelden(1), QStringList{u"600,900 9600x11400"_s});
        QCOMPARE(pdf.Beelden(2), (QStringList{u"600,8400 150x6750"_s, u"0,0 300x450"_s}));
        QCOMPARE(pdf.Beeld(0).convertToFormat(QImage::Format_RGB32), groot);
        QCOMPARE(pdf.Beeld(1).convertToFormat(QImage::Format_RGB32), klein);
        QCOMPARE(pdf.Beeld(2).convertToFormat(QImage::Format_RGB32), groot.copy(10, 5, 20, 30));
    }

    void linesBoxesAndPicturesShow()
    {
        const QImage bont = Bont(2, 2);
        Begin();
        printer_->BoxFull(1500 - 240, 3000 - 240, 1500 - 240 + 299, 3000 - 240 + 149, Rood);
        printer_->PaintPicture(bont, QRectF(6000 - 240, 3000 - 240, 1500, 750), QRectF(0, 0, 30, 30));
        printer_->Line(1500 - 240, 9000 - 240, 3000 - 240, 9000 - 240, Zwart);
        const QImage pagina = Klaar().Pagina(1);
        QCOMPARE(pagina.size(), QSize(794, 1123)); // A4
        QCOMPARE(InktVlak(pagina, QRect(0, 0, 300, 500)), QRect(100, 200, 20, 10));
        QCOMPARE(InktVlak(pagina, QRect(0, 500, 794, 623)), QRect(100, 600, 100, 1));
        QCOMPARE(pagina.pixel(110, 205), Rood);
        for (int y = 0; y < 2; ++y)
            for (int x = 0; x < 2; ++x)
                QCOMPARE(pagina.pixel(425 + 50 * x, 212 + 25 * y), bont.pixel(x, y));
        QCOMPARE(pagina.pixel(398, 225), qRgb(255, 255, 255));
        QCOMPARE(pagina.pixel(502, 225), qRgb(255, 255, 255));
    }

    void aPageIsWiped()
    {
        Begin();
        printer_->BoxFull(0, 0, 11419, 16359, Rood); // all that can be printed on
        printer_->Cls();
        QCOMPARE(InktVlak(Klaar().Pagina(1), QRect(0, 0, 794, 1123)), QRect());
    }

    void unitsOfOnesOwn()
    {
        QCOMPARE(FoutVan([&] { printer_->Scale(0, 0, 10, 10); }), int{Fout::OngeldigeWaarde}); // there is no page yet
        Begin();
        printer_->Print(u"a"_s);
        printer_->Scale(0, 0, 100, 10); // of 11420 by 16360 twips
        printer_->PrintOp(50, 5, u"midden"_s);
        printer_->SetScaleMode(ScaleModes::Twips);
        printer_->PrintOp(600, 300, u"twips"_s);
        QCOMPARE(Klaar().Teksten(1), (QStringList{u"0,0 8.25 #000000 a"_s, u"5710,8180 8.25 #000000 midden"_s,
                                                  u"600,300 8.25 #000000 twips"_s}));
    }

    // --- pages ---

    void thePaperIsA4AndBearsItsTitle()
    {
        printer_->Titel = u"Proef puzzél €"_s;
        Begin();
        printer_->Print(u"a"_s);
        printer_->Titel = u"te laat"_s;
        const PdfLezer pdf = Klaar();
        QCOMPARE(pdf.Kenmerk(u"Title"_s), u"Proef puzzél €"_s);
        QCOMPARE(pdf.Kenmerk(u"Creator"_s), u"Rasteratelier"_s);
        QCOMPARE(pdf.Kenmerk(u"Page size"_s), u"595 x 842 pts (A4)"_s);
        QCOMPARE(pdf.Kenmerk(u"Page rot"_s), u"0"_s);
        QCOMPARE(pdf.Paginas(), 1);
    }

    void pagesFollowOneAnother()
    {
        Begin();
        printer_->ZetLetter({.Punten = 10, .Vet = true, .Kleur = Blauw});
        printer_->PrintOp(600, 300, u"een"_s);
        printer_->CurrentX = 50;
        printer_->NewPage();
        QCOMPARE(printer_->CurrentX, 0.0);
        QCOMPARE(printer_->CurrentY, 0.0);
        printer_->Print(u"twee"_s);
        printer_->NewPage();
        const PdfLezer pdf = Klaar();
        QCOMPARE(pdf.Paginas(), 3);
        QCOMPARE(pdf.Teksten(1), QStringList{u"600,300 10 vet #00005a een"_s});
        QCOMPARE(pdf.Teksten(2), QStringList{u"0,0 10 vet #00005a twee"_s});
        QCOMPARE(pdf.Teksten(3), QStringList());
    }

    void aNewPageBeginsTheDocumentToo()
    {
        Begin();
        printer_->NewPage();
        printer_->Print(u"a"_s);
        const PdfLezer pdf = Klaar();
        QCOMPARE(pdf.Paginas(), 2);
        QCOMPARE(pdf.Teksten(1), QStringList());
        QCOMPARE(pdf.Teksten(2), QStringList{u"0,0 8.25 #000000 a"_s});
    }

    void anEmptyTextIsAPage()
    {
        Begin();
        printer_->Print(QString());
        const PdfLezer pdf = Klaar();
        QCOMPARE(pdf.Paginas(), 1);
        QCOMPARE(pdf.Teksten(1), QStringList());
    }

    void withoutADrawingThereIsNoDocument()
    {
        printer_->EndDoc();
        QCOMPARE(bank_->Script.Voorstellen, QStringList());
    }

    void aDocumentFollowsAnother()
    {
        Begin();
        printer_->PrintOp(600, 300, u"een"_s);
        printer_->CurrentX = 50;
        printer_->EndDoc();
        QCOMPARE(printer_->CurrentX, 0.0);
        QCOMPARE(printer_->CurrentY, 0.0);
        bank_->Script.Bestanden = {Pad(u"twee.pdf"_s)};
        printer_->Print(u"twee"_s);
        printer_->EndDoc();
        QCOMPARE(PdfLezer(Pad()).Teksten(1), QStringList{u"600,300 8.25 #000000 een"_s});
        QCOMPARE(PdfLezer(Pad(u"twee.pdf"_s)).Teksten(1), QStringList{u"0,0 8.25 #000000 twee"_s});
    }

    // --- the file ---

    void theFileComesWhenTheDocumentEnds()
    {
        Begin();
        printer_->Print(u"a"_s);
        printer_->NewPage();
        QCOMPARE(bank_->Bestanden({}), QStringList());
        printer_->EndDoc();
        QCOMPARE(bank_->Bestanden({}), QStringList{u"uit.pdf"_s});
        QCOMPARE(bank_->Script.Voorstellen.size(), 1);
        QVERIFY(bank_->Script.Gezien.isEmpty());
    }

    void aDocumentThatDoesNotEndLeavesNothing()
    {
        Begin();
        printer_->Print(u"a"_s);
        printer_.reset();
        QCOMPARE(bank_->Bestanden({}), QStringList());
    }

    void theNameOfTheDocumentIsProposed_data()
    {
        QTest::addColumn<QString>("titel");
        QTest::addColumn<QString>("map");
        QTest::addColumn<QString>("voorstel");
        Geval("in the folder of documents", u"Winter"_s, u"/Documents"_s, u"/Documents/Winter.pdf"_s);
        Geval("which need not be there", u"Winter"_s, u"/Pictures"_s, u"/Winter.pdf"_s);
        Geval("a name with a dot", u"Winter 1.2"_s, u"/Documents"_s, u"/Documents/Winter 1.2.pdf"_s);
        Geval("no name for a file", u"a/b"_s, u"/Documents"_s, u"/Documents/Afdruk.pdf"_s);
        Geval("no name", QString(), u"/Documents"_s, u"/Documents/Afdruk.pdf"_s);
    }
    void theNameOfTheDocumentIsProposed()
    {
        QFETCH(const QString, titel);
        QFETCH(const QString, map);
        QFETCH(const QString, voorstel);
        QDir().mkpath(bank_->Thuis() + map);
        printer_->Titel = titel;
        bank_->Script.Bestanden = {QString()};
        printer_->Print(u"a"_s);
        QCOMPARE(bank_->Script.Voorstellen, QStringList{bank_->Thuis() + voorstel});
    }

    void howTheFileIsAskedFor()
    {
        Begin();
        bool zandloper = true;
        bank_->Script.BijBestand = [&] { zandloper = Zandloper(); };
        const Screen::Bezig bezig;
        printer_->Print(u"a"_s);
        QCOMPARE(bank_->Script.BestandVragen, QStringList{u"Afdrukken naar een PDF-bestand: PDF-bestanden (*.pdf)"_s});
        QVERIFY(!zandloper); // the arrow is for whoever answers
        QVERIFY(Zandloper());
    }

    void withoutAFileNothingIsPrintedAndNothingIsSaid()
    {
        bank_->Script.Bestanden = {QString()};
        printer_->FontSize = 12;
        printer_->PrintOp(600, 300, u"a"_s);
        QCOMPARE(printer_->CurrentY, 568.0); // as if it were printed
        printer_->PaintPicture(Bont(10, 10), QRectF(0, 0, 300, 300), QRectF(0, 0, 150, 150));
        printer_->Cls();
        printer_->Line(0, 0, 300, 600, Zwart);
        printer_->NewPage();
        QCOMPARE(printer_->CurrentY, 0.0);
        printer_->Print(u"b"_s);
        printer_->EndDoc();
        QCOMPARE(bank_->Script.Voorstellen.size(), 1);
        QVERIFY(bank_->Script.Gezien.isEmpty());
        QCOMPARE(bank_->Bestanden({}), QStringList());

        Begin(); // the next one is asked for again
        printer_->Print(u"c"_s);
        QCOMPARE(Klaar().Teksten(1), QStringList{u"0,0 12 #000000 c"_s});
    }

    void aNameGetsItsEnding_data()
    {
        QTest::addColumn<QString>("getypt");
        QTest::addColumn<QString>("bestand");
        Geval("no ending", u"Winter"_s, u"Winter.pdf"_s);
        Geval("another ending", u"Winter.v2"_s, u"Winter.v2.pdf"_s);
        Geval("in capitals", u"Winter.PDF"_s, u"Winter.PDF"_s);
        Geval("no dot", u"Winterpdf"_s, u"Winterpdf.pdf"_s);
        Geval("not at the end", u"Winter.pdf.oud"_s, u"Winter.pdf.oud.pdf"_s);
    }
    void aNameGetsItsEnding()
    {
        QFETCH(const QString, getypt);
        QFETCH(const QString, bestand);
        Begin(getypt);
        printer_->Print(u"a"_s);
        printer_->EndDoc();
        QCOMPARE(bank_->Bestanden({}), QStringList{bestand});
        QVERIFY(bank_->Script.Gezien.isEmpty());
    }

    void aFileThatIsFoundByItsEndingIsAskedAbout()
    {
        bank_->Schrijf(u"oud.pdf"_s, "oud");
        bank_->Script.Bestanden = {Pad(u"oud"_s), Pad(u"oud"_s)};
        bank_->Script.Antwoorden = {Antwoord::Nee, Antwoord::Ja};
        printer_->Titel = u"Winter"_s;
        printer_->Print(u"nieuw"_s);
        QCOMPARE(bank_->Script.Voorstellen, (QStringList{bank_->Thuis() + u"/Winter.pdf"_s, Pad(u"oud.pdf"_s)}));
        QCOMPARE(bank_->Script.Gezien.size(), 2);
        QCOMPARE(bank_->Script.Gezien[0].Tekst, u"oud.pdf bestaat al, vervangen?"_s);
        QCOMPARE(bank_->Script.Gezien[0].Titel, u"Afdrukken"_s);
        QVERIFY(bank_->Script.Gezien[0].Soort == Knoppen::JaNee && bank_->Script.Gezien[0].Plaatje == Icoon::Geen);
        QCOMPARE(bank_->Inhoud(u"oud.pdf"_s), "oud");
        printer_->EndDoc();
        QCOMPARE(PdfLezer(Pad(u"oud.pdf"_s)).Teksten(1), QStringList{u"0,0 8.25 #000000 nieuw"_s});
        QCOMPARE(bank_->Bestanden({}), QStringList{u"oud.pdf"_s});
    }

    void aFileOfTheNameTypedIsReplaced()
    {
        bank_->Schrijf(u"uit.pdf"_s, "oud");
        Begin();
        printer_->Print(u"nieuw"_s);
        QCOMPARE(bank_->Inhoud(u"uit.pdf"_s), "oud");
        QCOMPARE(Klaar().Teksten(1), QStringList{u"0,0 8.25 #000000 nieuw"_s});
        QVERIFY(bank_->Script.Gezien.isEmpty()); // the dialog itself has asked
    }

    // --- failures ---

    void aPlaceThatCannotBeWrittenIsAFailure_data()
    {
        QTest::addColumn<QString>("bestand");
        Geval("a folder", u"map.pdf"_s);
        Geval("a folder that is not there", u"weg/uit.pdf"_s);
        Geval("a folder that is closed", u"dicht/uit.pdf"_s);
        Geval("below a file", u"bestand/uit.pdf"_s);
        Geval("too long a name", QString(300, u'a') + u".pdf"_s);
    }
    void aPlaceThatCannotBeWrittenIsAFailure()
    {
        QFETCH(const QString, bestand);
        QDir(bank_->Map()).mkpath(u"map.pdf/vol"_s);
        QDir(bank_->Map()).mkpath(u"dicht"_s);
        bank_->Schrijf(u"bestand"_s, "inhoud");
        const Onbevoegd onbevoegd(*bank_, {u"dicht"_s});
        Begin(bestand);
        printer_->Print(u"a"_s);
        QVERIFY(FoutVan([&] { printer_->EndDoc(); }) != 0);
        QCOMPARE(bank_->Bestanden({}), QStringList{u"bestand"_s});
        for (const QString &map : {u"map.pdf"_s, u"dicht"_s})
            QCOMPARE(bank_->Bestanden(map), QStringList());

        Begin(); // the printer is still to be used
        printer_->Print(u"b"_s);
        QCOMPARE(Klaar().Teksten(1), QStringList{u"0,0 8.25 #000000 b"_s});
    }

    void aDiskThatFailsLeavesTheOldFile()
    {
        bool mislukt = true;
        for (int bij = 1; mislukt; ++bij) {
            QVERIFY(bij < 20);
            bank_->Schrijf(u"uit.pdf"_s, "oud");
            Begin();
            printer_->Print(u"a"_s);
            HaperendeSchijf schijf(bij);
            mislukt = FoutVan([&] { printer_->EndDoc(); }) != 0;
            QCOMPARE(mislukt, bank_->Inhoud(u"uit.pdf"_s) == "oud");
            if (!schijf.Logboek.last().startsWith("Verwijder"_L1)) // what cannot be removed stays
                QCOMPARE(bank_->Bestanden({}), QStringList{u"uit.pdf"_s});
        }
    }

    void aQueueThatIsGonePrintsNothing()
    {
        printer_.emplace(u"verdwenen"_s);
        QCOMPARE(printer_->DeviceName(), u"verdwenen"_s);
        printer_->PrintOp(600, 300, u"a"_s);
        printer_->NewPage();
        printer_->PaintPicture(Bont(10, 10), QRectF(0, 0, 300, 300), QRectF(0, 0, 150, 150));
        printer_->EndDoc();
        QCOMPARE(bank_->Script.Voorstellen, QStringList());
        QVERIFY(bank_->Script.Gezien.isEmpty());
    }

private:
    QString Pad(const QString &naam = u"uit.pdf"_s) const { return bank_->Map() + u'/' + naam; }
    /// Answers what the next document will ask.
    void Begin(const QString &naam = u"uit.pdf"_s) { bank_->Script.Bestanden = {Pad(naam)}; }
    /// Ends the document that Begin was for, and reads it.
    PdfLezer Klaar()
    {
        printer_->EndDoc();
        return PdfLezer(Pad());
    }

    std::optional<Testbank> bank_;
    std::optional<Printer> printer_;
};

RASTER_TEST(tst_Printer)
#include "tst_Printer.moc"

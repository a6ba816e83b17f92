#include "handleiding/HandleidingPdf.h"

#include "platform/Fout.h"
#include "support/PdfLezer.h"
#include "support/Testbank.h"

#include <QRegularExpression>
#include <QTemporaryFile>

#include <cmath>
#include <memory>

using namespace Qt::StringLiterals;

/// A picture of the screen, two pixels to its pixel: red, with a blue frame.
static QImage Beeld(int breedte, int hoogte)
{
    QImage beeld(breedte * 2, hoogte * 2, QImage::Format_RGB32);
    beeld.fill(Qt::blue);
    for (int y = 2; y < beeld.height() - 2; ++y)
        for (int x = 2; x < beeld.width() - 2; ++x)
            beeld.setPixelColor(x, y, Qt::red);
    beeld.setDotsPerMeterX(7559); // 192 to the inch
    beeld.setDotsPerMeterY(7559);
    return beeld;
}

/// "100x50.png" is a picture of that size on the screen; others are not there.
static QImage BeeldVanNaam(const QString &naam)
{
    const QStringList maat = naam.split(u'.')[0].split(u'x');
    return maat.size() == 2 ? Beeld(maat[0].toInt(), maat[1].toInt()) : QImage();
}

/// A manual as it is read back.
class Gelezen
{
public:
    explicit Gelezen(const QString &markdown, const QString &titel = u"Proef"_s)
    {
        if (bestand_.open())
            bestand_.write(MaakHandleiding(titel, markdown, BeeldVanNaam));
        bestand_.close();
        lezer_ = std::make_unique<PdfLezer>(bestand_.fileName());
        for (int blad = 1; blad <= lezer_->Paginas(); ++blad)
            regels_ += lezer_->Regels(blad);
    }
    const PdfLezer *operator->() const { return lezer_.get(); }
    const QStringList &Regels(int blad) const { return regels_[blad - 1]; }
    /// The pages on which such a line stands, separated by blanks.
    QString Bladen(const QString &regel) const
    {
        QStringList bladen;
        for (int blad = 1; blad <= regels_.size(); ++blad)
            for (const QString &gelezen : Regels(blad))
                if (gelezen == regel)
                    bladen += QString::number(blad);
        return bladen.join(u' ');
    }
    /// The lines of the list of headings, without their dots.
    QStringList Inhoud(int bladen = 1) const
    {
        QStringList regels;
        static const QRegularExpression regel(u"^(.*?)[ .]+(\\d+)$"_s);
        for (int blad = 1; blad <= bladen; ++blad) {
            QStringList opBlad = Regels(blad);
            opBlad.removeLast(); // its foot
            for (const QString &gelezen : opBlad.mid(blad == 1 ? 1 : 0))
                regels += regel.match(gelezen).captured(1) + u": "_s + regel.match(gelezen).captured(2);
        }
        return regels;
    }

private:
    QTemporaryFile bestand_;
    std::unique_ptr<PdfLezer> lezer_;
    QList<QStringList> regels_; ///< of each page
};

static QString Alineas(int aantal, const QString &woord = u"alinea"_s)
{
    QString tekst;
    for (int i = 1; i <= aantal; ++i)
        tekst += u"%1 %2\n\n"_s.arg(woord).arg(i);
    return tekst;
}

class tst_HandleidingPdf : public QObject
{
    Q_OBJECT
private slots:
    void titleAndPaper()
    {
        const Gelezen pdf(u"# Een\n\ntekst\n"_s, u"Mijn titel"_s);
        QCOMPARE(pdf->Kenmerk(u"Title"_s), u"Mijn titel"_s);
        QCOMPARE(pdf->Kenmerk(u"Creator"_s), u"Rasteratelier"_s);
        QVERIFY(pdf->Kenmerk(u"Page size"_s).endsWith(u"(A4)"_s));
        QCOMPARE(pdf->Paginas(), 2);
        QCOMPARE(pdf.Regels(1)[0], u"Mijn titel"_s);
    }

    void everyPageHasItsNumberAtItsFoot()
    {
        const Gelezen pdf(u"# Een\n\n"_s + Alineas(120) + u"# Twee\n\nslot\n"_s);
        QCOMPARE(pdf->Paginas(), 6);
        for (int blad = 1; blad <= 6; ++blad)
            QCOMPARE(pdf.Regels(blad).last().simplified(), u"Proef %1"_s.arg(blad));
    }

    void aLineIsAboveTheFoot()
    {
        const Gelezen pdf(u"# Een\n\ntekst\n"_s);
        const QImage blad = pdf->Pagina(2);
        const auto beeldpunten = [](double millimeters) { return qRound(millimeters * 96 / 25.4); };
        const QRect lijn = InktVlak(blad, QRect(0, beeldpunten(281) - 3, blad.width(), 7));
        QCOMPARE(lijn.left(), beeldpunten(22));
        QVERIFY2(std::abs(lijn.right() - beeldpunten(188)) <= 1, qPrintable(QString::number(lijn.right())));
        QVERIFY(lijn.height() <= 2);
        const QColor kleur = blad.pixelColor(lijn.center());
        QVERIFY2(kleur.red() == kleur.green() && kleur.red() > 100, qPrintable(kleur.name()));
    }

    void headingsAreListedWithTheirPages()
    {
        const Gelezen pdf(u"# Een\n\ntekst\n\n## Deel\n\n"_s + Alineas(60) +
                          u"## Deel\n\nmeer\n\n### Klein\n\nnog\n\n# Twee\n\nslot\n"_s);
        QCOMPARE(pdf.Inhoud().join(u'\n'), u"Een: 2\nDeel: 2\nDeel: 3\nKlein: 3\nTwee: 4"_s);
        QCOMPARE(pdf.Bladen(u"Een"_s), u"2"_s);
        QCOMPARE(pdf.Bladen(u"Deel"_s), u"2 3"_s);
        QCOMPARE(pdf.Bladen(u"Klein"_s), u"3"_s);
        QCOMPARE(pdf.Bladen(u"Twee"_s), u"4"_s);
    }

    void theListOfHeadingsStandsInColumns()
    {
        const Gelezen pdf(u"# Een\n\ntekst\n\n## Deel\n\nmeer\n"_s);
        QStringList teksten, stippen;
        for (const QString &tekst : pdf->Teksten(1))
            if (tekst.endsWith(u" ."_s))
                stippen += tekst.section(u' ', 0, 1) + u" %1 stippen"_s.arg(tekst.section(u'#', 1).count(u'.'));
            else
                teksten += tekst;
        QCOMPARE(teksten.join(u'\n'), u"1007,894 24 vet #000000 Proef\n"
                                      "1007,2028 9.48 vet #000000 Een\n10313,2028 9.48 vet #000000 2\n"
                                      "1347,2300 9.48 #000000 Deel\n10313,2300 9.48 #000000 2\n"
                                      "1007,15804 8.52 #000000 Proef\n10323,15804 8.52 #000000 1"_s);
        QCOMPARE(stippen.join(u'\n'), u"1550,2028 9.48 83 stippen\n1866,2300 9.48 80 stippen"_s);
    }

    void aLongListOfHeadingsGoesOnOnFurtherPages_data()
    {
        QTest::addColumn<int>("koppen");
        QTest::addColumn<int>("bladen");
        Geval("a full page", 48, 1);
        Geval("one more", 49, 2);
        Geval("two full pages", 48 + 52, 2);
        Geval("one more than these", 48 + 52 + 1, 3);
    }
    void aLongListOfHeadingsGoesOnOnFurtherPages()
    {
        QFETCH(int, koppen);
        QFETCH(int, bladen);
        QString tekst;
        for (int i = 1; i <= koppen; ++i)
            tekst += u"## Kop %1\n\ntekst\n\n"_s.arg(i);
        const Gelezen pdf(tekst);
        QCOMPARE(pdf.Bladen(u"Kop 1"_s), QString::number(bladen + 1));
        const QStringList inhoud = pdf.Inhoud(bladen);
        QCOMPARE(inhoud.size(), koppen);
        for (int i = 1; i <= koppen; ++i)
            QCOMPARE(inhoud[i - 1], u"Kop %1: "_s.arg(i) + pdf.Bladen(u"Kop %1"_s.arg(i)));
    }

    void whatStaysWithTheNext_data()
    {
        QTest::addColumn<QString>("markdown");
        QTest::addColumn<QString>("stukken"); // a letter each: n begins a page, v stays with the next, - neither
        Geval("paragraphs", u"een\n\ntwee\n"_s, u"--"_s);
        Geval("a chapter", u"# Een\n\ntwee\n"_s, u"n-"_s);
        Geval("other headings", u"## Een\n\n### Twee\n\ndrie\n"_s, u"vv-"_s);
        Geval("what ends in a colon", u"een:\n\ntwee\n"_s, u"v-"_s);
        Geval("a list of one", u"- a\n\nb\n"_s, u"--"_s);
        Geval("the first two and the last two of a list", u"1. a\n2. b\n3. c\n4. d\n5. e\n\nf\n"_s, u"v--v--"_s);
        Geval("lines to be typed", u"    a\n    b\n    c\n\nd\n"_s, u"vv--"_s);
        const QString tabel = u"| a |\n|---|\n"_s + u"| b |\n"_s.repeated(7);
        Geval("a table that is not divided", tabel + u"\nc\n"_s, u"vvvvvvv--"_s);
        Geval("a longer table", tabel + u"| b |\n\nc\n"_s, u"vv-----v--"_s);
        Geval("a table of one row", u"| a |\n|---|\n| b |\n\nc\n"_s, u"v--"_s);
        Geval("a picture and its text", u"een\n\n![twee](40x30.png)\n\ndrie\n"_s, u"-v--"_s);
    }
    void whatStaysWithTheNext()
    {
        QFETCH(QString, markdown);
        QFETCH(QString, stukken);
        QImage papier(10, 10, QImage::Format_RGB32);
        const Opmaak opmaak(markdown, BeeldVanNaam, papier, 600, 900);
        QString gelezen;
        double onder = 0;
        for (const Stuk &stuk : opmaak.Stukken()) {
            gelezen += stuk.NieuwBlad ? u'n' : stuk.BijVolgend ? u'v' : u'-';
            QVERIFY(stuk.Boven >= onder);
            QVERIFY(stuk.Onder > stuk.Boven);
            onder = stuk.Onder;
        }
        QCOMPARE(gelezen, stukken);
    }

    // Every kind of paragraph there is, with its place, its letters and its colour.
    void aPageIsLaidOut()
    {
        const Gelezen pdf(
            u"# Hoofdstuk\n\neen\n\n## Deel\n\n- punt\n- nog\n- slot\n\nna `code`\n\n    regel\n    tweede\n\n"
            "### Klein\n\n| kop | hoofd |\n|---|---|\n| cel | vak |\n| onder | aan |\n\n"
            "![plaatje](80x40.png)\n\neind\n"_s);
        const QStringList teksten = pdf->Teksten(2);
        QCOMPARE(teksten.mid(0, 10).join(u'\n'),
                 u"1007,894 20.04 vet #14285a Hoofdstuk\n1007,1537 9.96 #000000 een\n1007,2049 13.56 vet #14285a Deel\n"
                 "1607,2451 9.96 #000000 punt\n1607,2768 9.96 #000000 nog\n1607,3085 9.96 #000000 slot\n"
                 "1007,3461 9.96 #000000 na\n1284,3492 9.13 #000000 code\n"
                 "1307,3852 9.13 #000000 regel\n1307,4093 9.13 #000000 tweede"_s);
        QCOMPARE(
            teksten.mid(10, 9).join(u'\n'),
            u"1007,4514 11.04 vet #14285a Klein\n1052,4904 9.96 vet #000000 kop\n5737,4904 9.96 vet #000000 hoofd\n"
            "1052,5280 9.96 #000000 cel\n5737,5280 9.96 #000000 vak\n1052,5657 9.96 #000000 onder\n"
            "5737,5657 9.96 #000000 aan\n5448,6742 9 #505050 plaatje\n1007,7131 9.96 #000000 eind"_s);
        QCOMPARE(pdf->Beelden(2).join(u'\n'), u"5263,6246 900x451"_s);
        const QImage blad = pdf->Pagina(2);
        QCOMPARE(blad.pixelColor(300, 350).name(), u"#e2e8f2"_s); // the head of the table
        QCOMPARE(blad.pixelColor(300, 382).name(), u"#ffffff"_s);
        QCOMPARE(blad.pixelColor(300, 364).name(), blad.pixelColor(300, 414).name());
        for (const int y : {389, 414}) { // a line under each row
            const QRect lijn = InktVlak(blad, QRect(0, y - 3, blad.width(), 7));
            QCOMPARE(lijn.left(), 83);
            QCOMPARE(lijn.right(), 710);
            QVERIFY2(lijn.height() <= 2, qPrintable(QString::number(lijn.height())));
        }
    }

    void aHeadingGoesToTheNextPageWithItsText()
    {
        int verhuisd = 0;
        for (int ervoor = 33; ervoor < 40; ++ervoor) {
            const Gelezen pdf(u"# Een\n\n"_s + Alineas(ervoor) + u"## Kop\n\nslot\n"_s);
            QCOMPARE(pdf.Bladen(u"Kop"_s), pdf.Bladen(u"slot"_s));
            QCOMPARE(pdf.Inhoud()[1], u"Kop: "_s + pdf.Bladen(u"slot"_s));
            verhuisd += pdf->Paginas() - 2;
        }
        QVERIFY(verhuisd > 1 && verhuisd < 6);
    }

    void everyLineIsThereOnce()
    {
        const Gelezen pdf(u"# Een\n\n"_s + Alineas(90) + u"\n| A | B |\n|---|---|\n"_s +
                          Alineas(50, u"| rij | a |"_s).replace(u"\n\n"_s, u" |\n"_s));
        for (int i = 1; i <= 90; ++i)
            QCOMPARE(pdf.Bladen(u"alinea %1"_s.arg(i)).split(u' ').size(), 1);
        QStringList rijen;
        for (int blad = 2; blad <= pdf->Paginas(); ++blad)
            rijen += pdf.Regels(blad).filter(u"rij"_s);
        QCOMPARE(rijen.size(), 50);
    }

    void columnsOfATableAreApart()
    {
        const QString cel = u"i "_s.repeated(300);
        const Gelezen pdf(u"| a | b |\n|---|---|\n| %1 | %1 |\n"_s.arg(cel));
        const QImage blad = pdf->Pagina(2);
        int leeg = 0, breedst = 0;
        for (int x = 200; x < 600; ++x) {
            leeg = HeeftInkt(blad, QRect(x, 110, 1, 40)) ? 0 : leeg + 1;
            breedst = std::max(breedst, leeg);
        }
        QVERIFY2(breedst >= 16, qPrintable(QString::number(breedst)));
    }

    void picturesAreWholeAndSharp_data()
    {
        QTest::addColumn<QString>("naam");
        QTest::addColumn<QSizeF>("opPapier"); // millimetres
        Geval("as on the screen, a little smaller", u"400x200.png"_s, QSizeF(79.4, 39.7));
        Geval("no wider than the text", u"1000x200.png"_s, QSizeF(166, 33.2));
        Geval("no higher than a part of the page", u"100x1000.png"_s, QSizeF(13.9, 139.2));
    }
    void picturesAreWholeAndSharp()
    {
        QFETCH(QString, naam);
        QFETCH(QSizeF, opPapier);
        const Gelezen pdf(u"# Een\n\ntekst\n\n![Een plaatje](%1)\n\nmeer tekst\n"_s.arg(naam));
        QCOMPARE(pdf->Beelden(2).size(), 1);
        const QStringList twips = pdf->Beelden(2)[0].section(u' ', 1).split(u'x');
        const QSizeF maat = QSizeF(twips[0].toDouble(), twips[1].toDouble()) * 25.4 / 1440;
        QVERIFY2(std::abs(maat.width() - opPapier.width()) < 0.2, qPrintable(QString::number(maat.width())));
        QVERIFY2(std::abs(maat.height() - opPapier.height()) < 0.2, qPrintable(QString::number(maat.height())));
        QCOMPARE(pdf->Beeld(0).convertToFormat(QImage::Format_RGB32), BeeldVanNaam(naam));
        QCOMPARE(pdf.Bladen(u"Een plaatje"_s), u"2"_s);
        QVERIFY(pdf->Letters().contains(u"LiberationSans-Italic ingesloten doorzoekbaar"_s)); // its text
    }

    void aPictureThatIsNotThereIsAFailure()
    {
        try {
            MaakHandleiding(u"Proef"_s, u"![x](weg.png)\n"_s, BeeldVanNaam);
        } catch (const Fout &fout) {
            QCOMPARE(fout.nummer(), Fout::BestandNietGevonden);
            QVERIFY(fout.tekst().contains(u"weg.png"_s));
            return;
        }
        QFAIL("no failure");
    }

    void lettersAreInTheFile()
    {
        const Gelezen pdf(u"# Een\n\n*schuin* en **vet** en `getypt`\n\n    regel\n"_s);
        QCOMPARE(pdf->Letters().join(u'\n'), u"LiberationMono ingesloten doorzoekbaar\n"
                                             "LiberationSans ingesloten doorzoekbaar\n"
                                             "LiberationSans-Bold ingesloten doorzoekbaar\n"
                                             "LiberationSans-Italic ingesloten doorzoekbaar"_s);
    }

    void headingsAreLargerThanText()
    {
        const Gelezen pdf(u"# Groot\n\n## Midden\n\n### Klein\n\n#### Kleinst\n\ntekst\n"_s);
        QStringList maten;
        for (const QString &tekst : pdf->Teksten(2).first(5))
            maten += tekst.section(u' ', 1);
        QCOMPARE(maten.join(u'\n'), u"20.04 vet #14285a Groot\n13.56 vet #14285a Midden\n"
                                    "11.04 vet #14285a Klein\n11.04 vet #14285a Kleinst\n9.96 #000000 tekst"_s);
    }
};

RASTER_TEST(tst_HandleidingPdf)

#include "tst_HandleidingPdf.moc"

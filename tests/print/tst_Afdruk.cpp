// What the jobs print, read back from the PDF files that come of it.

#include "platform/Printer.h"
#include "print/Proefdruk.h"
#include "support/PdfLezer.h"
#include "support/Testbank.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

/// A picture in which no two rows and no two columns are the same.
static QImage Bont(int breedte, int hoogte)
{
    QImage beeld(breedte, hoogte, QImage::Format_RGB32);
    for (int y = 0; y < hoogte; ++y)
        for (int x = 0; x < breedte; ++x)
            beeld.setPixel(x, y, qRgb(x & 255, y & 255, (x / 256) * 16 + y / 256));
    return beeld;
}

static QList<Rij> Rijen(int aantal)
{
    QList<Rij> rijen;
    for (int i = 1; i <= aantal; ++i)
        rijen += Rij{u"%2-%3 / %1-%4"_s.arg(i)
                         .arg(QChar(u'A' + i % 16))
                         .arg(i % 20, 2, 10, QChar(u'0'))
                         .arg(QChar(i % 3 ? u'H' : u'V')),
                     u"Zo'n \"dier\" <&> één poot %1"_s.arg(i), u"IJsvogel%1"_s.arg(i), QString::number(i)};
    return rijen;
}

class tst_Afdruk : public QObject
{
    Q_OBJECT

    static void Taken_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("rijen");
        QTest::addColumn<int>("maat");
        QTest::addColumn<int>("paginas");
        Geval("Zweeds, empty", 1, 0, 16, 3);
        Geval("Zweeds, 55 rows", 1, 55, 16, 4);
        Geval("Woordzoeker, empty", 2, 0, 16, 1);
        Geval("Woordzoeker, 50 words", 2, 50, 12, 1);
        Geval("Kruiswoord, empty", 3, 0, 16, 2);
        Geval("Kruiswoord, 80 clues", 3, 80, 16, 2);
        Geval("Sudoku", 4, 0, 9, 1);
        Geval("Filippine, empty", 5, 0, 16, 1);
        Geval("Filippine, 19 clues", 5, 19, 16, 1);
    }
    /// A puzzle as large as that, with everything.
    static Drukwerk Werk(int rijen, int maat)
    {
        Drukwerk werk = Proef(Rijen(rijen));
        werk.BoardWidth = maat;
        werk.BoardHeight = maat;
        werk.Pic = Bont(maat * 3 + 1, maat * 3 + 1);
        werk.PicGroot = Bont(maat * 12 + 3, maat * 12 + 3);
        werk.MetTijd = werk.Oplossing = true;
        return werk;
    }
    /// Prints to a file. @return its path; empty when none came of it
    static QString DrukAf(Testbank &bank, int type, const Drukwerk &werk)
    {
        const QString pad = bank.Map() + u"/druk.pdf"_s;
        bank.Script.Bestanden = {pad};
        Printer printer({});
        PrintTaakVan(static_cast<quint8>(type))->Druk(printer, werk);
        return QFileInfo::exists(pad) ? pad : QString();
    }

private slots:
    void everyTextAndEveryPictureIsInItsPlace_data() { Taken_data(); }
    void everyTextAndEveryPictureIsInItsPlace()
    {
        QFETCH(int, type);
        QFETCH(int, rijen);
        QFETCH(int, maat);
        QFETCH(int, paginas);
        Testbank bank;
        const Drukwerk werk = Werk(rijen, maat);
        Drukrol rol;
        PrintTaakVan(static_cast<quint8>(type))->Druk(rol, werk);
        const PdfLezer pdf(DrukAf(bank, type, werk));
        QCOMPARE(pdf.Paginas(), paginas);
        QCOMPARE(rol.Teksten().size(), paginas);
        for (int pagina = 1; pagina <= paginas; ++pagina) {
            QCOMPARE(pdf.Teksten(pagina), rol.Teksten()[pagina - 1]);
            QCOMPARE(pdf.Beelden(pagina), rol.Beelden()[pagina - 1]);
        }
        QCOMPARE(pdf.Kenmerk(u"Title"_s), u"Reis"_s);
    }

    void thePicturesAreWithoutLoss()
    {
        Testbank bank;
        Drukwerk werk = Werk(0, 9);
        werk.Pic = Bont(271, 271);
        werk.PicGroot = Bont(1083, 1083);
        const PdfLezer pdf(DrukAf(bank, 4, werk));
        QVERIFY(pdf.Beeld(0).convertToFormat(QImage::Format_RGB32) == werk.Pic);
        QVERIFY(pdf.Beeld(1).convertToFormat(QImage::Format_RGB32) == werk.PicGroot);
    }

    void fiveThousandRowsOfALargeBoard()
    {
        Testbank bank;
        Drukwerk werk = Werk(5000, 40);
        werk.PicGroot = Effen(4803, 4803, qRgb(250, 240, 230));
        QFile pdf(DrukAf(bank, 1, werk));
        QVERIFY(pdf.open(QIODevice::ReadOnly));
        QCOMPARE(pdf.readAll().count("/Type /Page\n"), 2 + 5000 / 54 + 1);
    }

    void anyBoardAndAnyTextIsPrinted_data()
    {
        QTest::addColumn<int>("type");
        for (int type = 1; type <= 5; ++type)
            Geval(QByteArray::number(type), type);
    }
    void anyBoardAndAnyTextIsPrinted()
    {
        QFETCH(int, type);
        Testbank bank;
        for (const int maat : {0, 40}) {
            Drukwerk werk = Werk(3, maat);
            if (maat == 0)
                werk.Pic = werk.PicGroot = QImage();
            werk.PaginaTekst = maat == 0 ? QString() : QString(1000, u'w');
            werk.Rijen[1].Omschrijving = QString(10000, u'o');
            const PdfLezer pdf(DrukAf(bank, type, werk));
            QCOMPARE(pdf.Paginas(), type == 1 ? 3 : type == 3 ? 2 : 1);
            QCOMPARE(pdf.Teksten(1)[0], u"600,300 12 vet #00005a Puzzelnaam : Reis"_s);
            QCOMPARE(pdf.Beelden(1).isEmpty(), maat == 0);
        }
    }
};

RASTER_TEST(tst_Afdruk)
#include "tst_Afdruk.moc"

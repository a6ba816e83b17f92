#include "platform/Files.h"
#include "platform/PictureFiles.h"
#include "support/Testbank.h"

#include <QBuffer>
#include <QFileInfo>
#include <QtEndian>

#include <limits>
#include <optional>

using namespace Qt::StringLiterals;

/// A picture in which no two neighbours are alike, of a width that leaves each row of a bitmap file with padding.
static QImage BontBeeld(QSize maat = QSize(13, 7))
{
    QImage beeld(maat, QImage::Format_RGB32);
    for (int y = 0; y < beeld.height(); ++y)
        for (int x = 0; x < beeld.width(); ++x)
            beeld.setPixel(x, y, qRgb(x * 19 % 256, y * 36 % 256, (x + y) * 12 % 256));
    return beeld;
}

static QByteArray Bytes(int waarde)
{
    QByteArray bytes(4, 0);
    qToLittleEndian(waarde, bytes.data());
    return bytes;
}

/// A bitmap's head of 54 bytes, the colours behind it, and the pixels behind those.
static QByteArray Bitmap(int breedte, int hoogte, int bits, int compressie, const QByteArray &kleuren,
                         const QByteArray &pixels)
{
    const int begin = 54 + int(kleuren.size());
    return "BM" + Bytes(begin + int(pixels.size())) + Bytes(0) + Bytes(begin) + Bytes(40) + Bytes(breedte) +
           Bytes(hoogte) + Bytes(1 | bits << 16) + Bytes(compressie) + Bytes(int(pixels.size())) + Bytes(0) + Bytes(0) +
           Bytes(bits == 8 ? 256 : 0) + Bytes(0) + kleuren + pixels;
}

static QByteArray ZestienBits()
{
    return Bitmap(4, 3, 16, 3, Bytes(0xF800) + Bytes(0x07E0) + Bytes(0x001F), QByteArray(4 * 3 * 2, '\x5A'));
}

/// Of 8 bits a pixel or of 4.
static QByteArray RunLength(int bits)
{
    QByteArray kleuren;
    for (int i = 0; i < 1 << bits; ++i)
        kleuren += Bytes(i | i << 8 | i << 16);
    const QByteArray rij("\x40\x7F\x00\x00", 4); // 64 pixels in fewer bytes than a row of them takes
    return Bitmap(64, 3, bits, bits == 8 ? 1 : 2, kleuren, rij + rij + QByteArray("\x40\x7F\x00\x01", 4));
}

class tst_PictureFiles : public QObject
{
    Q_OBJECT

private slots:
    void init() { bank_.emplace(); }
    void cleanup() { bank_.reset(); }

    void aPictureComesBackPixelForPixel();
    void anotherReaderSeesTheSamePicture();
    void aPictureThatAnotherProgramWroteIsRead();
    void aPictureOfAnyKindIsReadAsItIs_data();
    void aPictureOfAnyKindIsReadAsItIs();
    void aLoadedPictureStaysWhenItsFileGoes();
    void aBitmapFileHasThirtyTwoBits_data();
    void aBitmapFileHasThirtyTwoBits();
    void noPictureCannotBeSaved();
    void aMissingPictureIsNotFound();
    void whatIsNoBitmapGivesNoPicture_data();
    void whatIsNoBitmapGivesNoPicture();
    void aBitmapCutOffAnywhereGivesNoPicture_data();
    void aBitmapCutOffAnywhereGivesNoPicture();
    void aHeadThatLiesAboutItsSizeGivesNoPicture_data();
    void aHeadThatLiesAboutItsSizeGivesNoPicture();
    void damagedHeadsNeverDoHarm();
    void aPictureAboveTheLimitIsOutOfMemory();
    void aJpegHasTheSizeOfItsBitmap();
    void aJpegOfNoBitmapIsNotMade();

private:
    QString Map() const { return bank_->Map(); }
    QString Volledig(const char *naam) const { return Map() + u'/' + QLatin1String(naam); }

    std::optional<Testbank> bank_;
};

void tst_PictureFiles::aPictureComesBackPixelForPixel()
{
    const QImage beeld = BontBeeld();
    Files::SavePicture(beeld, Volledig("a.bmp"));
    const QImage terug = Files::LoadPicture(Volledig("a.bmp"));
    QCOMPARE(terug.format(), QImage::Format_RGB32);
    QCOMPARE(terug.size(), beeld.size());
    for (int y = 0; y < beeld.height(); ++y)
        for (int x = 0; x < beeld.width(); ++x)
            QCOMPARE(terug.pixel(x, y), beeld.pixel(x, y));
}

void tst_PictureFiles::anotherReaderSeesTheSamePicture()
{
    Files::SavePicture(BontBeeld(), Volledig("a.bmp"));
    QCOMPARE(QImage(Volledig("a.bmp"), "bmp").convertToFormat(QImage::Format_RGB32), BontBeeld());
}

void tst_PictureFiles::aPictureThatAnotherProgramWroteIsRead()
{
    QVERIFY(BontBeeld().save(Volledig("a.bmp"), "bmp"));
    QCOMPARE(Files::LoadPicture(Volledig("a.bmp")), BontBeeld());
    QVERIFY(BontBeeld().convertToFormat(QImage::Format_Mono).save(Volledig("b.bmp"), "bmp"));
    QCOMPARE(Files::LoadPicture(Volledig("b.bmp")),
             BontBeeld().convertToFormat(QImage::Format_Mono).convertToFormat(QImage::Format_RGB32));
}

void tst_PictureFiles::aPictureOfAnyKindIsReadAsItIs_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QByteArray pixels;
    for (int i = 0; i < 12; ++i)
        pixels += Bytes(i * 0x081420 + 0x102030);
    const QByteArray vulling(2, 0); // so that the pixels begin at a multiple of four, as those of our own do
    Geval("top row first", Bitmap(4, -3, 32, 0, vulling, pixels));
    Geval("top row first, at an odd place", Bitmap(4, -3, 32, 0, "x", pixels));
    Geval("bottom row first", Bitmap(4, 3, 32, 0, vulling, pixels));
    Geval("24 bits", Bitmap(4, -3, 24, 0, vulling, pixels.first(4 * 3 * 3)));
    Geval("red and blue exchanged",
          Bitmap(4, -3, 32, 3, Bytes(0xFF) + Bytes(0xFF00) + Bytes(0xFF0000) + vulling, pixels));
}

void tst_PictureFiles::aPictureOfAnyKindIsReadAsItIs()
{
    QFETCH(QByteArray, bytes);
    bank_->Schrijf(u"a.bmp"_s, bytes);
    const QImage verwacht = QImage::fromData(bytes, "bmp").convertToFormat(QImage::Format_RGB32);
    QCOMPARE(verwacht.size(), QSize(4, 3));
    QCOMPARE(Files::LoadPicture(Volledig("a.bmp")), verwacht);
}

void tst_PictureFiles::aLoadedPictureStaysWhenItsFileGoes()
{
    Files::SavePicture(BontBeeld(), Volledig("a.bmp"));
    const QImage beeld = Files::LoadPicture(Volledig("a.bmp"));
    Files::Schrijf(Volledig("a.bmp"), QByteArray(1000, 'x'));
    Files::Kill(Volledig("a.bmp"));
    QCOMPARE(beeld, BontBeeld());
}

void tst_PictureFiles::aBitmapFileHasThirtyTwoBits_data()
{
    QTest::addColumn<int>("vorm");
    Geval("screen", int(QImage::Format_RGB32));
    Geval("transparent", int(QImage::Format_ARGB32_Premultiplied));
    Geval("grey", int(QImage::Format_Grayscale8));
    Geval("indexed", int(QImage::Format_Indexed8));
    Geval("black and white", int(QImage::Format_Mono));
}

void tst_PictureFiles::aBitmapFileHasThirtyTwoBits()
{
    QFETCH(int, vorm);
    Files::SavePicture(BontBeeld().convertToFormat(static_cast<QImage::Format>(vorm)), Volledig("a.bmp"));
    const QByteArray bytes = bank_->Inhoud(u"a.bmp"_s);
    QVERIFY(bytes.startsWith("BM"));
    QCOMPARE(int(qFromLittleEndian<quint16>(bytes.constData() + 26)), 1); // planes
    QCOMPARE(int(qFromLittleEndian<quint16>(bytes.constData() + 28)), 32);
    for (const int plaats : {38, 42}) // 96 pixels to the inch
        QCOMPARE(qFromLittleEndian<qint32>(bytes.constData() + plaats), 3780);
    const qsizetype begin = qFromLittleEndian<qint32>(bytes.constData() + 10);
    QCOMPARE(bytes.size(), begin + 13 * 4 * 7);
    QCOMPARE(qFromLittleEndian<qint32>(bytes.constData() + 2), qint32(bytes.size()));
}

void tst_PictureFiles::noPictureCannotBeSaved()
{
    QCOMPARE(FoutVan([&] { Files::SavePicture({}, Volledig("a.bmp")); }), int{Fout::OngeldigeAfbeelding});
    QCOMPARE(bank_->Bestanden({}), QStringList());
}

void tst_PictureFiles::aMissingPictureIsNotFound()
{
    QCOMPARE(FoutVan([&] { Files::LoadPicture(Volledig("a.bmp")); }), int{Fout::BestandNietGevonden});
}

void tst_PictureFiles::whatIsNoBitmapGivesNoPicture_data()
{
    QTest::addColumn<QByteArray>("bytes");
    Geval("empty", QByteArray());
    Geval("two letters", QByteArray("BM"));
    Geval("zeroes", QByteArray(1000, 0));
    Geval("all bits set", QByteArray(1000, '\xFF'));
    const QByteArray onze = Bitmap(13, -7, 32, 0, QByteArray(2, 0), QByteArray(13 * 4 * 7, 'x'));
    Geval("another first letter", 'A' + onze.sliced(1));
    Geval("another second letter", "BA" + onze.sliced(2));
    Geval("letters behind a bitmap's two", "BM" + QByteArray(1000, 'x'));
    Geval("a text", QByteArray("Puzzel\r\n").repeated(20));
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    BontBeeld().save(&buffer, "png");
    Geval("a picture of another kind", png);
}

void tst_PictureFiles::whatIsNoBitmapGivesNoPicture()
{
    QFETCH(QByteArray, bytes);
    bank_->Schrijf(u"a.bmp"_s, bytes);
    QCOMPARE(FoutVan([&] { Files::LoadPicture(Volledig("a.bmp")); }), int{Fout::OngeldigeAfbeelding});
}

void tst_PictureFiles::aBitmapCutOffAnywhereGivesNoPicture_data()
{
    QTest::addColumn<QByteArray>("heel");
    Geval("24 bits", Bitmap(13, 7, 24, 0, {}, QByteArray(40 * 7, 'x')));
    Geval("24 bits, top row first", Bitmap(13, -7, 24, 0, {}, QByteArray(40 * 7, 'x')));
    Geval("32 bits", Bitmap(13, 7, 32, 0, {}, QByteArray(13 * 4 * 7, 'x')));
    Geval("32 bits, top row first", Bitmap(13, -7, 32, 0, QByteArray(2, 0), QByteArray(13 * 4 * 7, 'x')));
    Geval("16 bits with masks", ZestienBits());
    Geval("run lengths", RunLength(8));
    Geval("run lengths of 4 bits", RunLength(4));
}

void tst_PictureFiles::aBitmapCutOffAnywhereGivesNoPicture()
{
    QFETCH(QByteArray, heel);
    bank_->Schrijf(u"a.bmp"_s, heel);
    QCOMPARE(FoutVan([&] { Files::LoadPicture(Volledig("a.bmp")); }), 0);
    for (int lengte = 0; lengte < heel.size(); ++lengte) {
        bank_->Schrijf(u"a.bmp"_s, heel.left(lengte));
        const int nummer = FoutVan([&] { Files::LoadPicture(Volledig("a.bmp")); });
        QVERIFY2(nummer == Fout::OngeldigeAfbeelding,
                 qPrintable(u"%1 of %2 bytes: %3"_s.arg(lengte).arg(heel.size()).arg(nummer)));
    }
}

void tst_PictureFiles::aHeadThatLiesAboutItsSizeGivesNoPicture_data()
{
    QTest::addColumn<int>("breedte");
    QTest::addColumn<int>("hoogte");
    QTest::addColumn<int>("bits");
    constexpr int Most = std::numeric_limits<int>::max(), Least = std::numeric_limits<int>::min();
    Geval("60000 x 60000", 60000, 60000, 24);
    Geval("wide", Most, 1, 24);
    Geval("high", 1, Most, 24);
    Geval("largest", Most, Most, 32);
    Geval("largest with most bits", Most, Most, 0xFFFF);
    Geval("upside down", Most, Least, 0x7FFF);
    Geval("no width", 0, 7, 24);
    Geval("no height", 13, 0, 24);
    Geval("negative width", -13, 7, 24);
    Geval("smallest width", Least, Least, 0x7FFF);
    Geval("no bits", 13, 7, 0);
    Geval("odd bits", 13, 7, 23);
}

void tst_PictureFiles::aHeadThatLiesAboutItsSizeGivesNoPicture()
{
    QFETCH(int, breedte);
    QFETCH(int, hoogte);
    QFETCH(int, bits);
    for (const int compressie : {0, 1, 3}) {
        bank_->Schrijf(u"a.bmp"_s, Bitmap(breedte, hoogte, bits, compressie, {}, QByteArray(280, 'x')));
        QVERIFY(FoutVan([&] { Files::LoadPicture(Volledig("a.bmp")); }) != 0);
    }
}

void tst_PictureFiles::damagedHeadsNeverDoHarm()
{
    const QByteArray heel = Bitmap(13, 7, 24, 0, {}, QByteArray(280, 'x'));
    int mislukt = 0;
    for (int plaats = 0; plaats < 54; ++plaats)
        for (const char byte : {'\0', '\x01', '\x7F', '\x80', '\xFF'}) {
            QByteArray bytes = heel;
            bytes[plaats] = byte;
            bank_->Schrijf(u"a.bmp"_s, bytes);
            try {
                QVERIFY(!Files::LoadPicture(Volledig("a.bmp")).isNull());
            } catch (const Fout &) {
                ++mislukt;
            }
        }
    QVERIFY(mislukt > 0);
}

void tst_PictureFiles::aPictureAboveTheLimitIsOutOfMemory()
{
    // One bit a pixel: the file stays small, the picture in memory doesn't.
    constexpr int Zijde = 8200;
    static_assert(qint64{Zijde} * Zijde * 4 > GrootsteBeeld);
    bank_->Schrijf(u"a.bmp"_s,
                   Bitmap(Zijde, Zijde, 1, 0, QByteArray(8, 0), QByteArray((Zijde + 31) / 32 * 4 * Zijde, 0)));
    QCOMPARE(FoutVan([&] { Files::LoadPicture(Volledig("a.bmp")); }), int{Fout::GeheugenVol});
}

void tst_PictureFiles::aJpegHasTheSizeOfItsBitmap()
{
    QImage beeld(50, 30, QImage::Format_RGB32);
    beeld.fill(qRgb(200, 100, 50));
    Files::SavePicture(beeld, Volledig("a.bmp"));
    Files::BmpToJpeg(Volledig("a.bmp"), Volledig("a.jpg"), 90);
    QVERIFY(bank_->Inhoud(u"a.jpg"_s).startsWith("\xFF\xD8"));
    const QImage terug(Volledig("a.jpg"), "jpg");
    QCOMPARE(terug.size(), beeld.size());
    QVERIFY(std::abs(qRed(terug.pixel(25, 15)) - 200) < 10);
    QVERIFY(std::abs(qBlue(terug.pixel(25, 15)) - 50) < 10);

    Files::SavePicture(BontBeeld(QSize(100, 100)), Volledig("b.bmp"));
    Files::BmpToJpeg(Volledig("b.bmp"), Volledig("fijn.jpg"), 100);
    Files::BmpToJpeg(Volledig("b.bmp"), Volledig("grof.jpg"), 10);
    QVERIFY(QFileInfo(Volledig("grof.jpg")).size() < QFileInfo(Volledig("fijn.jpg")).size());
}

void tst_PictureFiles::aJpegOfNoBitmapIsNotMade()
{
    bank_->Schrijf(u"a.bmp"_s, "BM");
    QCOMPARE(FoutVan([&] { Files::BmpToJpeg(Volledig("a.bmp"), Volledig("a.jpg"), 90); }),
             int{Fout::OngeldigeAfbeelding});
    QCOMPARE(FoutVan([&] { Files::BmpToJpeg(Volledig("b.bmp"), Volledig("a.jpg"), 90); }),
             int{Fout::BestandNietGevonden});
    QCOMPARE(bank_->Bestanden({}), QStringList{"a.bmp"});
}

RASTER_TEST(tst_PictureFiles)
#include "tst_PictureFiles.moc"

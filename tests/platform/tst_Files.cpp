#include "platform/Files.h"
#include "support/Testbank.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <csignal>
#include <limits>
#include <optional>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

/// As long as it lives no file of this process can grow beyond so many bytes, as if the disk were full.
class VolleSchijf
{
public:
    explicit VolleSchijf(rlim_t bytes) : oudSignaal_(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &oud_);
        rlimit nieuw = oud_;
        nieuw.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &nieuw);
    }
    ~VolleSchijf()
    {
        setrlimit(RLIMIT_FSIZE, &oud_);
        std::signal(SIGXFSZ, oudSignaal_);
    }
    Q_DISABLE_COPY_MOVE(VolleSchijf)

private:
    rlimit oud_{};
    void (*oudSignaal_)(int);
};

class TestFiles : public QObject
{
    Q_OBJECT

private slots:
    void init() { bank_.emplace(); }
    void cleanup() { bank_.reset(); }

    void textIsCodePage1252_data();
    void textIsCodePage1252();
    void aCharacterOutsideTheCodePageBecomesAQuestionMark();
    void everyByteGivesOneCharacter();

    void aPathIgnoresCaseAndKeepsTheStoredSpelling();
    void aNameWithItsOwnSpellingIsPreferred();
    void aNewFileTakesTheNameGiven();
    void aNameThatCouldLeaveTheFolderIsRefused_data();
    void aNameThatCouldLeaveTheFolderIsRefused();
    void anOrdinaryNameIsTaken_data();
    void anOrdinaryNameIsTaken();
    void aFolderIsNoFile();
    void theListMatchesAndSortsIgnoringCase();
    void killRemovesAFile();
    void mkDirMakesAFolder();

    void aFileIsReadWhole();
    void whatIsNoFileCannotBeRead();
    void aFileThatIsTooLargeIsNotTakenIn();
    void aFileIsWrittenByteForByte();
    void aWrittenFileReplacesTheOldOne();
    void aFileInAMissingFolderCannotBeWritten();
    void aWriteThatFailsHalfwayKeepsTheOldFile();
    void aWriteThatFailsHalfwayLeavesNoNewFile();
    void renamingChangesOnlyTheName();
    void renamingCanChangeTheCaseAlone();
    void renamingAMissingFileFails();

    void aPictureComesBackPixelForPixel();
    void anotherReaderSeesTheSamePicture();
    void aPictureThatAnotherProgramWroteIsRead();
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

    void fieldsAreRead_data();
    void fieldsAreRead();
    void textFieldsAreCodePage1252();
    void numberFieldsAreRead();
    void aNumberFieldThatIsNoNumberFails_data();
    void aNumberFieldThatIsNoNumberFails();
    void behindTheLastFieldIsTheEndOfTheFile();
    void linesAreWrittenByteForByte();
    void whatIsWrittenIsReadBack();

private:
    QString Map() const { return bank_->Map(); }
    QString Volledig(const char *naam) const { return Map() + u'/' + QLatin1String(naam); }

    std::optional<Testbank> bank_;
};

// --- code page ---

void TestFiles::textIsCodePage1252_data()
{
    QTest::addColumn<QString>("tekst");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QString() << QByteArray();
    QTest::newRow("plain") << u"Zweeds 12!"_s << QByteArray("Zweeds 12!");
    QTest::newRow("registered") << u"a\u00AEb"_s
                                << QByteArray("a\xAE"
                                              "b");
    QTest::newRow("euro") << u"\u20AC"_s << QByteArray("\x80");
    QTest::newRow("e with dots") << u"geti\u00EBnd"_s << QByteArray("geti\xEBnd");
    QTest::newRow("curly quotes") << u"\u201Eja\u201D"_s << QByteArray("\x84ja\x94");
    QTest::newRow("line end and tab") << u"a\r\n\tb"_s << QByteArray("a\r\n\tb");
}

void TestFiles::textIsCodePage1252()
{
    QFETCH(QString, tekst);
    QFETCH(QByteArray, bytes);
    QCOMPARE(Files::NaarBytes(tekst), bytes);
    QCOMPARE(Files::NaarTekst(bytes), tekst);
}

void TestFiles::aCharacterOutsideTheCodePageBecomesAQuestionMark()
{
    QCOMPARE(Files::NaarBytes(u"a\u0142b"_s), QByteArray("a?b"));
    QCOMPARE(Files::NaarBytes(u"\u03A9\u4E2D"_s), QByteArray("??"));
}

void TestFiles::everyByteGivesOneCharacter()
{
    QByteArray bytes;
    for (int i = 0; i < 256; ++i)
        bytes += static_cast<char>(i);
    const QString tekst = Files::NaarTekst(bytes);
    QCOMPARE(tekst.size(), 256);
    for (int i = 0; i < 128; ++i)
        QCOMPARE(tekst[i].unicode(), char16_t(i));
    for (int i = 160; i < 256; ++i)
        QCOMPARE(tekst[i].unicode(), char16_t(i));
    QCOMPARE(Files::NaarBytes(tekst), bytes);
}

// --- names ---

void TestFiles::aPathIgnoresCaseAndKeepsTheStoredSpelling()
{
    QVERIFY(QDir(Map()).mkdir(u"Woordlijsten"_s));
    bank_->Schrijf(u"Woordlijsten/Steden.LST"_s, "x");
    QCOMPARE(Files::Pad(Map(), {u"WOORDlijsten"_s, u"sTEDEN.lst"_s}), Map() + u"/Woordlijsten/Steden.LST"_s);
    QCOMPARE(Files::Dir(Files::Pad(Map(), {u"woordlijsten"_s, u"steden.lst"_s})), u"Steden.LST"_s);
    QCOMPARE(Files::Pad(Map(), {u"woordlijsten"_s, u"Nieuw.lst"_s}), Map() + u"/Woordlijsten/Nieuw.lst"_s);
}

void TestFiles::aNameWithItsOwnSpellingIsPreferred()
{
    bank_->Schrijf(u"AAP.txt"_s, "groot");
    bank_->Schrijf(u"aap.txt"_s, "klein");
    QCOMPARE(Files::Lees(Files::Pad(Map(), {u"aap.txt"_s})), QByteArray("klein"));
    QCOMPARE(Files::Lees(Files::Pad(Map(), {u"AAP.txt"_s})), QByteArray("groot"));
}

void TestFiles::aNewFileTakesTheNameGiven()
{
    const QString pad = Files::Pad(Map(), {u"Mijn Puzzel.frt"_s});
    QCOMPARE(pad, Map() + u"/Mijn Puzzel.frt"_s);
    QVERIFY(!Files::FileExists(pad));
    QCOMPARE(Files::Pad(Map(), {}), Map());
    QCOMPARE(Files::Pad(Map() + u"/er niet"_s, {u"A"_s, u"b"_s}), Map() + u"/er niet/A/b"_s);
}

void TestFiles::aNameThatCouldLeaveTheFolderIsRefused_data()
{
    QTest::addColumn<QString>("naam");
    QTest::newRow("empty") << QString();
    for (const char *naam : {".", "..", "a/b", "../b", "/", "a\\b", "a<", "a>", "c:a", "\"a", "a|b", "a?", "*.lst"})
        QTest::newRow(naam) << QString::fromLatin1(naam);
    for (int code = 0; code < 32; ++code)
        QTest::addRow("control character %d", code) << u"a"_s + QChar(code) + u"b"_s;
    QTest::newRow("control character 127") << u"a"_s + QChar(127);
}

void TestFiles::aNameThatCouldLeaveTheFolderIsRefused()
{
    QFETCH(QString, naam);
    QCOMPARE(FoutVan([&] { Files::Pad(Map(), {naam}); }), int{Fout::OngeldigeNaam});
    QCOMPARE(FoutVan([&] { Files::Pad(Map(), {naam, u"a"_s}); }), int{Fout::OngeldigeNaam});
    QCOMPARE(FoutVan([&] { Files::Pad(Map(), {u"Puzzels"_s, naam}); }), int{Fout::OngeldigeNaam});
}

void TestFiles::anOrdinaryNameIsTaken_data()
{
    QTest::addColumn<QString>("naam");
    for (const char *naam : {"a", "a b", "a.b.c", "...", ".a", "a'b", "a & b, (c) [d] {e} #1 100% ~$!@^+=;"})
        QTest::newRow(naam) << QString::fromLatin1(naam);
    QTest::newRow("accents") << u"caf\u00E9 \u20AC"_s;
}

void TestFiles::anOrdinaryNameIsTaken()
{
    QFETCH(QString, naam);
    const QString pad = Files::Pad(Map(), {naam});
    Files::Schrijf(pad, "x");
    QCOMPARE(Files::Dir(pad), naam);
    QCOMPARE(Files::Dir(Files::Pad(Map(), {naam.toUpper()})), naam);
}

void TestFiles::aFolderIsNoFile()
{
    bank_->Schrijf(u"Aap.txt"_s, "");
    QVERIFY(Files::FileExists(Volledig("Aap.txt")));
    QCOMPARE(Files::Dir(Volledig("Aap.txt")), u"Aap.txt"_s);
    QVERIFY(!Files::FileExists(Volledig("Noot.txt")));
    QCOMPARE(Files::Dir(Volledig("Noot.txt")), QString());
    QVERIFY(!Files::FileExists(Volledig("Puzzels")));
    QCOMPARE(Files::Dir(Volledig("Puzzels")), QString());
}

void TestFiles::theListMatchesAndSortsIgnoringCase()
{
    for (const char *naam : {"b.lst", "A.LST", "C.Lst", "d.txt", "lst", "a.lst.bak"})
        bank_->Schrijf(QLatin1String(naam), "");
    QVERIFY(QDir(Map()).mkdir(u"map.lst"_s));
    QCOMPARE(Files::Lijst(Map(), u"*.lst"_s), (QStringList{"A.LST", "b.lst", "C.Lst"}));
    QCOMPARE(Files::Lijst(Map(), u"*.LST"_s), (QStringList{"A.LST", "b.lst", "C.Lst"}));
    QCOMPARE(Files::Lijst(Map(), u"*.frt"_s), QStringList());
    QCOMPARE(Files::Lijst(Map() + u"/er niet"_s, u"*"_s), QStringList());
}

void TestFiles::killRemovesAFile()
{
    bank_->Schrijf(u"a.txt"_s, "x");
    bank_->Schrijf(u"b.txt"_s, "x");
    Files::Kill(Volledig("a.txt"));
    QCOMPARE(bank_->Bestanden({}), QStringList{"b.txt"});
    QCOMPARE(FoutVan([&] { Files::Kill(Volledig("a.txt")); }), int{Fout::BestandNietGevonden});
    QCOMPARE(FoutVan([&] { Files::Kill(Volledig("Puzzels")); }), int{Fout::GeenToegang});
    QVERIFY(QFileInfo(Volledig("Puzzels")).isDir());
}

void TestFiles::mkDirMakesAFolder()
{
    Files::MkDir(Volledig("Html"));
    QVERIFY(QFileInfo(Volledig("Html")).isDir());
    QCOMPARE(FoutVan([&] { Files::MkDir(Volledig("Html")); }), int{Fout::GeenToegang});
    QCOMPARE(FoutVan([&] { Files::MkDir(Volledig("er niet/a")); }), int{Fout::GeenToegang});
}

// --- contents ---

void TestFiles::aFileIsReadWhole()
{
    QByteArray inhoud("a\0b\r\n\x1A\xFF", 7);
    inhoud += QByteArray(100000, 'z');
    bank_->Schrijf(u"a.bin"_s, inhoud);
    QCOMPARE(Files::Lees(Volledig("a.bin")), inhoud);
    bank_->Schrijf(u"leeg"_s, "");
    QCOMPARE(Files::Lees(Volledig("leeg")), QByteArray());
}

void TestFiles::whatIsNoFileCannotBeRead()
{
    QCOMPARE(FoutVan([&] { Files::Lees(Volledig("er niet")); }), int{Fout::BestandNietGevonden});
    QCOMPARE(FoutVan([&] { Files::Lees(Volledig("Puzzels")); }), int{Fout::BestandNietGevonden});
}

void TestFiles::aFileThatIsTooLargeIsNotTakenIn()
{
    QFile bestand(Volledig("groot"));
    QVERIFY(bestand.open(QIODevice::WriteOnly));
    QVERIFY(bestand.resize(2 * Files::GrootsteInhoud)); // takes no room: nothing is written in it
    bestand.close();
    QCOMPARE(FoutVan([&] { Files::Lees(bestand.fileName()); }), int{Fout::GeheugenVol});
}

void TestFiles::aFileIsWrittenByteForByte()
{
    const QByteArray inhoud("a\0b\n\r\n\xFF", 7);
    Files::Schrijf(Volledig("a.bin"), inhoud);
    QCOMPARE(bank_->Inhoud(u"a.bin"_s), inhoud);
    Files::Schrijf(Volledig("leeg"), {});
    QCOMPARE(QFileInfo(Volledig("leeg")).size(), 0);
    QCOMPARE(bank_->Bestanden({}), (QStringList{"a.bin", "leeg"}));
}

void TestFiles::aWrittenFileReplacesTheOldOne()
{
    bank_->Schrijf(u"a.txt"_s, "een veel langere oude inhoud");
    Files::Schrijf(Volledig("a.txt"), "nieuw");
    QCOMPARE(bank_->Inhoud(u"a.txt"_s), QByteArray("nieuw"));
    QCOMPARE(bank_->Bestanden({}), QStringList{"a.txt"});
}

void TestFiles::aFileInAMissingFolderCannotBeWritten()
{
    QVERIFY(FoutVan([&] { Files::Schrijf(Volledig("er niet/a.txt"), "x"); }) != 0);
    QVERIFY(FoutVan([&] { Files::Schrijf(Volledig("Puzzels"), "x"); }) != 0);
    QCOMPARE(bank_->Bestanden({}), QStringList());
}

void TestFiles::aWriteThatFailsHalfwayKeepsTheOldFile()
{
    bank_->Schrijf(u"a.txt"_s, "oud");
    int nummer = 0;
    {
        const VolleSchijf vol(5000);
        nummer = FoutVan([&] { Files::Schrijf(Volledig("a.txt"), QByteArray(100000, 'x')); });
    }
    QCOMPARE(nummer, int{Fout::SchijfFout});
    QCOMPARE(bank_->Inhoud(u"a.txt"_s), QByteArray("oud"));
    QCOMPARE(bank_->Bestanden({}), QStringList{"a.txt"});
}

void TestFiles::aWriteThatFailsHalfwayLeavesNoNewFile()
{
    int nummer = 0;
    {
        const VolleSchijf vol(0);
        nummer = FoutVan([&] { Files::Schrijf(Volledig("a.txt"), "x"); });
    }
    QCOMPARE(nummer, int{Fout::SchijfFout});
    QCOMPARE(bank_->Bestanden({}), QStringList());
}

void TestFiles::renamingChangesOnlyTheName()
{
    bank_->Schrijf(u"Puzzels/a.txt"_s, "x");
    Files::Hernoem(Volledig("Puzzels/a.txt"), u"b.txt"_s);
    QCOMPARE(bank_->Bestanden(u"Puzzels"_s), QStringList{"b.txt"});
    QCOMPARE(bank_->Inhoud(u"Puzzels/b.txt"_s), QByteArray("x"));
}

void TestFiles::renamingCanChangeTheCaseAlone()
{
    bank_->Schrijf(u"puzzel.frt"_s, "x");
    Files::Hernoem(Volledig("puzzel.frt"), u"Puzzel.FRT"_s);
    QCOMPARE(bank_->Bestanden({}), QStringList{"Puzzel.FRT"});
}

void TestFiles::renamingAMissingFileFails()
{
    QCOMPARE(FoutVan([&] { Files::Hernoem(Volledig("er niet"), u"b"_s); }), int{Fout::GeenToegang});
    QCOMPARE(bank_->Bestanden({}), QStringList());
}

// --- pictures ---

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

static QByteArray RunLength()
{
    QByteArray kleuren;
    for (int i = 0; i < 256; ++i)
        kleuren += Bytes(i | i << 8 | i << 16);
    const QByteArray rij("\x08\x7F\x00\x00", 4);
    return Bitmap(8, 3, 8, 1, kleuren, rij + rij + QByteArray("\x08\x7F\x00\x01", 4));
}

void TestFiles::aPictureComesBackPixelForPixel()
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

void TestFiles::anotherReaderSeesTheSamePicture()
{
    Files::SavePicture(BontBeeld(), Volledig("a.bmp"));
    QCOMPARE(QImage(Volledig("a.bmp"), "bmp").convertToFormat(QImage::Format_RGB32), BontBeeld());
}

void TestFiles::aPictureThatAnotherProgramWroteIsRead()
{
    QVERIFY(BontBeeld().save(Volledig("a.bmp"), "bmp"));
    QCOMPARE(Files::LoadPicture(Volledig("a.bmp")), BontBeeld());
    QVERIFY(BontBeeld().convertToFormat(QImage::Format_Mono).save(Volledig("b.bmp"), "bmp"));
    QCOMPARE(Files::LoadPicture(Volledig("b.bmp")),
             BontBeeld().convertToFormat(QImage::Format_Mono).convertToFormat(QImage::Format_RGB32));
}

void TestFiles::aLoadedPictureStaysWhenItsFileGoes()
{
    Files::SavePicture(BontBeeld(), Volledig("a.bmp"));
    const QImage beeld = Files::LoadPicture(Volledig("a.bmp"));
    Files::Schrijf(Volledig("a.bmp"), QByteArray(1000, 'x'));
    Files::Kill(Volledig("a.bmp"));
    QCOMPARE(beeld, BontBeeld());
}

void TestFiles::aBitmapFileHasThirtyTwoBits_data()
{
    QTest::addColumn<int>("vorm");
    QTest::newRow("screen") << int(QImage::Format_RGB32);
    QTest::newRow("transparent") << int(QImage::Format_ARGB32_Premultiplied);
    QTest::newRow("grey") << int(QImage::Format_Grayscale8);
    QTest::newRow("indexed") << int(QImage::Format_Indexed8);
    QTest::newRow("black and white") << int(QImage::Format_Mono);
}

void TestFiles::aBitmapFileHasThirtyTwoBits()
{
    QFETCH(int, vorm);
    Files::SavePicture(BontBeeld().convertToFormat(static_cast<QImage::Format>(vorm)), Volledig("a.bmp"));
    const QByteArray bytes = bank_->Inhoud(u"a.bmp"_s);
    QVERIFY(bytes.startsWith("BM"));
    QCOMPARE(int(qFromLittleEndian<quint16>(bytes.constData() + 28)), 32);
    const qsizetype begin = qFromLittleEndian<qint32>(bytes.constData() + 10);
    QCOMPARE(bytes.size(), begin + 13 * 4 * 7);
    QCOMPARE(qFromLittleEndian<qint32>(bytes.constData() + 2), qint32(bytes.size()));
}

void TestFiles::noPictureCannotBeSaved()
{
    QCOMPARE(FoutVan([&] { Files::SavePicture({}, Volledig("a.bmp")); }), int{Fout::OngeldigeAfbeelding});
    QCOMPARE(bank_->Bestanden({}), QStringList());
}

void TestFiles::aMissingPictureIsNotFound()
{
    QCOMPARE(FoutVan([&] { Files::LoadPicture(Volledig("a.bmp")); }), int{Fout::BestandNietGevonden});
}

void TestFiles::whatIsNoBitmapGivesNoPicture_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("two letters") << QByteArray("BM");
    QTest::newRow("zeroes") << QByteArray(1000, 0);
    QTest::newRow("all bits set") << QByteArray(1000, '\xFF');
    QTest::newRow("letters behind a bitmap's two") << "BM" + QByteArray(1000, 'x');
    QTest::newRow("a text") << QByteArray("Puzzel\r\n").repeated(20);
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    BontBeeld().save(&buffer, "png");
    QTest::newRow("a picture of another kind") << png;
}

void TestFiles::whatIsNoBitmapGivesNoPicture()
{
    QFETCH(QByteArray, bytes);
    bank_->Schrijf(u"a.bmp"_s, bytes);
    QCOMPARE(FoutVan([&] { Files::LoadPicture(Volledig("a.bmp")); }), int{Fout::OngeldigeAfbeelding});
}

void TestFiles::aBitmapCutOffAnywhereGivesNoPicture_data()
{
    QTest::addColumn<QByteArray>("heel");
    QTest::newRow("24 bits") << Bitmap(13, 7, 24, 0, {}, QByteArray(40 * 7, 'x'));
    QTest::newRow("24 bits, top row first") << Bitmap(13, -7, 24, 0, {}, QByteArray(40 * 7, 'x'));
    QTest::newRow("32 bits") << Bitmap(13, 7, 32, 0, {}, QByteArray(13 * 4 * 7, 'x'));
    QTest::newRow("32 bits, top row first") << Bitmap(13, -7, 32, 0, QByteArray(2, 0), QByteArray(13 * 4 * 7, 'x'));
    QTest::newRow("16 bits with masks") << ZestienBits();
    QTest::newRow("run lengths") << RunLength();
}

void TestFiles::aBitmapCutOffAnywhereGivesNoPicture()
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

void TestFiles::aHeadThatLiesAboutItsSizeGivesNoPicture_data()
{
    QTest::addColumn<int>("breedte");
    QTest::addColumn<int>("hoogte");
    QTest::addColumn<int>("bits");
    constexpr int Most = std::numeric_limits<int>::max(), Least = std::numeric_limits<int>::min();
    QTest::newRow("60000 x 60000") << 60000 << 60000 << 24;
    QTest::newRow("wide") << Most << 1 << 24;
    QTest::newRow("high") << 1 << Most << 24;
    QTest::newRow("largest") << Most << Most << 32;
    QTest::newRow("largest with most bits") << Most << Most << 0xFFFF;
    QTest::newRow("upside down") << Most << Least << 0x7FFF;
    QTest::newRow("no width") << 0 << 7 << 24;
    QTest::newRow("no height") << 13 << 0 << 24;
    QTest::newRow("negative width") << -13 << 7 << 24;
    QTest::newRow("smallest width") << Least << Least << 0x7FFF;
    QTest::newRow("no bits") << 13 << 7 << 0;
    QTest::newRow("odd bits") << 13 << 7 << 23;
}

void TestFiles::aHeadThatLiesAboutItsSizeGivesNoPicture()
{
    QFETCH(int, breedte);
    QFETCH(int, hoogte);
    QFETCH(int, bits);
    for (const int compressie : {0, 1, 3}) {
        bank_->Schrijf(u"a.bmp"_s, Bitmap(breedte, hoogte, bits, compressie, {}, QByteArray(280, 'x')));
        QVERIFY(FoutVan([&] { Files::LoadPicture(Volledig("a.bmp")); }) != 0);
    }
}

void TestFiles::damagedHeadsNeverDoHarm()
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

void TestFiles::aPictureAboveTheLimitIsOutOfMemory()
{
    // One bit a pixel: the file stays small, the picture in memory doesn't.
    constexpr int Zijde = 8200;
    static_assert(qint64{Zijde} * Zijde * 4 > Files::GrootsteInhoud);
    bank_->Schrijf(u"a.bmp"_s,
                   Bitmap(Zijde, Zijde, 1, 0, QByteArray(8, 0), QByteArray((Zijde + 31) / 32 * 4 * Zijde, 0)));
    QCOMPARE(FoutVan([&] { Files::LoadPicture(Volledig("a.bmp")); }), int{Fout::GeheugenVol});
}

void TestFiles::aJpegHasTheSizeOfItsBitmap()
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

void TestFiles::aJpegOfNoBitmapIsNotMade()
{
    bank_->Schrijf(u"a.bmp"_s, "BM");
    QCOMPARE(FoutVan([&] { Files::BmpToJpeg(Volledig("a.bmp"), Volledig("a.jpg"), 90); }),
             int{Fout::OngeldigeAfbeelding});
    QCOMPARE(FoutVan([&] { Files::BmpToJpeg(Volledig("b.bmp"), Volledig("a.jpg"), 90); }),
             int{Fout::BestandNietGevonden});
    QCOMPARE(bank_->Bestanden({}), QStringList{"a.bmp"});
}

// --- fields ---

void TestFiles::fieldsAreRead_data()
{
    QTest::addColumn<QByteArray>("inhoud");
    QTest::addColumn<QStringList>("velden");
    const auto rij = [](const char *naam, const char *inhoud, const QStringList &velden) {
        QTest::newRow(naam) << QByteArray(inhoud) << velden;
    };
    rij("nothing", "", {});
    rij("plain", "aap", {"aap"});
    rij("comma", "aap,noot,mies", {"aap", "noot", "mies"});
    rij("comma and line end", "aap,noot\r\nmies\r\n", {"aap", "noot", "mies"});
    rij("blanks within", "aap noot , mies ", {"aap noot ", "mies "});
    rij("quoted", "\"aap\"\r\n", {"aap"});
    rij("quoted, empty", "\"\"\r\n\"\"", {"", ""});
    rij("quoted, comma inside", "\"aap, noot\",mies", {"aap, noot", "mies"});
    rij("quoted, line end inside", "\"aap\r\nnoot\"\r\nmies", {"aap\r\nnoot", "mies"});
    rij("quoted, blanks inside", "\"  aap  \"", {"  aap  "});
    rij("quoted, blanks around", "  \"aap\" \t , \"noot\"  \r\nmies", {"aap", "noot", "mies"});
    rij("no closing quote", "\"aap,\r\nnoot", {"aap,\r\nnoot"});
    rij("only an opening quote", "\"", {""});
    rij("a quote further on", "a\"b\",c", {"a\"b\"", "c"});
    rij("text behind the closing quote", "\"aap\"noot,mies", {"aap", "noot", "mies"});
    rij("leading blanks", "  \t aap,\t noot", {"aap", "noot"});
    rij("blank line", "aap\r\n\r\nnoot\r\n", {"aap", "", "noot"});
    rij("line of blanks", "aap\r\n   \r\nnoot", {"aap", "", "noot"});
    rij("only a line end", "\r\n", {""});
    rij("two commas", "aap,,noot", {"aap", "", "noot"});
    rij("leading comma", ",aap", {"", "aap"});
    rij("trailing comma", "aap,\r\nnoot", {"aap", "", "noot"});
    rij("only blanks", "   ", {""});
    rij("line feeds", "aap\nnoot\n\nmies\n", {"aap", "noot", "", "mies"});
    rij("carriage returns", "aap\rnoot\r\rmies\r", {"aap", "noot", "", "mies"});
    rij("mixed line ends", "a\nb\r\nc\rd\n\re", {"a", "b", "c", "d", "", "e"});
    rij("no end to the last line", "aap\r\nnoot", {"aap", "noot"});
}

void TestFiles::fieldsAreRead()
{
    QFETCH(QByteArray, inhoud);
    Files::VeldLezer lezer(inhoud);
    QStringList gelezen;
    while (!lezer.Einde())
        gelezen += lezer.Tekst();
    QTEST(gelezen, "velden");
}

void TestFiles::textFieldsAreCodePage1252()
{
    const QByteArray inhoud("\"\x80 5\"\r\ngeti\xEBnd");
    Files::VeldLezer lezer(inhoud);
    QCOMPARE(lezer.Tekst(), u"\u20AC 5"_s);
    QCOMPARE(lezer.Tekst(), u"geti\u00EBnd"_s);
}

void TestFiles::numberFieldsAreRead()
{
    const QByteArray inhoud(" 255 ,-32768\r\n2147483647\r\n\"12\"\r\n2.5,7");
    Files::VeldLezer lezer(inhoud);
    QCOMPARE(int{lezer.Byte()}, 255);
    QCOMPARE(int{lezer.Int16()}, -32768);
    QCOMPARE(lezer.Int32(), 2147483647);
    QCOMPARE(int{lezer.Byte()}, 12);
    QCOMPARE(int{lezer.Int16()}, 2);
    QVERIFY(!lezer.Einde());
    QCOMPARE(lezer.Tekst(), u"7"_s);
    QVERIFY(lezer.Einde());
}

void TestFiles::aNumberFieldThatIsNoNumberFails_data()
{
    QTest::addColumn<QByteArray>("veld");
    QTest::addColumn<int>("alsByte");
    QTest::addColumn<int>("alsInt16");
    QTest::addColumn<int>("alsInt32");
    const auto rij = [](const char *veld, int alsByte, int alsInt16, int alsInt32) {
        QTest::addRow("'%s'", veld) << QByteArray(veld) << alsByte << alsInt16 << alsInt32;
    };
    rij("aap", Fout::TypeOnjuist, Fout::TypeOnjuist, Fout::TypeOnjuist);
    rij("\"\"", Fout::TypeOnjuist, Fout::TypeOnjuist, Fout::TypeOnjuist);
    rij(",5", Fout::TypeOnjuist, Fout::TypeOnjuist, Fout::TypeOnjuist);
    rij("-1", Fout::Overloop, 0, 0);
    rij("256", Fout::Overloop, 0, 0);
    rij("32768", Fout::Overloop, Fout::Overloop, 0);
    rij("2147483648", Fout::Overloop, Fout::Overloop, Fout::Overloop);
    rij("", Fout::EindeBestand, Fout::EindeBestand, Fout::EindeBestand);
}

void TestFiles::aNumberFieldThatIsNoNumberFails()
{
    QFETCH(QByteArray, veld);
    QTEST(FoutVan([&] { Files::VeldLezer(veld).Byte(); }), "alsByte");
    QTEST(FoutVan([&] { Files::VeldLezer(veld).Int16(); }), "alsInt16");
    QTEST(FoutVan([&] { Files::VeldLezer(veld).Int32(); }), "alsInt32");
}

void TestFiles::behindTheLastFieldIsTheEndOfTheFile()
{
    const QByteArray inhoud("aap\r\n");
    Files::VeldLezer lezer(inhoud);
    QCOMPARE(lezer.Tekst(), u"aap"_s);
    QVERIFY(lezer.Einde());
    QCOMPARE(FoutVan([&] { lezer.Tekst(); }), int{Fout::EindeBestand});
    QCOMPARE(FoutVan([&] { lezer.Int16(); }), int{Fout::EindeBestand});
}

void TestFiles::linesAreWrittenByteForByte()
{
    Files::VeldSchrijver schrijver;
    QCOMPARE(schrijver.Inhoud(), QByteArray());
    schrijver.Regel(u"caf\u00E9, \u20AC"_s);
    schrijver.Regel(QString());
    schrijver.Regel({5});
    schrijver.Regel({0, -12, 32767});
    QCOMPARE(schrijver.Inhoud(), QByteArray("\"caf\xE9, \x80\"\r\n\"\"\r\n5\r\n0,-12,32767\r\n"));
}

void TestFiles::whatIsWrittenIsReadBack()
{
    const QStringList teksten{"aap", "", " aap, noot ", "regel\r\nregel", u"\u00AE"_s};
    Files::VeldSchrijver schrijver;
    for (const QString &tekst : teksten) {
        schrijver.Regel(tekst);
        schrijver.Regel({-7, 300});
    }
    Files::VeldLezer lezer(schrijver.Inhoud());
    for (const QString &tekst : teksten) {
        QCOMPARE(lezer.Tekst(), tekst);
        QCOMPARE(int{lezer.Int16()}, -7);
        QCOMPARE(lezer.Int32(), 300);
    }
    QVERIFY(lezer.Einde());
}

RASTER_TEST(TestFiles)
#include "tst_Files.moc"

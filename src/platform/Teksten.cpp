#include "platform/Teksten.h"

#include "platform/CodePage.h"

#include <QtEndian>

#include <array>

QString Trim(QStringView tekst)
{
    while (tekst.startsWith(u' '))
        tekst = tekst.sliced(1);
    while (tekst.endsWith(u' '))
        tekst.chop(1);
    return tekst.toString();
}

static QChar BinnenCodePage(QChar teken, QChar partner)
{
    return Files::InCodePage(teken) && Files::InCodePage(partner) ? partner : teken;
}

QString Hoofdletters(QString tekst)
{
    for (QChar &teken : tekst)
        teken = BinnenCodePage(teken, teken.toUpper());
    return tekst;
}

QString KleineLetters(QString tekst)
{
    for (QChar &teken : tekst)
        teken = BinnenCodePage(teken, teken.toLower());
    return tekst;
}

using Tabel = std::array<char, 256>;

static Tabel MaakTabel(QString (*zet)(QString))
{
    Tabel tabel{};
    for (int teken = 0; teken < 256; ++teken) {
        const char byte = static_cast<char>(teken);
        tabel[static_cast<size_t>(teken)] = Files::NaarBytes(zet(Files::NaarTekst({&byte, 1}))).front();
    }
    return tabel;
}

static void Vertaal(char *begin, const char *einde, const Tabel &tabel)
{
    for (; begin != einde; ++begin)
        *begin = tabel[static_cast<quint8>(*begin)];
}

QByteArray Hoofdletters(QByteArray tekst)
{
    static const Tabel tabel = MaakTabel(Hoofdletters);
    Vertaal(tekst.begin(), tekst.end(), tabel);
    return tekst;
}

/// Whether eight bytes are from within ASCII, and none of them is in the row of the capitals there: as most of a word
/// file is, which is passed over so.
static bool IsAlKlein(const char *acht)
{
    constexpr quint64 Hoog = 0x8080808080808080, Letters = Hoog >> 1; // small ones have the bit below it too
    const auto bytes = qFromUnaligned<quint64>(acht);
    return ((bytes & Hoog) | (bytes & ~(bytes << 1) & Letters)) == 0;
}

QByteArray KleineLetters(QByteArray tekst)
{
    static const Tabel tabel = MaakTabel(KleineLetters);
    char *deel = tekst.begin(), *const einde = tekst.end();
    for (; einde - deel >= 8; deel += 8)
        if (!IsAlKlein(deel))
            Vertaal(deel, deel + 8, tabel);
    Vertaal(deel, einde, tabel);
    return tekst;
}

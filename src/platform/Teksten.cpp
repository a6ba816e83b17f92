#include "platform/Teksten.h"

#include "platform/CodePage.h"

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

static QByteArray Vertaal(QByteArray tekst, const Tabel &tabel)
{
    for (char &teken : tekst)
        teken = tabel[static_cast<quint8>(teken)];
    return tekst;
}

QByteArray Hoofdletters(QByteArray tekst)
{
    static const Tabel tabel = MaakTabel(Hoofdletters);
    return Vertaal(std::move(tekst), tabel);
}

QByteArray KleineLetters(QByteArray tekst)
{
    static const Tabel tabel = MaakTabel(KleineLetters);
    return Vertaal(std::move(tekst), tabel);
}

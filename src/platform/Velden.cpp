#include "platform/Velden.h"

#include "platform/CodePage.h"
#include "platform/Fout.h"
#include "platform/Getallen.h"

#include <QByteArrayList>

#include <algorithm>
#include <array>

namespace Files {

static constexpr char LineEnd[] = "\r\n";

/// What ends a field, by its code: a table, as whole databases are read with it.
static constexpr auto EindigtVeld = [] {
    std::array<bool, 256> tabel{};
    for (const uchar teken : {',', '\r', '\n'})
        tabel[teken] = true;
    return tabel;
}();

QByteArrayView VeldLezer::Neem(qsizetype aantal)
{
    const QByteArrayView deel = rest_.first(aantal);
    rest_ = rest_.sliced(aantal);
    return deel;
}

void VeldLezer::SlaScheidingOver()
{
    if (rest_.size() > 1 && rest_[0] == '\r' && rest_[1] == '\n')
        Neem(2);
    else if (!rest_.isEmpty() && EindigtVeld[static_cast<uchar>(rest_.front())])
        Neem(1);
}

VeldLezer::Veld VeldLezer::LeesVeld()
{
    if (Einde())
        throw Fout(Fout::EindeBestand);
    const auto slaBlanksOver = [this] {
        while (rest_.startsWith(' '))
            Neem(1);
    };
    const auto neemTot = [this](auto &&isEinde) {
        return Neem(std::find_if(rest_.begin(), rest_.end(), isEinde) - rest_.begin());
    };
    slaBlanksOver();
    Veld veld{{}, rest_.startsWith('"')};
    if (veld.InQuotes) {
        Neem(1);
        veld.Bytes = neemTot([](char c) { return c == '"'; });
        if (!Einde())
            Neem(1);
        slaBlanksOver();
    } else {
        veld.Bytes = neemTot([](char c) { return EindigtVeld[static_cast<uchar>(c)]; });
    }
    SlaScheidingOver();
    return veld;
}

QString VeldLezer::Tekst()
{
    return NaarTekst(LeesVeld().Bytes);
}

QByteArrayView VeldLezer::Item()
{
    Veld veld = LeesVeld();
    while (!veld.InQuotes && veld.Bytes.endsWith(' '))
        veld.Bytes.chop(1);
    return veld.Bytes;
}

quint8 VeldLezer::Byte()
{
    return Getallen::NaarByte(Tekst());
}

qint16 VeldLezer::Int16()
{
    return Getallen::NaarInt16(Tekst());
}

qint32 VeldLezer::Int32()
{
    return Getallen::NaarInt32(Tekst());
}

void VeldSchrijver::Regel(const QString &tekst)
{
    inhoud_ += '"' + NaarBytes(tekst) + '"' + LineEnd;
}

void VeldSchrijver::Regel(std::initializer_list<int> getallen)
{
    QByteArrayList delen;
    for (const int getal : getallen)
        delen += QByteArray::number(getal);
    inhoud_ += delen.join(',') + LineEnd;
}

} // namespace Files

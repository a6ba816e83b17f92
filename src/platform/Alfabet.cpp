#include "platform/Alfabet.h"

#include <algorithm>
#include <array>
#include <compare>
#include <vector>

/// The letters of the code page end before this.
constexpr char16_t Einde = 0x180;

/// A letter in lower case and without its accents.
static char16_t MaakGrondletter(QChar teken)
{
    const QString delen = teken.toLower().decomposition();
    return (delen.isEmpty() ? teken.toLower() : delen.front()).unicode();
}

static char16_t Grondletter(QChar teken)
{
    static const auto letters = [] {
        std::array<char16_t, Einde> tabel{};
        for (char16_t code = 0; code < Einde; ++code)
            tabel[code] = MaakGrondletter(QChar(code));
        return tabel;
    }();
    const char16_t code = teken.unicode();
    return code < Einde ? letters[code] : MaakGrondletter(teken);
}

bool AlfabetischVoor(QStringView a, QStringView b)
{
    const auto voor = [&](auto letter) {
        return std::lexicographical_compare_three_way(a.begin(), a.end(), b.begin(), b.end(),
                                                      [&](QChar x, QChar y) { return letter(x) <=> letter(y); });
    };
    const auto volgorde = voor(Grondletter);
    return std::is_lt(std::is_neq(volgorde) ? volgorde : voor([](QChar teken) { return teken.toLower().unicode(); }));
}

/// The first eight letters as one number. Where it differs, it orders as AlfabetischVoor does.
static quint64 Begin(QStringView tekst)
{
    constexpr char16_t Most = 0xFF; // letters from here on are one: the number ends with them
    quint64 begin = 0;
    int plaats = 64;
    for (const QChar teken : tekst.first(std::min<qsizetype>(tekst.size(), 8))) {
        const char16_t letter = std::min(Grondletter(teken), Most);
        plaats -= 8;
        begin |= quint64(letter) << plaats;
        if (letter == Most)
            break;
    }
    return begin;
}

void SorteerAlfabetisch(QStringList &teksten)
{
    if (std::is_sorted(teksten.cbegin(), teksten.cend(), AlfabetischVoor))
        return;
    struct Sleutel
    {
        quint64 Begin;
        qsizetype Index;
    };
    std::vector<Sleutel> volgorde;
    volgorde.reserve(static_cast<size_t>(teksten.size()));
    for (const QString &tekst : std::as_const(teksten))
        volgorde.push_back({Begin(tekst), static_cast<qsizetype>(volgorde.size())});
    std::stable_sort(volgorde.begin(), volgorde.end(), [&](const Sleutel &a, const Sleutel &b) {
        return a.Begin != b.Begin ? a.Begin < b.Begin : AlfabetischVoor(teksten.at(a.Index), teksten.at(b.Index));
    });
    QStringList gesorteerd;
    gesorteerd.reserve(teksten.size());
    for (const Sleutel &sleutel : volgorde)
        gesorteerd += std::move(teksten[sleutel.Index]);
    teksten = std::move(gesorteerd);
}

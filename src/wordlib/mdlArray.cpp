#include "wordlib/mdlArray.h"

#include "platform/Fout.h"
#include "platform/Getallen.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <bit>
#include <limits>
#include <numeric>

static Woord &Op(Woorden &woorden, qint32 index)
{
    return woorden[static_cast<size_t>(index)];
}

static qint32 LaatsteIndex(const Woorden &woorden)
{
    if (woorden.empty() || woorden.size() > std::numeric_limits<qint32>::max() / 4)
        throw Fout(Fout::IndexBuitenBereik);
    return static_cast<qint32>(woorden.size()) - 1;
}

Woord::Woord(std::string_view tekst) : Tekst(tekst)
{
    std::array<char, 8> begin{};
    tekst.copy(begin.data(), begin.size());
    Begin = qFromBigEndian<quint64>(begin.data());
}

void SwapStrings(Woord &A, Woord &B)
{
    std::swap(A, B);
}

/// Orders the first, the middle and the last element. @return the index of the middle one, half-way to even
static qint32 OrdenDrie(Woorden &Arr, qint32 Lo, qint32 Hi)
{
    const auto M = static_cast<qint32>(Getallen::RondEven((double(Lo) + Hi) / 2));
    if (Op(Arr, Lo) > Op(Arr, M))
        SwapStrings(Op(Arr, Lo), Op(Arr, M));
    if (Op(Arr, Lo) > Op(Arr, Hi))
        SwapStrings(Op(Arr, Lo), Op(Arr, Hi));
    if (Op(Arr, M) > Op(Arr, Hi))
        SwapStrings(Op(Arr, M), Op(Arr, Hi));
    return M;
}

/// @param diepte how often the array may still be parted. There are arrays that are parted badly over and over; what
/// they leave is sorted at once, so that no array takes the square of its size.
static void Splits(Woorden &Arr, qint32 Split, qint32 Lo, qint32 Hi, int diepte)
{
    if (Hi - Lo <= Split)
        return;
    if (diepte == 0) {
        std::sort(Arr.begin() + Lo, Arr.begin() + Hi + 1);
        return;
    }
    const qint32 M = OrdenDrie(Arr, Lo, Hi);
    qint32 J = Hi - 1;
    SwapStrings(Op(Arr, M), Op(Arr, J));
    qint32 I = Lo;
    const Woord pivot = Op(Arr, J);
    for (;;) {
        do
            ++I;
        while (Op(Arr, I) < pivot);
        do
            --J;
        while (Op(Arr, J) > pivot);
        if (J < I)
            break;
        SwapStrings(Op(Arr, I), Op(Arr, J));
    }
    SwapStrings(Op(Arr, I), Op(Arr, Hi - 1));
    Splits(Arr, Split, Lo, J, diepte - 1);
    Splits(Arr, Split, I + 1, Hi, diepte - 1);
}

void QuickSortStrings(Woorden &Arr, qint32 Split, qint32 Lo, qint32 Hi)
{
    Splits(Arr, Split, Lo, Hi, 2 * static_cast<int>(std::bit_width(Arr.size())));
}

void InsertionSortStrings(Woorden &Arr, qint32 Lo, qint32 Hi)
{
    for (qint32 I = Lo + 1; I <= Hi; ++I) {
        const Woord T = Op(Arr, I);
        qint32 J = I;
        for (; J > Lo && Op(Arr, J - 1) > T; --J)
            Op(Arr, J) = Op(Arr, J - 1);
        Op(Arr, J) = T;
    }
}

void ReverseStrings(Woorden &Arr)
{
    for (qint32 I = 0, J = LaatsteIndex(Arr); I < J; ++I, --J)
        SwapStrings(Op(Arr, I), Op(Arr, J));
}

void SortStrings(Woorden &Arr, bool Aflopend)
{
    constexpr qint32 ShortRun = 4;
    const qint32 Hi = LaatsteIndex(Arr);
    QuickSortStrings(Arr, ShortRun, 0, Hi);
    InsertionSortStrings(Arr, 0, Hi);
    if (Aflopend)
        ReverseStrings(Arr);
}

qint32 HashString(std::string_view Text, qint32 Lengte)
{
    if (Text.empty())
        return -1;
    if (Lengte >= 0)
        Text = Text.substr(0, static_cast<size_t>(Lengte));
    // Words of four bytes, the first one lowest; the last of them, which may be all zero, and one more are filled up.
    const size_t K = Text.size() / 4;
    quint32 H = 0;
    for (size_t I = 0; I <= K + 1; ++I) {
        std::array<char, 4> vier{};
        if (4 * I < Text.size())
            Text.copy(vier.data(), vier.size(), 4 * I);
        H ^= qFromLittleEndian<quint32>(vier.data()) ^ static_cast<quint32>(I);
    }
    return static_cast<qint32>(H & 0x7FFFFFFF);
}

/// The first free place from this one on. Each place names one that lies before or at the next free one; the way is
/// shortened as it is walked, so that many words of one hash don't walk it over and over.
static quint32 VrijVanaf(std::vector<quint32> &volgende, quint32 plaats)
{
    while (volgende[plaats] != plaats) {
        volgende[plaats] = volgende[volgende[plaats]];
        plaats = volgende[plaats];
    }
    return plaats;
}

void BuildHashTable(const Woorden &Arr, std::vector<qint32> &Table)
{
    const qint32 laatste = LaatsteIndex(Arr);
    const auto S = static_cast<quint32>(4 * (laatste + 1));
    Table.assign(S, LeegVak);
    std::vector<quint32> volgende(S);
    std::iota(volgende.begin(), volgende.end(), 0U);
    for (qint32 I = 0; I <= laatste; ++I) {
        const qint32 H = HashString(Arr[static_cast<size_t>(I)].Tekst, -1);
        const quint32 P = VrijVanaf(volgende, static_cast<quint32>(H) % S);
        Table[P] = I;
        volgende[P] = P + 1 == S ? 0 : P + 1;
    }
}

#include "wordlib/mdlArray.h"

#include "platform/Fout.h"
#include "platform/Getallen.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <bit>
#include <limits>

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

static void EisBereik(const Woorden &woorden, qint32 Lo, qint32 Hi)
{
    if (Lo < 0 || Hi >= std::ssize(woorden))
        throw Fout(Fout::IndexBuitenBereik);
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
    EisBereik(Arr, Lo, Hi);
    Splits(Arr, std::max(Split, 1), Lo, Hi, 2 * static_cast<int>(std::bit_width(Arr.size())));
}

void InsertionSortStrings(Woorden &Arr, qint32 Lo, qint32 Hi)
{
    EisBereik(Arr, Lo, Hi);
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
    // Words of four bytes, the first one lowest: K whole ones, one of the bytes that are left over and zeros, one of
    // zeros.
    const size_t K = Text.size() / 4;
    quint32 H = static_cast<quint32>(K ^ (K + 1));
    for (size_t I = 0; I < K; ++I)
        H ^= qFromLittleEndian<quint32>(Text.data() + 4 * I) ^ static_cast<quint32>(I);
    for (size_t plaats = 4 * K; plaats < Text.size(); ++plaats)
        H ^= quint32{static_cast<quint8>(Text[plaats])} << 8 * (plaats % 4);
    return static_cast<qint32>(H & 0x7FFFFFFF);
}

namespace {

/// The free places of a table. Each bit of the lowest level is a place that is taken; one of a higher level stands for
/// 64 bits below it that are all set, so that no run of taken places, however long, is walked.
class VrijePlaatsen
{
public:
    explicit VrijePlaatsen(size_t aantal)
    {
        do {
            aantal = aantal / 64 + 1; // at least one bit behind the last place, which stays free
            niveaus_.emplace_back(aantal);
        } while (aantal > 1);
    }

    /// The first free place from this one on; from the number of places on when none of them is.
    size_t Vanaf(size_t plaats) const
    {
        size_t niveau = 0;
        quint64 vrij = 0;
        while ((vrij = ~niveaus_[niveau][plaats / 64] >> plaats % 64) == 0) {
            plaats = plaats / 64 + 1;
            ++niveau;
        }
        plaats += static_cast<size_t>(std::countr_zero(vrij));
        for (; niveau > 0; --niveau)
            plaats = plaats * 64 + static_cast<size_t>(std::countr_one(niveaus_[niveau - 1][plaats]));
        return plaats;
    }

    void Neem(size_t plaats)
    {
        for (std::vector<quint64> &niveau : niveaus_) {
            quint64 &bits = niveau[plaats / 64];
            bits |= quint64{1} << plaats % 64;
            if (~bits != 0)
                break;
            plaats /= 64;
        }
    }

private:
    std::vector<std::vector<quint64>> niveaus_;
};

} // namespace

void BuildHashTable(const Woorden &Arr, std::vector<qint32> &Table)
{
    const qint32 laatste = LaatsteIndex(Arr);
    const size_t S = 4 * Arr.size();
    Table.assign(S, LeegVak);
    VrijePlaatsen vrij(S);
    for (qint32 I = 0; I <= laatste; ++I) {
        const qint32 H = HashString(Arr[static_cast<size_t>(I)].Tekst, -1);
        if (H < 0)
            throw Fout(Fout::IndexBuitenBereik);
        size_t P = vrij.Vanaf(static_cast<size_t>(H) % S);
        if (P >= S)
            P = vrij.Vanaf(0); // around the end
        Table[P] = I;
        vrij.Neem(P);
    }
}

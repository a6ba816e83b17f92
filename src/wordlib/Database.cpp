#include "wordlib/Database.h"

#include "platform/Fout.h"
#include "platform/Regels.h"
#include "platform/Teksten.h"
#include "platform/Velden.h"

#include <QByteArrayMatcher>

#include <algorithm>
#include <set>
#include <string>

Woorden LeesWoorden(QByteArrayView inhoud)
{
    constexpr qsizetype Shortest = 2;
    constexpr qsizetype UsualLine = 12; // bytes
    Woorden woorden;
    woorden.reserve(static_cast<size_t>(inhoud.size() / UsualLine));
    Files::VeldLezer lezer(inhoud);
    while (!lezer.Einde()) {
        const QByteArrayView item = lezer.Item();
        if (item.size() >= Shortest)
            woorden.emplace_back(std::string_view(item.data(), static_cast<size_t>(item.size())));
    }
    return woorden;
}

static const Woord &Op(const Woorden &woorden, qint32 index)
{
    if (index < 0 || static_cast<size_t>(index) >= woorden.size())
        throw Fout(Fout::IndexBuitenBereik);
    return woorden[static_cast<size_t>(index)];
}

void MaakLetterIndex(const Woorden &Words, qint32 laatste, LetterIndex &LetterStart)
{
    LetterStart.fill(0);
    char vorige = 'a';
    size_t N = 2;
    for (qint32 I = 0; I <= laatste; ++I) {
        const char letter = Op(Words, I).Tekst.front();
        if (letter == vorige)
            continue;
        if (N == LetterStart.size())
            throw Fout(Fout::IndexBuitenBereik);
        LetterStart[N++] = I;
        vorige = letter;
    }
}

namespace {

/// Letters of which each can be taken once.
class Voorraad
{
public:
    explicit Voorraad(std::string_view letters)
    {
        for (const char letter : letters)
            ++Aantal(letter);
    }

    /// Takes a letter, or else a wildcard. @return whether there was one
    bool Neem(char letter)
    {
        if (Aantal(letter) == 0)
            letter = Wildcard;
        if (Aantal(letter) == 0)
            return false;
        --Aantal(letter);
        genomen_ += letter;
        return true;
    }

    void LegAllesTerug()
    {
        for (const char letter : genomen_)
            ++Aantal(letter);
        genomen_.clear();
    }

private:
    qsizetype &Aantal(char letter) { return aantal_[static_cast<quint8>(letter)]; }

    std::array<qsizetype, 256> aantal_{};
    std::string genomen_;
};

} // namespace

/// How many letters a word begins with that can all be taken.
static qsizetype AantalTeNemen(Voorraad &voorraad, std::string_view woord)
{
    const auto *const eerste =
        std::find_if_not(woord.begin(), woord.end(), [&](char letter) { return voorraad.Neem(letter); });
    voorraad.LegAllesTerug();
    return eerste - woord.begin();
}

void unscramble(const Zoekgebied &gebied, const LetterIndex &LetterStart, std::string_view Letters, qsizetype MaxLen,
                qsizetype MinLen, const Vondst &vondst)
{
    Voorraad Pool(Letters);
    for (qint32 I = 0; I <= gebied.Laatste; ++I) {
        const std::string_view W = Op(gebied.Words, I).Tekst;
        const auto lengte = std::ssize(W);
        if (lengte > MaxLen)
            continue;
        const qsizetype goed = AantalTeNemen(Pool, W);
        if (goed == lengte && lengte >= MinLen)
            vondst(W);
        if (goed == 0 && W.front() >= 'a' && W.front() < 'z') {
            const qint32 volgende = LetterStart[static_cast<size_t>(W.front() - 'a' + 2)];
            I = std::max(I, volgende); // an index of words with other first letters may lead back
        }
    }
}

/// The words for which geldt(word) holds.
template <class Geldt> static void ZoekWoorden(const Zoekgebied &gebied, const Vondst &vondst, Geldt geldt)
{
    for (qint32 I = 0; I <= gebied.Laatste; ++I) {
        const std::string_view woord = Op(gebied.Words, I).Tekst;
        if (geldt(woord))
            vondst(woord);
    }
}

static bool BegintMet(std::string_view woord, std::string_view Key)
{
    for (size_t K = 0; K < Key.size(); ++K)
        if (Key[K] != Wildcard && (K >= woord.size() || woord[K] != Key[K]))
            return false;
    return true;
}

void ZoekBegin(const Zoekgebied &gebied, std::string_view Key, const Vondst &vondst)
{
    ZoekWoorden(gebied, vondst, [&](std::string_view woord) { return BegintMet(woord, Key); });
}

void ZoekEind(const Zoekgebied &gebied, std::string_view Key, const Vondst &vondst)
{
    ZoekWoorden(gebied, vondst, [&](std::string_view woord) {
        return BegintMet(woord.substr(woord.size() - std::min(woord.size(), Key.size())), Key);
    });
}

void ZoekLengte(const Zoekgebied &gebied, qint16 Lengte, const Vondst &vondst)
{
    ZoekWoorden(gebied, vondst, [&](std::string_view woord) { return std::ssize(woord) == Lengte; });
}

constexpr size_t KortsteMetKlinkers = 3, LangsteMetKlinkers = 19;

/// In how many places of a word three vowels begin.
static size_t AantalKlinkerplaatsen(std::string_view woord)
{
    size_t plaatsen = 0, opRij = 0;
    for (const char letter : woord) {
        opRij = std::string_view("aeiou").find(letter) == std::string_view::npos ? 0 : opRij + 1;
        plaatsen += opRij >= 3;
    }
    return plaatsen;
}

namespace {

/// Sorts words by their length as an exchange sort does: for each place in turn, the word in it changes places with
/// each shorter one behind it, as they come. There are few lengths; where the words of each stand is kept, so that the
/// next shorter one is looked up.
class Ruilsortering
{
public:
    explicit Ruilsortering(std::vector<std::string_view> &woorden) : woorden_(woorden)
    {
        for (size_t plaats = 0; plaats < woorden.size(); ++plaats)
            plaatsen_.at(woorden[plaats].size()).insert(plaats);
        for (size_t plaats = 0; plaats < woorden.size(); ++plaats)
            Ruil(plaats);
    }

private:
    void Ruil(size_t plaats)
    {
        std::string_view &woord = woorden_[plaats];
        plaatsen_.at(woord.size()).erase(plaats);
        size_t ander = plaats;
        while ((ander = KortereNa(ander, woord.size())) < woorden_.size()) {
            plaatsen_.at(woorden_[ander].size()).erase(ander);
            plaatsen_.at(woord.size()).insert(ander);
            std::swap(woord, woorden_[ander]);
        }
    }

    /// The first place behind this one with a word shorter than so many letters; the number of words when there is
    /// none.
    size_t KortereNa(size_t plaats, size_t lengte) const
    {
        size_t eerste = woorden_.size();
        for (size_t kortere = KortsteMetKlinkers; kortere < lengte; ++kortere) {
            const auto ander = plaatsen_.at(kortere).upper_bound(plaats);
            if (ander != plaatsen_.at(kortere).end())
                eerste = std::min(eerste, *ander);
        }
        return eerste;
    }

    std::vector<std::string_view> &woorden_;
    std::array<std::set<size_t>, LangsteMetKlinkers + 1> plaatsen_; ///< of the words of each length
};

} // namespace

void ZoekKlinkers(const Zoekgebied &gebied, const Vondst &vondst)
{
    std::vector<std::string_view> gevonden;
    for (qint32 I = 0; I <= gebied.Laatste; ++I) {
        const std::string_view woord = Op(gebied.Words, I).Tekst;
        if (woord.size() >= KortsteMetKlinkers && woord.size() <= LangsteMetKlinkers)
            gevonden.insert(gevonden.end(), AantalKlinkerplaatsen(woord), woord);
    }
    Ruilsortering{gevonden};
    std::for_each(gevonden.begin(), gevonden.end(), vondst);
}

void ZoekTrefwoord(QByteArrayView database, QByteArrayView Key, const Vondst &vondst)
{
    const QByteArray klein = KleineLetters(database);
    const QByteArrayMatcher trefwoord(Key);
    VoorElkeRegel(klein, [&](QByteArrayView regel) {
        if (trefwoord.indexIn(regel) >= 0)
            vondst({regel.data(), static_cast<size_t>(regel.size())});
    });
}

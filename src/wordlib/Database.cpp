#include "wordlib/Database.h"

#include "platform/Fout.h"
#include "platform/Regels.h"
#include "platform/Teksten.h"
#include "platform/Velden.h"

#include <algorithm>
#include <bit>
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
    explicit Voorraad(std::string_view letters) : genomen_(letters)
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
        genomen_[aantalGenomen_++] = letter;
        return true;
    }

    void LegAllesTerug()
    {
        while (aantalGenomen_ > 0)
            ++Aantal(genomen_[--aantalGenomen_]);
    }

private:
    qsizetype &Aantal(char letter) { return aantal_[static_cast<quint8>(letter)]; }

    std::array<qsizetype, 256> aantal_{};
    std::string genomen_; ///< as many as there were letters at most
    size_t aantalGenomen_ = 0;
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
            const qint32 volgende = LetterStart[static_cast<size_t>(W.front() - 'a') + 2];
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
/// each shorter one behind it, as they come. The lengths are the leaves of a tree, in which each node has the shortest
/// one below it: so the next shorter word is found without passing by all that are not.
class Ruilsortering
{
public:
    explicit Ruilsortering(std::vector<std::string_view> &woorden)
        : woorden_(woorden), bladeren_(std::bit_ceil(woorden.size())), kortste_(2 * bladeren_, Geen)
    {
        for (size_t plaats = 0; plaats < woorden.size(); ++plaats)
            kortste_[bladeren_ + plaats] = static_cast<quint8>(woorden[plaats].size());
        for (size_t knoop = bladeren_ - 1; knoop > 0; --knoop)
            WerkBij(knoop);
        for (size_t plaats = 0; plaats < woorden.size(); ++plaats)
            Ruil(plaats);
    }

private:
    void Ruil(size_t plaats)
    {
        std::string_view &woord = woorden_[plaats];
        size_t ander = plaats;
        while ((ander = KortereNa(ander, woord.size())) < woorden_.size()) {
            kortste_[bladeren_ + ander] = static_cast<quint8>(woord.size());
            for (size_t knoop = (bladeren_ + ander) / 2; knoop > 0; knoop /= 2)
                WerkBij(knoop);
            std::swap(woord, woorden_[ander]);
        }
    }

    /// The first place behind this one with a word shorter than so many letters; the number of words when there is
    /// none.
    size_t KortereNa(size_t plaats, size_t lengte) const
    {
        size_t knoop = bladeren_ + plaats;
        do {
            while (knoop % 2 != 0) // a right branch, or the root
                knoop /= 2;
            if (knoop == 0)
                return woorden_.size();
            ++knoop;
        } while (kortste_[knoop] >= lengte);
        while (knoop < bladeren_)
            knoop = 2 * knoop + (kortste_[2 * knoop] >= lengte);
        return knoop - bladeren_;
    }

    void WerkBij(size_t knoop) { kortste_[knoop] = std::min(kortste_[2 * knoop], kortste_[2 * knoop + 1]); }

    static constexpr quint8 Geen = 255; ///< longer than any word

    std::vector<std::string_view> &woorden_;
    size_t bladeren_;
    std::vector<quint8> kortste_; ///< the root at 1, the branches of a node at twice its index
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
    const Ruilsortering sortering(gevonden);
    std::for_each(gevonden.begin(), gevonden.end(), vondst);
}

void ZoekTrefwoord(QByteArray database, QByteArrayView Key, const Vondst &vondst)
{
    const QByteArray klein = KleineLetters(std::move(database));
    const auto alsTekst = [](QByteArrayView v) { return std::string_view(v.data(), static_cast<size_t>(v.size())); };
    if (Key.isEmpty())
        return VoorElkeRegel(klein, [&](QByteArrayView regel) { vondst(alsTekst(regel)); });
    // The key is looked for in all the lines at once, and the line round it is taken.
    const std::string_view tekst = alsTekst(klein), trefwoord = alsTekst(Key);
    for (size_t vanaf = 0, plaats = 0; (plaats = tekst.find(trefwoord, vanaf)) != std::string_view::npos;) {
        const size_t begin = tekst.find_last_of("\r\n", plaats) + 1; // 0 in the first line
        const size_t einde = std::min(tekst.find_first_of("\r\n", plaats), tekst.size());
        if (einde - plaats >= trefwoord.size())
            vondst(tekst.substr(begin, einde - begin));
        vanaf = einde + 1;
    }
}

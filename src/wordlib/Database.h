#pragma once

#include "wordlib/mdlArray.h"

#include <QByteArrayView>

#include <array>
#include <functional>

// The word database in memory, and the searches of it. All texts are bytes of the code page, and are compared as bytes.

/// What a search may have in the place of any one letter.
inline constexpr char Wildcard = '?';

/// The index in Words at which the n-th group of words with one first letter starts, n from 1 to 26. Index 0 is never
/// used.
using LetterIndex = std::array<qint32, 27>;

/// The items of a word file of at least two characters. They lie in that file's bytes.
Woorden LeesWoorden(QByteArrayView inhoud);

/// Counts the changes of the first letter, from "a" on; which letter follows, it doesn't look at. Raises
/// Fout::IndexBuitenBereik for the 27th group, and the index holds 26 then.
/// @param laatste the last index of Words that counts
void MaakLetterIndex(const Woorden &Words, qint32 laatste, LetterIndex &LetterStart);

/// Takes a word that was found.
using Vondst = std::function<void(std::string_view woord)>;

/// A search goes through the words from the first one to this index, included. Fout::IndexBuitenBereik is raised when
/// it comes beyond the words that there are. No word is empty.
struct Zoekgebied
{
    const Woorden &Words;
    qint32 Laatste;
};

/// The words that can be made of the letters, each letter once. A wildcard among them stands for any letter, after the
/// letters themselves were tried.
///
/// A word that fails at its first letter, "a" to "y", ends its group: the search goes on behind the first word of the
/// next one, which so isn't tried; wanted so.
/// @param MaxLen,MinLen of the words, in letters
void unscramble(const Zoekgebied &gebied, const LetterIndex &LetterStart, std::string_view Letters, qsizetype MaxLen,
                qsizetype MinLen, const Vondst &vondst);
/// The words that begin with the key. A wildcard fits any letter, and no letter: also behind the end of a word.
void ZoekBegin(const Zoekgebied &gebied, std::string_view Key, const Vondst &vondst);
/// The words that end with the key, compared from the first of the last letters, as many as the key has.
void ZoekEind(const Zoekgebied &gebied, std::string_view Key, const Vondst &vondst);
/// The words of exactly this length.
void ZoekLengte(const Zoekgebied &gebied, qint16 Lengte, const Vondst &vondst);
/// The words of 3 to 19 letters with three vowels (a, e, i, o, u) in a row, once for each place where three begin. The
/// shorter ones come first, in the order that exchanging each longer word for the next shorter one gives.
void ZoekKlinkers(const Zoekgebied &gebied, const Vondst &vondst);

/// The lines of a database in lower case that contain the key.
void ZoekTrefwoord(QByteArray database, QByteArrayView Key, const Vondst &vondst);

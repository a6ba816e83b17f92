#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <vector>

/// The searches of the word database once more, written down as plainly as can be and without anything of the engine:
/// what it is compared with.
namespace Tegenproef {

using Lijst = std::vector<std::string>;
using Tekst = std::string_view;

inline bool IsRegelEinde(char teken)
{
    return teken == '\r' || teken == '\n';
}

inline Lijst Regels(Tekst tekst)
{
    Lijst regels;
    std::string regel;
    for (size_t i = 0; i < tekst.size(); ++i) {
        if (!IsRegelEinde(tekst[i])) {
            regel += tekst[i];
            if (i + 1 < tekst.size())
                continue;
        }
        regels.push_back(regel);
        regel.clear();
        if (tekst[i] == '\r' && i + 1 < tekst.size() && tekst[i + 1] == '\n')
            ++i;
    }
    return regels;
}

/// The items of at least two characters, sorted.
inline Lijst Words(Tekst tekst)
{
    Lijst words;
    size_t i = 0;
    const auto er = [&] { return i < tekst.size(); };
    const auto blank = [&] { return er() && tekst[i] == ' '; };
    while (er()) {
        std::string item;
        while (blank())
            ++i;
        if (er() && tekst[i] == '"') {
            for (++i; er() && tekst[i] != '"'; ++i)
                item += tekst[i];
            if (er())
                ++i;
            while (blank())
                ++i;
        } else {
            for (; er() && tekst[i] != ',' && !IsRegelEinde(tekst[i]); ++i)
                item += tekst[i];
            while (!item.empty() && item.back() == ' ')
                item.pop_back();
        }
        if (er() && tekst[i] == ',')
            ++i;
        else if (tekst.substr(i, 2) == "\r\n")
            i += 2;
        else if (er() && IsRegelEinde(tekst[i]))
            ++i;
        if (item.size() >= 2)
            words.push_back(item);
    }
    std::sort(words.begin(), words.end());
    return words;
}

/// Where each group of words with one first letter starts, by its number from 1 on, "a" being the first in any case.
inline std::vector<int> LetterStarts(const Lijst &words)
{
    std::vector<int> starts{-1, 0};
    char vorige = 'a';
    for (size_t i = 0; i < words.size(); ++i)
        if (words[i][0] != vorige) {
            starts.push_back(static_cast<int>(i));
            vorige = words[i][0];
        }
    return starts;
}

/// The matching of letters, a step at a time.
inline Lijst Letters(const Lijst &words, std::vector<int> starts, Tekst letters, size_t maxLen, size_t minLen)
{
    starts.resize(27, 0);
    Lijst gevonden;
    for (int i = 0; i < static_cast<int>(words.size()); ++i) {
        const std::string &w = words[static_cast<size_t>(i)];
        if (w.size() > maxLen)
            continue;
        std::string pool(letters);
        bool hit = false;
        for (size_t j = 0; j < w.size(); ++j) {
            size_t plaats = pool.find(w[j]);
            if (plaats == std::string::npos)
                plaats = pool.find('?');
            hit = plaats != std::string::npos;
            if (hit) {
                pool.erase(plaats, 1);
                continue;
            }
            const size_t p = Tekst("abcdefghijklmnopqrstuvwxy").find(w[j]);
            if (j == 0 && p != Tekst::npos && starts[p + 2] > i)
                i = starts[p + 2];
            break;
        }
        if (hit && w.size() >= minLen)
            gevonden.push_back(w);
    }
    return gevonden;
}

/// Whether a word can be made of the letters.
inline bool IsTeMaken(Tekst woord, std::string letters)
{
    for (const char letter : woord) {
        size_t plaats = letters.find(letter);
        if (plaats == std::string::npos)
            plaats = letters.find('?');
        if (plaats == std::string::npos)
            return false;
        letters.erase(plaats, 1);
    }
    return true;
}

/// A character of a text, or of none behind its end.
inline int Teken(Tekst tekst, size_t plaats)
{
    return plaats < tekst.size() ? static_cast<unsigned char>(tekst[plaats]) : -1;
}

inline bool Begint(Tekst woord, Tekst key)
{
    for (size_t k = 0; k < key.size(); ++k)
        if (Teken(woord, k) != Teken(key, k) && key[k] != '?')
            return false;
    return true;
}

inline bool Eindigt(Tekst woord, Tekst key)
{
    return Begint(woord.size() > key.size() ? woord.substr(woord.size() - key.size()) : woord, key);
}

template <class Geldt> Lijst Die(const Lijst &words, Geldt geldt)
{
    Lijst gevonden;
    std::copy_if(words.begin(), words.end(), std::back_inserter(gevonden), geldt);
    return gevonden;
}

/// The words with three vowels in a row, as often as they have them, not yet put in order.
inline Lijst MetKlinkers(const Lijst &words)
{
    Lijst gevonden;
    for (const std::string &w : words)
        for (size_t p = 0; w.size() >= 3 && w.size() <= 19 && p < w.size(); ++p) {
            int klinkers = 0;
            for (const char letter : w.substr(p, 3))
                klinkers += letter == 'a' || letter == 'e' || letter == 'i' || letter == 'o' || letter == 'u';
            if (klinkers == 3)
                gevonden.push_back(w);
        }
    return gevonden;
}

/// The exchange, in the square of their number.
inline Lijst OpLengte(Lijst woorden)
{
    for (size_t i = 0; i + 1 < woorden.size(); ++i)
        for (size_t j = i + 1; j < woorden.size(); ++j)
            if (woorden[i].size() > woorden[j].size())
                std::swap(woorden[i], woorden[j]);
    return woorden;
}

inline std::string Vervang(std::string tekst, Tekst oud, Tekst nieuw)
{
    for (size_t plaats = 0; (plaats = tekst.find(oud, plaats)) != std::string::npos; plaats += nieuw.size())
        tekst.replace(plaats, oud.size(), nieuw);
    return tekst;
}

/// Capitals or small letters of the code page.
inline std::string Zet(std::string tekst, bool groot)
{
    const auto in = [](int teken, int van, int tot) { return teken >= van && teken <= tot; };
    for (char &c : tekst) {
        const int klein = static_cast<unsigned char>(c) + (groot ? 0 : 32); // what it would be
        const bool paar = in(klein, 'a', 'z') || (in(klein, 0xE0, 0xFE) && klein != 0xF7);
        const int teken = static_cast<unsigned char>(c);
        if (paar)
            c = static_cast<char>(groot ? teken - 32 : teken + 32);
        else if (groot && (teken == 0x9A || teken == 0x9C || teken == 0x9E))
            c = static_cast<char>(teken - 16);
        else if (!groot && (teken == 0x8A || teken == 0x8C || teken == 0x8E))
            c = static_cast<char>(teken + 16);
        else if (teken == (groot ? 0xFF : 0x9F))
            c = static_cast<char>(groot ? 0x9F : 0xFF);
    }
    return tekst;
}

inline Lijst Trefwoord(const Lijst &regels, Tekst key)
{
    Lijst gevonden;
    for (const std::string &regel : regels)
        if (const std::string klein = Zet(regel, false); klein.find(key) != std::string::npos)
            gevonden.push_back(klein);
    return gevonden;
}

/// The lines with exactly these letters, of which all are a to z.
inline Lijst Wisselingen(const Lijst &regels, std::string key)
{
    const bool goed = std::all_of(key.begin(), key.end(), [](char c) { return c >= 'a' && c <= 'z'; });
    std::sort(key.begin(), key.end());
    return Die(regels, [&](const std::string &regel) {
        if (!goed || regel.size() != key.size())
            return false;
        std::string letters = regel;
        std::sort(letters.begin(), letters.end());
        return letters == key;
    });
}

/// The lines in capitals, "IJ" as one cell.
inline Lijst InHoofdletters(Lijst regels)
{
    for (std::string &regel : regels)
        regel = Vervang(Zet(regel, true), "IJ", "?");
    return regels;
}

/// @param lines in capitals
inline Lijst Ontbrekende(const Lijst &lines, const std::string &captions, size_t cellen)
{
    const std::string pattern = Vervang(captions, "IJ", "?");
    const auto unknown = static_cast<size_t>(std::count(captions.begin(), captions.end(), '-'));
    Lijst gevonden;
    for (const std::string &line : lines) {
        if (line.size() != cellen)
            continue;
        size_t hits = 0;
        for (size_t i = 0; i < pattern.size(); ++i)
            hits += Teken(pattern, i) == Teken(line, i);
        if (hits == pattern.size() - unknown)
            gevonden.push_back(Vervang(line, "?", "IJ"));
    }
    return gevonden;
}

/// What the word panel finds, by the number of cells.
inline std::map<size_t, Lijst> Paneel(const Lijst &regels)
{
    std::map<size_t, Lijst> gevonden;
    for (const std::string &regel : regels) {
        const std::string woord = Vervang(Zet(regel, false), "ij", "?");
        gevonden[woord.size()].push_back(Zet(Vervang(woord, "?", "ij"), true));
    }
    return gevonden;
}

} // namespace Tegenproef

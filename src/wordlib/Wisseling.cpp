#include "wordlib/Wisseling.h"

#include "platform/Fout.h"
#include "platform/Regels.h"

#include <algorithm>
#include <array>
#include <limits>
#include <vector>

qint16 FindOccur(QByteArrayView Word, char Character)
{
    const auto aantal = std::count(Word.begin(), Word.end(), Character);
    if (aantal > std::numeric_limits<qint16>::max())
        throw Fout(Fout::Overloop);
    return static_cast<qint16>(aantal);
}

void ZoekWisselingen(QByteArrayView database, QByteArrayView Key, const std::function<void(QByteArrayView)> &vondst)
{
    struct LetterVanKey
    {
        char Letter;
        qint16 Aantal;
    };
    std::vector<LetterVanKey> letters;
    qsizetype totaal = 0;
    for (char C = 'a'; C <= 'z'; ++C)
        if (const qint16 N1 = FindOccur(Key, C)) {
            letters.push_back({C, N1});
            totaal += N1;
        }
    if (totaal != Key.size() || Key.isEmpty())
        return;
    VoorElkeRegel(database, [&](QByteArrayView Line) {
        if (Line.size() == Key.size() && std::all_of(letters.begin(), letters.end(), [&](const LetterVanKey &l) {
                return FindOccur(Line, l.Letter) == l.Aantal;
            }))
            vondst(Line);
    });
}

#include "wordlib/Ontbrekend.h"

#include "platform/Regels.h"
#include "platform/Teksten.h"

namespace {

class Patroon
{
public:
    Patroon(QByteArray Pattern, qsizetype cellen) : cellen_(cellen)
    {
        const qsizetype Unknown = Pattern.count('-');
        Pattern_ = Pattern.replace("IJ", "?");
        Bekend_ = Pattern_.size() - Unknown;
    }

    /// Whether a line in capitals fits. Its "IJ" is taken as "?" while it is read.
    bool Past(QByteArrayView Line) const
    {
        if (Line.size() < cellen_ || (Line.size() > cellen_ && !Line.contains('J')))
            return false;
        qsizetype I = 0, Hits = 0;
        for (qsizetype plaats = 0; plaats < Line.size(); ++plaats, ++I) {
            const bool isIJ = Line[plaats] == 'I' && plaats + 1 < Line.size() && Line[plaats + 1] == 'J';
            if (I < Pattern_.size())
                Hits += Pattern_[I] == (isIJ ? '?' : Line[plaats]);
            plaats += isIJ;
        }
        return I == cellen_ && Hits == Bekend_;
    }

private:
    QByteArray Pattern_;
    qsizetype Bekend_, cellen_;
};

} // namespace

void ZoekOntbrekende(QByteArray database, const QByteArray &Pattern, qsizetype cellen,
                     const std::function<void(QByteArray)> &vondst)
{
    const Patroon patroon(Pattern, cellen);
    const QByteArray inHoofdletters = Hoofdletters(std::move(database));
    VoorElkeRegel(inHoofdletters, [&](QByteArrayView Line) {
        if (patroon.Past(Line))
            vondst(Line.toByteArray().replace('?', "IJ")); // of the file itself too
    });
}

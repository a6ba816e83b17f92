#include "wordlib/Ontbrekend.h"

#include "platform/Regels.h"
#include "platform/Teksten.h"

void ZoekOntbrekende(QByteArrayView database, QByteArray Pattern, qsizetype cellen,
                     const std::function<void(QByteArray)> &vondst)
{
    const qsizetype Unknown = Pattern.count('-');
    Pattern.replace("IJ", "?");
    const qsizetype Bekend = Pattern.size() - Unknown;
    const QByteArray inHoofdletters = Hoofdletters(database);
    VoorElkeRegel(inHoofdletters, [&](QByteArrayView regel) {
        if (regel.size() - regel.count("IJ") != cellen)
            return;
        QByteArray Line = regel.toByteArray().replace("IJ", "?");
        qsizetype Hits = 0;
        for (qsizetype I = 0; I < std::min(Pattern.size(), cellen); ++I)
            Hits += Pattern[I] == Line[I];
        if (Hits == Bekend)
            vondst(Line.replace("?", "IJ"));
    });
}

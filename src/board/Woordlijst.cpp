#include "board/Woordlijst.h"

#include "board/LangeIJ.h"
#include "platform/CodePage.h"
#include "platform/Regels.h"
#include "platform/Teksten.h"
#include "platform/Velden.h"

QStringList LeesWoordlijst(QByteArrayView inhoud)
{
    QStringList woorden;
    Files::VeldLezer lezer(inhoud);
    while (!lezer.Einde())
        woorden += Files::NaarTekst(lezer.Item());
    return woorden;
}

QByteArray SchrijfWoordlijst(const QStringList &woorden)
{
    QByteArray inhoud;
    for (const QString &woord : woorden)
        inhoud += Files::NaarBytes(Hoofdletters(woord)) + "\r\n";
    return inhoud;
}

QStringList WoordenVanLengte(QByteArray database, qsizetype cellen)
{
    QStringList woorden;
    const QByteArray klein = KleineLetters(std::move(database));
    VoorElkeRegel(klein, [&](QByteArrayView regel) {
        if (regel.size() - regel.count("ij") == cellen)
            woorden += Hoofdletters(ZonderCode(Files::NaarTekst(regel))); // a "?" of the file is an "ij" too
    });
    return woorden;
}

#include "wordlib/Naslagwerk.h"

#include "platform/CodePage.h"
#include "platform/Fout.h"
#include "platform/Regels.h"
#include "platform/Teksten.h"

template <class Doe> static void VoorElkeGevulde(QByteArrayView inhoud, Doe doe)
{
    VoorElkeRegel(inhoud, [&](QByteArrayView bytes) {
        const QString regel = Files::NaarTekst(bytes);
        if (!Trim(regel).isEmpty())
            doe(regel);
    });
}

/// The fields of a line; there may be more of them. @param minstens how many there have to be
static QList<QStringView> Velden(const QString &regel, QStringView scheiding, qsizetype minstens)
{
    QList<QStringView> velden = QStringView(regel).split(scheiding);
    if (velden.size() < minstens)
        throw Fout(Fout::IndexBuitenBereik);
    return velden;
}

void LeesSpreekwoorden(QByteArrayView inhoud, const QString &filter, QStringList &gezegden, QStringList &betekenissen)
{
    VoorElkeGevulde(inhoud, [&](const QString &regel) {
        const QList<QStringView> velden = Velden(regel, u" -/- ", 2);
        const QString gezegde = velden[0].toString();
        if (!filter.isEmpty() && KleineLetters(gezegde.left(1)) != KleineLetters(filter))
            return;
        gezegden += gezegde;
        betekenissen += velden[1].toString();
    });
}

void LeesBron(QByteArrayView inhoud, QStringList &regels)
{
    VoorElkeGevulde(inhoud, [&](const QString &regel) { regels += regel; });
}

static QString Kolom(QStringView veld, qsizetype breedte)
{
    if (veld.size() > breedte)
        throw Fout(Fout::OngeldigArgument);
    return veld.toString().leftJustified(breedte);
}

void LeesElementen(QByteArrayView inhoud, QStringList &regels)
{
    VoorElkeGevulde(inhoud, [&](const QString &regel) {
        const QList<QStringView> velden = Velden(regel, u"-/-", 3);
        regels += Kolom(velden[0], 16) + Kolom(velden[1], 9) + velden[2].toString();
    });
}

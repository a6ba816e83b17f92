#include "documents/PuzzelBestand.h"

#include "platform/CodePage.h"
#include "platform/Fout.h"
#include "platform/Teksten.h"
#include "platform/Velden.h"

using namespace Qt::StringLiterals;

static const QString Banner = u"Tessel Hoeksma Software ® 2018"_s;
static const QString Streep(28, u'-');

static void LeesRijen(Files::VeldLezer &lezer, bool teGroot, QList<Rij> &rijen)
{
    while (!lezer.Einde()) {
        Rij rij;
        for (QString *veld : {&rij.Vaknummer, &rij.Omschrijving, &rij.Oplossing, &rij.Nr})
            *veld = lezer.Tekst();
        if (teGroot && lezer.Einde()) // the last field may be cut
            throw Fout(Fout::GeheugenVol);
        if (!Trim(rij.Vaknummer).isEmpty())
            rijen += rij;
        lezer.Tekst();
    }
    if (teGroot)
        throw Fout(Fout::GeheugenVol);
}

PuzzelLijst LeesPuzzelLijst(const QByteArray &inhoud)
{
    PuzzelLijst lijst;
    lijst.Heel = negeer([&] {
        Files::VeldLezer lezer(QByteArrayView(inhoud).first(std::min(inhoud.size(), GrootsteLijst)));
        lezer.Tekst();
        lijst.Soort = lezer.Byte();
        lijst.Breedte = lezer.Int32();
        lijst.Hoogte = lezer.Int32();
        lezer.Tekst();
        LeesRijen(lezer, inhoud.size() > GrootsteLijst, lijst.Rijen);
    });
    return lijst;
}

QByteArray SchrijfPuzzelLijst(quint8 soort, qint32 breedte, qint32 hoogte, const QList<Rij> &rijen)
{
    QStringList regels{Banner, QString::number(soort), QString::number(breedte), QString::number(hoogte), Streep};
    for (const Rij &rij : rijen)
        regels += {Trim(rij.Vaknummer), rij.Omschrijving, rij.Oplossing, rij.Nr, Streep};
    const QString einde = u"\r\n"_s;
    return Files::NaarBytes(regels.join(einde) + einde);
}

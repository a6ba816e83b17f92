// The input is a source in UTF-8: what is made of it keeps the rules, and a list that is made is a source of itself.

#include "Fuzz.h"
#include "installatie/InstallatieBestanden.h"

#include "platform/CodePage.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

static bool Lukt(QByteArray (*maak)(const QByteArray &), const QByteArray &bron, QByteArray &bestand)
{
    try {
        bestand = maak(bron);
        return true;
    } catch (const BronFout &) {
        return false;
    }
}

void Probeer(const QByteArray &inhoud)
{
    static const QRegularExpression gewoon(u"\\A([a-z]{2,}\\r\\n)*\\z"_s);
    QByteArray alle, bestand;
    for (char letter = 'a'; letter <= 'z'; ++letter)
        alle += QByteArray("\n") + letter + letter;
    if (Lukt(MaakWoorden, inhoud + alle, bestand)) {
        EIS(gewoon.match(QString::fromLatin1(bestand)).hasMatch());
        EIS(MaakWoorden(bestand) == bestand);
    }
    if (Lukt(MaakLijst, inhoud, bestand)) {
        EIS(bestand.size() > 2 && bestand.endsWith("\r\n") && !bestand.contains(','));
        EIS(MaakLijst(Files::NaarTekst(bestand).toUtf8()) == bestand);
    }
    if (Lukt(MaakTabel, inhoud, bestand)) {
        EIS(bestand.size() > 2 && bestand.endsWith("\r\n"));
        EIS(MaakTabel(Files::NaarTekst(bestand).toUtf8()) == bestand);
    }
    if (Lukt(MaakSpreekwoorden, inhoud, bestand)) {
        QByteArray tabel = MaakTabel(inhoud);
        EIS(bestand.size() == tabel.size() + 12 * tabel.count('\n'));
        EIS(bestand.replace("Betekenis : ", "") == tabel.replace("Betekenis : ", ""));
    }
}

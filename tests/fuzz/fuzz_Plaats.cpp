// The input is the text of a place, in UTF-8.

#include "Fuzz.h"

#include "board/Plaats.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

void Probeer(const QByteArray &inhoud)
{
    const QString tekst = QString::fromUtf8(inhoud);
    if (tekst.isEmpty())
        return;
    const Plaats plaats = LeesPlaats(tekst);
    EIS(plaats.Rij >= -10 && plaats.Rij <= 98); // two characters: from "-9" up to "99"
    EIS(plaats.Richting == tekst.back());

    static const QRegularExpression vorm(u"\\A([A-P])-([0-9]{2}) / ([0-9]{1,3})-(.)\\z"_s);
    const QRegularExpressionMatch delen = vorm.match(tekst);
    if (!delen.hasMatch() || delen.capturedView(3).startsWith(u'0'))
        return;
    EIS(KolomTekst(static_cast<int>(plaats.Kolom)) == delen.captured(1));
    EIS(plaats.Rij == delen.captured(2).toInt() - 1);
    EIS(plaats.Rij < 0 ||
        PlaatsTekst(static_cast<int>(plaats.Kolom), static_cast<int>(plaats.Rij), delen.captured(3).toInt()) + u'-' +
                plaats.Richting ==
            tekst);
}

// The input's first line says how the fields behind it are read, in turn: b, i and l as a number of 8, 16 and 32 bits,
// any other letter as a text.

#include "Fuzz.h"

#include "platform/Fout.h"
#include "platform/Velden.h"

#include <QRegularExpression>
#include <QStringList>

#include <limits>
#include <optional>

using namespace Qt::StringLiterals;
using Files::VeldLezer;

static bool IsFout(int nummer, auto &&opdracht)
{
    try {
        opdracht();
    } catch (const Fout &fout) {
        return fout.nummer() == nummer;
    }
    return false;
}

/// The whole number that a text is, if it is one.
static std::optional<qint64> GeheelGetal(const QString &tekst)
{
    static const QRegularExpression vorm(u"\\A *([+-]?[0-9]{1,18}) *\\z"_s);
    const QRegularExpressionMatch delen = vorm.match(tekst);
    return delen.hasMatch() ? std::optional(delen.captured(1).toLongLong()) : std::nullopt;
}

/// Reads a number and compares it with the whole number that the text of its field is, if it is one.
template <class Type> static void LeesGetal(VeldLezer &lezer, Type (VeldLezer::*lees)(), const QString &tekst)
{
    const std::optional<qint64> geheel = GeheelGetal(tekst);
    const bool past =
        geheel && *geheel >= std::numeric_limits<Type>::min() && *geheel <= std::numeric_limits<Type>::max();
    try {
        const Type getal = (lezer.*lees)();
        EIS(!geheel || (past && getal == *geheel));
    } catch (const Fout &fout) {
        EIS(!geheel || (!past && fout.nummer() == Fout::Overloop));
        EIS(fout.nummer() == Fout::Overloop || fout.nummer() == Fout::TypeOnjuist);
    }
}

static void LeesAls(char soort, VeldLezer &lezer, const QString &tekst)
{
    if (soort == 'b')
        LeesGetal(lezer, &VeldLezer::Byte, tekst);
    else if (soort == 'i')
        LeesGetal(lezer, &VeldLezer::Int16, tekst);
    else if (soort == 'l')
        LeesGetal(lezer, &VeldLezer::Int32, tekst);
    else
        EIS(lezer.Tekst() == tekst);
}

static void SchrijfEnLees(const QStringList &teksten)
{
    Files::VeldSchrijver schrijver;
    for (const QString &tekst : teksten) {
        schrijver.Regel(tekst);
        schrijver.Regel({static_cast<int>(tekst.size()), std::numeric_limits<int>::min()});
    }
    VeldLezer lezer(schrijver.Inhoud());
    for (const QString &tekst : teksten) {
        EIS(lezer.Tekst() == tekst.section(u'"', 0, 0)); // a quote ends the text
        if (tekst.contains(u'"'))
            return;
        EIS(lezer.Int32() == tekst.size());
        EIS(lezer.Int32() == std::numeric_limits<int>::min());
    }
    EIS(lezer.Einde());
}

void Probeer(const QByteArray &inhoud)
{
    const qsizetype eersteRegel = std::max(inhoud.indexOf('\n'), qsizetype{0});
    const QByteArrayView soorten = QByteArrayView(inhoud).first(eersteRegel);
    const QByteArrayView velden = QByteArrayView(inhoud).sliced(eersteRegel);

    VeldLezer alsTekst(velden), getypeerd(velden);
    QStringList teksten;
    qsizetype tekens = 0;
    while (!alsTekst.Einde()) {
        const QString tekst = alsTekst.Tekst();
        LeesAls(soorten.isEmpty() ? 't' : soorten[teksten.size() % soorten.size()], getypeerd, tekst);
        EIS(alsTekst.Einde() == getypeerd.Einde());
        teksten += tekst;
        tekens += tekst.size();
        EIS(teksten.size() <= velden.size() && tekens <= velden.size());
    }
    EIS(IsFout(Fout::EindeBestand, [&] { getypeerd.Tekst(); }));
    EIS(IsFout(Fout::EindeBestand, [&] { getypeerd.Byte(); }));
    EIS(IsFout(Fout::EindeBestand, [&] { getypeerd.Int16(); }));
    EIS(IsFout(Fout::EindeBestand, [&] { getypeerd.Int32(); }));
    SchrijfEnLees(teksten);
}

#include "platform/Fout.h"

static QString DutchText(Fout::Nummer nummer)
{
    switch (nummer) {
    case Fout::OngeldigArgument:
        return QStringLiteral("Ongeldig argument");
    case Fout::Overloop:
        return QStringLiteral("Overloop: het getal is te groot of te klein");
    case Fout::GeheugenVol:
        return QStringLiteral("Onvoldoende geheugen");
    case Fout::IndexBuitenBereik:
        return QStringLiteral("Index valt buiten het bereik");
    case Fout::TypeOnjuist:
        return QStringLiteral("Typen komen niet overeen: hier hoort een getal");
    case Fout::OngeldigeNaam:
        return QStringLiteral("Ongeldige bestandsnaam");
    case Fout::BestandNietGevonden:
        return QStringLiteral("Bestand niet gevonden");
    case Fout::SchijfFout:
        return QStringLiteral("Fout bij lezen of schrijven");
    case Fout::EindeBestand:
        return QStringLiteral("Het bestand houdt te vroeg op");
    case Fout::GeenToegang:
        return QStringLiteral("Geen toegang");
    case Fout::OngeldigeWaarde:
        return QStringLiteral("Ongeldige waarde");
    case Fout::OngeldigeAfbeelding:
        return QStringLiteral("Ongeldige afbeelding");
    }
    return QStringLiteral("Onbekende fout");
}

Fout::Fout(Nummer nummer, QString waarbij) : nummer_(nummer), waarbij_(std::move(waarbij)) {}

QString Fout::tekst() const
{
    const QString tekst = DutchText(nummer_);
    return waarbij_.isEmpty() ? tekst : tekst + QStringLiteral(" (") + waarbij_ + QStringLiteral(")");
}

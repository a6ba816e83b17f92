#include "platform/Fout.h"

#include <new>

using namespace Qt::StringLiterals;

static QString DutchText(qint32 nummer)
{
    switch (nummer) {
    case Fout::OngeldigArgument:
        return u"Ongeldig argument"_s;
    case Fout::Overloop:
        return u"Overloop: het getal is te groot of te klein"_s;
    case Fout::GeheugenVol:
        return u"Onvoldoende geheugen"_s;
    case Fout::IndexBuitenBereik:
        return u"Index valt buiten het bereik"_s;
    case Fout::TypeOnjuist:
        return u"Typen komen niet overeen: hier hoort een getal"_s;
    case Fout::InterneFout:
        return u"Interne fout"_s;
    case Fout::OngeldigeNaam:
        return u"Ongeldige bestandsnaam"_s;
    case Fout::BestandNietGevonden:
        return u"Bestand niet gevonden"_s;
    case Fout::SchijfFout:
        return u"Fout bij lezen of schrijven"_s;
    case Fout::EindeBestand:
        return u"Het bestand houdt te vroeg op"_s;
    case Fout::GeenToegang:
        return u"Geen toegang"_s;
    case Fout::OngeldigeWaarde:
        return u"Ongeldige waarde"_s;
    case Fout::SleutelBestaatAl:
        return u"Die sleutel bestaat al"_s;
    case Fout::OngeldigeAfbeelding:
        return u"Ongeldige afbeelding"_s;
    }
    return u"Onbekende fout"_s;
}

Fout::Fout(Nummer nummer, QString waarbij) : nummer_(nummer), waarbij_(std::move(waarbij)) {}

Fout::Fout(qint32 nummer, QString bron, QString tekst)
    : nummer_(nummer), bron_(std::move(bron)), eigenTekst_(std::move(tekst))
{
}

Fout Fout::Van(const std::exception &exception)
{
    if (const auto *fout = dynamic_cast<const Fout *>(&exception))
        return *fout;
    if (dynamic_cast<const std::bad_alloc *>(&exception))
        return Fout(GeheugenVol);
    return Fout(InterneFout, QString::fromLocal8Bit(exception.what()));
}

QString Fout::tekst() const
{
    const QString tekst = bron_.isEmpty() ? DutchText(nummer_) : eigenTekst_;
    return waarbij_.isEmpty() ? tekst : tekst + u" ("_s + waarbij_ + u")"_s;
}

#pragma once

#include "platform/Bewaren.h"
#include "support/HaperendeSchijf.h"
#include "support/Testbank.h"

#include <optional>

/// A test of a set of three files. Its folder holds the old ones: "A.LST", "a1.bmp", "a2.bmp".
class BewaarTest : public QObject
{
protected:
    inline static const QByteArray Oud = "oud oud oud", Nieuw = "nieuw nieuw nieuw";

    void Begin()
    {
        bank_.emplace();
        for (const char *naam : {"A.LST", "a1.bmp", "a2.bmp"})
            bank_->Schrijf(QLatin1String(naam), "oud");
    }
    QString Pad(const char *naam) const { return bank_->Map() + u'/' + QLatin1String(naam); }
    QStringList Namen() const { return bank_->Bestanden({}); }
    /// What stands in the three files of the set; "-" for one that is not there.
    QByteArray Inhoud() const
    {
        QByteArrayList delen;
        const char *lijst = QFile::exists(Pad("A.lst")) ? "A.lst" : "A.LST";
        for (const char *naam : {"a1.bmp", "a2.bmp", lijst})
            delen += QFile::exists(Pad(naam)) ? bank_->Inhoud(QLatin1String(naam)) : "-";
        return delen.join(' ');
    }
    /// Writes the new set.
    void Bewaar() const
    {
        BestandenSet set;
        negeer([&] { set.Zet(Pad("a1.bmp"), {"nie", "uw"}); });
        negeer([&] { set.Zet(Pad("a2.bmp"), {"nieuw"}); });
        negeer([&] { set.Zet(Pad("A.LST"), {"nieuw"}, QStringLiteral("A.lst")); });
        negeer([&] { set.PlaatsAlles(); });
    }

    std::optional<Testbank> bank_;
};

#pragma once

#include "platform/ListBox.h"
#include "support/Testbank.h"

/// Notes what happens while a handler runs, in its order: each wait, each message and each filling of a list, with the
/// pointer and with what the test looks at. It is in use as long as it lives.
///
///     "0.2 s | ..."                      a wait; "0 s": pending events are run
///     "Error: Mis! (kritiek) | ..."      a message, with its title
///     "lijst ... | zandloper ..."        a list was filled, under the hourglass
class Verloop : public DirecteKlok, public BerichtenScript
{
public:
    explicit Verloop(std::function<QString()> kijk = [] { return QString(); })
        : kijk_(std::move(kijk)), klok_(Klok::Huidig()), berichten_(Berichten::Huidig())
    {
        Klok::Gebruik(this);
        Berichten::Gebruik(this);
    }
    ~Verloop() override
    {
        Klok::Gebruik(&klok_);
        Berichten::Gebruik(&berichten_);
    }
    Q_DISABLE_COPY_MOVE(Verloop)

    /// Notes each time a list is filled.
    void Volg(const ListBox &lijst)
    {
        QObject::connect(lijst.model(), &QAbstractItemModel::modelReset, lijst.model(),
                         [this, &lijst] { Noteer(QStringLiteral("lijst ") + lijst.Items().join(u' ')); });
    }

    /// Closes a window in the wait that is the step of this number, from 1.
    void SluitBijStap(qsizetype stap, QWidget &venster)
    {
        Bijwerk = [this, stap, &venster] {
            if (Stappen.size() == stap)
                venster.close();
        };
    }

    void Slaap(double seconden, QEventLoop::ProcessEventsFlags welke) override
    {
        const bool zonderInvoer = welke.testFlag(QEventLoop::ExcludeUserInputEvents);
        Noteer(QString::number(seconden, 'g', 3) + QLatin1String(zonderInvoer ? " s zonder invoer" : " s"));
        DirecteKlok::Slaap(seconden, welke);
        Bijwerk();
    }

    Antwoord Vraag(const QString &tekst, Knoppen knoppen, Icoon icoon, const QString &titel) override
    {
        Noteer(titel + QStringLiteral(": ") + tekst + Soort(knoppen, icoon));
        return BerichtenScript::Vraag(tekst, knoppen, icoon, titel);
    }

    QStringList Stappen;
    std::function<void()> Bijwerk = [] {}; ///< run during each wait

private:
    void Noteer(const QString &wat)
    {
        const QString gezien = (Zandloper() ? QStringLiteral("zandloper ") : QString()) + kijk_();
        Stappen += (wat.trimmed() + QStringLiteral(" | ") + gezien.trimmed()).trimmed();
    }

    static QString Soort(Knoppen knoppen, Icoon icoon)
    {
        if (icoon == Icoon::Kritiek)
            return QStringLiteral(" (kritiek)");
        if (icoon == Icoon::Waarschuwing)
            return QStringLiteral(" (waarschuwing)");
        return knoppen == Knoppen::JaNee ? QStringLiteral(" (ja of nee)") : QString();
    }

    std::function<QString()> kijk_;
    Klok &klok_;
    Berichten &berichten_;
};

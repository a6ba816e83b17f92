#pragma once

#include "platform/Printers.h"

/// Print queues as a test wants them, as long as it lives.
class ProefWachtrijen : public Wachtrijen
{
public:
    explicit ProefWachtrijen(const QStringList &namen = {}, const QString &standaard = {})
        : Alle(namen), Eerste(standaard)
    {
        Gebruik(this);
    }
    ~ProefWachtrijen() override { Gebruik(nullptr); }
    Q_DISABLE_COPY_MOVE(ProefWachtrijen)

    QStringList Namen() override
    {
        ++Gevraagd;
        return Alle;
    }
    QString Standaard() override
    {
        ++Gevraagd;
        return Eerste;
    }

    QStringList Alle;
    QString Eerste;   ///< the default one
    int Gevraagd = 0; ///< how often they were asked for
};

#pragma once

#include "support/Testbank.h"

#include <functional>

/// Messages that are looked at when they come. They are in use from the start; the test bank ends that.
class KijkBerichten : public BerichtenScript
{
public:
    explicit KijkBerichten(std::function<void()> kijk) : kijk_(std::move(kijk)) { Gebruik(this); }
    Antwoord Vraag(const QString &tekst, Knoppen knoppen, Icoon icoon, const QString &titel) override
    {
        kijk_();
        return BerichtenScript::Vraag(tekst, knoppen, icoon, titel);
    }

private:
    std::function<void()> kijk_;
};

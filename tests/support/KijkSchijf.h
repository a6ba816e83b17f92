#pragma once

#include "support/HaperendeSchijf.h"

#include <functional>

/// A disk that looks each time a file is opened.
class KijkSchijf : public HaperendeSchijf
{
public:
    explicit KijkSchijf(std::function<void()> kijk) : kijk_(std::move(kijk)) {}
    bool Open(QFile &bestand, QIODevice::OpenMode hoe) override
    {
        kijk_();
        return HaperendeSchijf::Open(bestand, hoe);
    }

private:
    std::function<void()> kijk_;
};

#include "platform/Toeval.h"

#include <random>

namespace {

struct Reeks
{
    std::mt19937 generator{std::random_device{}()};
    bool vast = false;
};

Reeks &HuidigeReeks()
{
    static Reeks reeks;
    return reeks;
}

} // namespace

void Toeval::Randomize()
{
    if (!HuidigeReeks().vast)
        HuidigeReeks().generator.seed(std::random_device{}());
}

double Toeval::Rnd()
{
    return static_cast<double>(HuidigeReeks().generator() >> 8) / double{1 << 24};
}

void Toeval::Zaad(std::uint32_t zaad)
{
    HuidigeReeks().generator.seed(zaad);
    HuidigeReeks().vast = true;
}

void Toeval::ZonderZaad()
{
    HuidigeReeks().vast = false;
    Randomize();
}

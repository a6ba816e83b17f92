#include "platform/Toeval.h"

#include <chrono>
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
    constexpr int MostSteps = 8;
    if (!HuidigeReeks().vast)
        HuidigeReeks().generator.discard(std::chrono::steady_clock::now().time_since_epoch().count() % MostSteps);
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
    HuidigeReeks() = {};
}

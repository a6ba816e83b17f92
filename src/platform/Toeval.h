#pragma once

#include <cstdint>

/// The random generator.
namespace Toeval {

/// Mixes the time into the series, which nobody can foretell anyhow: it goes on some steps further, and does not start
/// again. After Zaad it does nothing, so that a seeded series stays as it is.
void Randomize();

/// The next number: at least 0 and below 1, in steps of 2^-24.
double Rnd();

/// Fixes the series, for tests: the same seed gives the same numbers, whatever Randomize is asked.
void Zaad(std::uint32_t zaad);

/// Undoes Zaad.
void ZonderZaad();

} // namespace Toeval

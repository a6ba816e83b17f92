#pragma once

#include <cstdint>

/// The random generator.
namespace Toeval {

/// Starts a new series that nobody can foretell. After Zaad it does nothing, so that a seeded series stays as it is.
void Randomize();

/// The next number: at least 0 and below 1, in steps of 2^-24.
double Rnd();

/// Fixes the series, for tests: the same seed gives the same numbers, whatever Randomize is asked.
void Zaad(std::uint32_t zaad);

/// Undoes Zaad.
void ZonderZaad();

} // namespace Toeval

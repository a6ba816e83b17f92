#pragma once

#include <cmath>

/// The one place that knows how many twips make a pixel. A twip is 1/1440 inch; at 96 dots per inch a pixel is 15.
namespace Twips {

inline constexpr int PerPixel = 15;
inline constexpr int PerInch = 1440;
inline constexpr int PerPunt = PerInch / 72; ///< twips in a point of a letter's size

/// Twips to pixels, rounded to the nearest pixel (halves away from zero).
inline int NaarPixels(double twips)
{
    return static_cast<int>(std::lround(twips / PerPixel));
}

/// Pixels to twips; exact.
inline constexpr double VanPixels(double pixels)
{
    return pixels * PerPixel;
}

} // namespace Twips

#pragma once

#include "platform/Fout.h"

#include <QRgb>

#include <algorithm>

/// A colour from three parts. A part above 255 counts as 255, as the platform has it; a negative one raises
/// Fout::OngeldigArgument.
constexpr QRgb RGB(int rood, int groen, int blauw)
{
    if (rood < 0 || groen < 0 || blauw < 0)
        throw Fout(Fout::OngeldigArgument);
    return qRgb(std::min(rood, 255), std::min(groen, 255), std::min(blauw, 255));
}

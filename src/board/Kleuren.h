#pragma once

#include <QRgb>

/// Colours that several parts of the program share.
namespace Kleuren {

inline constexpr QRgb Paneel = qRgb(230, 230, 190); ///< the main window, its frames, the rulers, most dialogs

} // namespace Kleuren

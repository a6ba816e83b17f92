#pragma once

#include <QtGlobal>

inline constexpr qint64 GrootsteBeeld = qint64{256}
                                        << 20; ///< the pixels of the largest picture that there is, in bytes

#pragma once

#include <QtGlobal>

/// The pixels of the largest picture that there is, in bytes.
inline constexpr qint64 GrootsteBeeld = qint64{256} << 20;

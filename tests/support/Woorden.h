#pragma once

#include "support/InhoudVan.h"

/// The word database of the built program. Empty when it isn't there.
inline QByteArray EchteWoorden()
{
    return InhoudVan(QStringLiteral(DATABASE));
}

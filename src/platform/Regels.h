#pragma once

#include <QByteArrayView>

#include <algorithm>

/// Calls doe(QByteArrayView) for each line of a text at rest, in its order. CR LF, CR and LF each end a line, the end
/// of the text the last one.
template <class Doe> void VoorElkeRegel(QByteArrayView tekst, Doe doe)
{
    const char *const einde = tekst.end();
    for (const char *begin = tekst.begin(); begin != einde;) {
        const char *const regelEinde = std::find_if(begin, einde, [](char c) { return c == '\r' || c == '\n'; });
        doe(QByteArrayView(begin, regelEinde));
        begin = regelEinde;
        if (begin != einde && *begin++ == '\r' && begin != einde && *begin == '\n')
            ++begin;
    }
}

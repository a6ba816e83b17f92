#pragma once

#include <QByteArrayView>

#include <algorithm>

/// Calls doe(QByteArrayView) for each line of a text at rest, in its order. CR LF, CR and LF each end a line, the end
/// of the text the last one.
template <class Doe> void VoorElkeRegel(QByteArrayView tekst, Doe doe)
{
    const auto volgende = [&](char teken, qsizetype vanaf) {
        const qsizetype plaats = tekst.indexOf(teken, vanaf);
        return plaats < 0 ? tekst.size() : plaats;
    };
    for (qsizetype begin = 0, cr = -1, lf = -1; begin < tekst.size();) {
        if (cr < begin)
            cr = volgende('\r', begin);
        if (lf < begin)
            lf = volgende('\n', begin);
        const qsizetype einde = std::min(cr, lf);
        doe(tekst.sliced(begin, einde - begin));
        begin = lf == cr + 1 ? lf + 1 : einde + 1;
    }
}

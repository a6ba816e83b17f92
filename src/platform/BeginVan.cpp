#include "platform/BeginVan.h"

QString BeginVan(const QString &tekst, qsizetype meeste)
{
    if (meeste <= 0 || meeste >= tekst.size())
        return meeste <= 0 ? QString() : tekst;
    const QChar laatste = tekst[meeste - 1], volgende = tekst[meeste];
    const bool paar =
        (laatste.isHighSurrogate() && volgende.isLowSurrogate()) || (laatste == u'\r' && volgende == u'\n');
    return tekst.left(paar ? meeste - 1 : meeste);
}

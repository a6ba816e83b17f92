#include "platform/Teksten.h"

#include "platform/CodePage.h"

QString Trim(QStringView tekst)
{
    while (tekst.startsWith(u' '))
        tekst = tekst.sliced(1);
    while (tekst.endsWith(u' '))
        tekst.chop(1);
    return tekst.toString();
}

static QChar BinnenCodePage(QChar teken, QChar partner)
{
    return Files::InCodePage(teken) && Files::InCodePage(partner) ? partner : teken;
}

QString Hoofdletters(QString tekst)
{
    for (QChar &teken : tekst)
        teken = BinnenCodePage(teken, teken.toUpper());
    return tekst;
}

QString KleineLetters(QString tekst)
{
    for (QChar &teken : tekst)
        teken = BinnenCodePage(teken, teken.toLower());
    return tekst;
}

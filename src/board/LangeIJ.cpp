#include "board/LangeIJ.h"

#include "platform/Teksten.h"

using namespace Qt::StringLiterals;

QString MetCode(QString woord)
{
    return woord.replace("ij"_L1, "?"_L1);
}

QString ZonderCode(QString woord)
{
    return woord.replace(u'?', "ij"_L1);
}

QString LetterVan(QChar teken)
{
    return teken == u'?' ? u"IJ"_s : QString(teken);
}

qsizetype AantalVakjes(const QString &oplossing)
{
    return AantalLetters(Hoofdletters(oplossing));
}

qsizetype AantalLetters(const QString &woord)
{
    return woord.size() - woord.count("IJ"_L1);
}

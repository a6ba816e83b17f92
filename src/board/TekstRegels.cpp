#include "board/TekstRegels.h"

#include "platform/TextBox.h"

using namespace Qt::StringLiterals;

int TekstRegels(TextBox &box, QStringList &regels)
{
    const int n = box.LineCount();
    const QString tekst = box.Text();
    regels = QStringList(n + 1);
    int regel = 0;
    qsizetype begin = 0;
    for (qsizetype i = 0; i < tekst.size(); ++i) {
        const int nieuweRegel = box.LineFromChar(i);
        if (nieuweRegel == regel)
            continue;
        regels[regel] = tekst.sliced(begin, i - begin);
        regel = nieuweRegel;
        begin = i;
    }
    regels[regel] = tekst.sliced(begin);
    for (QString &element : regels)
        element.remove("\r\n"_L1);
    return n;
}

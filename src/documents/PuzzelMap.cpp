#include "documents/PuzzelMap.h"

#include "board/Algemeen.h"
#include "documents/HtmlExport.h"
#include "documents/PuzzelJpeg.h"
#include "platform/Bewaren.h"
#include "platform/Files.h"

using namespace Qt::StringLiterals;

QString PuzzelMap()
{
    return Files::Pad(AppPath, {u"Puzzels"_s});
}

QString PuzzelPad(const QString &bestand)
{
    return Files::Pad(PuzzelMap(), {bestand});
}

void HerstelBestanden()
{
    for (const QString &map : {AppPath, PuzzelMap(), FotoMap(), HtmlMap(), HtmlBeeldMap()})
        MaakAf(map);
    RuimTussenBeeldOp();
}

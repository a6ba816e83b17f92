#include "documents/HtmlExport.h"

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "documents/HtmlMod.h"
#include "platform/Files.h"
#include "platform/Fout.h"
#include "platform/PictureFiles.h"

using namespace Qt::StringLiterals;

QString HtmlMap()
{
    return Files::Pad(AppPath, {u"Html"_s});
}

QString HtmlBeeldMap()
{
    return Files::Pad(HtmlMap(), {u"Images"_s});
}

static QString PaginaPad(const QString &naam)
{
    return Files::Pad(HtmlMap(), {naam + u".html"_s});
}

static void SchrijfBeeld(const QString &naam)
{
    const bool groot = PuzzelType == Zweeds || PuzzelType == Kruiswoord;
    const QString bestand = naam + u".bmp"_s;
    const QString pad = Files::Pad(HtmlBeeldMap(), {bestand});
    Files::SavePicture((groot ? Main().PicGroot : Main().Pic)->Image(), pad);
    Files::Hernoem(pad, bestand); // an older file may be spelled otherwise, and a browser looks for the page's spelling
}

// Page and picture are of one moment, whatever happens to the puzzle during the wait.
void SchrijfHtml(const QString &naam)
{
    const quint8 soort = PuzzelType;
    const QList<Rij> rijen = Main().Rijen();
    negeer([] { Files::MkDir(HtmlMap()); });
    negeer([] { Files::MkDir(HtmlBeeldMap()); });
    negeer([&] { SchrijfBeeld(naam); });
    negeer([&] { Files::Kill(PaginaPad(naam)); });
    Wachten(0.2);
    negeer([&] { Files::Schrijf(PaginaPad(naam), HtmlPagina(naam, soort, rijen)); });
}

void ExporteerHtml(const QString &Naam)
{
    const QString naam = Naam; // it is that of the puzzle, which may get another one during the wait
    SchrijfHtml(naam);
    negeer([&] { OpenDocument(PaginaPad(naam)); });
}

#include "app/AboutForm.h"

#include "Adressen.h"

#include "board/Kleuren.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>

using namespace Qt::StringLiterals;

// The file is the program's own, whatever it is called here.
static QString OverTekst()
{
    const QFileInfo programma(QCoreApplication::applicationFilePath());
    return u"Raster Atelier\n"
           "Puzzels ontwerpen, bewaren en delen.\n"
           "Gemaakt door de makers van Rasteratelier.\n"
           "\n"
           "Version : %1 / %2\n"
           "Date : %3"_s.arg(Versie)
               .arg(programma.size())
               .arg(QLocale::system().toString(programma.lastModified(), QLocale::ShortFormat));
}

AboutForm::AboutForm() : Form(u"AboutForm"_s, u"About Rasteratelier..."_s, 6390, 2910, Kleuren::Paneel)
{
    Image1 = MaakBeeld("Image1", u"Raster Atelier"_s, u"rasteratelier"_s);
    Label1 = MaakUitleg("Label1", OverTekst());
    CancelKnop = MaakKnop("CancelKnop", u"Sluiten"_s, u"knop-sluiten"_s);

    Zet(Image1, 180, 210, 1920, 1920);
    Zet(Label1, 2250, 300, 3900, 1800);
    Zet(CancelKnop, 5070, 1920);

    bij(CancelKnop, &ImageButton::clicked, &AboutForm::CancelKnop_Click);
}

void AboutForm::CancelKnop_Click()
{
    Sluit(CancelKnop);
}

#include "app/AboutForm.h"

#include "Adressen.h"

#include "platform/Plaatjes.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>

using namespace Qt::StringLiterals;

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

AboutForm::AboutForm() : Form(u"AboutForm"_s, u"About Rasteratelier..."_s, 6390, 2910, qRgb(230, 230, 190))
{
    Image1 = Maak<QLabel>("Image1", u"Raster Atelier"_s, nullptr);
    Label1 = MaakLabel("Label1", OverTekst());
    CancelKnop = Maak<ImageButton>("CancelKnop", u"Sluiten"_s, nullptr, u"knop-sluiten"_s);

    Zet(Image1, 180, 210, 1920, 1920);
    Zet(Label1, 2250, 300, 3900, 1800);
    Zet(CancelKnop, 5070, 1920);

    Image1->setPixmap(Plaatjes::Pixmap(u"rasteratelier"_s, Image1->size(), devicePixelRatioF()));
    Label1->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    bij(CancelKnop, &ImageButton::clicked, [this] { CancelKnop_Click(); });
}

void AboutForm::CancelKnop_Click()
{
    CancelKnop->Druk();
    Unload();
}

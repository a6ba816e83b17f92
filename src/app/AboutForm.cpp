#include "app/AboutForm.h"

#include "Adressen.h"

#include "platform/Plaatjes.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>

static QString OverTekst()
{
    const QFileInfo programma(QCoreApplication::applicationFilePath());
    return QStringLiteral("Raster Atelier\n"
                          "Puzzels ontwerpen, bewaren en delen.\n"
                          "Gemaakt door de makers van Rasteratelier.\n"
                          "\n"
                          "Version : %1 / %2\n"
                          "Date : %3")
        .arg(QStringLiteral(VERSIE))
        .arg(programma.size())
        .arg(QLocale::system().toString(programma.lastModified(), QLocale::ShortFormat));
}

AboutForm::AboutForm()
    : Form(QStringLiteral("AboutForm"), QStringLiteral("About Rasteratelier..."), 6390, 2910, qRgb(230, 230, 190))
{
    Image1 = Maak<QLabel>("Image1", QStringLiteral("Raster Atelier"), nullptr);
    Label1 = MaakLabel("Label1", OverTekst());
    CancelKnop = Maak<ImageButton>("CancelKnop", QStringLiteral("Sluiten"), nullptr, QStringLiteral("knop-sluiten"));

    Zet(Image1, 180, 210, 1920, 1920);
    Zet(Label1, 2250, 300, 3900, 1800);
    Zet(CancelKnop, 5070, 1920);

    Image1->setPixmap(Plaatjes::Pixmap(QStringLiteral("rasteratelier"), Image1->size(), devicePixelRatioF()));
    Label1->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    bij(CancelKnop, &ImageButton::clicked, [this] { CancelKnop_Click(); });
}

void AboutForm::CancelKnop_Click()
{
    CancelKnop->Druk();
    Unload();
}

#include "board/MainForm.h"

#include "board/Kleuren.h"
#include "platform/Plaatjes.h"

#include <QCloseEvent>

using namespace Qt::StringLiterals;

static MainForm *enige = nullptr;

MainForm &Main()
{
    Q_ASSERT(enige);
    return *enige;
}

MainForm::MainForm() : Form(u"Main"_s, u"Raster Atelier (16x19)"_s, 18600, 11340, Kleuren::Paneel, true)
{
    enige = this;
    setWindowFlags(Qt::Window);
    setWindowIcon(Plaatjes::Pixmap(u"rasteratelier"_s, Plaatjes::Maat(u"rasteratelier"_s), 1));
    MaakBord();
    MaakSudokuPaneel();
    MaakLijst();
    MaakWoordPaneel();
    MaakKnoppen();
    MaakMenuBalk();
    MaakPopups();
    PasOpScherm();
}

MainForm::~MainForm()
{
    enige = nullptr;
}

QFrame *MainForm::MaakFrame(const char *naam, const QString &leesnaam)
{
    auto *frame = Maak<QFrame>(naam, leesnaam);
    frame->setFrameShape(QFrame::StyledPanel);
    return frame;
}

void MainForm::MaakKnoppen()
{
    Frame4 = MaakFrame("Frame4", u"Raster Atelier"_s);
    LogoPic = MaakBeeld("LogoPic", u"Raster Atelier"_s, u"logo"_s, Frame4);
    Frame5 = MaakFrame("Frame5", u"Programma"_s);
    HelpKnop = MaakKnopMetTip("HelpKnop", u" Uitleg en Hulp "_s, u"knop-help"_s, Frame5);
    AboutKnop = MaakKnopMetTip("AboutKnop", u" Over de ontwerper "_s, u"knop-over"_s, Frame5);
    ExitKnop = MaakKnopMetTip("ExitKnop", u" Programma Stoppen "_s, u"knop-stop"_s, Frame5);

    Zet(Frame4, 13500, 6840, 4830, 2490);
    Zet(LogoPic, 120, 240, 4575, 2100);
    Zet(Frame5, 13500, 9390, 4830, 1020);
    Zet(HelpKnop, 120, 240);
    Zet(AboutKnop, 840, 240);
    Zet(ExitKnop, 4050, 240);
}

void MainForm::closeEvent(QCloseEvent *event)
{
    if (MagSluiten && !MagSluiten())
        event->ignore();
}

void MainForm::reject() {}

#include "board/MainForm.h"

#include "board/Algemeen.h"
#include "board/Soorten.h"
#include "platform/Kleur.h"
#include "platform/Klok.h"
#include "platform/Plaatjes.h"
#include "platform/Twips.h"

#include <QCloseEvent>
#include <QHeaderView>
#include <QLocale>

static MainForm *enige = nullptr;

MainForm &Main()
{
    Q_ASSERT(enige);
    return *enige;
}

static const QRgb PaneelKleur = qRgb(230, 230, 190);

MainForm::MainForm()
    : Form(QStringLiteral("Main"), QStringLiteral("Raster Atelier (16x19)"), 18600, 11340, PaneelKleur, true)
{
    enige = this;
    setWindowFlags(Qt::Window);
    setWindowIcon(Plaatjes::Pixmap(QStringLiteral("rasteratelier"), {64, 64}, 1));
    MaakBord();
    MaakLijst();
    MaakWoordPaneel();
    MaakKnoppen();
    MaakMenuBalk();
    MaakPopups();
    Verbind();
    PasOpScherm();
}

MainForm::~MainForm()
{
    enige = nullptr;
}

QFrame *MainForm::MaakFrame(const char *naam, const QString &leesnaam)
{
    auto *frame = Maak<QFrame>(naam, leesnaam, nullptr);
    frame->setFrameShape(QFrame::StyledPanel);
    return frame;
}

PictureBox *MainForm::MaakVerborgen(const char *naam, const QString &plaatje)
{
    auto *box = Maak<PictureBox>(naam, QString(), nullptr);
    box->AutoSize = true;
    box->hide();
    box->SetPicture(Plaatjes::Beeld(plaatje));
    return box;
}

static void StelLetterIn(PictureBox &box, const QString &naam, double punten)
{
    box.FontName = naam;
    box.FontSize = punten;
    box.FontBold = true;
}

void MainForm::MaakBord()
{
    Frame8 = MaakFrame("Frame8", QStringLiteral("Soort puzzel"));
    Label12 = MaakLabel("Label12", QStringLiteral("Soortpuzzel : Zweeds"), Frame8);
    Label1 = MaakLabel("Label1", QString());
    Pic = Maak<PictureBox>("Pic", QStringLiteral("Puzzelveld"), nullptr);
    PicR = Maak<PictureBox>("PicR", QStringLiteral("Rijnummers"), nullptr);
    PicO = Maak<PictureBox>("PicO", QStringLiteral("Kolomletters"), nullptr);
    PicGroot = Maak<PictureBox>("PicGroot", QString(), nullptr);
    PicVak = MaakVerborgen("PicVak", QStringLiteral("vak"));
    Vak1 = MaakVerborgen("Vak1", QStringLiteral("vak1"));
    Vak2 = MaakVerborgen("Vak2", QStringLiteral("vak2"));
    Shape1 = Maak<RectMark>("Shape1", QString(), Pic);
    Line1 = Maak<LineMark>("Line1", QString(), Pic);
    Label2 = MaakLabel("Label2", QStringLiteral(" Load Database "));
    Frame9 = MaakFrame("Frame9", QStringLiteral("Sudoku"));
    Frame1 = MaakFrame("Frame1", QStringLiteral("Statusbalk"));
    Label6 = MaakLabel("Label6", QStringLiteral("Coordinaten"), Frame1);
    KlokLabel = MaakLabel("KlokLabel", QStringLiteral("00:00"), Frame1);

    Zet(Frame8, 180, 90, 7815, 540);
    Zet(Label12, 90, 180);
    Zet(static_cast<QWidget *>(Label1), 180, 780, 7410, 8760);
    Zet(Pic, 270, 870, 7215, 8565);
    Zet(PicR, 7605, 780, 450, 8760);
    Zet(PicO, 180, 9555, 7410, 300);
    Zet(Label2, 2565, 3000, 2100, 900);
    Zet(Frame9, 180, 5400, 4275, 4410);
    Zet(Frame1, 180, 9855, 7815, 540);
    Zet(Label6, 120, 180);
    Zet(KlokLabel, 7020, 180);

    Label1->AutoSize = false;
    Label1->SetBackColor(RGB(150, 150, 150));
    Label2->SetFont(Lettertype(QStringLiteral("Arial"), 30, false));
    Label2->SetBackColor(RGB(230, 230, 0));
    Label2->AutoSize = true;
    Label2->SetCaption(Label2->Caption());
    Label2->hide();
    KlokLabel->setAlignment(Qt::AlignRight);
    PicGroot->hide();
    Frame9->hide();
    PicR->BackColor = PicO->BackColor = PaneelKleur;
    StelLetterIn(*Pic, QStringLiteral("Arial"), 8.25);
    StelLetterIn(*PicGroot, QStringLiteral("Arial Narrow"), 8.25);
    StelLetterIn(*PicR, QStringLiteral("Arial"), 9.75);
    StelLetterIn(*PicO, QStringLiteral("Arial"), 9.75);
    Shape1->BorderWidth = 2;
    Line1->BorderColor = RGB(255, 0, 0);
    Line1->BorderWidth = 2;
}

void MainForm::MaakWoordPaneel()
{
    List1 = Maak<ListBox>("List1", QStringLiteral("Gevonden woorden"), nullptr);
    Frame10 = MaakFrame("Frame10", QStringLiteral("Copytekst"));
    Label18 = MaakLabel("Label18", QString(), Frame10);
    CopyLabel = MaakLabel("CopyLabel", QString(), Frame10);
    Frame2 = MaakFrame("Frame2", QStringLiteral("Zoeken op woordlengte"));
    Label3 = MaakLabel("Label3", QStringLiteral("0 Woorden in lijst"), Frame2);
    Label16 = MaakLabel("Label16", QStringLiteral("Woordlengte (2)"), Frame2);
    Label15 = MaakLabel("Label15", QString(), Frame2);
    ScrolLengte = Maak<QScrollBar>("ScrolLengte", QStringLiteral("Woordlengte"), Frame2, Qt::Horizontal);
    OkKnop = Maak<ImageButton>("OkKnop", QStringLiteral("Start zoeken op woordlengte"), Frame2,
                               QStringLiteral("knop-zoeken"));
    Label17 = MaakLabel("Label17", QStringLiteral("Zoeken"), Frame2);
    Image1 = Maak<QLabel>("Image1", QString(), Frame2);
    Label9 = MaakLabel("Label9", QString(), Frame2);
    List2 = Maak<ListBox>("List2", QStringLiteral("Woorden van de lijst"), nullptr);
    Frame6 = MaakFrame("Frame6", QStringLiteral("Lengte woorden"));
    Combo1 = Maak<QComboBox>("Combo1", QStringLiteral("Lengte woorden"), Frame6);
    Label7 = MaakLabel("Label7", QStringLiteral("Lengte woorden"), Frame6);
    Label8 = MaakLabel("Label8", QStringLiteral("0"), Frame6);
    Frame3 = MaakFrame("Frame3", QStringLiteral("Woordlijsten"));
    List3 = Maak<ListBox>("List3", QStringLiteral("Woordlijsten"), Frame3);
    Label4 = MaakLabel("Label4", QStringLiteral("Woordlijsten"), Frame3);
    Label5 = MaakLabel("Label5",
                       QStringLiteral("Klik op de button 'Load' om de woordlijsten te openen, "
                                      "selecteer vervolgens één van de woorden uit de lijst voor de bijbehorende "
                                      "omschrijvingen.\n\n"
                                      "Onder het menu-item 'Tools' kun je deze woordlijsten nog bewerken en / of "
                                      "uitbreiden."),
                       Frame3);
    LoadKnop = Maak<ImageButton>("LoadKnop", QStringLiteral("Load"), Frame3, QStringLiteral("knop-laden"));

    Zet(List1, 8160, 6285, 2910, 4110);
    Zet(Frame10, 11230, 6195, 2100, 600);
    Zet(Label18, 60, 180, 1965, 345);
    Zet(CopyLabel, 135, 240);
    Zet(Frame2, 11230, 6840, 2100, 3570);
    Zet(Label3, 120, 210);
    Zet(Label16, 150, 780);
    Zet(Label15, 135, 1050, 1800, 330);
    Zet(ScrolLengte, 165, 1080, 1740, 270);
    Zet(OkKnop, 135, 1500);
    Zet(Label17, 780, 1560);
    Zet(Image1, 450, 2100, 1080, 1080);
    Zet(Label9, 120, 3240);
    Zet(List2, 13500, 195, 4815, 2535);
    Zet(Frame6, 13500, 2730, 4830, 750);
    Zet(Combo1, 120, 240, 1200, 315);
    Zet(Label7, 1410, 285);
    Zet(Label8, 4560, 285);
    Zet(Frame3, 13500, 3495, 4830, 3300);
    Zet(List3, 2580, 240, 2100, 2910);
    Zet(Label4, 180, 240);
    Zet(Label5, 180, 690, 2190, 2100);
    Zet(LoadKnop, 1560, 2805, 840, 330);
    VulWoordPaneel();
}

void MainForm::VulWoordPaneel()
{
    for (const int lengte : {-1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, -1})
        Combo1->addItem(lengte < 0 ? QStringLiteral("Alles") : QString::number(lengte));
    ScrolLengte->setRange(2, 19);
    Image1->setPixmap(Plaatjes::Pixmap(QStringLiteral("woordenboek"), Image1->size(), devicePixelRatioF()));
    Label5->setWordWrap(true);
    Label5->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    Label8->setAlignment(Qt::AlignRight);
    CopyLabel->SetForeColor(RGB(0, 0, 0));
    CopyLabel->setToolTip(QStringLiteral(" Copytekst "));
    OkKnop->setToolTip(QStringLiteral(" Start zoeken op woordlengte "));
    Label15->SetBackColor(RGB(150, 180, 180));
    Label18->SetBackColor(RGB(150, 180, 180));
    Kleur(List1, RGB(180, 180, 150), RGB(0, 0, 0));
    Kleur(List2, RGB(180, 180, 150), RGB(0, 0, 0));
    Kleur(List3, RGB(220, 220, 220), RGB(90, 90, 90));
    Kleur(Combo1, RGB(250, 250, 250), RGB(0, 0, 0));
    // The word panel has no search and no lists yet.
    OkKnop->setEnabled(false);
    LoadKnop->setEnabled(false);
}

void MainForm::MaakKnoppen()
{
    Frame4 = MaakFrame("Frame4", QStringLiteral("Raster Atelier"));
    LogoPic = Maak<QLabel>("LogoPic", QStringLiteral("Raster Atelier"), Frame4);
    Frame5 = MaakFrame("Frame5", QStringLiteral("Programma"));
    HelpKnop = Maak<ImageButton>("HelpKnop", QStringLiteral("Uitleg en Hulp"), Frame5, QStringLiteral("knop-help"));
    AboutKnop =
        Maak<ImageButton>("AboutKnop", QStringLiteral("Over de ontwerper"), Frame5, QStringLiteral("knop-over"));
    ExitKnop = Maak<ImageButton>("ExitKnop", QStringLiteral("Programma Stoppen"), Frame5, QStringLiteral("knop-stop"));

    Zet(Frame4, 13500, 6840, 4830, 2490);
    Zet(LogoPic, 120, 240, 4575, 2100);
    Zet(Frame5, 13500, 9390, 4830, 1020);
    Zet(HelpKnop, 120, 240);
    Zet(AboutKnop, 840, 240);
    Zet(ExitKnop, 4050, 240);

    LogoPic->setPixmap(Plaatjes::Pixmap(QStringLiteral("logo"), LogoPic->size(), devicePixelRatioF()));
    HelpKnop->setToolTip(QStringLiteral(" Uitleg en Hulp "));
    AboutKnop->setToolTip(QStringLiteral(" Over de ontwerper "));
    ExitKnop->setToolTip(QStringLiteral(" Programma Stoppen "));
}

void MainForm::Verbind()
{
    Timer1 = new QTimer(this);
    Timer1->setObjectName(QStringLiteral("Timer1"));
    Timer1->start(1000);
    bij(Timer1, &QTimer::timeout, [this] { Timer1_Timer(); });
    bij(Pic, &PictureBox::MouseMove, [this](double x, double y) { Pic_MouseMove(x, y); });
    bij(Pic, &PictureBox::MouseDown, [this](Qt::MouseButton knop, QPoint plaats) { Pic_MouseDown(knop, plaats); });
    bij(ListView1, &QTreeWidget::itemClicked, [this] { ListView1_ItemClick(); });
    bij(ListView1, &QTreeWidget::itemSelectionChanged, [this] { ListView1_ItemClick(); });
    bij(DelKnop, &ImageButton::clicked, [this] { DelKnop_Click(); });
}

void MainForm::Timer1_Timer()
{
    const QDateTime nu = Klok::Huidig().Nu();
    KlokLabel->SetCaption(QLocale::system().toString(nu.date(), QLocale::ShortFormat) + QStringLiteral(" / ") +
                          nu.time().toString(QStringLiteral("h:mm:ss")));
}

void MainForm::ToonSoort()
{
    if (const Soort *soort = SoortVan(PuzzelType))
        Label12->SetCaption(soort->Opschrift);
}

void MainForm::ToonSoortDelen()
{
    const Soort *soort = SoortVan(PuzzelType);
    Frame9->setVisible(soort && soort->MetFrame9);
    EditDeleteRaster->setEnabled(soort && soort->MetVerwijderen);
    EditDeleteLetters->setEnabled(soort && soort->MetVerwijderen);
}

void MainForm::closeEvent(QCloseEvent *event)
{
    if (MagSluiten && !MagSluiten())
        event->ignore();
    else
        event->accept();
}

void MainForm::reject() {}

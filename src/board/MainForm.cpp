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

using namespace Qt::StringLiterals;

static MainForm *enige = nullptr;

MainForm &Main()
{
    Q_ASSERT(enige);
    return *enige;
}

static const QRgb PaneelKleur = qRgb(230, 230, 190);

MainForm::MainForm() : Form(u"Main"_s, u"Raster Atelier (16x19)"_s, 18600, 11340, PaneelKleur, true)
{
    enige = this;
    setWindowFlags(Qt::Window);
    setWindowIcon(Plaatjes::Pixmap(u"rasteratelier"_s, {64, 64}, 1));
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
    Frame8 = MaakFrame("Frame8", u"Soort puzzel"_s);
    Label12 = MaakLabel("Label12", u"Soortpuzzel : Zweeds"_s, Frame8);
    Label1 = MaakLabel("Label1", QString());
    Pic = Maak<PictureBox>("Pic", u"Puzzelveld"_s, nullptr);
    PicR = Maak<PictureBox>("PicR", u"Rijnummers"_s, nullptr);
    PicO = Maak<PictureBox>("PicO", u"Kolomletters"_s, nullptr);
    PicGroot = Maak<PictureBox>("PicGroot", QString(), nullptr);
    PicVak = MaakVerborgen("PicVak", u"vak"_s);
    Vak1 = MaakVerborgen("Vak1", u"vak1"_s);
    Vak2 = MaakVerborgen("Vak2", u"vak2"_s);
    Shape1 = Maak<RectMark>("Shape1", QString(), Pic);
    Line1 = Maak<LineMark>("Line1", QString(), Pic);
    Label2 = MaakLabel("Label2", u" Load Database "_s);
    Frame9 = MaakFrame("Frame9", u"Sudoku"_s);
    Frame1 = MaakFrame("Frame1", u"Statusbalk"_s);
    Label6 = MaakLabel("Label6", u"Coordinaten"_s, Frame1);
    KlokLabel = MaakLabel("KlokLabel", u"00:00"_s, Frame1);

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
    Label2->SetFont(Lettertype(u"Arial"_s, 30, false));
    Label2->SetBackColor(RGB(230, 230, 0));
    Label2->AutoSize = true;
    Label2->SetCaption(Label2->Caption());
    Label2->hide();
    KlokLabel->setAlignment(Qt::AlignRight);
    PicGroot->hide();
    Frame9->hide();
    PicR->BackColor = PicO->BackColor = PaneelKleur;
    StelLetterIn(*Pic, u"Arial"_s, 8.25);
    StelLetterIn(*PicGroot, u"Arial Narrow"_s, 8.25);
    StelLetterIn(*PicR, u"Arial"_s, 9.75);
    StelLetterIn(*PicO, u"Arial"_s, 9.75);
    Shape1->BorderWidth = 2;
    Line1->BorderColor = RGB(255, 0, 0);
    Line1->BorderWidth = 2;
}

void MainForm::MaakWoordPaneel()
{
    List1 = Maak<ListBox>("List1", u"Gevonden woorden"_s, nullptr);
    Frame10 = MaakFrame("Frame10", u"Copytekst"_s);
    Label18 = MaakLabel("Label18", QString(), Frame10);
    CopyLabel = MaakLabel("CopyLabel", QString(), Frame10);
    Frame2 = MaakFrame("Frame2", u"Zoeken op woordlengte"_s);
    Label3 = MaakLabel("Label3", u"0 Woorden in lijst"_s, Frame2);
    Label16 = MaakLabel("Label16", u"Woordlengte (2)"_s, Frame2);
    Label15 = MaakLabel("Label15", QString(), Frame2);
    ScrolLengte = Maak<QScrollBar>("ScrolLengte", u"Woordlengte"_s, Frame2, Qt::Horizontal);
    OkKnop = Maak<ImageButton>("OkKnop", u"Start zoeken op woordlengte"_s, Frame2, u"knop-zoeken"_s);
    Label17 = MaakLabel("Label17", u"Zoeken"_s, Frame2);
    Image1 = Maak<QLabel>("Image1", QString(), Frame2);
    Label9 = MaakLabel("Label9", QString(), Frame2);
    List2 = Maak<ListBox>("List2", u"Woorden van de lijst"_s, nullptr);
    Frame6 = MaakFrame("Frame6", u"Lengte woorden"_s);
    Combo1 = Maak<QComboBox>("Combo1", u"Lengte woorden"_s, Frame6);
    Label7 = MaakLabel("Label7", u"Lengte woorden"_s, Frame6);
    Label8 = MaakLabel("Label8", u"0"_s, Frame6);
    Frame3 = MaakFrame("Frame3", u"Woordlijsten"_s);
    List3 = Maak<ListBox>("List3", u"Woordlijsten"_s, Frame3);
    Label4 = MaakLabel("Label4", u"Woordlijsten"_s, Frame3);
    Label5 = MaakLabel("Label5",
                       u"Klik op de button 'Load' om de woordlijsten te openen, "
                       "selecteer vervolgens één van de woorden uit de lijst voor de bijbehorende "
                       "omschrijvingen.\n\n"
                       "Onder het menu-item 'Tools' kun je deze woordlijsten nog bewerken en / of "
                       "uitbreiden."_s,
                       Frame3);
    LoadKnop = Maak<ImageButton>("LoadKnop", u"Load"_s, Frame3, u"knop-laden"_s);

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
        Combo1->addItem(lengte < 0 ? u"Alles"_s : QString::number(lengte));
    ScrolLengte->setRange(2, 19);
    Image1->setPixmap(Plaatjes::Pixmap(u"woordenboek"_s, Image1->size(), devicePixelRatioF()));
    Label5->setWordWrap(true);
    Label5->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    Label8->setAlignment(Qt::AlignRight);
    CopyLabel->SetForeColor(RGB(0, 0, 0));
    CopyLabel->setToolTip(u" Copytekst "_s);
    OkKnop->setToolTip(u" Start zoeken op woordlengte "_s);
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
    Frame4 = MaakFrame("Frame4", u"Raster Atelier"_s);
    LogoPic = Maak<QLabel>("LogoPic", u"Raster Atelier"_s, Frame4);
    Frame5 = MaakFrame("Frame5", u"Programma"_s);
    HelpKnop = Maak<ImageButton>("HelpKnop", u"Uitleg en Hulp"_s, Frame5, u"knop-help"_s);
    AboutKnop = Maak<ImageButton>("AboutKnop", u"Over de ontwerper"_s, Frame5, u"knop-over"_s);
    ExitKnop = Maak<ImageButton>("ExitKnop", u"Programma Stoppen"_s, Frame5, u"knop-stop"_s);

    Zet(Frame4, 13500, 6840, 4830, 2490);
    Zet(LogoPic, 120, 240, 4575, 2100);
    Zet(Frame5, 13500, 9390, 4830, 1020);
    Zet(HelpKnop, 120, 240);
    Zet(AboutKnop, 840, 240);
    Zet(ExitKnop, 4050, 240);

    LogoPic->setPixmap(Plaatjes::Pixmap(u"logo"_s, LogoPic->size(), devicePixelRatioF()));
    HelpKnop->setToolTip(u" Uitleg en Hulp "_s);
    AboutKnop->setToolTip(u" Over de ontwerper "_s);
    ExitKnop->setToolTip(u" Programma Stoppen "_s);
}

void MainForm::Verbind()
{
    Timer1 = new QTimer(this);
    Timer1->setObjectName(u"Timer1"_s);
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
    KlokLabel->SetCaption(QLocale::system().toString(nu.date(), QLocale::ShortFormat) + u" / "_s +
                          nu.time().toString(u"h:mm:ss"_s));
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

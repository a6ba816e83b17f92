#include "editors/VakForm.h"

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "board/TekstRegels.h"
#include "editors/VakSoorten.h"
#include "platform/Getallen.h"
#include "platform/Kleur.h"
#include "platform/Plaatjes.h"
#include "platform/Teksten.h"
#include "platform/Twips.h"

using namespace Qt::StringLiterals;

static constexpr QRgb Achtergrond = qRgb(230, 250, 190);

VakForm::VakForm()
    : Form(u"VakForm"_s, u"Informatievakje Plaatsen op "_s + Main().Label6->Caption(), 6900, 3480, Achtergrond)
{
    Pic = Maak<PictureBox>("Pic", u"Voorbeeld van het vakje"_s);
    Label3 = MaakLabel("Label3", QString(), Pic);
    ImgR = Maak<PictureBox>("ImgR", u"Pijl naar rechts"_s);
    ImgO = Maak<PictureBox>("ImgO", u"Pijl omlaag"_s);
    Text1 = Maak<TextBox>("Text1", u"Omschrijving"_s);
    Label1 = MaakLabel("Label1", u"Omschrijving"_s);
    Label2 = MaakLabel("Label2", u"1"_s);
    Label5 = MaakUitleg("Label5", u"Maak een keus d.m.v. de scrolbalk voor een van de 8 informatievakjes, typ dan de "
                                  "omschrijving in de tekstvelden en klik daarna op de button 'Ok' om het infovakje "
                                  "op het puzzelveld te plaatsen."_s);
    Label6 = MaakLabel("Label6", QString());
    HScroll1 = MaakSchuif("HScroll1", u"Soort Vakje"_s, 1, 8);
    Label7 = MaakLabel("Label7", u"Soort Vakje"_s);
    CancelKnop = MaakCancelKnop();
    OkKnop = MaakOkKnop();
    TextLabel = MaakLabel("TextLabel", QString());

    Zet(Pic, 240, 240, 1845, 1845);
    Zet(Label3, 45, 45, 1755, 1755);
    Zet(ImgR, 2085, 960, PijlMaat, PijlMaat);
    Zet(ImgO, 960, 2085, PijlMaat, PijlMaat);
    Zet(Text1, 2700, 240, 1845, 1845);
    Zet(Label1, 2730, 2100);
    Zet(Label2, 2280, 1500);
    Zet(Label5, 4770, 270, 1800, 1800);
    Zet(Label6, 240, 2490, 1860, 330);
    Zet(HScroll1, 270, 2520, 1800, 270);
    Zet(Label7, 2160, 2535);
    Zet(CancelKnop, 4590, 2430);
    Zet(OkKnop, 5595, 2430);

    Vul();

    bij(HScroll1, &QScrollBar::valueChanged, &VakForm::HScroll1_Change);
    bij(Text1, &TextBox::textChanged, &VakForm::Text1_Change);
    bij(CancelKnop, &ImageButton::clicked, &VakForm::CancelKnop_Click);
    bij(OkKnop, &ImageButton::clicked, &VakForm::OkKnop_Click);
}

void VakForm::Vul()
{
    Image1 = Plaatjes::Beeld(u"vak"_s);
    BackPijlen1 = Plaatjes::Beeld(u"pijlen"_s);
    BackPijlen2 = BackPijlen1;
    Pic->FontName = u"Arial Narrow"_s;
    Label3->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    Label3->setWordWrap(true);
    Label3->SetFont(Lettertype(u"Arial"_s, 8.25, true));
    ImgR->BackColor = ImgO->BackColor = Achtergrond;
    Text1->setFont(Lettertype(u"Arial"_s, 12, true));
    Text1->MaxLength = 10000; // laid out in some 40 ms without a blank, a longer one in the square of its length
    Kleur(Text1, RGB(30, 0, 0), RGB(230, 230, 230));
    Label2->SetFont(Lettertype(u"Arial"_s, 8.25, true));
    Label6->SetBackColor(RGB(150, 180, 180));
    TextLabel->SetFont(Lettertype(u"Arial"_s, 13, true));
    TextLabel->hide(); // its only use is to measure a line
    Text1->setFocus();
    VakjeTonen(1);
}

void VakForm::HScroll1_Change()
{
    VakjeTonen(static_cast<qint16>(HScroll1->value()));
}

void VakForm::VakjeTonen(qint16 soort)
{
    ImgR->hide();
    ImgO->hide();
    Pic->SetPicture(Image1);   // wipes the divider of an earlier kind
    Text1->SetText(QString()); // and with it the preview

    if (const VakSoort *vak = VakSoortVan(soort)) {
        if (vak->Gesplitst())
            Pic->BoxFull(0, 885, 1845, 915, RGB(0, 0, 0));
        const auto toon = [this](PictureBox &box, const PijlPlaats &pijl) {
            box.PaintPicture(BackPijlen2, QRectF(0, 0, PijlMaat, PijlMaat), pijl.Deel());
            box.show();
        };
        if (vak->Rechts) {
            ImgR->move(ImgR->x(), Twips::NaarPixels(vak->Rechts->Voorbeeld));
            toon(*ImgR, *vak->Rechts);
        }
        if (vak->Omlaag) {
            ImgO->move(Twips::NaarPixels(vak->Omlaag->Voorbeeld), ImgO->y());
            toon(*ImgO, *vak->Omlaag);
        }
    }
    Label2->SetCaption(QString::number(soort));
    PijlSoort = static_cast<quint8>(soort);
}

void VakForm::Text1_Change()
{
    Label3->SetFont(Lettertype(u"Arial"_s, 12, true));
    Label3->SetCaption(Text1->Text().remove(u'\r'));
    QStringList regels;
    Label1->SetCaption(u"Regel %1"_s.arg(TekstRegels(*Text1, regels)));
}

void VakForm::CancelKnop_Click()
{
    Sluit(CancelKnop);
}

// ANDed with what is there, so that the arrows lie over the neighbouring cells without wiping them.
void VakForm::PlakTegel()
{
    constexpr int TileSize = 645;
    // By KleurVakjes; the first is that of the drawing. The settings window shows a sample of each.
    static const std::array<QLatin1String, 3> Kleuren{"#e5f8c2"_L1, "#c0e5e0"_L1, "#f49a95"_L1};
    const int tegel = (Label2->Caption().toInt() - 1) * TileSize;
    if (KleurVakjes < 1 || KleurVakjes > Kleuren.size())
        return;
    const QImage vakjes = Plaatjes::Beeld(u"vakjes"_s, Kleuren[0], Kleuren[KleurVakjes - 1u]);
    Main().Pic->PaintPicture(vakjes, QRectF(CurCol * VakMaat, CurRow * VakMaat, TileSize, TileSize),
                             QRectF(tegel, 0, TileSize, TileSize), PlakWijze::En);
}

void VakForm::PlakPijlen(int x0, int y0)
{
    const VakSoort *vak = VakSoortVan(PijlSoort);
    if (!vak)
        return;
    for (const auto &pijl : {vak->Rechts, vak->Omlaag})
        if (pijl)
            Main().PicGroot->PaintPicture(BackPijlen1, QRectF(x0 + pijl->X, y0 + pijl->Y, PijlMaat, PijlMaat),
                                          pijl->Deel());
    if (vak->Gesplitst())
        Main().PicGroot->BoxFull(x0, y0 + 870, x0 + 1770, y0 + 900, RGB(0, 0, 0));
}

void VakForm::OkKnop_Click()
{
    OkKnop->Druk();
    const int x0 = CurCol * VakMaatGroot + 45;
    qint32 y0 = CurRow * VakMaatGroot + 45;
    const QRgb kleur = RGB(OrgineelRood, OrgineelGroen, OrgineelBlauw); // may fail: before anything is painted
    PlakTegel();
    PictureBox &groot = *Main().PicGroot;
    groot.BoxFull(x0, y0, x0 + 1740, y0 + 1740, kleur);
    PlakPijlen(x0, y0);
    groot.ZetLetter({.Naam = u"Arial Narrow"_s, .Punten = 13, .Vet = true, .Kleur = RGB(0, 0, 0)});
    TekstPlaatsen(groot, x0, y0);
    PuzzelGewijzigd = true;
    Unload();
}

void VakForm::TekstPlaatsen(PictureBox &doel, double X, qint32 &Y)
{
    QStringList regels;
    const int n = TekstRegels(*Text1, regels);
    if (PijlSoort > 4 && n > 4)
        Y -= 150;
    for (int i = 0; i <= n; ++i) {
        TextLabel->SetCaption(Hoofdletters(regels[i]));
        const double w = Twips::VanPixels(TextLabel->width());
        // The width is that of Arial, the print is Arial Narrow: the 75 goes with that difference.
        const auto midden = static_cast<double>(Getallen::RondEven((1800 - w) / 2)); // rounded by itself
        doel.PrintOp(X + midden + 75, Y, TextLabel->Caption());
        Y += 300;
    }
}

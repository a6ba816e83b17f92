#include "wordlib/MissingForm.h"

#include "board/Kleuren.h"
#include "board/MainForm.h"
#include "board/WoordPaden.h"
#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/Kleur.h"
#include "platform/Screen.h"
#include "platform/ScrollBar.h"
#include "wordlib/Ontbrekend.h"

#include <QMenu>

using namespace Qt::StringLiterals;

// The values of a letter's bar: those between are the letters "A" to "Z" by their codes.
constexpr int Onbekend = 64;
constexpr int LangeIJ = 91; // comes behind the Z

constexpr int MeesteLetters = 19;

constexpr QRgb KleurVrij = RGB(230, 240, 250);
constexpr QRgb KleurInGebruik = RGB(200, 200, 200);

MissingForm::MissingForm() : Form(u"MissingForm"_s, u"Ontbrekende Letters"_s, 8145, 5130, Kleuren::Paneel, true)
{
    List1 = Maak<ListBox>("List1", u"Gevonden woorden"_s);
    Label8 = MaakLabel("Label8", u"0 Woorden gevonden"_s);
    Label6 = MaakLabel("Label6", QString());
    Label2 = MaakLabel("Label2", QString());
    MaakLetters();
    Label3 = MaakLabel("Label3", QString());
    HScroll1 = MaakSchuif("HScroll1", u"Woordlengte"_s, 0, MeesteLetters);
    Label4 = MaakLabel("Label4", u"Woordlengte : "_s);
    Label5 = MaakLabel("Label5", u"0 letters"_s);
    OkKnop = MaakOkKnop();
    Label7 = MaakLabel("Label7", u"Start zoeken"_s);
    CancelKnop = MaakCancelKnop();
    ExportKnop = MaakKnopMetTip("ExportKnop", u" Woordenlijst exporteren naar hoofdscherm "_s, u"knop-export"_s);
    HelpPic = Maak<PictureBox>("HelpPic", u"Uitleg Ontbrekende letters"_s);
    QMenu *help = MaakMenu("Help", u"Help"_s);
    HelpUitleg = MaakItem(*help, "HelpUitleg", u"Uitleg Ontbrekende letters"_s);
    PasOpScherm();

    Zet(List1, 150, 180, 2400, 3840);
    Zet(Label8, 150, 4070);
    Zet(Label6, 2700, 180, 5175, 345);
    Zet(Label2, 2700, 660, 5190, 2100);
    Zet(Label3, 2700, 2880, 5190, 360);
    Zet(HScroll1, 2730, 2910, 5130, 300);
    Zet(Label4, 2700, 3270);
    Zet(Label5, 3945, 3270);
    Zet(OkKnop, 2700, 3660, 840, 330);
    Zet(Label7, 3750, 3720);
    Zet(CancelKnop, 6060, 3840);
    Zet(ExportKnop, 7065, 3840, 810, 360);
    Zet(HelpPic, 2700, 180, 5205, 3840);

    Kleur(List1, RGB(30, 0, 0), RGB(230, 230, 230));
    for (Label *plaat : {Label2, Label3, Label6})
        plaat->SetBackColor(RGB(150, 180, 180));
    HelpUitleg->setCheckable(true);
    TekenHelp();

    bij(HScroll1, &QScrollBar::valueChanged, &MissingForm::HScroll1_Change);
    bij(OkKnop, &ImageButton::clicked, &MissingForm::OkKnop_Click);
    bij(ExportKnop, &ImageButton::clicked, &MissingForm::ExportKnop_Click);
    bij(CancelKnop, &ImageButton::clicked, &MissingForm::CancelKnop_Click);
    bij(HelpUitleg, &QAction::triggered, &MissingForm::HelpUitleg_Click);
}

void MissingForm::MaakLetters()
{
    for (int i = 1; i <= MeesteLetters; ++i) {
        const int links = 2730 + 270 * (i - 1);
        const QString nummer = QString::number(i);
        auto *schuif = Maak<ScrollBar>("", u"Letter "_s + nummer, nullptr, Qt::Vertical);
        schuif->setObjectName(u"VScroll("_s + nummer + u')');
        schuif->setRange(Onbekend, LangeIJ);
        schuif->setPageStep(1);
        schuif->setEnabled(false);
        Zet(schuif, links, 690, 270, 2040);

        Label *letter = MaakLabel("", u"-"_s);
        letter->setObjectName(u"Label1("_s + nummer + u')');
        letter->SetFont(Lettertype(u"Arial"_s, 13, false));
        letter->SetBackColor(KleurVrij);
        letter->SetForeColor(RGB(30, 30, 30));
        letter->setAlignment(Qt::AlignCenter);
        Zet(letter, links, 225, 255, 270);

        VScroll.at(static_cast<size_t>(i)) = schuif;
        Label1.at(static_cast<size_t>(i)) = letter;
        bij(schuif, &QScrollBar::valueChanged, [this, i] { VScroll_Change(i); });
    }
}

void MissingForm::TekenHelp()
{
    struct Regel
    {
        double X, Y;
        QString Tekst;
    };
    const QList<Regel> regels{{90, 450, u"1. Bepaal de lengte van het te zoeken woord d.m.v. de"_s},
                              {330, 690, u"horizontale scrollbalk te verschuiven."_s},
                              {90, 930, u"2. Verschuif d.m.v. de 19 vertikale scrollbalkjes de"_s},
                              {330, 1150, u"letters die bekend zijn in het te zoeken woord."_s},
                              {90, 1390, u"3. b.v. in het te zoeken woord van 9 letters zijn de"_s},
                              {330, 1630, u"volgende letters bekend --A---EN- op deze plaatsen."_s},
                              {90, 1870, u"4. Klik op de 'Ok' button om het zoeken te starten,"_s},
                              {330, 2110, u"dit kan naargelang de woordlengte even duren."_s},
                              {90, 2350, u"5. In de linkerlijst komen nu de puzzelwoorden waarvan"_s},
                              {330, 2590, u"de letters op de juiste plaats voorkomen."_s},
                              {90, 2830, u"6. Klik op de button 'Export' om de gevonden woorden"_s},
                              {330, 3050, u"naar het hoofdscherm te copyeren."_s}};
    HelpPic->BackColor = RGB(0, 50, 0);
    HelpPic->ZetLetter({.Vet = true, .Kleur = RGB(250, 250, 100)});
    HelpPic->PrintOp(90, 90, u"Uitleg Ontbrekende letters"_s);
    HelpPic->ZetLetter({.Vet = false, .Kleur = RGB(200, 200, 200)});
    for (const Regel &regel : regels)
        HelpPic->PrintOp(regel.X, regel.Y, regel.Tekst);
    HelpPic->ZetLetter({.Kleur = RGB(250, 250, 100)});
    HelpPic->PrintOp(90, 3420, u"Klik nogmaals op 'Help' om dit scherm weer te verlaten."_s);
    HelpPic->hide();
}

// Length 0 leaves all letters but the first as they are; wanted so.
void MissingForm::HScroll1_Change()
{
    const int lengte = HScroll1->value();
    Label5->SetCaption(u"%1 letters"_s.arg(lengte));
    if (lengte == 0) {
        VScroll[1]->setEnabled(false);
        Label1[1]->SetBackColor(KleurVrij);
        return;
    }
    for (size_t i = 1; i < VScroll.size(); ++i) {
        const bool inGebruik = i <= static_cast<size_t>(lengte);
        VScroll[i]->setEnabled(inGebruik);
        Label1[i]->SetBackColor(inGebruik ? KleurInGebruik : KleurVrij);
        if (!inGebruik)
            VScroll[i]->setValue(Onbekend); // and its letter with it
    }
}

void MissingForm::VScroll_Change(int index)
{
    const int waarde = VScroll.at(static_cast<size_t>(index))->value();
    QString letter = QChar(waarde);
    if (waarde == LangeIJ)
        letter = u"IJ"_s;
    if (waarde == Onbekend)
        letter = u"-"_s;
    Label1.at(static_cast<size_t>(index))->SetCaption(letter);
}

void MissingForm::OkKnop_Click()
{
    OkKnop->Druk();
    const int lengte = HScroll1->value();
    if (lengte == 0)
        return;
    QString patroon;
    for (size_t i = 1; i <= static_cast<size_t>(lengte); ++i)
        patroon += Label1[i]->Caption();
    const Screen::Bezig bezig;
    Wacht(0);
    List1->Clear();
    QStringList woorden;
    ZoekOntbrekende(Files::Lees(DatabasePad()), Files::NaarBytes(patroon), lengte,
                    [&](const QByteArray &woord) { woorden += Files::NaarTekst(woord); });
    List1->SetItems(woorden);
    Label8->SetCaption(u"%1 Woorden gevonden"_s.arg(List1->ListCount()));
}

void MissingForm::ExportKnop_Click()
{
    ExportKnop->Druk();
    const Screen::Bezig bezig;
    QStringList woorden = List1->Items();
    woorden.removeIf([](const QString &woord) { return woord.size() > 20; });
    Main().GeefWoorden(woorden);
    Unload();
}

void MissingForm::CancelKnop_Click()
{
    Sluit(CancelKnop);
}

void MissingForm::HelpUitleg_Click()
{
    const bool toon = HelpPic->isHidden();
    HelpPic->setVisible(toon);
    HelpUitleg->setChecked(toon);
    CancelKnop->setVisible(!toon);
    ExportKnop->setVisible(!toon);
}

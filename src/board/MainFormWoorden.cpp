#include "board/Algemeen.h"
#include "board/LangeIJ.h"
#include "board/MainForm.h"
#include "board/WoordPaden.h"
#include "board/Woordlijst.h"
#include "platform/Files.h"
#include "platform/Fout.h"
#include "platform/Kleur.h"
#include "platform/Screen.h"
#include "platform/Teksten.h"

using namespace Qt::StringLiterals;

// The word panel: words of the database by their length, and the lists of words.

void MainForm::MaakWoordPaneel()
{
    MaakDatabaseDeel();
    MaakWoordlijstDeel();
}

void MainForm::MaakDatabaseDeel()
{
    List1 = Maak<ListBox>("List1", u"Gevonden woorden"_s);
    Frame10 = MaakFrame("Frame10", u"Copytekst"_s);
    Label18 = MaakLabel("Label18", QString(), Frame10);
    CopyLabel = MaakLabel("CopyLabel", QString(), Frame10);
    Frame2 = MaakFrame("Frame2", u"Zoeken op woordlengte"_s);
    Label3 = MaakLabel("Label3", u"0 Woorden in lijst"_s, Frame2);
    Label16 = MaakLabel("Label16", u"Woordlengte (2)"_s, Frame2);
    Label15 = MaakLabel("Label15", QString(), Frame2);
    ScrolLengte = MaakSchuif("ScrolLengte", u"Woordlengte"_s, 2, 19, Frame2);
    OkKnop = MaakKnopMetTip("OkKnop", u" Start zoeken op woordlengte "_s, u"knop-zoeken"_s, Frame2);
    Label17 = MaakLabel("Label17", u"Zoeken"_s, Frame2);
    Image1 = MaakBeeld("Image1", QString(), u"woordenboek"_s, Frame2);
    Label9 = MaakLabel("Label9", QString(), Frame2);

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

    Kleur(List1, RGB(180, 180, 150), RGB(0, 0, 0));
    Label15->SetBackColor(RGB(150, 180, 180));
    Label18->SetBackColor(RGB(150, 180, 180));
    CopyLabel->SetForeColor(RGB(0, 0, 0));
    CopyLabel->setToolTip(u" Copytekst "_s);

    bij(ScrolLengte, &QScrollBar::valueChanged, &MainForm::ScrolLengte_Change);
    bij(OkKnop, &ImageButton::clicked, &MainForm::OkKnop_Click);
    bij(List1, &ListBox::Click, &MainForm::List1_Click);
}

void MainForm::MaakWoordlijstDeel()
{
    List2 = Maak<ListBox>("List2", u"Woorden van de lijst"_s);
    Frame6 = MaakFrame("Frame6", u"Lengte woorden"_s);
    Combo1 = Maak<QComboBox>("Combo1", u"Lengte woorden"_s, Frame6);
    Label7 = MaakLabel("Label7", u"Lengte woorden"_s, Frame6);
    Label8 = MaakLabel("Label8", u"0"_s, Frame6);
    Frame3 = MaakFrame("Frame3", u"Woordlijsten"_s);
    List3 = Maak<ListBox>("List3", u"Woordlijsten"_s, Frame3);
    Label4 = MaakLabel("Label4", u"Woordlijsten"_s, Frame3);
    Label5 = MaakUitleg("Label5",
                        u"Klik op de button 'Load' om de woordlijsten te openen, "
                        "selecteer vervolgens één van de woorden uit de lijst voor de bijbehorende "
                        "omschrijvingen.\n\n"
                        "Onder het menu-item 'Tools' kun je deze woordlijsten nog bewerken en / of uitbreiden."_s,
                        Frame3);
    LoadKnop = MaakKnop("LoadKnop", u"Load"_s, u"knop-laden"_s, Frame3);

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

    Kleur(List2, RGB(180, 180, 150), RGB(0, 0, 0));
    Kleur(List3, RGB(220, 220, 220), RGB(90, 90, 90));
    Kleur(Combo1, RGB(250, 250, 250), RGB(0, 0, 0));
    Combo1->addItem(u"Alles"_s);
    for (int lengte = 2; lengte <= 20; ++lengte)
        Combo1->addItem(QString::number(lengte));
    Combo1->addItem(u"Alles"_s);          // a second time, wanted so
    Label8->setAlignment(Qt::AlignRight); // its texts would be cut off on the other side

    bij(LoadKnop, &ImageButton::clicked, &MainForm::LoadKnop_Click);
    bij(List2, &ListBox::Click, &MainForm::List2_Click);
    bij(List3, &ListBox::Click, &MainForm::List3_Click);
}

void MainForm::ScrolLengte_Change()
{
    Label16->SetCaption(u"Woordlengte (%1)"_s.arg(ScrolLengte->value()));
}

static QString WoordenGevonden(const ListBox &lijst)
{
    return QString::number(lijst.ListCount()) + u" Woorden gevonden"_s;
}

void MainForm::OkKnop_Click()
{
    OkKnop->Druk();
    const bool gevonden = negeer([this] {
        const Screen::Bezig bezig;
        List1->Clear();
        Wachten(0);
        List1->SetItems(WoordenVanLengte(Files::Lees(DatabasePad()), ScrolLengte->value()));
    });
    if (gevonden)
        Label3->SetCaption(WoordenGevonden(*List1));
    else
        MeldGeenDatabase();
}

void MainForm::LoadKnop_Click()
{
    LoadKnop->Druk();
    LeesOnderwerpen(File1_);
    List3->SetItems(File1_);
}

void MainForm::List3_Click()
{
    List2->Clear();
    QStringList woorden = LeesWoordlijst(Files::Lees(WoordlijstPad(List3->Text())));
    if (Combo1->currentText() != "Alles"_L1)
        woorden.removeIf(
            [lengte = Combo1->currentText().toInt()](const QString &woord) { return MetCode(woord).size() != lengte; });
    for (QString &woord : woorden)
        woord = Hoofdletters(woord);
    List2->SetItems(woorden);
    Label8->SetCaption(QString::number(List2->ListCount()));
}

void MainForm::ToonGekozen(const QString &woord, Label &lengte, const QString &tekst)
{
    lengte.SetCaption(tekst.arg(AantalLetters(woord)));
    CopyLabel->SetCaption(KleineLetters(woord));
}

void MainForm::List1_Click()
{
    ToonGekozen(List1->Text(), *Label9, u"Lengte (%1) letters"_s);
}

void MainForm::List2_Click()
{
    ToonGekozen(List2->Text(), *Label8, u"%1 Letters"_s);
}

void MainForm::GeefWoorden(const QStringList &woorden)
{
    QStringList inHoofdletters;
    for (const QString &woord : woorden)
        inHoofdletters += Hoofdletters(woord);
    List1->SetItems(inHoofdletters);
    Label3->SetCaption(WoordenGevonden(*List1));
}

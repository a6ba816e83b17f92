#include "wordlib/AddForm.h"

#include "board/Algemeen.h"
#include "board/Kleuren.h"
#include "board/WoordPaden.h"
#include "board/Woordlijst.h"
#include "platform/Berichten.h"
#include "platform/Files.h"
#include "platform/Fout.h"
#include "platform/Getallen.h"
#include "platform/Kleur.h"
#include "platform/Screen.h"
#include "platform/Teksten.h"

using namespace Qt::StringLiterals;

AddForm::AddForm() : Form(u"AddForm"_s, u"Woordlijsten bewerken"_s, 9150, 4800, Kleuren::Paneel)
{
    Label4 = MaakLabel("Label4", u"Onderwerp"_s);
    List2 = Maak<ListBox>("List2", u"Onderwerpen"_s);
    List1 = Maak<ListBox>("List1", u"Woorden"_s);
    Text1 = Maak<LineBox>("Text1", u"Puzzelwoord"_s);
    Bar = Maak<PictureBox>("Bar", u"Voortgang"_s);
    Label2 = MaakLabel("Label2", u"0"_s);
    Text2 = Maak<LineBox>("Text2", u"Onderwerp"_s);
    Label1 = MaakLabel("Label1", u"Onderwerp"_s);
    Label3 = MaakUitleg("Label3",
                        u"Selecteer in de linkerlijst een onderwerp. Nu kun je in de tweede lijst een puzzelwoord "
                        "toevoegen of verwijderen door onder de tweede lijst een puzzelwoord in te typen met de "
                        "buttons 'Add' en 'Delete'. Klik als laatste op de button 'Opslaan' om de woordlijst naar de "
                        "map 'Woordlijsten' te saven."_s);
    NieuwKnop = MaakKnopMetTip("NieuwKnop", u" Nieuwe woordlijst aanmaken "_s, u"knop-nieuw"_s);
    DelKnop = MaakKnopMetTip("DelKnop", u" Woord verwijderen "_s, u"knop-delete"_s);
    AddKnop = MaakKnopMetTip("AddKnop", u" Woord toevoegen "_s, u"knop-toevoegen"_s);
    Image1 = MaakBeeld("Image1", QString(), u"woordlijst"_s);
    CancelKnop = MaakCancelKnop();
    SaveKnop = MaakKnopMetTip("SaveKnop", u" Woordlijst opslaan "_s, u"knop-opslaan"_s);

    Zet(Label4, 150, 120, 2490, 360);
    Zet(List2, 120, 570, 2430, 3660);
    Zet(List1, 2700, 120, 2400, 3660);
    Zet(Text1, 2700, 3840, 2400, 390);
    Zet(Bar, 2700, 3850, 2400, 390);
    Zet(Label2, 5310, 3090);
    Zet(Text2, 5310, 240, 2610, 360);
    Zet(Label1, 8010, 315);
    Zet(Label3, 5310, 1260, 3600, 2100);
    Zet(NieuwKnop, 5310, 750);
    Zet(DelKnop, 5310, 3390);
    Zet(AddKnop, 5310, 3855);
    Zet(Image1, 7500, 2850, 1380, 930);
    Zet(CancelKnop, 7035, 3855);
    Zet(SaveKnop, 8040, 3855, 840, 360);

    Label4->SetFont(Lettertype(u"Arial"_s, 14, false));
    Label4->SetBackColor(RGB(0, 0, 40));
    Label4->SetForeColor(RGB(80, 80, 80));
    for (ListBox *lijst : {List1, List2}) {
        Kleur(lijst, RGB(40, 0, 0), RGB(230, 230, 230));
        lijst->Sorted = true;
    }
    Kleur(Text1, RGB(0, 0, 40), RGB(230, 230, 230));
    Bar->BackColor = RGB(0, 0, 40);
    Bar->hide();
    VulOnderwerpen();

    bij(List2, &ListBox::Click, &AddForm::List2_Click);
    connect(Text1, &LineBox::returnPressed, AddKnop, &ImageButton::click);
    bij(AddKnop, &ImageButton::clicked, &AddForm::AddKnop_Click);
    bij(DelKnop, &ImageButton::clicked, &AddForm::DelKnop_Click);
    bij(NieuwKnop, &ImageButton::clicked, &AddForm::NieuwKnop_Click);
    bij(SaveKnop, &ImageButton::clicked, &AddForm::SaveKnop_Click);
    bij(CancelKnop, &ImageButton::clicked, &AddForm::CancelKnop_Click);
}

void AddForm::VulOnderwerpen()
{
    QStringList onderwerpen;
    LeesOnderwerpen(onderwerpen);
    List2->SetItems(onderwerpen);
}

void AddForm::ToonAantal()
{
    Label2->SetCaption(QString::number(List1->ListCount()));
}

void AddForm::List2_Click()
{
    const QString Naam = List2->Text();
    Text2->setText(Naam);
    List1->Clear();
    QStringList woorden = LeesWoordlijst(Files::Lees(WoordlijstPad(Naam)));
    for (QString &woord : woorden)
        woord = KleineLetters(woord);
    List1->SetItems(woorden);
    ToonAantal();
}

void AddForm::AddKnop_Click()
{
    AddKnop->Druk();
    const QString woord = Trim(Text1->text());
    if (woord.isEmpty())
        return;
    List1->AddItem(woord);
    Text1->clear();
    Text1->setFocus();
    ToonAantal();
}

void AddForm::DelKnop_Click()
{
    DelKnop->Druk();
    const int index = List1->ListIndex();
    if (index < 0)
        return;
    if (!JaNee(u"Wilt je het puzzelwoord '"_s + List1->Text() + u"' verwijderen?"_s, u"Delete"_s))
        return;
    List1->RemoveItem(index);
    ToonAantal();
}

// The old count stays until the list changes again; wanted so.
void AddForm::NieuwKnop_Click()
{
    NieuwKnop->Druk();
    List1->Clear();
    Text2->clear();
    Text2->setFocus();
}

// A list that the user keeps closes the window too; wanted so. What was clicked during the progress show is not done
// when that is over.
void AddForm::SaveKnop_Click()
{
    SaveKnop->Druk();
    Wacht(0.2);
    const QString Naam = Trim(Text2->text());
    if (Naam.isEmpty()) {
        MsgBox(u"Omschrijving invullen a.u.b."_s);
        Text2->setFocus();
        return;
    }
    SaveWoorden(Naam);
    Wachten(0.2, QEventLoop::ExcludeUserInputEvents);
    Unload();
}

void AddForm::SaveWoorden(const QString &Naam)
{
    Text1->hide();
    Bar->show();
    bool bestaat = false;
    negeer([&] { bestaat = BestandBestaat(WoordlijstPad(Naam)); });
    if (bestaat && !JaNee(u"Naam puzzel bestaat al, overschrijven?"_s, u" Exist"_s)) // the question of the puzzles
        return;
    const Screen::Bezig bezig;
    negeer([&] {
        const QString pad = WoordlijstPad(Naam);
        Files::Schrijf(pad, SchrijfWoordlijst(List1->Items()));
        Files::Hernoem(pad, Naam + u".txt"_s); // an older file of the name may be spelled otherwise
    });
    ToonVoortgang();
}

// It comes when all is written, and reports no work. Clicks and keys wait, so that nothing is changed meanwhile that
// would then count as saved.
void AddForm::ToonVoortgang()
{
    for (int i = 0; i <= 2700; i += 15) {
        Bar->BoxFull(i, 0, i, 390, RGB(0, static_cast<int>(Getallen::RondEven(i / 20.0 + 60)), 0));
        Wachten(0.02, QEventLoop::ExcludeUserInputEvents);
    }
}

void AddForm::CancelKnop_Click()
{
    Sluit(CancelKnop, 0.2);
}

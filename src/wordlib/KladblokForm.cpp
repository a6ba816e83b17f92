#include "wordlib/KladblokForm.h"

#include "board/Algemeen.h"
#include "board/Kleuren.h"
#include "board/TekstRegels.h"
#include "board/WoordPaden.h"
#include "platform/Berichten.h"
#include "platform/Canvas.h"
#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/Fout.h"
#include "platform/Kleur.h"
#include "platform/Teksten.h"

#include <QMenu>

using namespace Qt::StringLiterals;

static constexpr int SmallestLetter = 8, LargestLetter = 14; // points
static constexpr int LetterAtStart = 10;

KladblokForm::KladblokForm() : Form(u"KladblokForm"_s, u"Kladblok"_s, 9000, 6000, RGB(230, 190, 230), true)
{
    Text1 = Maak<TextBox>("Text1", u"Tekst"_s);
    MaakMenus();
    MaakRekbaar();

    Form_Resize();

    Kleur(Text1, Kleuren::Paneel, RGB(0, 0, 0));
    Text1->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    Text1->setFont(Lettertype(u"Arial"_s, 9.75, false));
    TG[LetterAtStart - SmallestLetter]->setChecked(true);
    Text1->setFocus();

    bij(FileSave, &QAction::triggered, &KladblokForm::FileSave_Click);
    bij(FileExit, &QAction::triggered, &KladblokForm::FileExit_Click);
    for (int i = 0; i < TG.size(); ++i)
        bij(TG[i], &QAction::triggered, [this, i] { TG_Click(SmallestLetter + i); });
    bij(EditBold, &QAction::triggered, &KladblokForm::EditBold_Click);
    bij(EditItalic, &QAction::triggered, &KladblokForm::EditItalic_Click);
}

void KladblokForm::MaakMenus()
{
    QMenu *bestand = MaakMenu("Bestand", u"Bestand"_s);
    FileSave = MaakItem(*bestand, "FileSave", u"Tekst Opslaan"_s);
    FileExit = MaakItem(*bestand, "FileExit", u"Exit"_s);
    QMenu *bewerken = MaakMenu("Edit", u"Bewerken"_s);
    QMenu *grootte = bewerken->addMenu(u"Tekstgrootte"_s);
    grootte->setObjectName(u"EditSize"_s);
    for (int punten = SmallestLetter; punten <= LargestLetter; ++punten) {
        TG += MaakItem(*grootte, "", u"%1 Pixels"_s.arg(punten));
        TG.last()->setObjectName(u"TG(%1)"_s.arg(punten));
    }
    EditBold = MaakItem(*bewerken, "EditBold", u"Vette Tekst"_s);
    EditItalic = MaakItem(*bewerken, "EditItalic", u"Schuinschrift"_s);
    for (QAction *item : TG + QList{EditBold, EditItalic})
        item->setCheckable(true);
}

void KladblokForm::resizeEvent(QResizeEvent *event)
{
    Form::resizeEvent(event);
    Form_Resize();
}

void KladblokForm::Form_Resize()
{
    Zet(Text1, 0, 0, std::max(0, Width() - 210), std::max(0, Height() - 840));
}

void KladblokForm::TG_Click(int Index)
{
    for (QAction *item : TG)
        item->setChecked(item == TG[Index - SmallestLetter]);
    QFont letter = Text1->font();
    letter.setPixelSize(Lettertype(u"Arial"_s, Index, false).pixelSize());
    Text1->setFont(letter);
}

void KladblokForm::EditBold_Click()
{
    QFont letter = Text1->font();
    letter.setBold(!letter.bold());
    Text1->setFont(letter);
    EditBold->setChecked(letter.bold());
}

void KladblokForm::EditItalic_Click()
{
    QFont letter = Text1->font();
    letter.setItalic(!letter.italic());
    Text1->setFont(letter);
    EditItalic->setChecked(letter.italic());
}

void KladblokForm::FileExit_Click()
{
    Unload();
}

void KladblokForm::FileSave_Click()
{
    const QString Naam = InputBox(u"Geef de naam voor deze woordlijst..."_s);
    if (!Naam.isEmpty())
        SaveKladblok(Naam);
}

// The older list goes first, so a write that fails leaves none; wanted so.
void KladblokForm::SaveKladblok(const QString &Naam)
{
    bool bestaat = false;
    negeer([&] { bestaat = BestandBestaat(WoordlijstPad(Naam)); });
    if (bestaat && !JaNee(u"Naam woordlijst bestaat al, overschrijven?"_s, u" Exist"_s))
        return;
    QStringList regels;
    TekstRegels(*Text1, regels);
    negeer([&] { Files::Kill(WoordlijstPad(Naam)); });
    QString inhoud;
    for (const QString &regel : regels)
        if (const QString woord = Trim(regel); !woord.isEmpty())
            inhoud += woord + "\r\n"_L1;
    negeer([&] { Files::Schrijf(WoordlijstPad(EersteHoofdletter(Naam)), Files::NaarBytes(inhoud)); });
}

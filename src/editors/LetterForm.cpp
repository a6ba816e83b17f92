#include "editors/LetterForm.h"

#include "board/Algemeen.h"
#include "board/MainForm.h"

using namespace Qt::StringLiterals;

QString GekozenLetter;

static constexpr int LangeIJPlaats = 26; // behind the Z

LetterForm::LetterForm()
    : SchuifForm({.Naam = u"LetterForm"_s,
                  .Titel = u"1 Letter Plaatsen op "_s,
                  .Waarde = u"Letter"_s,
                  .Van = 0,
                  .Tot = LangeIJPlaats,
                  .Begin = u"A"_s,
                  .Uitleg = u"Hiermee kun je op het puzzelveld één letter plaatsen. Verschuif de scrolbalk totdat je "
                            "de juiste letter hebt gevonden, de letter IJ komt na de Z. Druk als laatste op de button "
                            "'Ok'"_s})
{
}

void LetterForm::HScroll1_Change()
{
    const int plaats = HScroll1->value();
    GekozenLetter = plaats == LangeIJPlaats ? u"IJ"_s : QString(QChar(u'A' + plaats));
    Label2->SetCaption(GekozenLetter);
}

// The letter is a note on the visible board: of the large one only the font is set.
void LetterForm::OkKnop_Click()
{
    OkKnop->Druk();
    PictureBox &pic = *Main().Pic;
    pic.ZetLetter(BordLetter);
    Main().PicGroot->ZetLetter({.Naam = u"Arial Narrow"_s});
    Main().PicGroot->ZetLetter(BordLetterGroot);
    const QString letter = Label2->Caption();
    const int verschuiving = letter.size() == 1 ? LetterVerschuiving(letter.front()) : 0; // "IJ" is no "I"
    pic.PrintOp(CurCol * VakMaat + LetterX + verschuiving, CurRow * VakMaat + LetterY, letter);
    PuzzelGewijzigd = true;
    Unload();
}

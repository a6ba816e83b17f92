#include "editors/NummerForm.h"

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "platform/Kleur.h"

using namespace Qt::StringLiterals;

quint8 GekozenNummer = 0;

NummerForm::NummerForm()
    : SchuifForm({.Naam = u"NummerForm"_s,
                  .Titel = u"Vaknummer Plaatsen op "_s,
                  .Waarde = u"Vaknummer"_s,
                  .Van = 1,
                  .Tot = 99,
                  .Begin = u"1"_s,
                  .Uitleg = u"Hiermee kun je op een vakje een getal plaatsen in de linkerbovenhoek. Verschuif de "
                            "scrolbalk totdat je het juiste getal hebt gevonden, druk als laatste op de button 'Ok'"_s})
{
}

void NummerForm::HScroll1_Change()
{
    GekozenNummer = static_cast<quint8>(HScroll1->value());
    Label2->SetCaption(QString::number(GekozenNummer));
}

/// Prints the number on a white box, which wipes an earlier one. Twips; bold stays as it is.
static void DrukInHoek(PictureBox &bord, int x, int y, QSize vlak, double punten)
{
    bord.BoxFull(x, y, x + vlak.width(), y + vlak.height(), RGB(255, 255, 255));
    bord.ZetLetter({.Punten = punten, .Kleur = RGB(0, 0, 0)});
    bord.PrintOp(x, y, GekozenNummer);
}

void NummerForm::OkKnop_Click()
{
    OkKnop->Druk();
    DrukInHoek(*Main().Pic, CurCol * VakMaat + 15, CurRow * VakMaat + 15, {150, 120}, 6);
    DrukInHoek(*Main().PicGroot, CurCol * VakMaatGroot + 60, CurRow * VakMaatGroot + 60, {510, 420}, 20);
    PuzzelGewijzigd = true;
    Unload();
}

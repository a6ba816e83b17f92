#include "editors/SchuifForm.h"

#include "board/MainForm.h"
#include "platform/Canvas.h"
#include "platform/Kleur.h"

using namespace Qt::StringLiterals;

SchuifForm::SchuifForm(const Eigen &eigen)
    : Form(eigen.Naam, eigen.Titel + Main().Label6->Caption(), 4590, 2790, RGB(230, 250, 190))
{
    Label1 = MaakLabel("Label1", QString());
    HScroll1 = MaakSchuif("HScroll1", eigen.Waarde, eigen.Van, eigen.Tot);
    Label2 = MaakLabel("Label2", eigen.Begin);
    Label3 = MaakUitleg("Label3", eigen.Uitleg);
    CancelKnop = MaakCancelKnop();
    OkKnop = MaakOkKnop();

    Zet(Label1, 180, 210, 4140, 360);
    Zet(HScroll1, 210, 240, 4080, 300);
    Zet(Label2, 3810, 690);
    Zet(Label3, 240, 690, 3300, 900);
    Zet(CancelKnop, 2310, 1800);
    Zet(OkKnop, 3315, 1800);

    Label1->SetBackColor(RGB(150, 180, 180));
    Label2->SetFont(Lettertype(u"Arial"_s, 20, true));
    HScroll1->setFocus();

    bij(HScroll1, &QScrollBar::valueChanged, &SchuifForm::HScroll1_Change);
    bij(CancelKnop, &ImageButton::clicked, &SchuifForm::CancelKnop_Click);
    bij(OkKnop, &ImageButton::clicked, &SchuifForm::OkKnop_Click);
}

void SchuifForm::CancelKnop_Click()
{
    Sluit(CancelKnop);
}

#include "documents/ShowPuzzel.h"

#include "board/Algemeen.h"
#include "board/Kleuren.h"
#include "board/MainForm.h"
#include "platform/Getallen.h"
#include "platform/Kleur.h"
#include "platform/ScrollBar.h"
#include "platform/Twips.h"

#include <QWheelEvent>

#include <cmath>

using namespace Qt::StringLiterals;

// The viewport.
static constexpr int ZichtBreedte = 8400;
static constexpr int ZichtHoogte = 4500;

static QString VeldTitel()
{
    const PictureBox &groot = *Main().PicGroot;
    return u"Orgineel Puzzelveld (%1,%2 / %3,%4)"_s.arg(groot.width())
        .arg(groot.height())
        .arg(BoardWidth)
        .arg(BoardHeight);
}

ShowPuzzel::ShowPuzzel() : Form(u"ShowPuzzel"_s, VeldTitel(), 9300, 6440, Kleuren::Paneel)
{
    PicCont = Maak<PictureBox>("PicCont", QString());
    SlidePic = Maak<PictureBox>("SlidePic", u"Orgineel puzzelveld"_s, PicCont);
    Label1 = MaakLabel("Label1", QString());
    VScroll = Maak<ScrollBar>("VScroll", u"Omhoog en omlaag"_s, nullptr, Qt::Vertical);
    Label2 = MaakLabel("Label2", QString());
    HScroll = Maak<ScrollBar>("HScroll", u"Naar links en naar rechts"_s, nullptr, Qt::Horizontal);
    Label3 = MaakLabel("Label3", u"Beweeg met ingedrukte linkermuisknop de muiscursor over het puzzelveld om deze te "
                                 "verschuiven,\nof maak gebruik van de twee scrolbalken."_s);
    ExitKnop = MaakKnop("ExitKnop", u"Sluiten"_s, u"knop-sluiten"_s);

    Zet(PicCont, 150, 150, ZichtBreedte, ZichtHoogte);
    Zet(Label1, 8700, 150, 360, 4500);
    Zet(VScroll, 8730, 180, 300, 4440);
    Zet(Label2, 150, 4800, 8400, 360);
    Zet(HScroll, 180, 4830, 8340, 300);
    Zet(Label3, 180, 5340);
    Zet(ExitKnop, 8085, 5400);

    PicCont->BackColor = RGB(150, 150, 150);
    for (Label *plaat : {Label1, Label2})
        plaat->SetBackColor(RGB(150, 180, 180));
    SlidePic->AutoSize = true;
    SlidePic->SetPicture(Main().PicGroot->Image());
    // From the absolute value: a picture smaller than the viewport can be pulled left and up too, wanted so.
    MaxY = Getallen::AlsInt32(std::abs(Getallen::RondEven(ZichtHoogte - (SlidePic->Height() - 90))));
    MaxX = Getallen::AlsInt16(std::abs(Getallen::RondEven(ZichtBreedte - (SlidePic->Width() - 90))),
                              u"het puzzelveld is te breed om te tonen"_s);
    VScroll->setRange(0, MaxY + 30);
    HScroll->setRange(0, MaxX + 30);
    VScroll->setPageStep(ZichtHoogte);
    HScroll->setPageStep(ZichtBreedte);
    for (QScrollBar *schuif : {VScroll, HScroll})
        schuif->setSingleStep(VakMaatGroot / 4);

    bij(SlidePic, &PictureBox::DragStart, &ShowPuzzel::SlidePic_MouseDown);
    bij(SlidePic, &PictureBox::Drag, &ShowPuzzel::SlidePic_MouseMove);
    bij(VScroll, &QScrollBar::valueChanged, &ShowPuzzel::VScroll_Change);
    bij(HScroll, &QScrollBar::valueChanged, &ShowPuzzel::HScroll_Change);
    bij(ExitKnop, &ImageButton::clicked, &ShowPuzzel::ExitKnop_Click);
}

// A place as the variables across hold it, and as those down do.
static const QString TeVer = u"de muiscursor is te ver weg"_s;

static qint16 InX(double twips)
{
    return Getallen::AlsInt16(Getallen::RondEven(twips), TeVer);
}

static qint32 InY(double twips)
{
    return Getallen::AlsInt32(Getallen::RondEven(twips), TeVer);
}

void ShowPuzzel::SlidePic_MouseDown(double x, double y)
{
    const qint32 boven = InY(y);
    DragX = InX(x);
    DragY = boven;
}

/// The picture's new edge: as the pointer wants it, between 0 and the end.
template <class Type> static Type Begrensd(Type rand, Type max)
{
    return static_cast<Type>(std::clamp<int>(rand, -max, 0));
}

void ShowPuzzel::SlidePic_MouseMove(Qt::MouseButtons knoppen, double x, double y)
{
    if (knoppen != Qt::LeftButton)
        return;
    const qint16 links = InX(x - DragX + Twips::VanPixels(SlidePic->x()));
    const qint32 boven = InY(y - DragY + Twips::VanPixels(SlidePic->y()));
    NewLeft = Begrensd(links, MaxX);
    NewTop = Begrensd(boven, MaxY);
    SlidePic->move(Twips::NaarPixels(NewLeft), Twips::NaarPixels(NewTop));
    HScroll->setValue(-NewLeft);
    VScroll->setValue(-NewTop);
}

void ShowPuzzel::VScroll_Change()
{
    SlidePic->move(SlidePic->x(), Twips::NaarPixels(-VScroll->value()));
    NewTop = static_cast<qint32>(Twips::VanPixels(SlidePic->y()));
}

void ShowPuzzel::HScroll_Change()
{
    SlidePic->move(Twips::NaarPixels(-HScroll->value()), SlidePic->y());
    NewLeft = static_cast<qint16>(Twips::VanPixels(SlidePic->x()));
}

// Over the picture the wheel goes to the bar of its direction; the bars have their own.
void ShowPuzzel::wheelEvent(QWheelEvent *event)
{
    if (!PicCont->rect().contains(PicCont->mapFrom(this, event->position().toPoint())))
        return;
    const QPoint hoek = event->angleDelta();
    (std::abs(hoek.x()) > std::abs(hoek.y()) ? HScroll : VScroll)->event(event);
}

void ShowPuzzel::ExitKnop_Click()
{
    Sluit(ExitKnop, 0.2);
}

#include "platform/PictureBox.h"

#include "platform/Fout.h"
#include "platform/Grenzen.h"
#include "platform/Twips.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

PictureBox::PictureBox(QWidget *ouder) : QWidget(ouder)
{
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void PictureBox::ControleerMaat(double breedte, double hoogte)
{
    if (breedte < 0 || hoogte < 0)
        throw Fout(Fout::OngeldigeWaarde, u"een negatieve maat"_s);
    const double pixels = breedte / Twips::PerPixel * (hoogte / Twips::PerPixel);
    if (pixels * 4 > static_cast<double>(GrootsteBeeld))
        throw Fout(Fout::GeheugenVol, u"een te grote afbeelding"_s);
}

void PictureBox::SetSize(double breedte, double hoogte)
{
    ControleerMaat(breedte, hoogte);
    resize(Twips::NaarPixels(breedte), Twips::NaarPixels(hoogte));
}

double PictureBox::Width() const
{
    return Twips::VanPixels(width());
}

double PictureBox::Height() const
{
    return Twips::VanPixels(height());
}

double PictureBox::EenheidPerPixel() const
{
    return ScaleMode == ScaleModes::Twips ? Twips::PerPixel : 1;
}

QImage &PictureBox::Beeld()
{
    const QSize nodig = beeld_.size().expandedTo(size()).expandedTo(QSize(1, 1)); // a box may be without a side
    if (beeld_.size() != nodig) {
        QImage groter(nodig, QImage::Format_RGB32);
        if (groter.isNull())
            throw Fout(Fout::GeheugenVol);
        groter.fill(BackColor);
        for (int y = 0; y < beeld_.height(); ++y)
            std::copy_n(beeld_.constScanLine(y), beeld_.width() * 4, groter.scanLine(y));
        beeld_ = groter;
    }
    return beeld_;
}

void PictureBox::Vul(QRect vlak, QRgb kleur)
{
    vlak &= rect();
    if (vlak.isEmpty())
        return;
    QImage &beeld = Beeld();
    const qsizetype rij = beeld.bytesPerLine() / 4;
    auto *naar = reinterpret_cast<QRgb *>(beeld.bits()) + vlak.top() * rij + vlak.left();
    for (int y = vlak.top(); y <= vlak.bottom(); ++y, naar += rij)
        std::fill_n(naar, vlak.width(), kleur);
    update(vlak);
}

static QRect Rechthoek(int x1, int y1, int x2, int y2)
{
    return QRect(QPoint(std::min(x1, x2), std::min(y1, y2)), QPoint(std::max(x1, x2), std::max(y1, y2)));
}

void PictureBox::Line(double x1, double y1, double x2, double y2, QRgb kleur)
{
    const QPoint van(Pixels(x1), Pixels(y1)), tot(Pixels(x2), Pixels(y2));
    if (van.x() == tot.x() || van.y() == tot.y()) {
        Vul(Rechthoek(van.x(), van.y(), tot.x(), tot.y()), kleur);
        return;
    }
    MetPainter([&](QPainter &painter) {
        painter.setPen(QColor(kleur));
        painter.drawLine(van, tot);
    });
}

void PictureBox::Box(double x1, double y1, double x2, double y2, QRgb kleur)
{
    Line(x1, y1, x2, y1, kleur);
    Line(x2, y1, x2, y2, kleur);
    Line(x2, y2, x1, y2, kleur);
    Line(x1, y2, x1, y1, kleur);
}

void PictureBox::BoxFull(double x1, double y1, double x2, double y2, QRgb kleur)
{
    Vul(Rechthoek(Pixels(x1), Pixels(y1), Pixels(x2), Pixels(y2)), kleur);
}

void PictureBox::Cls()
{
    Beeld().fill(BackColor);
    update();
}

void PictureBox::SetPicture(const QImage &beeld)
{
    if (AutoSize && !beeld.isNull())
        resize(beeld.size());
    Cls();
    if (!beeld.isNull())
        Plak(beeld, beeld.rect(), QPoint(0, 0), PlakWijze::Kopie);
}

QImage PictureBox::Image() const
{
    if (size().isEmpty())
        return {};
    QImage &beeld = const_cast<PictureBox *>(this)->Beeld();
    return beeld.size() == size() ? beeld : beeld.copy(rect());
}

QRgb PictureBox::GetPixel(int x, int y) const
{
    if (!rect().contains(x, y))
        return 0;
    return const_cast<PictureBox *>(this)->Beeld().pixel(x, y);
}

void PictureBox::SetPixel(int x, int y, QRgb kleur)
{
    Vul(QRect(x, y, 1, 1), kleur);
}

void PictureBox::MetPainter(const std::function<void(QPainter &)> &teken)
{
    QPainter painter(&Beeld());
    painter.setClipRect(rect());
    teken(painter);
    update();
}

void PictureBox::Plak(const QImage &bron, QRect deel, QPoint doel, PlakWijze wijze)
{
    const QImage pixels = bron.format() == QImage::Format_RGB32 ? bron : bron.convertToFormat(QImage::Format_RGB32);
    const QPoint verschuiving = doel - deel.topLeft();
    const QRect raak = (deel & pixels.rect()).translated(verschuiving) & rect();
    if (raak.isEmpty())
        return;
    QImage &beeld = Beeld();
    const qsizetype rij = beeld.bytesPerLine() / 4, bronRij = pixels.bytesPerLine() / 4;
    auto *naar = reinterpret_cast<QRgb *>(beeld.bits()) + raak.top() * rij + raak.left();
    const auto *van = reinterpret_cast<const QRgb *>(pixels.constBits()) + (raak.top() - verschuiving.y()) * bronRij +
                      raak.left() - verschuiving.x();
    for (int y = raak.top(); y <= raak.bottom(); ++y, naar += rij, van += bronRij) {
        if (wijze == PlakWijze::Kopie)
            std::copy_n(van, raak.width(), naar);
        else
            std::transform(van, van + raak.width(), naar, naar, std::bit_and());
    }
    update(raak);
}

void PictureBox::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.drawImage(event->rect(), Beeld(), event->rect());
}

void PictureBox::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint plaats = event->position().toPoint();
    if (!rect().contains(plaats))
        return;
    bewogen_ = true;
    emit MouseMove(Twips::VanPixels(plaats.x()), Twips::VanPixels(plaats.y()));
}

void PictureBox::mousePressEvent(QMouseEvent *event)
{
    if (bewogen_) // a menu that was open may have swallowed the moves to here
        mouseMoveEvent(event);
    emit MouseDown(event->button(), event->globalPosition().toPoint());
}

void PictureBox::mouseDoubleClickEvent(QMouseEvent *event)
{
    mousePressEvent(event);
}

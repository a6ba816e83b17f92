#include "platform/PictureBox.h"

#include "platform/Fout.h"
#include "platform/Grenzen.h"
#include "platform/Twips.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <memory>

#ifdef Q_OS_LINUX
#include <sys/mman.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

PictureBox::PictureBox(QWidget *ouder) : QWidget(ouder)
{
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void PictureBox::ControleerMaat(double breedte, double hoogte) const
{
    if (breedte < 0 || hoogte < 0)
        throw Fout(Fout::OngeldigeWaarde, u"een negatieve maat"_s);
    const double pixels = std::max<double>(beeld_.width(), breedte / Twips::PerPixel) *
                          std::max<double>(beeld_.height(), hoogte / Twips::PerPixel);
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

QSize PictureBox::MaatInPixels() const
{
    return size();
}

/// Asks for the memory of a new picture in large pages, which are there in half the time. It does as well without them.
static void VraagGrotePaginas([[maybe_unused]] QImage &beeld)
{
#ifdef Q_OS_LINUX
    void *begin = beeld.bits();
    auto ruimte = static_cast<size_t>(beeld.sizeInBytes());
    if (std::align(static_cast<size_t>(sysconf(_SC_PAGESIZE)), 1, begin, ruimte)) // from the first whole page on
        madvise(begin, ruimte, MADV_HUGEPAGE);
#endif
}

/// A picture in which nothing has been drawn yet, not even a colour. Raises Fout::GeheugenVol.
static QImage LeegBeeld(QSize maat)
{
    QImage beeld(maat, QImage::Format_RGB32);
    if (beeld.isNull())
        throw Fout(Fout::GeheugenVol);
    VraagGrotePaginas(beeld);
    return beeld;
}

QImage &PictureBox::Beeld() const
{
    const QSize nodig = beeld_.size().expandedTo(size()).expandedTo(QSize(1, 1)); // a box may be without a side
    if (beeld_.size() != nodig) {
        QImage groter = LeegBeeld(nodig);
        groter.fill(BackColor);
        for (int y = 0; y < beeld_.height(); ++y)
            std::copy_n(beeld_.constScanLine(y), beeld_.width() * 4, groter.scanLine(y));
        beeld_ = groter;
    }
    return beeld_;
}

void PictureBox::Betegel(const QImage &tegel, int stap)
{
    if (size().isEmpty())
        return;
    if (!beeld_.rect().contains(rect()))
        beeld_ = LeegBeeld(size()); // every pixel gets its colour here: wiping them first would take as long again
    for (int x = 0; x == 0 || x - stap + tegel.width() < width(); x += stap)
        Plak(tegel, tegel.rect(), tegel.rect().translated(x, 0), PlakWijze::Kopie);
    // The other rows are the first one again, pasted whole: long copies are several times as fast as short ones.
    const QImage rij = beeld_.copy(0, 0, width(), tegel.height());
    for (int y = stap; y - stap + tegel.height() < height(); y += stap)
        Plak(rij, rij.rect(), rij.rect().translated(0, y), PlakWijze::Kopie);
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

void PictureBox::Cls()
{
    Beeld().fill(BackColor);
    update();
}

void PictureBox::SetPicture(const QImage &beeld)
{
    if (AutoSize && !beeld.isNull()) {
        beeld_ = beeld.convertToFormat(QImage::Format_RGB32);
        resize(beeld.size());
        update();
        return;
    }
    Cls();
    if (!beeld.isNull())
        Plak(beeld, beeld.rect(), beeld.rect(), PlakWijze::Kopie);
}

QImage PictureBox::Image() const
{
    if (size().isEmpty())
        return {};
    const QImage &beeld = Beeld();
    return beeld.size() == size() ? beeld : beeld.copy(rect());
}

QRgb PictureBox::GetPixel(int x, int y) const
{
    if (!rect().contains(x, y))
        return 0;
    return Beeld().pixel(x, y);
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

void PictureBox::Plak(const QImage &origineel, QRect deel, QRect doel, PlakWijze wijze)
{
    QImage bron = origineel;
    if (deel.size() != doel.size()) {
        bron = bron.copy(deel).scaled(doel.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        deel = bron.rect();
    }
    bron.convertTo(QImage::Format_RGB32);
    const QPoint verschuiving = doel.topLeft() - deel.topLeft();
    const QRect raak = (deel & bron.rect()).translated(verschuiving) & rect();
    if (raak.isEmpty())
        return;
    QImage &beeld = Beeld();
    const qsizetype rij = beeld.bytesPerLine() / 4, bronRij = bron.bytesPerLine() / 4;
    auto *naar = reinterpret_cast<QRgb *>(beeld.bits()) + raak.top() * rij + raak.left();
    const auto *van = reinterpret_cast<const QRgb *>(bron.constBits()) + (raak.top() - verschuiving.y()) * bronRij +
                      raak.left() - verschuiving.x();
    for (int y = raak.top(); y <= raak.bottom(); ++y, naar += rij, van += bronRij) {
        if (wijze == PlakWijze::Kopie)
            std::copy_n(van, raak.width(), naar);
        else
            std::transform(van, van + raak.width(), naar, naar, std::bit_and());
    }
    update(raak);
}

// Where nothing has been drawn yet there is no picture: making one may fail, which must not happen while painting.
void PictureBox::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    if (!beeld_.rect().contains(event->rect()))
        painter.fillRect(event->rect(), QColor(BackColor));
    const double ratio = devicePixelRatioF();
    painter.setRenderHint(QPainter::SmoothPixmapTransform, ratio != std::floor(ratio));
    painter.drawImage(0, 0, beeld_); // the whole, so that a part that is shown anew fits to the rest at any scale
}

void PictureBox::MeldPlaats(QPoint plaats)
{
    if (!rect().contains(plaats))
        return;
    bewogen_ = true;
    emit MouseMove(Twips::VanPixels(plaats.x()), Twips::VanPixels(plaats.y()));
}

void PictureBox::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint plaats = event->position().toPoint();
    MeldPlaats(plaats);
    if (event->buttons() != Qt::NoButton)
        emit Drag(event->buttons(), Twips::VanPixels(plaats.x()), Twips::VanPixels(plaats.y()));
}

void PictureBox::mousePressEvent(QMouseEvent *event)
{
    const QPoint plaats = event->position().toPoint();
    if (bewogen_) // a menu that was open may have swallowed the moves to here
        MeldPlaats(plaats);
    emit DragStart(Twips::VanPixels(plaats.x()), Twips::VanPixels(plaats.y()));
    emit MouseDown(event->button(), event->globalPosition().toPoint());
}

void PictureBox::mouseDoubleClickEvent(QMouseEvent *event)
{
    mousePressEvent(event);
}

#include "handleiding/Fotograaf.h"

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "platform/Files.h"
#include "platform/Fout.h"
#include "platform/Twips.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QPainter>

using namespace Qt::StringLiterals;

static constexpr int BalkHoogte = 26, Rand = 1; // of the frame that a window gets, in pixels of the screen

Fotograaf::Fotograaf(QString map) : map_(std::move(map))
{
    QDir().mkpath(map_);
}

/// The whole window, whatever the screen has room for.
static QPixmap HeelVenster(Form &form)
{
    if (form.maximumWidth() < QWIDGETSIZE_MAX)
        form.resize(form.maximumSize());
    return form.grab();
}

/// The picture of a window with a frame round it, as the desktop would give it one.
static QImage MetKader(const QPixmap &venster, const QString &titel)
{
    const QSize binnen = venster.deviceIndependentSize().toSize();
    const QSize maat = binnen + QSize(2 * Rand, BalkHoogte + Rand);
    QImage beeld(maat * venster.devicePixelRatio(), QImage::Format_RGB32);
    beeld.setDevicePixelRatio(venster.devicePixelRatio());
    beeld.fill(QColor(90, 100, 120));
    QPainter painter(&beeld);
    painter.setPen(Qt::white);
    QFont letter(u"Liberation Sans"_s);
    letter.setPixelSize(12);
    letter.setBold(true);
    painter.setFont(letter);
    painter.drawText(QRect(8, 0, maat.width() - 40, BalkHoogte), Qt::AlignVCenter, titel);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF kruis(maat.width() - 14, BalkHoogte / 2.0);
    painter.drawLine(kruis - QPointF(4, 4), kruis + QPointF(4, 4));
    painter.drawLine(kruis - QPointF(4, -4), kruis + QPointF(4, -4));
    painter.drawPixmap(Rand, BalkHoogte, venster);
    return beeld;
}

void Fotograaf::Neem(const QString &naam, Form &form)
{
    Bewaar(naam, MetKader(HeelVenster(form), form.windowTitle()));
}

/// Where the board is on the main window, with the names of its columns and rows.
static QRect BordVlak()
{
    const MainForm &main = Main();
    const QPoint hoek = main.Label1->mapTo(&main, QPoint());
    const QPoint letters = main.PicO->mapTo(&main, main.PicO->rect().bottomRight());
    const QPoint nummers = main.PicR->mapTo(&main, main.PicR->rect().bottomRight());
    return {hoek, QPoint(nummers.x(), letters.y())};
}

void Fotograaf::NeemBord(const QString &naam, int rechts, int onder)
{
    HeelVenster(Main());
    Bewaar(naam, Main().grab(BordVlak().adjusted(-4, -4, rechts + 2, onder + 2)).toImage());
}

void Fotograaf::NeemMenu(const QString &naam, int kolom, int rij, QMenu &menu)
{
    MainForm &main = Main();
    HeelVenster(main);
    main.Pic_MouseMove(kolom * VakMaat + VakMaat / 2.0, rij * VakMaat + VakMaat / 2.0);
    main.Pic_MouseDown(Qt::LeftButton, QPoint());
    const QPixmap opMenu = menu.grab();
    menu.close();
    QPixmap bord = main.grab(BordVlak().adjusted(-4, -4, 2, 2));
    const QPoint cel = main.Pic->geometry().topLeft() - main.Label1->geometry().topLeft() + QPoint(4, 4) +
                       QPoint(kolom, rij) * Twips::NaarPixels(VakMaat) + QPoint(18, 18);
    QPainter(&bord).drawPixmap(cel, opMenu);
    main.Shape1->hide();
    Bewaar(naam, bord.toImage());
}

void Fotograaf::Bewaar(const QString &naam, QImage beeld)
{
    const double perMeter = 96 / 0.0254 * beeld.devicePixelRatio();
    beeld.setDotsPerMeterX(qRound(perMeter));
    beeld.setDotsPerMeterY(qRound(perMeter));
    QBuffer png;
    if (!beeld.save(&png, "PNG"))
        throw Fout(Fout::OngeldigeAfbeelding, naam);
    Files::Schrijf(map_ + u'/' + naam + u".png"_s, png.data());
    lijst_ += naam.toUtf8() + ' ' + QCryptographicHash::hash(png.data(), QCryptographicHash::Sha1).toHex() + '\n';
}

void Fotograaf::SchrijfLijst() const
{
    const QString pad = map_ + u"/beelden.txt"_s;
    if (!QFile::exists(pad) || Files::Lees(pad) != lijst_)
        Files::Schrijf(pad, lijst_);
}

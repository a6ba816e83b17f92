#pragma once

#include "platform/Kleur.h"
#include "print/Drukwerk.h"
#include "print/PrintTaken.h"
#include "support/Drukrol.h"

// A puzzle to print, and what a job does with it.

inline QImage Effen(int breedte, int hoogte, QRgb kleur)
{
    QImage beeld(breedte, hoogte, QImage::Format_RGB32);
    beeld.fill(kleur);
    return beeld;
}

/// A board of 9 by 10 cells.
inline Drukwerk Proef(const QList<Rij> &rijen = {})
{
    return {.PuzzelNaam = QStringLiteral("Reis"),
            .BoardWidth = 9,
            .BoardHeight = 10,
            .Rijen = rijen,
            .Pic = Effen(271, 301, qRgb(250, 240, 230)),
            .PicGroot = Effen(1083, 1203, qRgb(230, 240, 250)),
            .PaginaTekst = QStringLiteral("www.voorbeeld.nl"),
            .Nu = QDateTime(QDate(2026, 3, 7), QTime(9, 5, 3))};
}

/// What a job does, in its order.
inline QStringList Gedaan(
    void (*druk)(PagedCanvas &, const Drukwerk &), const Drukwerk &werk,
    const std::function<void(int)> &bij = [](int) {})
{
    Drukrol rol;
    rol.Noem(werk.Pic, "Pic");
    rol.Noem(werk.PicGroot, "PicGroot");
    rol.Bij = bij;
    druk(rol, werk);
    return rol.Gedaan;
}

// The parts that jobs share, for Proef.

inline QString Naamregel(const QString &naam = QStringLiteral("Reis"))
{
    return Drukrol::Tekst(600, 300, 12, true, RGB(0, 0, 90), QStringLiteral("Puzzelnaam : ") + naam);
}

inline QString Voet(const QString &tekst = QStringLiteral("www.voorbeeld.nl"))
{
    return Drukrol::Tekst(600, 16200, 9, false, RGB(0, 0, 0), tekst);
}

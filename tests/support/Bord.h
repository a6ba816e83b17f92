#pragma once

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "board/Raster.h"
#include "board/Soorten.h"
#include "platform/Kleur.h"
#include "platform/Twips.h"
#include "support/Stand.h"
#include "support/Testbank.h"

#include <QSignalBlocker>

/// The main window with the empty board, as the program starts with it.
struct VersBord
{
    Testbank Bank;
    MainForm Venster;

    VersBord()
    {
        AppPath = Bank.Map();
        BeginWaarden();
        TekenBord(BoardWidth, BoardHeight);
    }

    /// An empty board of this kind and size.
    void Begin(quint8 soort, int breedte, int hoogte)
    {
        PuzzelType = soort;
        BoardWidth = breedte;
        BoardHeight = hoogte;
        TekenBord(breedte, hoogte);
    }

    /// Gives all that a puzzle leaves alone when it comes on the board another value than it starts with.
    void AllesAnders()
    {
        Wijs(1, 1);
        Venster.Line1->X2 = VakMaat;
        VakZwart[5] = true;
        PuzzelGewijzigd = true;
        PijlSoort = 4;
        KleurVakjes = 3;
        OrgineelRood = OrgineelGroen = OrgineelBlauw = 7;
        PaginaTekst = QStringLiteral("voet");
    }

    /// As in the midst of work: changed, with a row, the frame round a cell and the line of a word.
    void InBewerking()
    {
        PuzzelGewijzigd = true;
        Venster.VoegRijenToe({{QStringLiteral("A-01 / 1-H"), {}, QStringLiteral("aap"), QStringLiteral("-")}});
        Venster.ToonAantal();
        Venster.Shape1->show();
        Venster.Line1->show();
    }

    /// Moves the pointer to the middle of a cell, counted from 0.
    void Wijs(int kolom, int rij) { Venster.Pic_MouseMove(kolom * VakMaat + VakMaat / 2, rij * VakMaat + VakMaat / 2); }

    /// Presses a button there, as a person does.
    void Klik(Qt::MouseButton knop, int kolom, int rij)
    {
        Wijs(kolom, rij);
        Venster.Pic_MouseDown(knop, QPoint(0, 0));
    }

    Stand Nu() const { return StandVan(Venster); }
    /// The names of all that has changed since.
    QString Veranderd(const Stand &sinds) const { return Verschil(sinds, Nu()); }

    /// The same without what every puzzle has of its own.
    QString VeranderdBuitenPuzzel(const Stand &sinds) const
    {
        const QString eigen = QStringLiteral(
            "BoardHeight BoardWidth Bestandsnaam EditDeleteLetters EditDeleteRaster Frame8 Frame9 Label1 Label11 "
            "Label12 Line1 ListView1 Main Pic PicGroot PicO PicR PuzzelNaam PuzzelType Shape1");
        Stand nu = Nu();
        for (const QString &naam : eigen.split(u' '))
            nu.remove(naam);
        return Verschil(sinds, nu);
    }

    QImage Pic() const { return Venster.Pic->Image(); }
    QImage Groot() const { return Venster.PicGroot->Image(); }
    QString Rij(int index) const
    {
        const QTreeWidgetItem *rij = Venster.ListView1->topLevelItem(index);
        return rij ? QStringList{rij->text(0), rij->text(1), rij->text(2), rij->text(3)}.join(u'|') : QString();
    }
};

/// The same with a word panel and a level of a Sudoku that are not as they start, so that it shows when something puts
/// them back.
struct Bord : VersBord
{
    Bord()
    {
        const QSignalBlocker stil(Venster.List3); // there is no such word list
        for (ListBox *lijst : {Venster.List1, Venster.List2, Venster.List3}) {
            lijst->SetItems({QStringLiteral("AAP"), QStringLiteral("NOOT")});
            lijst->SetListIndex(1);
        }
        Venster.Label3->SetCaption(QStringLiteral("2 Woorden gevonden"));
        Venster.ScrolLengte->setValue(7);
        Venster.Combo1->setCurrentIndex(4);
        Venster.Option[2]->setChecked(true);
    }
};

/// A test's table with a row for each kind of puzzle, in the column "soort".
inline void ElkeSoort()
{
    QTest::addColumn<int>("soort");
    for (int soort = 1; soort <= AantalSoorten; ++soort)
        Geval(SoortVan(static_cast<quint8>(soort))->Optie.toUtf8(), soort);
}

/// The inside of a cell on Pic, in pixels: 29 by 29, without the grid lines.
inline QRect Binnen(int kolom, int rij)
{
    return QRect(kolom * 30 + 1, rij * 30 + 1, 29, 29);
}

/// The inside of a cell on PicGroot, in pixels: 117 by 117, without the frame.
inline QRect BinnenGroot(int kolom, int rij)
{
    return QRect(kolom * 120 + 3, rij * 120 + 3, 117, 117);
}

/// What a line of text looks like when it is printed on white, with its cell at (x, y) in pixels.
inline QImage Gedrukt(QSize maat, const QString &tekst, int x, int y, const QString &font, double punten, bool vet,
                      QRgb kleur)
{
    QWidget venster;
    PictureBox box(&venster);
    box.resize(maat);
    box.SetScaleMode(ScaleModes::Pixels);
    box.FontName = font;
    box.FontSize = punten;
    box.FontBold = vet;
    box.ForeColor = kleur;
    box.CurrentX = x;
    box.CurrentY = y;
    box.Print(tekst);
    return box.Image();
}

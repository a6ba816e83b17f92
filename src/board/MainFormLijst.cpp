#include "board/Algemeen.h"
#include "board/LangeIJ.h"
#include "board/MainForm.h"
#include "board/Plaats.h"
#include "board/Richtingen.h"
#include "board/Soorten.h"
#include "platform/Berichten.h"
#include "platform/Getallen.h"
#include "platform/Kleur.h"

#include <QSignalBlocker>

using namespace Qt::StringLiterals;

void MainForm::MaakLijst()
{
    const QList<ListView::Column> kolommen{
        {u"Vaknummer"_s, 1320}, {u"Omschrijving"_s, 2160}, {u"Oplossing"_s, 1350}, {u"Nr."_s, 630}};
    ListView1 = Maak<ListView>("ListView1", u"Lijst van geplaatste woorden"_s, nullptr, kolommen);
    Frame7 = MaakFrame("Frame7", u"Lijst"_s);
    DelKnop = MaakKnopMetTip("DelKnop", u" Verwijder een item uit bovenstaande lijst "_s, u"knop-wissen"_s, Frame7);
    Label10 = MaakLabel("Label10", u"Item verwijderen"_s, Frame7);
    Label11 = MaakLabel("Label11", u"0 Items"_s, Frame7);

    Zet(ListView1, 8160, 195, 5145, 5145);
    Zet(Frame7, 8160, 5400, 5175, 750);
    Zet(DelKnop, 120, 240);
    Zet(Label10, 1170, 315);
    Zet(Label11, 4350, 315);

    Kleur(ListView1, RGB(220, 220, 250), RGB(0, 0, 0));

    bij(ListView1, &ListView::ItemClick, &MainForm::ListView1_ItemClick);
    bij(DelKnop, &ImageButton::clicked, &MainForm::DelKnop_Click);
}

static Rij RijVan(const QTreeWidgetItem &item)
{
    return {.Vaknummer = item.text(0), .Omschrijving = item.text(1), .Oplossing = item.text(2), .Nr = item.text(3)};
}

static QTreeWidgetItem *GekozenItem(const QTreeWidget &lijst)
{
    const QList<QTreeWidgetItem *> gekozen = lijst.selectedItems();
    return gekozen.isEmpty() ? nullptr : gekozen.first();
}

// The row's position is trusted: a text that no editor made leads the line anywhere.
void MainForm::ListView1_ItemClick()
{
    const QTreeWidgetItem *item = GekozenItem(*ListView1);
    const Rij rij = item ? RijVan(*item) : Rij();
    const Soort *soort = SoortVan(PuzzelType);
    if (rij.Vaknummer.isEmpty() || rij.Vaknummer == "-"_L1 || !soort || soort->Richtingen.isEmpty())
        return;
    const Plaats plaats = LeesPlaats(rij.Vaknummer);
    const Richting *richting = soort->Richtingen.contains(plaats.Richting) ? RichtingVan(plaats.Richting) : nullptr;
    const int lengte = richting ? Getallen::AlsInt16(AantalVakjes(rij.Oplossing) * VakMaat) - VakMaat : 0;
    Line1->X1 = plaats.Kolom * VakMaat + VakMaat / 2.0;
    Line1->Y1 = plaats.Rij * VakMaat + VakMaat / 2.0;
    if (richting) { // else the end of the line stays where it was
        Line1->X2 = Line1->X1 + richting->Kolommen * lengte;
        Line1->Y2 = Line1->Y1 + richting->Rijen * lengte;
    }
    Line1->Toon();
}

// Nothing changes on the board, and the puzzle doesn't count as changed: letters are removed by hand.
void MainForm::DelKnop_Click()
{
    DelKnop->Druk();
    QTreeWidgetItem *item = GekozenItem(*ListView1);
    if (!item)
        return;
    const int index = ListView1->indexOfTopLevelItem(item);
    if (!JaNee(u"Wil je ("_s + RijVan(*item).Oplossing + u") verwijderen uit de lijst?"_s, u" Delete"_s))
        return;
    {
        const QSignalBlocker stil(ListView1);
        delete ListView1->takeTopLevelItem(index); // its neighbour is selected then
    }
    ToonAantal();
    Line1->hide();
}

void MainForm::VoegRijenToe(const QList<Rij> &rijen)
{
    const QSignalBlocker stil(ListView1);
    QList<QTreeWidgetItem *> items;
    items.reserve(rijen.size());
    for (const Rij &rij : rijen)
        items.append(new QTreeWidgetItem({rij.Vaknummer, rij.Omschrijving, rij.Oplossing, rij.Nr}));
    ListView1->addTopLevelItems(items);
    if (!GekozenItem(*ListView1))
        ListView1->setCurrentItem(ListView1->topLevelItem(0));
}

QList<Rij> MainForm::Rijen() const
{
    QList<Rij> rijen;
    for (int i = 0; i < ListView1->topLevelItemCount(); ++i)
        rijen += RijVan(*ListView1->topLevelItem(i));
    return rijen;
}

void MainForm::WisRijen()
{
    ListView1->clear();
}

void MainForm::ToonAantal()
{
    Label11->SetCaption(u"%1 Items"_s.arg(ListView1->topLevelItemCount()));
}

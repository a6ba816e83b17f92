#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "board/Soorten.h"
#include "platform/Berichten.h"
#include "platform/Getallen.h"
#include "platform/Kleur.h"
#include "platform/Twips.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

using namespace Qt::StringLiterals;

/// Shows the beginning of a text: a file may hold one of megabytes.
class BeginVanTekst : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QString displayText(const QVariant &waarde, const QLocale &) const override
    {
        constexpr int MostCharacters = 260;
        return waarde.toString().left(MostCharacters);
    }
};

void MainForm::MaakLijst()
{
    ListView1 = Maak<QTreeWidget>("ListView1", u"Lijst van geplaatste woorden"_s, nullptr);
    Frame7 = MaakFrame("Frame7", u"Lijst"_s);
    DelKnop = Maak<ImageButton>("DelKnop", u"Verwijder een item uit bovenstaande lijst"_s, Frame7, u"knop-wissen"_s);
    Label10 = MaakLabel("Label10", u"Item verwijderen"_s, Frame7);
    Label11 = MaakLabel("Label11", u"0 Items"_s, Frame7);

    Zet(ListView1, 8160, 195, 5145, 5145);
    Zet(Frame7, 8160, 5400, 5175, 750);
    Zet(DelKnop, 120, 240);
    Zet(Label10, 1170, 315);
    Zet(Label11, 4350, 315);

    ListView1->setHeaderLabels({u"Vaknummer"_s, u"Omschrijving"_s, u"Oplossing"_s, u"Nr."_s});
    ListView1->header()->setStretchLastSection(false);
    ListView1->header()->setSectionsMovable(false);
    ListView1->header()->setMinimumSectionSize(20);
    int kolom = 0;
    for (const int breedte : {1320, 2160, 1350, 630})
        ListView1->setColumnWidth(kolom++, Twips::NaarPixels(breedte));
    ListView1->setRootIsDecorated(false);
    ListView1->setUniformRowHeights(true);
    ListView1->setItemDelegate(new BeginVanTekst(ListView1));
    Kleur(ListView1, RGB(220, 220, 250), RGB(0, 0, 0));
    DelKnop->setToolTip(u" Verwijder een item uit bovenstaande lijst "_s);
}

static QTreeWidgetItem *GekozenRij(const QTreeWidget &lijst)
{
    const QList<QTreeWidgetItem *> gekozen = lijst.selectedItems();
    return gekozen.isEmpty() ? nullptr : gekozen.first();
}

// The row's position is trusted: a text that no editor made leads the line anywhere.
void MainForm::ListView1_ItemClick()
{
    const QTreeWidgetItem *rij = GekozenRij(*ListView1);
    if (!rij || rij->text(0) == "-"_L1)
        return;
    const QString plaats = rij->text(0);
    const QString oplossing = Hoofdletters(rij->text(2)).replace("IJ"_L1, "?"_L1);
    const double x = double{VakMaat} * (plaats.at(0).unicode() - 65);
    const double y = Getallen::Val(QStringView(plaats).mid(2, 2)) * VakMaat - VakMaat;

    const Soort *soort = SoortVan(PuzzelType);
    if (!soort || soort->Richtingen.isEmpty())
        return;
    Line1->X1 = x + VakMaat / 2.0;
    Line1->Y1 = y + VakMaat / 2.0;
    const QChar richting = plaats.back();
    if (soort->Richtingen.contains(richting)) { // another letter leaves the end of the line where it was
        const int lengte = Getallen::AlsInt16(qint64{oplossing.size()} * VakMaat) - VakMaat;
        const bool omlaag = richting != u'H';
        Line1->X2 = Line1->X1 + (richting == u'L' ? -lengte : richting == u'V' ? 0 : lengte);
        Line1->Y2 = Line1->Y1 + (omlaag ? lengte : 0);
    }
    Line1->Toon();
}

// Nothing changes on the board, and the puzzle doesn't count as changed: letters are removed by hand.
void MainForm::DelKnop_Click()
{
    DelKnop->Druk();
    QTreeWidgetItem *rij = GekozenRij(*ListView1);
    if (!rij)
        return;
    const QString vraag = u"Wil je ("_s + rij->text(2) + u") verwijderen uit de lijst?"_s;
    const int index = ListView1->indexOfTopLevelItem(rij);
    if (MsgBox(vraag, Knoppen::JaNee, Icoon::Geen, u" Delete"_s) != Antwoord::Ja)
        return;
    {
        const QSignalBlocker stil(ListView1);
        delete ListView1->takeTopLevelItem(index);
        if (QTreeWidgetItem *buur = ListView1->topLevelItem(std::min(index, ListView1->topLevelItemCount() - 1)))
            ListView1->setCurrentItem(buur);
    }
    ToonAantal();
    Line1->hide();
}

void MainForm::VoegRijToe(const QString &vaknummer, const QString &omschrijving, const QString &oplossing,
                          const QString &nr)
{
    VoegRijenToe({{vaknummer, omschrijving, oplossing, nr}});
}

void MainForm::VoegRijenToe(const QList<QStringList> &rijen)
{
    const QSignalBlocker stil(ListView1);
    QList<QTreeWidgetItem *> items;
    items.reserve(rijen.size());
    for (const QStringList &rij : rijen)
        items.append(new QTreeWidgetItem(rij));
    ListView1->addTopLevelItems(items);
    if (!GekozenRij(*ListView1) && ListView1->topLevelItemCount() > 0)
        ListView1->setCurrentItem(ListView1->topLevelItem(0));
}

void MainForm::WisRijen()
{
    const QSignalBlocker stil(ListView1);
    ListView1->clear();
}

void MainForm::ToonAantal()
{
    Label11->SetCaption(u"%1 Items"_s.arg(ListView1->topLevelItemCount()));
}

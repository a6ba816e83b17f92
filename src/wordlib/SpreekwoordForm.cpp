#include "wordlib/SpreekwoordForm.h"

#include "board/Kleuren.h"
#include "board/WoordPaden.h"
#include "platform/Berichten.h"
#include "platform/Files.h"
#include "platform/Fout.h"
#include "platform/Kleur.h"
#include "platform/Screen.h"
#include "platform/Teksten.h"
#include "wordlib/Naslagwerk.h"

#include <QMenu>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace {

struct Bron
{
    QString Opschrift, Bestand;
};

/// The tables, by their index; the first is that of the proverbs.
const Bron &BronVan(size_t Index)
{
    static const std::array bronnen{Bron{},
                                    Bron{u"Spreekwoorden en gezegden"_s, u"Spreekwoorden"_s},
                                    Bron{u"Landen met hoofdsteden"_s, u"Hoofdsteden"_s},
                                    Bron{u"Afkortingen"_s, u"Afkortingen"_s},
                                    Bron{u"IOC Landcodes"_s, u"LandcodesIOC"_s},
                                    Bron{u"Gemeenten in Nedlerland"_s, u"Gemeenten"_s}, // spelled so
                                    Bron{u"Internet afkortingen landen"_s, u"Internet landen afkortingen"_s}};
    return bronnen.at(Index);
}

} // namespace

SpreekwoordForm::SpreekwoordForm()
    : Form(u"SpreekwoordForm"_s, u"Spreekwoorden en Gezegden"_s, 9000, 3900, Kleuren::Paneel, true)
{
    List1 = Maak<ListBox>("List1", u"Bibliotheek"_s);
    List2 = Maak<ListBox>("List2", u"Betekenissen"_s);
    Label1 = MaakLabel("Label1", u"Dubbelklik op een item is de betekenis."_s);
    OkKnop = MaakOkKnop();
    QMenu *database = MaakMenu("FileDatabase", u"Database"_s);
    for (size_t i = 1; i < FileCripto.size(); ++i) {
        FileCripto[i] = MaakItem(*database, "", BronVan(i).Opschrift);
        FileCripto[i]->setObjectName(u"FileCripto(%1)"_s.arg(i));
        FileCripto[i]->setCheckable(true);
    }
    PasOpScherm();

    Zet(List1, 180, 225, 8520, 2250);
    Zet(Label1, 210, 2460);
    Zet(OkKnop, 7770, 2610);

    Kleur(List1, RGB(30, 0, 0), RGB(250, 250, 210));
    List2->hide();
    FileCripto[1]->setChecked(true);
    LaadSpreekwoorden(QString());

    for (size_t i = 1; i < FileCripto.size(); ++i)
        bij(FileCripto[i], &QAction::triggered, [this, i] { FileCripto_Click(static_cast<int>(i)); });
    bij(List1, &ListBox::DblClick, &SpreekwoordForm::List1_DblClick);
    for (const Qt::Key toets : {Qt::Key_Return, Qt::Key_Enter}) // the double click of the keyboard
        bij(new QShortcut(toets, List1, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated,
            &SpreekwoordForm::List1_DblClick);
    bij(OkKnop, &ImageButton::clicked, &SpreekwoordForm::OkKnop_Click);
}

void SpreekwoordForm::FileCripto_Click(int Index)
{
    for (size_t i = 1; i < FileCripto.size(); ++i)
        FileCripto[i]->setChecked(false);
    if (Index == 1)
        LaadSpreekwoorden(QString());
    else
        LaadBron(Index);
    HuidigeBron = Index;
    FileCripto.at(static_cast<size_t>(Index))->setChecked(true);
}

void SpreekwoordForm::LaadSpreekwoorden(const QString &Filter)
{
    const Screen::Bezig bezig;
    Label1->show();
    QStringList gezegden, betekenissen;
    const bool heel = negeer(
        [&] { LeesSpreekwoorden(Files::Lees(BibliotheekPad(BronVan(1).Bestand)), Filter, gezegden, betekenissen); });
    List1->SetItems(gezegden);
    List2->SetItems(betekenissen);
    if (heel)
        setWindowTitle(u"Spreekwoorden en Gezegden (%1)"_s.arg(List1->ListCount()));
}

void SpreekwoordForm::LaadBron(int Index)
{
    Label1->hide();
    const QString &naam = BronVan(static_cast<size_t>(Index)).Bestand;
    const Screen::Bezig bezig;
    QStringList regels;
    const bool heel = negeer([&] { LeesBron(Files::Lees(BibliotheekPad(naam)), regels); });
    List1->SetItems(regels);
    if (!heel)
        return;
    setWindowTitle(u"%1 (%2)"_s.arg(naam).arg(List1->ListCount()));
    List1->setToolTip(QString());
}

void SpreekwoordForm::List1_DblClick()
{
    Titel = List1->Text();
    const QString betekenis = List2->List(List1->ListIndex()).mid(12); // behind the lead-in
    Betekenis = Hoofdletters(betekenis.left(1)) + betekenis.mid(1);
    if (HuidigeBron == 1)
        MsgBox(Betekenis, Knoppen::Ok, Icoon::Geen, u"Betekenis"_s);
}

void SpreekwoordForm::OkKnop_Click()
{
    Sluit(OkKnop);
}

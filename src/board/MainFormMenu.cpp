#include "board/MainForm.h"
#include "board/Soorten.h"

#include <QMenuBar>

using namespace Qt::StringLiterals;

// The menu bar from left to right, each menu from top to bottom. An item is disabled until a command is connected to
// it.

/// One item: where the window keeps it, its name and caption; no name is a separator.
struct MenuRegel
{
    QAction **Item;
    const char *Naam;
    QString Opschrift;
};

static void MaakItem(QWidget &balkOfMenu, const MenuRegel &regel)
{
    *regel.Item = MaakItem(balkOfMenu, regel.Naam, regel.Opschrift);
    (*regel.Item)->setEnabled(false);
}

static void VulMenu(QMenu &menu, const QList<MenuRegel> &regels)
{
    for (const MenuRegel &regel : regels) {
        if (regel.Item)
            MaakItem(menu, regel);
        else
            menu.addSeparator()->setObjectName(QLatin1String(regel.Naam));
    }
}

void MainForm::MaakMenuBalk()
{
    QMenuBar &balk = *MenuBalk();
    VulMenu(*MaakMenu("Bestand", u"Bestand"_s), {{&FileNew, "FileNew", u"Nieuwe puzzel ontwerpen"_s},
                                                 {nullptr, "FileStreep1", {}},
                                                 {&FileOpen, "FileOpen", u"Puzzel openen"_s},
                                                 {&FileSave, "FileSave", u"Puzzel opslaan"_s},
                                                 {&FilePrint, "FilePrint", u"Puzzel afdrukken"_s},
                                                 {nullptr, "FileStreep2", {}},
                                                 {&FileExit, "FileExit", u"Exit"_s}});
    VulMenu(*MaakMenu("ShowGroot", u"Show"_s), {{&ShowOrgineel, "ShowOrgineel", u"Orgineel puzzelveld"_s}});
    VulMenu(*MaakMenu("Edit", u"Bewerken"_s),
            {{&EditDeleteRaster, "EditDeleteRaster", u"Verwijder raster Filippine"_s},
             {&EditDeleteLetters, "EditDeleteLetters", u"Verwijder letters Filippine"_s}});
    VulMenu(*MaakMenu("Biebliotheek", u"Bibliotheek"_s),
            {{&BiebOnlineWoordenboek, "BiebOnlineWoordenboek", u"Online woordenboek"_s},
             {nullptr, "BiebStreep1", {}},
             {&BiebInternZoeken, "BiebInternZoeken", u"Database doorzoeken"_s},
             {&BiebWoordzoeker, "BiebWoordzoeker", u"Woorden wisseling"_s},
             {&BiebOntbrekendeLetters, "BiebOntbrekendeLetters", u"Ontbrekende letters"_s},
             {nullptr, "BiebStreep2", {}},
             {&BiebSpreekwoorden, "BiebSpreekwoorden", u"Spreekwoorden en gezegden"_s},
             {&BiebChemisch, "BiebChemisch", u"Scheikundige symbolen"_s}});
    VulMenu(*MaakMenu("Tools", u"Tools"_s),
            {{&ToolsAdd, "ToolsAdd", u"Woordlijsten bewerken"_s},
             {&ToolsConfig, "ToolsConfig", u"Instellingen"_s},
             {&ToolsKlemboard, "ToolsKlemboard", u"Copy puzzelveld naar Clipboard"_s},
             {&ToolsKladblok, "ToolsKladblok", u"Kladblok"_s},
             {nullptr, "ToolsStreep1", {}},
             {&ToolsAutoWoordzoeker, "ToolsAutoWoordzoeker", u"Automatische woordzoeker"_s}});
    VulMenu(*MaakMenu("Exporteren", u"Website"_s), {{&Export1, "Export(1)", u"Html webpagina maken"_s}});
    VulMenu(*MaakMenu("Help", u"Help"_s),
            {{&HelpHelp, "HelpHelp", u"Uitleg en hulp"_s},
             {&HelpSpecialeTekens, "HelpSpecialeTekens", u"Speciale tekens"_s},
             {&HelpMeerSoftware, "HelpMeerSoftware", u"Meer software"_s},
             {nullptr, "helpStreep1", {}},
             {&HelpMail, "HelpMail", u"Mail sturen"_s},
             {nullptr, "helpStreep2", {}},
             {&HelpWoordlijstAanmaken, "HelpWoordlijstAanmaken", u"Woordlijsten aanmaken"_s}});
    MaakItem(balk, {&Spatie, "Spatie", u"|"_s});
    MaakItem(balk, {&Bestandsnaam, "Bestandsnaam", u"Puzzelnaam"_s});
}

void MainForm::MaakPopups()
{
    SoortPlaatsing = new QMenu(this);
    SoortPlaatsing->setObjectName(u"SoortPlaatsing"_s);
    const QStringList opschriften{u"Informatievakje plaatsen"_s,
                                  u"Omschrijving en/of oplossing plaatsen"_s,
                                  u"Letter plaatsen"_s,
                                  u"-"_s,
                                  u"Lege vakjes opvullen"_s,
                                  u"-"_s,
                                  u"Vaknummer plaatsen"_s,
                                  u"-"_s,
                                  u"Annuleren"_s};
    for (int i = 1; i <= opschriften.size(); ++i) {
        const QString &opschrift = opschriften[i - 1];
        QAction *item = opschrift == "-"_L1 ? SoortPlaatsing->addSeparator() : SoortPlaatsing->addAction(opschrift);
        item->setObjectName(u"SoortVakTekst(%1)"_s.arg(i));
        SoortVakTekst[static_cast<std::size_t>(i)] = item;
        bij(item, &QAction::triggered, [this, i] { emit VakMenuGekozen(i); });
    }

    SudokuMenu = new QMenu(this);
    SudokuMenu->setObjectName(u"SudokuMenu"_s);
    for (int i = 1; i <= 11; ++i) {
        QAction *item = nullptr;
        if (i <= 9)
            item = SudokuMenu->addAction(QString::number(i));
        else if (i == 10)
            item = SudokuMenu->addSeparator();
        else
            item = SudokuMenu->addAction(u"Hint"_s);
        item->setObjectName(u"SuMe(%1)"_s.arg(i));
        bij(item, &QAction::triggered, [this, i] { emit SudokuMenuGekozen(i); });
        SuMe[static_cast<std::size_t>(i)] = item;
    }
}

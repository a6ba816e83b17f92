#include "board/MainForm.h"

#include <QMenuBar>

// The menu bar from left to right, each menu from top to bottom. An item is disabled until a command is connected to
// it.

/// One item: where the window keeps it, its name and caption; no name is a separator.
struct MenuRegel
{
    QAction **Item;
    const char *Naam;
    QString Opschrift;
};

static QAction *MaakItem(QWidget *ouder, const MenuRegel &regel)
{
    auto *item = new QAction(regel.Opschrift, ouder);
    item->setObjectName(QLatin1String(regel.Naam));
    item->setEnabled(false);
    return item;
}

static void VulMenu(QMenuBar &balk, const char *naam, const QString &opschrift, const QList<MenuRegel> &regels)
{
    QMenu *menu = balk.addMenu(opschrift);
    menu->setObjectName(QLatin1String(naam));
    for (const MenuRegel &regel : regels) {
        if (regel.Item)
            menu->addAction(*regel.Item = MaakItem(menu, regel));
        else
            menu->addSeparator()->setObjectName(QLatin1String(regel.Naam));
    }
}

void MainForm::MaakMenuBalk()
{
    QMenuBar &balk = *MenuBalk();
    VulMenu(balk, "Bestand", QStringLiteral("Bestand"),
            {{&FileNew, "FileNew", QStringLiteral("Nieuwe puzzel ontwerpen")},
             {nullptr, "FileStreep1", {}},
             {&FileOpen, "FileOpen", QStringLiteral("Puzzel openen")},
             {&FileSave, "FileSave", QStringLiteral("Puzzel opslaan")},
             {&FilePrint, "FilePrint", QStringLiteral("Puzzel afdrukken")},
             {nullptr, "FileStreep2", {}},
             {&FileExit, "FileExit", QStringLiteral("Exit")}});
    VulMenu(balk, "ShowGroot", QStringLiteral("Show"),
            {{&ShowOrgineel, "ShowOrgineel", QStringLiteral("Orgineel puzzelveld")}});
    VulMenu(balk, "Edit", QStringLiteral("Bewerken"),
            {{&EditDeleteRaster, "EditDeleteRaster", QStringLiteral("Verwijder raster Filippine")},
             {&EditDeleteLetters, "EditDeleteLetters", QStringLiteral("Verwijder letters Filippine")}});
    VulMenu(balk, "Biebliotheek", QStringLiteral("Bibliotheek"),
            {{&BiebOnlineWoordenboek, "BiebOnlineWoordenboek", QStringLiteral("Online woordenboek")},
             {nullptr, "BiebStreep1", {}},
             {&BiebInternZoeken, "BiebInternZoeken", QStringLiteral("Database doorzoeken")},
             {&BiebWoordzoeker, "BiebWoordzoeker", QStringLiteral("Woorden wisseling")},
             {&BiebOntbrekendeLetters, "BiebOntbrekendeLetters", QStringLiteral("Ontbrekende letters")},
             {nullptr, "BiebStreep2", {}},
             {&BiebSpreekwoorden, "BiebSpreekwoorden", QStringLiteral("Spreekwoorden en gezegden")},
             {&BiebChemisch, "BiebChemisch", QStringLiteral("Scheikundige symbolen")}});
    VulMenu(balk, "Tools", QStringLiteral("Tools"),
            {{&ToolsAdd, "ToolsAdd", QStringLiteral("Woordlijsten bewerken")},
             {&ToolsConfig, "ToolsConfig", QStringLiteral("Instellingen")},
             {&ToolsKlemboard, "ToolsKlemboard", QStringLiteral("Copy puzzelveld naar Clipboard")},
             {&ToolsKladblok, "ToolsKladblok", QStringLiteral("Kladblok")},
             {nullptr, "ToolsStreep1", {}},
             {&ToolsAutoWoordzoeker, "ToolsAutoWoordzoeker", QStringLiteral("Automatische woordzoeker")}});
    VulMenu(balk, "Exporteren", QStringLiteral("Website"),
            {{&Export1, "Export(1)", QStringLiteral("Html webpagina maken")}});
    VulMenu(balk, "Help", QStringLiteral("Help"),
            {{&HelpHelp, "HelpHelp", QStringLiteral("Uitleg en hulp")},
             {&HelpSpecialeTekens, "HelpSpecialeTekens", QStringLiteral("Speciale tekens")},
             {&HelpMeerSoftware, "HelpMeerSoftware", QStringLiteral("Meer software")},
             {nullptr, "helpStreep1", {}},
             {&HelpMail, "HelpMail", QStringLiteral("Mail sturen")},
             {nullptr, "helpStreep2", {}},
             {&HelpWoordlijstAanmaken, "HelpWoordlijstAanmaken", QStringLiteral("Woordlijsten aanmaken")}});
    balk.addAction(Spatie = MaakItem(this, {nullptr, "Spatie", QStringLiteral("|")}));
    balk.addAction(Bestandsnaam = MaakItem(this, {nullptr, "Bestandsnaam", QStringLiteral("Puzzelnaam")}));
}

void MainForm::MaakPopups()
{
    SoortPlaatsing = new QMenu(this);
    SoortPlaatsing->setObjectName(QStringLiteral("SoortPlaatsing"));
    const QStringList opschriften{QStringLiteral("Informatievakje plaatsen"),
                                  QStringLiteral("Omschrijving en/of oplossing plaatsen"),
                                  QStringLiteral("Letter plaatsen"),
                                  QStringLiteral("-"),
                                  QStringLiteral("Lege vakjes opvullen"),
                                  QStringLiteral("-"),
                                  QStringLiteral("Vaknummer plaatsen"),
                                  QStringLiteral("-"),
                                  QStringLiteral("Annuleren")};
    for (int i = 1; i <= opschriften.size(); ++i) {
        const QString &opschrift = opschriften[i - 1];
        QAction *item =
            opschrift == QLatin1String("-") ? SoortPlaatsing->addSeparator() : SoortPlaatsing->addAction(opschrift);
        item->setObjectName(QStringLiteral("SoortVakTekst(%1)").arg(i));
        SoortVakTekst[static_cast<std::size_t>(i)] = item;
        bij(item, &QAction::triggered, [this, i] { emit VakMenuGekozen(i); });
    }
    SoortVakTekst[3]->setEnabled(false); // there is no letter editor yet

    SudokuMenu = new QMenu(this);
    SudokuMenu->setObjectName(QStringLiteral("SudokuMenu"));
    for (int i = 0; i < static_cast<int>(SuMe.size()); ++i) {
        QAction *item = i == 9 ? SudokuMenu->addSeparator()
                               : SudokuMenu->addAction(i < 9 ? QString::number(i + 1) : QStringLiteral("Hint"));
        item->setObjectName(QStringLiteral("SuMe(%1)").arg(i));
        item->setEnabled(false); // a Sudoku cannot be played yet
        SuMe[static_cast<std::size_t>(i)] = item;
    }
}

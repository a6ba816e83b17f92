#include "platform/Uiterlijk.h"

#include "platform/Canvas.h"
#include "platform/Kader.h"
#include "platform/Plaatjes.h"

#include <QApplication>
#include <QHash>
#include <QIcon>
#include <QProxyStyle>
#include <QStyleOption>
#include <QTranslator>
#include <QWidget>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

using Teksten = QHash<QLatin1String, QString>;

/// The menu of every box one types in.
const Teksten &VanBox()
{
    static const Teksten teksten{{"&Undo"_L1, u"&Ongedaan maken"_s},
                                 {"&Redo"_L1, u"Opnie&uw"_s},
                                 {"Cu&t"_L1, u"K&nippen"_s},
                                 {"&Copy"_L1, u"&Kopiëren"_s},
                                 {"&Paste"_L1, u"&Plakken"_s},
                                 {"Delete"_L1, u"&Verwijderen"_s},
                                 {"Select All"_L1, u"&Alles selecteren"_s}};
    return teksten;
}

/// The dialog that asks for a file.
const Teksten &VanDialoog()
{
    static const Teksten teksten{
        {"Look in:"_L1, u"Zoeken in:"_s},
        {"File &name:"_L1, u"Bestands&naam:"_s},
        {"Files of type:"_L1, u"Soort bestanden:"_s},
        {"Back"_L1, u"Terug"_s},
        {"Go back"_L1, u"Terug naar de vorige map"_s},
        {"Forward"_L1, u"Verder"_s},
        {"Go forward"_L1, u"Verder naar de volgende map"_s},
        {"Parent Directory"_L1, u"Bovenliggende map"_s},
        {"Go to the parent directory"_L1, u"Naar de bovenliggende map"_s},
        {"Create New Folder"_L1, u"Nieuwe map"_s},
        {"Create a New Folder"_L1, u"Een nieuwe map maken"_s},
        {"List View"_L1, u"Lijst"_s},
        {"Change to list view mode"_L1, u"Alleen de namen tonen"_s},
        {"Detail View"_L1, u"Bijzonderheden"_s},
        {"Change to detail view mode"_L1, u"Ook grootte en datum tonen"_s},
        {"Sidebar"_L1, u"Plaatsen"_s},
        {"List of places and bookmarks"_L1, u"Lijst van plaatsen"_s},
        {"Files"_L1, u"Bestanden"_s},
        {"&Save"_L1, u"Op&slaan"_s},
        {"&Open"_L1, u"&Openen"_s},
        {"&Rename"_L1, u"&Naam wijzigen"_s},
        {"&Delete"_L1, u"&Verwijderen"_s},
        {"Delete"_L1, u"Verwijderen"_s},
        {"Show &hidden files"_L1, u"Ver&borgen bestanden tonen"_s},
        {"&New Folder"_L1, u"Nieuwe &map"_s},
        {"New Folder"_L1, u"Nieuwe map"_s},
        {"Remove"_L1, u"Weghalen"_s},
        {"Recent Places"_L1, u"Laatste plaatsen"_s},
        {"My Computer"_L1, u"Computer"_s},
        {"Computer"_L1, u"Computer"_s},
        {"Name"_L1, u"Naam"_s},
        {"Size"_L1, u"Grootte"_s},
        {"Type"_L1, u"Soort"_s},
        {"Show "_L1, u"Toon "_s},
        {"Date Modified"_L1, u"Gewijzigd"_s},
        {"Folder"_L1, u"Map"_s},
        {"%1 already exists.\nDo you want to replace it?"_L1, u"%1 bestaat al.\nWil je het vervangen?"_s},
        {"Are you sure you want to delete '%1'?"_L1, u"Wil je '%1' verwijderen?"_s},
        {"'%1' is write protected.\nDo you want to delete it anyway?"_L1,
         u"'%1' is beveiligd.\nWil je het toch verwijderen?"_s},
        {"Could not delete directory."_L1, u"De map kon niet worden verwijderd."_s},
        {"%1\nDirectory not found.\nPlease verify the correct directory name was given."_L1,
         u"%1\nDeze map is er niet."_s},
        {"&Yes"_L1, u"&Ja"_s},
        {"&No"_L1, u"&Nee"_s},
        {"OK"_L1, u"OK"_s},
        {"Cancel"_L1, u"Annuleren"_s}};
    return teksten;
}

/// The help of the command line.
const Teksten &VanOpdrachtregel()
{
    static const Teksten teksten{
        {"Usage: %1"_L1, u"Gebruik: %1"_s},
        {"[options]"_L1, u"[keuzes]"_s},
        {"Options:"_L1, u"Keuzes:"_s},
        {"Displays help on commandline options."_L1, u"Toont deze uitleg."_s},
        {"Displays help including Qt specific options."_L1, u"Toont deze uitleg met de keuzes van Qt erbij."_s},
        {"Unknown option '%1'."_L1, u"Onbekende keuze '%1'."_s},
        {"Unknown options: %1."_L1, u"Onbekende keuzes: %1."_s},
        {"Missing value after '%1'."_L1, u"Achter '%1' ontbreekt de waarde."_s},
        {"Unexpected value after '%1'."_L1, u"Achter '%1' hoort geen waarde."_s}};
    return teksten;
}

/// What Qt itself shows, by the class that shows it.
class Nederlands : public QTranslator
{
public:
    using QTranslator::QTranslator;

    bool isEmpty() const override { return false; }
    QString translate(const char *bron, const char *tekst, const char * /*uitleg*/, int /*aantal*/) const override
    {
        static const QHash<QLatin1String, const Teksten *> Bronnen{{"QWidgetTextControl"_L1, &VanBox()},
                                                                   {"QLineEdit"_L1, &VanBox()},
                                                                   {"QCommandLineParser"_L1, &VanOpdrachtregel()},
                                                                   {"QFileDialog"_L1, &VanDialoog()},
                                                                   {"QFileSystemModel"_L1, &VanDialoog()},
                                                                   {"QAbstractFileIconProvider"_L1, &VanDialoog()},
                                                                   {"QSidebar"_L1, &VanDialoog()},
                                                                   {"QPlatformTheme"_L1, &VanDialoog()}};
        const Teksten *teksten = Bronnen.value(QLatin1String(bron));
        return teksten ? teksten->value(QLatin1String(tekst)) : QString();
    }
};

/// Fusion, but for three things. It marks a menu of the bar only once that is open, and so Alt would show nothing. For
/// the mark of a bar that is too narrow it reads a file, for which Qt loads every picture format there is. And it draws
/// an outline with a pen: where the scale of the screen is no whole number, a side between two pixels is lost.
class Stijl : public QProxyStyle
{
public:
    Stijl() : QProxyStyle(u"Fusion"_s) {}

    QIcon standardIcon(StandardPixmap soort, const QStyleOption *keuze, const QWidget *widget) const override
    {
        if (soort != SP_ToolBarHorizontalExtensionButton)
            return QProxyStyle::standardIcon(soort, keuze, widget);
        return Plaatjes::Pixmap(u"meer"_s, Plaatjes::Maat(u"meer"_s), 1);
    }

    void drawControl(ControlElement deel, const QStyleOption *keuze, QPainter *painter,
                     const QWidget *widget) const override
    {
        const auto *menu = qstyleoption_cast<const QStyleOptionMenuItem *>(keuze);
        if (deel != CE_MenuBarItem || !menu || !(menu->state & State_Enabled) || !(menu->state & State_Selected))
            return QProxyStyle::drawControl(deel, keuze, painter, widget);
        QStyleOptionMenuItem open = *menu;
        open.state |= State_Sunken;
        QProxyStyle::drawControl(deel, &open, painter, widget);
    }

    void drawPrimitive(PrimitiveElement deel, const QStyleOption *keuze, QPainter *painter,
                       const QWidget *widget) const override
    {
        const double ratio = painter->deviceTransform().m11();
        if (deel != PE_Frame || ratio == std::floor(ratio)) {
            QProxyStyle::drawPrimitive(deel, keuze, painter, widget);
            return;
        }
        TekenKader(*painter, keuze->rect, 1,
                   keuze->palette.window().color().darker(140).lighter(108)); // as Fusion has it
    }
};

} // namespace

void StelUiterlijkIn()
{
    // The menu is the window's, also where a desktop would take it away.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    QApplication::installTranslator(new Nederlands(qApp));
    QApplication::setStyle(new Stijl);
    QPalette palet = QApplication::style()->standardPalette();
    for (const QPalette::ColorRole rol : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palet.setColor(QPalette::Disabled, rol, qRgb(120, 120, 120)); // still to be read on our pale colours
    QApplication::setPalette(palet);
    QApplication::setFont(Lettertype(u"Arial"_s, 8.25, false));
}

void AlsDialoog(QWidget &venster)
{
    venster.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                           Qt::WindowCloseButtonHint);
}

// None is active just after a dialog has closed, or when the user has gone to another program meanwhile.
QWidget *Eigenaar()
{
    if (QWidget *modaal = QApplication::activeModalWidget())
        return modaal;
    if (QWidget *actief = QApplication::activeWindow())
        return actief;
    for (QWidget *venster : QApplication::topLevelWidgets())
        if (venster->isVisible() && venster->windowType() == Qt::Window)
            return venster;
    return nullptr;
}

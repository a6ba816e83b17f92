#include "app/AppMap.h"
#include "app/Opdrachten.h"
#include "app/Opstarten.h"
#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "platform/Berichten.h"
#include "platform/Uiterlijk.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QStandardPaths>

static QString GevraagdeMap(const QCoreApplication &app)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Ontwerpt Nederlandstalige puzzels."));
    const QCommandLineOption map(QStringLiteral("map"), QStringLiteral("De map met de gegevens van het programma."),
                                 QStringLiteral("MAP"));
    parser.addOption(map);
    parser.addHelpOption();
    parser.process(app);
    return parser.value(map);
}

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("rasteratelier"));
    StelUiterlijkIn();
    try {
        AppPath = KiesAppMap(GevraagdeMap(app), QCoreApplication::applicationDirPath(),
                             QStandardPaths::writableLocation(QStandardPaths::AppDataLocation),
                             QCoreApplication::applicationDirPath() + QStringLiteral("/" INSTALLED_FILES));
        MainForm main;
        LaadMain();
        VerbindOpdrachten();
        main.show();
        return QApplication::exec();
    } catch (const Fout &fout) {
        MsgBox(QStringLiteral("Fout %1 bij het starten: %2.").arg(fout.nummer()).arg(fout.tekst()), Knoppen::Ok,
               Icoon::Kritiek);
        return 1;
    }
}

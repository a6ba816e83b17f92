#include "app/AppMap.h"
#include "app/Opdrachten.h"
#include "app/Opstarten.h"
#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "platform/Berichten.h"
#include "platform/Fout.h"
#include "platform/Uiterlijk.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

static QString GevraagdeMap(const QCoreApplication &app)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Ontwerpt Nederlandstalige puzzels."_s);
    const QCommandLineOption map(u"map"_s, u"De map met de gegevens van het programma."_s, u"MAP"_s);
    parser.addOption(map);
    parser.addHelpOption();
    parser.process(app);
    return parser.value(map);
}

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(u"rasteratelier"_s);
    StelUiterlijkIn();
    try {
        AppPath = KiesAppMap(GevraagdeMap(app), QCoreApplication::applicationDirPath(),
                             QStandardPaths::writableLocation(QStandardPaths::AppDataLocation),
                             QCoreApplication::applicationDirPath() + QLatin1String("/" INSTALLED_FILES));
        MainForm main;
        LaadMain();
        VerbindOpdrachten();
        main.show();
        return QApplication::exec();
    } catch (const std::exception &exception) {
        const Fout fout = Fout::Van(exception);
        MsgBox(u"Fout %1 bij het starten: %2."_s.arg(fout.nummer()).arg(fout.tekst()), Knoppen::Ok, Icoon::Kritiek);
        return 1;
    }
}

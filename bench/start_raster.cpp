// The start of the program up to its first painted window, as its main function does it.

#include "EerstePaint.h"

#include "app/Opdrachten.h"
#include "app/Opstarten.h"
#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "platform/Uiterlijk.h"

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    StelUiterlijkIn();
    AppPath = QString::fromLocal8Bit(argv[1]);
    MainForm main;
    LaadMain();
    VerbindOpdrachten();
    EerstePaint einde(main);
    main.show();
    return QApplication::exec();
}

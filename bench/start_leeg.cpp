// An empty window of the same size.

#include "EerstePaint.h"

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QWidget venster;
    venster.resize(1234, 727);
    EerstePaint einde(venster);
    venster.show();
    return QApplication::exec();
}

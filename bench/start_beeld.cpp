// A window of the same size that shows one line of text and holds one picture as large as the large board: what any
// program that shows such a board has to do.

#include "EerstePaint.h"

#include <QLabel>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QWidget venster;
    venster.resize(1234, 727);
    QLabel regel(QStringLiteral("Raster Atelier"), &venster);
    QImage beeld(1923, 2283, QImage::Format_RGB32);
    beeld.fill(Qt::white);
    EerstePaint einde(venster);
    venster.show();
    return QApplication::exec();
}

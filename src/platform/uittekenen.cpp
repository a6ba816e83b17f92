// Draws a picture out in its own size. Most are shown in that size: the pixels are read in a fraction of the time that
// drawing takes.
//
//   uittekenen DRAWING.svg PICTURE
//
// A picture is its width and its height, then its pixels from the top left, as LeesBeeld reads them.

#include "platform/Tekening.h"

#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QSvgRenderer>
#include <QTextStream>

int main(int argc, char *argv[])
{
    const QGuiApplication app(argc, argv); // for its fonts
    if (argc != 3) {
        QTextStream(stderr) << "uittekenen: it takes a drawing and a picture\n";
        return 2;
    }
    QSvgRenderer tekening(QFile::decodeName(argv[1]));
    QImage beeld(tekening.defaultSize(), QImage::Format_ARGB32_Premultiplied);
    beeld.fill(Qt::transparent);
    if (tekening.isValid())
        TekenSvg(beeld, tekening, beeld.size());
    QFile bestand(QFile::decodeName(argv[2]));
    const bool open = tekening.isValid() && bestand.open(QIODevice::WriteOnly);
    if (!open || !SchrijfBeeld(bestand, beeld)) {
        QTextStream(stderr) << "uittekenen: " << argv[1] << " can't be drawn as " << argv[2] << '\n';
        return 1;
    }
    return 0;
}

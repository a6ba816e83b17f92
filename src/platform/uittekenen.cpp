// Makes a picture of a drawing in its own size. Most are shown in that size: a picture is read in a fraction of the
// time that drawing it takes.
//
//   uittekenen DRAWING.svg PICTURE.png

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
    if (!tekening.isValid() || !beeld.save(QFile::decodeName(argv[2]))) {
        QTextStream(stderr) << "uittekenen: " << argv[1] << " can't be drawn as " << argv[2] << '\n';
        return 1;
    }
    return 0;
}

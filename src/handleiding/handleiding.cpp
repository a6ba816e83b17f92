// Makes a manual as a PDF file.
//
//   handleiding TITEL BEELDMAP DOEL BRON...
//
// The sources are texts in Markdown, in UTF-8, one behind the other; the pictures that they name are files in BEELDMAP.

#include "handleiding/HandleidingPdf.h"

#include "platform/Files.h"
#include "platform/Fout.h"

#include <QGuiApplication>
#include <QTextStream>

using namespace Qt::StringLiterals;

static int Maak(const QStringList &argumenten)
{
    if (argumenten.size() < 5)
        throw Fout(Fout::OngeldigArgument, u"handleiding TITEL BEELDMAP DOEL BRON..."_s);
    QStringList teksten;
    for (const QString &bron : argumenten.mid(4)) {
        const QByteArray bytes = Files::Lees(bron);
        if (!bytes.isValidUtf8())
            throw Fout(Fout::OngeldigeWaarde, bron);
        teksten += QString::fromUtf8(bytes);
    }
    const auto beeld = [&argumenten](const QString &naam) { return QImage(argumenten[2] + u'/' + naam); };
    Files::Schrijf(argumenten[3], MaakHandleiding(argumenten[1], teksten.join(u"\n\n"_s), beeld));
    return 0;
}

int main(int argc, char *argv[])
{
    const QGuiApplication app(argc, argv);
    try {
        return Maak(QCoreApplication::arguments());
    } catch (const Fout &fout) {
        QTextStream(stderr) << "handleiding: " << fout.tekst() << '\n';
        return 1;
    }
}

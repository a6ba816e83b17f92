#include "documents/PuzzelJpeg.h"

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "platform/Beurt.h"
#include "platform/Bewaren.h"
#include "platform/Files.h"
#include "platform/Fout.h"
#include "platform/PictureFiles.h"

#include <QStandardPaths>

using namespace Qt::StringLiterals;

static const QString TussenNaam = u"mydummy.bmp"_s;
static constexpr int Geduld = 5000; // milliseconds; a turn takes some tenths of a second

/// The file that says whose turn it is.
static QString BeurtPad()
{
    return Files::Pad(AppPath, {u".mydummy.slot"_s});
}

QString FotoMap()
{
    return QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
}

bool MaakPuzzelJpeg(const QString &naam)
{
    Beurt beurt(BeurtPad());
    if (!beurt.Neem(Geduld))
        return false;
    const QString tussen = Files::Pad(AppPath, {TussenNaam});
    negeer([&] {
        BestandenSet set(BestandenSet::Duur::Vluchtig);
        Files::SavePicture(Main().PicGroot->Image(), tussen, set);
        set.PlaatsAlles();
    });
    if (Files::Dir(tussen) != TussenNaam)
        return false;
    negeer([&] { Files::BmpToJpeg(tussen, Files::Pad(FotoMap(), {naam + u".jpg"_s}), 100); });
    negeer([&] { Files::Kill(tussen); });
    return true;
}

void RuimTussenBeeldOp()
{
    const QString tussen = Files::Pad(AppPath, {TussenNaam});
    if (!Files::FileExists(tussen) && !Files::FileExists(BeurtPad()))
        return;
    Beurt beurt(BeurtPad());
    if (beurt.Neem(0))
        negeer([&] { Files::Kill(tussen); });
}

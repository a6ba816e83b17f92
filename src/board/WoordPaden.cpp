#include "board/WoordPaden.h"

#include "board/Algemeen.h"
#include "platform/Files.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

QString BibliotheekPad(const QString &naam)
{
    return Files::Pad(AppPath, {u"Data"_s, naam + u".lib"_s});
}

QString DatabasePad()
{
    return BibliotheekPad(u"nederlands"_s);
}

static QString WoordlijstMap()
{
    return Files::Pad(AppPath, {u"Woordlijsten"_s});
}

QString WoordlijstPad(const QString &onderwerp)
{
    return Files::Pad(WoordlijstMap(), {onderwerp + u".txt"_s});
}

void LeesOnderwerpen(QStringList &onderwerpen)
{
    const QString map = WoordlijstMap();
    if (!QFileInfo(map).isDir() || !QFileInfo(map).isReadable())
        return;
    onderwerpen = Files::Lijst(map, u"*.txt"_s);
    for (QString &naam : onderwerpen)
        naam.chop(4);
}

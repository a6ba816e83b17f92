#pragma once

#include <QByteArray>
#include <QFile>
#include <QSet>
#include <QString>

#include <algorithm>

/// The words of the system's Dutch word list as the word database has them: accents folded, entries with a capital
/// left out, only those of at least two letters a to z, each once, in the order of that list. Empty when it isn't
/// there.
inline QByteArray EchteWoorden()
{
    QFile lijst(QStringLiteral(WOORDEN));
    if (!lijst.open(QIODevice::ReadOnly))
        return {};
    const QString bron = QString::fromUtf8(lijst.readAll());
    QByteArray woorden;
    QSet<QString> gehad;
    for (const QStringView regel : QStringView(bron).split(u'\n')) {
        QString woord = regel.toString().normalized(QString::NormalizationForm_D);
        woord.removeIf([](QChar teken) { return teken.isMark(); });
        const bool goed = std::all_of(woord.begin(), woord.end(), [](QChar t) { return t >= u'a' && t <= u'z'; });
        if (!goed || woord.size() < 2 || gehad.contains(woord))
            continue;
        gehad += woord;
        woorden += woord.toLatin1() + "\r\n";
    }
    return woorden;
}

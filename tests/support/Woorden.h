#pragma once

#include <QByteArray>
#include <QFile>

/// The word database of the built program. Empty when it isn't there.
inline QByteArray EchteWoorden()
{
    QFile database(QStringLiteral(DATABASE));
    return database.open(QIODevice::ReadOnly) ? database.readAll() : QByteArray();
}

#pragma once

#include <QByteArray>
#include <QFile>

/// The content of a file; empty when it cannot be read.
inline QByteArray InhoudVan(const QString &pad)
{
    QFile bestand(pad);
    return bestand.open(QIODevice::ReadOnly) ? bestand.readAll() : QByteArray();
}

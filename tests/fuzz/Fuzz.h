#pragma once

#include <QByteArray>

/// Ends the target unless this holds; the input that it ran on is then kept as one that breaks it.
#define EIS(voorwaarde) ((voorwaarde) ? void() : qFatal("%s:%d: %s", __FILE__, __LINE__, #voorwaarde))

/// What a target does with one input; each target has its own.
static void Probeer(const QByteArray &inhoud);

extern "C" int LLVMFuzzerTestOneInput(const uchar *bytes, size_t aantal)
{
    // Not a copy: behind the last byte nothing may be read.
    Probeer(QByteArray::fromRawData(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(aantal)));
    return 0;
}

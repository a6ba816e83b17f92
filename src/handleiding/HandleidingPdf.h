#pragma once

#include "handleiding/Opmaak.h"

#include <QByteArray>

/// A manual as a PDF file: A4, on the first page its title and the headings with their page numbers, then the text.
/// Every page has the title and its number at its foot.
/// @param beeld gives the pictures, see Opmaak
/// Raises what Opmaak and VerdeelOverBladen raise.
QByteArray MaakHandleiding(const QString &titel, const QString &markdown, const BeeldVan &beeld);

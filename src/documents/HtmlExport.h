#pragma once

#include <QString>

/// The folder of web pages, and that of their pictures. Either need not exist.
QString HtmlMap();
QString HtmlBeeldMap();

/// Writes the web page of the puzzle and its picture, in folders that are made for it, and opens the page. Whatever
/// fails is passed over in silence; when the page could not be written, what is in its place is opened.
/// @param Naam the base of both file names; with one that no file may have nothing is written nor opened
void ExporteerHtml(const QString &Naam);

/// The same without opening the page.
void SchrijfHtml(const QString &naam);

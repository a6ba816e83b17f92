#pragma once

#include "platform/Grenzen.h"

#include <QByteArray>
#include <QStringList>

/// Files as the system knows them, their names and their contents: every name is looked up ignoring case. A path comes
/// from Pad; what a path names need not exist. Failures are a Fout.
namespace Files {

/// The largest file that is read, in bytes: the largest picture with its head.
inline constexpr qint64 GrootsteBestand = GrootsteBeeld + 1024;

/// The path of a file below an existing folder. Each name is one file name; where a file of that name, ignoring case,
/// exists, its own spelling is taken, otherwise the spelling given.
/// Raises Fout::OngeldigeNaam for an empty name, one with < > : " / \ | ? * or a control character, and one that is no
/// text: nothing is ever read or written outside the folder.
QString Pad(const QString &map, const QStringList &namen);

/// Whether Pad takes a name.
bool IsGoedeNaam(const QString &naam);

bool FileExists(const QString &pad);
/// The file's own name as it is stored, empty when there is no such file.
QString Dir(const QString &pad);
/// The names of the files in a folder that match a pattern such as "*.lst", ignoring case, sorted; empty when there is
/// no such folder. A file whose name Pad refuses is left out.
QStringList Lijst(const QString &map, const QString &patroon);

void Kill(const QString &pad);
void MkDir(const QString &pad);

/// The whole content. Raises Fout::GeheugenVol above GrootsteBestand.
QByteArray Lees(const QString &pad);
/// The first bytes of a file, however large it is. @param hoogstens how many there are at most
QByteArray LeesBegin(const QString &pad, qint64 hoogstens);
/// Makes the file anew with this content and brings it to the disk, all or nothing: when that fails, the old file
/// stays. The rights of the old file are kept.
void Schrijf(const QString &pad, const QByteArray &inhoud);
void Schrijf(const QString &pad, std::initializer_list<QByteArrayView> delen); ///< parts, one behind the other
/// Gives a file another name in its folder; the name's own case is taken over. Raises Fout::OngeldigeNaam as Pad does.
void Hernoem(const QString &pad, const QString &naam);

} // namespace Files

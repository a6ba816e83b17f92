#pragma once

#include "platform/Fout.h"

#include <QByteArray>
#include <QImage>
#include <QStringList>

/// Files as the system knows them: text in code page 1252, names that are looked up ignoring case. A path comes from
/// Pad; what a path names need not exist. Failures are a Fout.
namespace Files {

inline constexpr qint64 GrootsteInhoud = qint64{256} << 20; ///< the largest picture that there is, in bytes
inline constexpr qint64 GrootsteBestand =
    GrootsteInhoud + 1024; ///< the largest file that is read: that picture, with its head

QByteArray NaarBytes(const QString &tekst); ///< to code page 1252; a character that it lacks becomes "?"
QString NaarTekst(QByteArrayView bytes);    ///< from code page 1252; every byte gives one character

/// The path of a file below an existing folder. Each name is one file name; where a file of that name, ignoring case,
/// exists, its own spelling is taken, otherwise the spelling given.
/// Raises Fout::OngeldigeNaam for an empty name or one with < > : " / \ | ? * or a control character: nothing is ever
/// read or written outside the folder.
QString Pad(const QString &map, const QStringList &namen);

bool FileExists(const QString &pad);
/// The file's own name as it is stored, empty when there is no such file.
QString Dir(const QString &pad);
/// The names of the files in a folder that match a pattern such as "*.lst", ignoring case, sorted; empty when there is
/// no such folder.
QStringList Lijst(const QString &map, const QString &patroon);

void Kill(const QString &pad);
void MkDir(const QString &pad);

/// The whole content. Raises Fout::GeheugenVol above GrootsteBestand.
QByteArray Lees(const QString &pad);
/// Makes the file anew with this content, all or nothing: when the writing fails, the old file stays.
void Schrijf(const QString &pad, const QByteArray &inhoud);
/// Gives a file another name in its folder; the name's own case is taken over.
void Hernoem(const QString &pad, const QString &naam);

/// A bitmap file. Raises Fout::OngeldigeAfbeelding when it is no whole picture.
QImage LoadPicture(const QString &pad);
/// Writes the picture as a bitmap file of 32 bits a pixel.
void SavePicture(const QImage &beeld, const QString &pad);
/// Makes a JPEG file of a bitmap file. @param kwaliteit 0..100
void BmpToJpeg(const QString &bitmap, const QString &jpeg, int kwaliteit);

/// Typed reading: fields that end at a comma or a line end, quotes taken off, blanks before a field passed over. All
/// raise Fout::EindeBestand when nothing is left; the numbers Fout::TypeOnjuist and Fout::Overloop.
class VeldLezer
{
public:
    explicit VeldLezer(QByteArrayView inhoud) : rest_(inhoud) {}

    bool Einde() const { return rest_.isEmpty(); }
    QString Tekst();
    quint8 Byte();
    qint16 Int16();
    qint32 Int32();

private:
    QByteArrayView Neem(qsizetype aantal);
    void SlaScheidingOver();

    QByteArrayView rest_;
};

/// Typed writing: strings in double quotes, numbers bare, commas between the values of a line, CR LF behind each line.
class VeldSchrijver
{
public:
    void Regel(const QString &tekst);
    void Regel(std::initializer_list<int> getallen);
    const QByteArray &Inhoud() const { return inhoud_; }

private:
    QByteArray inhoud_;
};

} // namespace Files

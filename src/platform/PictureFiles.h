#pragma once

#include <QImage>
#include <QString>

class BestandenSet;

/// Pictures in files. A path comes from Pad; failures are a Fout.
namespace Files {

/// A bitmap file. Raises Fout::OngeldigeAfbeelding when it is no whole picture.
QImage LoadPicture(const QString &pad);
/// Writes the picture as a bitmap file of 32 bits a pixel.
void SavePicture(const QImage &beeld, const QString &pad);
void SavePicture(const QImage &beeld, const QString &pad, BestandenSet &set); ///< as a file of a set
/// Makes a JPEG file of a bitmap file. @param kwaliteit 0..100
void BmpToJpeg(const QString &bitmap, const QString &jpeg, int kwaliteit);

} // namespace Files

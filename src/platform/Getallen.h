#pragma once

#include <QString>

/// Numbers as the platform makes them of texts, and texts of numbers.
namespace Getallen {

/// The numeric value of the longest leading part of the text that is a number; 0 when there is none. Blanks are passed
/// over. Never fails.
double Val(QStringView tekst);

/// The same rounded with ties to even. Raises Fout::Overloop outside 0..255, and outside -32768..32767.
quint8 ValByte(QStringView tekst);
qint16 ValInt16(QStringView tekst);

/// The whole text as a number (blanks around it allowed, a point for the fraction), rounded to the nearest whole
/// number with ties to the even one.
/// Raises Fout::TypeOnjuist when the text is no number, Fout::Overloop when it is outside the type's range.
quint8 NaarByte(QStringView tekst);
qint16 NaarInt16(QStringView tekst);
qint32 NaarInt32(QStringView tekst);

/// A value as a number of so many bits. Raises Fout::Overloop outside the type's range.
/// @param waarbij what the failure is about
qint16 AlsInt16(qint64 waarde, const QString &waarbij = {});
qint32 AlsInt32(qint64 waarde, const QString &waarbij = {});

/// Rounds to the nearest whole number, ties to the even one. The value must fit in 64 bits.
qint64 RondEven(double waarde);

/// A number as the platform prints it: a blank in the place of the sign when it is not negative.
QString MetTeken(qint64 waarde);

} // namespace Getallen

#include "platform/Getallen.h"

#include "platform/Fout.h"

#include <QLocale>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace Getallen {

double Val(QStringView tekst)
{
    QString cijfers;
    bool punt = false;
    for (const QChar c : tekst) {
        if (c == u' ' || c == u'\t')
            continue;
        const bool teken = cijfers.isEmpty() && (c == u'+' || c == u'-');
        const bool cijfer = c >= u'0' && c <= u'9';
        if (c == u'.' && !punt)
            punt = true;
        else if (!teken && !cijfer)
            break;
        cijfers += c;
    }
    return QLocale::c().toDouble(cijfers);
}

/// Rounded, ties to even. @param over what the failure is about
template <class Type> static Type Afgerond(double waarde, QStringView over)
{
    const double rond = std::nearbyint(waarde);
    if (!(rond >= std::numeric_limits<Type>::min() && rond <= std::numeric_limits<Type>::max()))
        throw Fout(Fout::Overloop, over.left(40).toString());
    return static_cast<Type>(rond);
}

template <class Type> static Type Strikt(QStringView tekst)
{
    bool isGetal = false;
    const double waarde = tekst.toDouble(&isGetal);
    // The words "inf" and "nan" are read as numbers; digits beyond a double's range are refused, but give infinity.
    if (isGetal ? !std::isfinite(waarde) : !std::isinf(waarde))
        throw Fout(Fout::TypeOnjuist, tekst.left(40).toString());
    return Afgerond<Type>(waarde, tekst);
}

quint8 NaarByte(QStringView tekst)
{
    return Strikt<quint8>(tekst);
}

qint16 NaarInt16(QStringView tekst)
{
    return Strikt<qint16>(tekst);
}

qint32 NaarInt32(QStringView tekst)
{
    return Strikt<qint32>(tekst);
}

quint8 ValByte(QStringView tekst)
{
    return Afgerond<quint8>(Val(tekst), tekst);
}

qint16 ValInt16(QStringView tekst)
{
    return Afgerond<qint16>(Val(tekst), tekst);
}

template <class Type> static Type Begrensd(qint64 waarde, const QString &waarbij)
{
    if (waarde < std::numeric_limits<Type>::min() || waarde > std::numeric_limits<Type>::max())
        throw Fout(Fout::Overloop, waarbij);
    return static_cast<Type>(waarde);
}

qint16 AlsInt16(qint64 waarde, const QString &waarbij)
{
    return Begrensd<qint16>(waarde, waarbij);
}

qint32 AlsInt32(qint64 waarde, const QString &waarbij)
{
    return Begrensd<qint32>(waarde, waarbij);
}

qint64 RondEven(double waarde)
{
    return static_cast<qint64>(std::nearbyint(waarde)); // the default rounding mode goes to the even neighbour
}

QString MetTeken(qint64 waarde)
{
    return waarde < 0 ? QString::number(waarde) : u' ' + QString::number(waarde);
}

} // namespace Getallen

#include "support/PdfLezer.h"

#include <QFile>
#include <QHash>
#include <QProcess>
#include <QRectF>
#include <QRegularExpression>

#include <cmath>

using namespace Qt::StringLiterals;

static QList<QRegularExpressionMatch> Alle(const QString &patroon, const QString &tekst)
{
    QList<QRegularExpressionMatch> gevonden;
    const QRegularExpression regel(patroon, QRegularExpression::MultilineOption);
    for (auto i = regel.globalMatch(tekst); i.hasNext();)
        gevonden += i.next();
    return gevonden;
}

/// The value of an attribute such as left="12.5".
static double Getal(const QString &attributen, const QString &naam)
{
    return Alle(u"\\b"_s + naam + u"=\"([^\"]*)\""_s, attributen).value(0).captured(1).toDouble();
}

/// Points to twips; on the page, when the margin is told.
static QString InTwips(double punten, int rand = 0)
{
    return QString::number(std::lround(punten * 20) - rand);
}

static QString Plaats(const QRectF &vlak)
{
    constexpr int Rand = 240;
    return InTwips(vlak.left(), Rand) + u',' + InTwips(vlak.top(), Rand);
}

static QString Leesbaar(QString xml)
{
    return xml.replace("&lt;"_L1, "<"_L1)
        .replace("&gt;"_L1, ">"_L1)
        .replace("&quot;"_L1, "\""_L1)
        .replace("&apos;"_L1, "'"_L1)
        .replace("&amp;"_L1, "&"_L1);
}

namespace {

/// A word on a page, in points.
struct Woord
{
    QRectF Cel;
    QString Tekst;

    double Punten() const { return Cel.height() / 1.1171875; } ///< such are the cells of these letters
    /// Whether another one follows on the same line, a blank further.
    bool GaatVerder(const Woord &volgend) const
    {
        constexpr double Blanco = 0.278, Speling = 0.1; // of the size
        const double gat = (volgend.Cel.left() - Cel.right()) / Punten();
        return volgend.Cel.top() == Cel.top() && volgend.Cel.height() == Cel.height() &&
               std::abs(gat - Blanco) < Speling;
    }
};

} // namespace

PdfLezer::PdfLezer(const QString &pad) : pad_(pad) {}

const QString &PdfLezer::Document() const
{
    if (!beschrijving_.isEmpty())
        return beschrijving_;
    const QString naam = map_.filePath(u"p"_s);
    Roep(u"pdftohtml"_s, {u"-q"_s, u"-xml"_s, u"-zoom"_s, u"1"_s, u"-noroundcoord"_s}, {naam});
    QFile bestand(naam + u".xml"_s);
    if (!bestand.open(QIODevice::ReadOnly))
        qFatal("%s: no description", qPrintable(pad_));
    return beschrijving_ = QString::fromUtf8(bestand.readAll());
}

QString PdfLezer::Roep(const QString &programma, const QStringList &argumenten, const QStringList &achter) const
{
    QProcess proces;
    proces.start(programma, argumenten + QStringList{pad_} + achter);
    if (!proces.waitForFinished() || proces.exitStatus() != QProcess::NormalExit || proces.exitCode() != 0)
        qFatal("%s %s: %s %s", qPrintable(programma), qPrintable(pad_), qPrintable(proces.errorString()),
               proces.readAllStandardError().constData());
    return QString::fromUtf8(proces.readAllStandardOutput());
}

QString PdfLezer::Kenmerk(const QString &naam) const
{
    return Alle(u'^' + naam + u": *(.*)$"_s, Roep(u"pdfinfo"_s, {})).value(0).captured(1);
}

QStringList PdfLezer::Regels(int pagina) const
{
    const QString blad = QString::number(pagina);
    const QString tekst = Roep(u"pdftotext"_s, {u"-layout"_s, u"-f"_s, blad, u"-l"_s, blad}, {u"-"_s});
    QStringList regels;
    for (const QString &regel : tekst.split(u'\n'))
        if (!regel.trimmed().isEmpty())
            regels += regel.trimmed().remove(u'\f');
    return regels;
}

QStringList PdfLezer::Letters() const
{
    QStringList letters;
    const QString patroon = u"^(?:[A-Z]{6}\\+)?(\\S+) .* (yes|no) +(?:yes|no) +(yes|no) +\\d+ +\\d+$"_s;
    for (const QRegularExpressionMatch &m : Alle(patroon, Roep(u"pdffonts"_s, {})))
        letters += m.captured(1) + (m.captured(2) == "yes"_L1 ? u" ingesloten"_s : QString()) +
                   (m.captured(3) == "yes"_L1 ? u" doorzoekbaar"_s : QString());
    letters.sort();
    return letters;
}

QString PdfLezer::Beschrijving(int pagina) const
{
    return Document().section(u"<page "_s, pagina, pagina);
}

static QRectF Vlak(const QString &attributen)
{
    return {Getal(attributen, u"left"_s), Getal(attributen, u"top"_s), Getal(attributen, u"width"_s),
            Getal(attributen, u"height"_s)};
}

QStringList PdfLezer::Teksten(int pagina) const
{
    QList<Woord> woorden;
    const QString nummer = QString::number(pagina);
    const QString cellen = Roep(u"pdftotext"_s, {u"-raw"_s, u"-bbox"_s, u"-f"_s, nummer, u"-l"_s, nummer}, {u"-"_s});
    for (const QRegularExpressionMatch &m : Alle(u"<word ([^>]*)>(.*)</word>"_s, cellen)) {
        const QString a = m.captured(1);
        const QPointF begin(Getal(a, u"xMin"_s), Getal(a, u"yMin"_s)), einde(Getal(a, u"xMax"_s), Getal(a, u"yMax"_s));
        Woord woord{QRectF(begin, einde), Leesbaar(m.captured(2))};
        if (!woorden.isEmpty() && woorden.last().GaatVerder(woord)) {
            woorden.last().Cel.setRight(woord.Cel.right());
            woorden.last().Tekst += u' ' + woord.Tekst;
        } else {
            woorden += woord;
        }
    }
    // What letter it is, is told of whole lines.
    QHash<QString, QString> kleuren;
    for (const QRegularExpressionMatch &m : Alle(u"<fontspec id=\"(\\d+)\" .*color=\"([^\"]*)\""_s, Document()))
        kleuren[m.captured(1)] = m.captured(2);
    QList<std::pair<QRectF, QString>> regels;
    for (const QRegularExpressionMatch &m : Alle(u"<text ([^>]*)font=\"(\\d+)\">(<b>)?"_s, Beschrijving(pagina)))
        regels += {Vlak(m.captured(1)).adjusted(-0.1, -0.1, 0.1, 0.1),
                   (m.captured(3).isEmpty() ? QString() : u"vet "_s) + kleuren[m.captured(2)]};
    QStringList teksten;
    for (const Woord &woord : woorden) {
        QString letter = u"?"_s;
        for (const auto &[vlak, soort] : regels)
            if (vlak.contains(woord.Cel.topLeft()) && std::abs(vlak.top() - woord.Cel.top()) < 1)
                letter = soort;
        const double punten = std::round(woord.Punten() * 100) / 100;
        teksten += Plaats(woord.Cel) + u' ' + QString::number(punten) + u' ' + letter + u' ' + woord.Tekst;
    }
    return teksten;
}

QStringList PdfLezer::Beelden(int pagina) const
{
    QStringList beelden;
    for (const QRegularExpressionMatch &m : Alle(u"<image ([^>]*)>"_s, Beschrijving(pagina))) {
        const QRectF vlak = Vlak(m.captured(1));
        beelden += Plaats(vlak) + u' ' + InTwips(vlak.width()) + u'x' + InTwips(vlak.height());
    }
    return beelden;
}

QStringList PdfLezer::BeeldMaten() const
{
    QStringList maten;
    for (const QRegularExpressionMatch &m :
         Alle(u"^ *(\\d+) +\\d+ image +(\\d+) +(\\d+) "_s, Roep(u"pdfimages"_s, {u"-list"_s})))
        maten += m.captured(1) + u": "_s + m.captured(2) + u'x' + m.captured(3);
    return maten;
}

QImage PdfLezer::Beeld(int nummer) const
{
    if (!QFile::exists(map_.filePath(u"beeld-000.png"_s)))
        Roep(u"pdfimages"_s, {u"-png"_s}, {map_.filePath(u"beeld"_s)});
    return QImage(map_.filePath(u"beeld-%1.png"_s.arg(nummer, 3, 10, QChar(u'0'))));
}

QImage PdfLezer::Pagina(int pagina) const
{
    const QString naam = map_.filePath(u"pagina"_s), nummer = QString::number(pagina);
    Roep(u"pdftoppm"_s, {u"-png"_s, u"-singlefile"_s, u"-r"_s, u"96"_s, u"-f"_s, nummer, u"-l"_s, nummer}, {naam});
    return QImage(naam + u".png"_s);
}

// The input is a note that a writer has left in a folder: once as it is, once with what shows that it is whole.

#include "Fuzz.h"

#include "platform/Bewaren.h"
#include "platform/Schijf.h"

#include <QCryptographicHash>
#include <QDir>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

static const QString Nota = u".rasteratelier-0123456789abcdef"_s;
static const QByteArray IsMap = "a folder";
static const QByteArray Elders = "elders"; // in a file outside the folder, to which a link leads

/// What lies in a folder, by name.
using Inhoud = QMap<QString, QByteArray>;

static const Inhoud Begin{{Nota + u"-1"_s, "een"}, {Nota + u"-2"_s, "twee"}, {u"Reis.lst"_s, "oude lijst"},
                          {u"Reis1.bmp"_s, "oud"}, {u"map"_s, IsMap},        {u"koppeling"_s, Elders}};

struct Regel
{
    QString Nummer, Naam, Spelling;
};

static QByteArray Zegel(const QByteArray &regels)
{
    return QCryptographicHash::hash(regels, QCryptographicHash::Sha256).toHex();
}

/// What a note says; nothing when it is not whole or a line of it is not well-formed.
static QList<Regel> Regels(const QByteArray &nota)
{
    static const QRegularExpression vorm(
        uR"(\A([^/]*)/([^/<>:"\\|?*\x00-\x1F\x7F]+)/([^/<>:"\\|?*\x00-\x1F\x7F]+)\z)"_s);
    if (nota.size() < 64 || nota.last(64) != Zegel(nota.chopped(64)))
        return {};
    QList<Regel> regels;
    for (const QString &tekst : QString::fromUtf8(nota.chopped(64)).split(u'\n')) {
        const QRegularExpressionMatch delen = vorm.match(tekst);
        const QString naam = delen.captured(2);
        if (tekst.isEmpty())
            continue;
        if (!delen.hasMatch() || naam == u"."_s || naam == u".."_s ||
            naam.compare(delen.captured(3), Qt::CaseInsensitive) != 0)
            return {};
        regels += Regel{delen.captured(1), naam, delen.captured(3)};
    }
    return regels;
}

/// Ends the target when a file outside the folder, or one that the note does not name, is given a name or removed.
class Bewaakt : public Schijf
{
public:
    Bewaakt(const QString &map, const QList<Regel> &regels) : map_(map)
    {
        for (const Regel &regel : regels)
            genoemd_ << Nota + u'-' + regel.Nummer << regel.Naam << regel.Spelling;
        Gebruik(this);
    }
    ~Bewaakt() override { Gebruik(nullptr); }
    Q_DISABLE_COPY_MOVE(Bewaakt)

    bool Verplaats(const QString &van, const QString &naar) override
    {
        EIS(genoemd_.contains(Naam(van)) && genoemd_.contains(Naam(naar)));
        return Schijf::Verplaats(van, naar);
    }
    bool Verwijder(const QString &pad) override
    {
        EIS(Naam(pad).startsWith(Nota)); // the note, and what it has not used
        return Schijf::Verwijder(pad);
    }

private:
    QString Naam(const QString &pad) const
    {
        const QString naam = pad.sliced(map_.size() + 1);
        EIS(pad == map_ + u'/' + naam && !naam.contains(u'/') && naam != u"."_s && naam != u".."_s);
        return naam;
    }

    QString map_;
    QSet<QString> genoemd_;
};

static void Schrijf(const QString &pad, const QByteArray &inhoud)
{
    QFile bestand(pad);
    EIS(bestand.open(QIODevice::WriteOnly | QIODevice::NewOnly) && bestand.write(inhoud) == inhoud.size());
}

static QByteArray Lees(const QFileInfo &plaats)
{
    QFile bestand(plaats.filePath());
    if (!plaats.isSymLink() && plaats.isDir())
        return IsMap;
    EIS(bestand.open(QIODevice::ReadOnly));
    return bestand.readAll();
}

/// What of the user's lies in a folder; what the writers have there of their own goes as it comes.
static Inhoud VanGebruiker(const QString &map)
{
    Inhoud inhoud;
    for (const QFileInfo &plaats :
         QDir(map).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot))
        if (!plaats.fileName().startsWith(u".rasteratelier"_s, Qt::CaseInsensitive))
            inhoud[plaats.fileName()] = Lees(plaats);
    return inhoud;
}

/// @return whether that can be done
static bool Hernoem(Inhoud &inhoud, const QString &van, const QString &naar)
{
    constexpr qsizetype LangsteNaam = 255; // bytes
    if (!inhoud.contains(van) || van == naar)
        return true;
    if (naar.toUtf8().size() > LangsteNaam ||
        (inhoud.contains(naar) && (inhoud[van] == IsMap) != (inhoud[naar] == IsMap)))
        return false;
    inhoud[naar] = inhoud.take(van);
    return true;
}

/// What has to lie there when the note is finished, as far as that can be done.
static Inhoud Verwacht(const QList<Regel> &regels)
{
    Inhoud inhoud = Begin;
    for (const Regel &regel : regels)
        if (!Hernoem(inhoud, Nota + u'-' + regel.Nummer, regel.Naam) || !Hernoem(inhoud, regel.Naam, regel.Spelling))
            break;
    inhoud.removeIf(
        [](Inhoud::iterator bestand) { return bestand.key().startsWith(u".rasteratelier"_s, Qt::CaseInsensitive); });
    return inhoud;
}

static void MaakNotaAf(const QByteArray &nota)
{
    static const QTemporaryDir tijdelijk;
    const QString map = tijdelijk.filePath(u"map"_s), buiten = tijdelijk.filePath(u"elders"_s);
    EIS(QDir().mkdir(map));
    Schrijf(buiten, Elders);
    for (const auto &[naam, inhoud] : Begin.asKeyValueRange())
        if (inhoud == IsMap)
            EIS(QDir(map).mkdir(naam));
        else if (inhoud == Elders)
            EIS(QFile::link(buiten, map + u'/' + naam));
        else
            Schrijf(map + u'/' + naam, inhoud);
    Schrijf(map + u'/' + Nota, nota);

    const QList<Regel> regels = Regels(nota);
    {
        const Bewaakt schijf(map, regels);
        MaakAf(map);
    }
    EIS(VanGebruiker(map) == Verwacht(regels));
    EIS(VanGebruiker(tijdelijk.path()) == (Inhoud{{u"map"_s, IsMap}, {u"elders"_s, Elders}}));
    EIS(QDir(map).removeRecursively() && QFile::remove(buiten));
}

void Probeer(const QByteArray &inhoud)
{
    MaakNotaAf(inhoud);
    MaakNotaAf(inhoud + Zegel(inhoud));
}

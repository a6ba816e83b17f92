#include "platform/Bewaren.h"

#include "platform/Beurt.h"
#include "platform/Files.h"
#include "platform/Fout.h"
#include "platform/Schijf.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <utility>

using namespace Qt::StringLiterals;

static const QString Voorvoegsel = u".rasteratelier-"_s;
static constexpr int Digits = 16;
static constexpr int Geduld = 2000; // milliseconds; changing the names of a set takes some hundredths of a second

/// The file that says whose turn it is to change names in a folder.
static QString BeurtPad(const QString &map)
{
    return map + u"/.rasteratelier.slot"_s;
}

// --- the note: a line "number/name/spelling" for each file, and what shows that it is whole ---

namespace {

struct Regel
{
    QString Nummer, Naam, Spelling;
};

} // namespace

static QByteArray Zegel(QByteArrayView regels)
{
    return QCryptographicHash::hash(regels.toByteArray(), QCryptographicHash::Sha256).toHex();
}

/// The lines of a note; none when it is not whole, or names what this folder cannot have.
static QList<Regel> LeesNota(QByteArrayView inhoud)
{
    const qsizetype lengte = Zegel({}).size();
    if (inhoud.size() <= lengte || Zegel(inhoud.chopped(lengte)) != inhoud.last(lengte))
        return {};
    QList<Regel> regels;
    for (const QString &tekst : QString::fromUtf8(inhoud.chopped(lengte)).split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList delen = tekst.split(u'/');
        if (delen.size() != 3 || !Files::IsGoedeNaam(delen[1]) || delen[1].compare(delen[2], Qt::CaseInsensitive) != 0)
            return {};
        regels += Regel{delen[0], delen[1], delen[2]};
    }
    return regels;
}

// --- writing ---

BestandenSet::~BestandenSet()
{
    for (const Deel &deel : std::as_const(delen_))
        Schijf::Huidig().Verwijder(deel.Tijdelijk);
    SluitNota();
}

void BestandenSet::BeginNota(const QString &map)
{
    if (nota_.isOpen())
        return;
    map_ = map;
    constexpr int Pogingen = 3; // MaakAf may have taken it for one that was left
    for (int i = 0; i < Pogingen; ++i) {
        const QString nummer = QString::number(QRandomGenerator::system()->generate64(), 16);
        nota_.setFileName(map + u'/' + Voorvoegsel + nummer.rightJustified(Digits, u'0'));
        if (!Schijf::Huidig().Open(nota_, Schijf::Nieuw))
            break;
        if (Schijf::Huidig().Grijp(nota_) != Schijf::Greep::Bezet && nota_.exists())
            return;
        SluitNota();
    }
    throw Fout(Fout::GeenToegang, map);
}

void BestandenSet::SluitNota()
{
    if (!nota_.isOpen())
        return;
    nota_.close();
    Schijf::Huidig().Verwijder(nota_.fileName());
}

void BestandenSet::Zet(const QString &pad, std::initializer_list<QByteArrayView> delen, const QString &spelling)
{
    const QFileInfo plaats(pad);
    BeginNota(plaats.path());
    Schijf &schijf = Schijf::Huidig();
    QFile nieuw(nota_.fileName() + u'-' + QString::number(++geteld_));
    if (!schijf.Open(nieuw, Schijf::Nieuw))
        throw Fout(Fout::GeenToegang, pad);
    constexpr QFile::Permissions Mine = QFile::ReadUser | QFile::WriteUser | QFile::ExeUser; // follow from the others
    if (plaats.exists())
        nieuw.setPermissions(plaats.permissions() & ~Mine);
    bool geschreven = true;
    for (const QByteArrayView deel : delen)
        geschreven = geschreven && schijf.Schrijf(nieuw, deel);
    geschreven = geschreven && (!blijvend_ || schijf.Spoel(nieuw));
    nieuw.close();
    if (!geschreven) {
        schijf.Verwijder(nieuw.fileName());
        throw Fout(Fout::SchijfFout, pad);
    }
    const QString naam = plaats.fileName();
    delen_ += Deel{nieuw.fileName(), naam, spelling.isEmpty() ? naam : spelling};
}

// When the note cannot be written, the names are changed all the same: what they are given to is whole.
void BestandenSet::SchrijfNota()
{
    QByteArray regels;
    for (const Deel &deel : std::as_const(delen_)) {
        const QString nummer = deel.Tijdelijk.sliced(nota_.fileName().size() + 1);
        regels += (nummer + u'/' + deel.Naam + u'/' + deel.Spelling + u'\n').toUtf8();
    }
    Schijf &schijf = Schijf::Huidig();
    if (schijf.Schrijf(nota_, regels + Zegel(regels)) && schijf.Spoel(nota_))
        schijf.SpoelMap(map_);
}

bool BestandenSet::Plaats(const Deel &deel) const
{
    Schijf &schijf = Schijf::Huidig();
    const QString plaats = map_ + u'/' + deel.Naam;
    if (!schijf.Verplaats(deel.Tijdelijk, plaats)) {
        schijf.Verwijder(deel.Tijdelijk);
        return false;
    }
    return deel.Spelling == deel.Naam || schijf.Verplaats(plaats, map_ + u'/' + deel.Spelling);
}

void BestandenSet::PlaatsAlles()
{
    if (delen_.isEmpty())
        return;
    Beurt beurt(BeurtPad(map_));
    if (delen_.size() > 1 || delen_.first().Spelling != delen_.first().Naam) { // else one step does it
        beurt.Neem(Geduld); // who does not get its turn goes on all the same: what is saved is not lost for that
        SchrijfNota();
    }
    QString mislukt;
    for (const Deel &deel : std::exchange(delen_, {}))
        if (!Plaats(deel))
            mislukt = map_ + u'/' + deel.Naam;
    if (blijvend_)
        Schijf::Huidig().SpoelMap(map_);
    SluitNota();
    if (!mislukt.isEmpty())
        throw Fout(Fout::SchijfFout, mislukt);
}

// --- finishing ---

/// Does again what a note says. What was done already is no longer there under its old name.
/// @return false when something could not be done
static bool DoeNota(const QString &map, const QString &nota, const QList<Regel> &regels)
{
    const auto verplaats = [&map](const QString &van, const QString &naar) {
        return !QFile::exists(map + u'/' + van) || Schijf::Huidig().Verplaats(map + u'/' + van, map + u'/' + naar);
    };
    for (const Regel &regel : regels)
        if (!verplaats(nota + u'-' + regel.Nummer, regel.Naam) ||
            (regel.Spelling != regel.Naam && !verplaats(regel.Naam, regel.Spelling)))
            return false;
    Schijf::Huidig().SpoelMap(map);
    return true;
}

/// Does what a note says and removes it, unless its writer still runs.
static void MaakNotaAf(const QString &map, const QString &naam)
{
    constexpr qint64 Largest = 65536;
    Schijf &schijf = Schijf::Huidig();
    QFile nota(map + u'/' + naam);
    QByteArray inhoud;
    if (!schijf.Open(nota, Schijf::Grijpend) || schijf.Grijp(nota) != Schijf::Greep::Gekregen ||
        !schijf.Lees(nota, Largest, inhoud) || !DoeNota(map, naam, LeesNota(inhoud)))
        return;
    nota.close();
    schijf.Verwijder(nota.fileName());
}

void MaakAf(const QString &map)
{
    static const QRegularExpression vorm(
        QRegularExpression::anchoredPattern(u"\\.rasteratelier-[0-9a-f]{16}(-[0-9]+)?"_s));
    const QStringList namen =
        QDir(map).entryList({u".rasteratelier*"_s}, QDir::Files | QDir::Hidden | QDir::NoSymLinks, QDir::Name);
    Beurt beurt(BeurtPad(map));
    if (namen.isEmpty() || !beurt.Neem(Geduld))
        return;
    for (const QString &naam : namen) { // a note comes before its files
        const qsizetype lengte = Voorvoegsel.size() + Digits;
        if (!vorm.match(naam).hasMatch())
            continue;
        if (naam.size() == lengte)
            MaakNotaAf(map, naam);
        else if (!QFile::exists(map + u'/' + naam.first(lengte))) // a writer has its note for as long as its files
            Schijf::Huidig().Verwijder(map + u'/' + naam);
    }
}

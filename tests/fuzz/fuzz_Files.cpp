// The lines of the input, in UTF-8, are names: of a file below folders, then each of a file in one folder.

#include "Fuzz.h"

#include "platform/Files.h"
#include "platform/Fout.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <optional>

using namespace Qt::StringLiterals;

static constexpr qsizetype MeesteNamen = 8; // more files cost time

static bool IsNaam(const QString &naam)
{
    static const QRegularExpression verboden(u"[<>:\"/\\\\|?*\\x00-\\x1F\\x7F]"_s);
    return !naam.isEmpty() && naam != u"."_s && naam != u".."_s && !naam.contains(verboden);
}

/// The path, when there is one. Nothing is written to a path that has not been here.
static std::optional<QString> Pad(const QString &map, const QStringList &namen)
{
    const bool goed = std::all_of(namen.begin(), namen.end(), IsNaam);
    try {
        const QString pad = Files::Pad(map, namen);
        EIS(goed);
        EIS(pad.startsWith(map + u'/') && QDir::cleanPath(pad) == pad);
        EIS(pad.count(u'/') == map.count(u'/') + namen.size());
        return pad;
    } catch (const Fout &fout) {
        EIS(!goed && fout.nummer() == Fout::OngeldigeNaam);
        return {};
    }
}

/// The files that there should be, by the names that they were made with.
using Bestanden = QList<std::pair<QString, QByteArray>>;

static void Schrijf(const QString &map, const QString &naam, Bestanden &bestanden)
{
    const std::optional<QString> pad = Pad(map, {naam});
    if (!pad)
        return;
    const QByteArray inhoud = QByteArray::number(bestanden.size()) + naam.toUtf8();
    if (!negeer([&] { Files::Schrijf(*pad, inhoud); }))
        return EIS(naam.toUtf8().size() > 255 && !Files::FileExists(*pad));
    for (auto &[ander, oud] : bestanden)
        if (ander.compare(naam, Qt::CaseInsensitive) == 0) {
            oud = inhoud;
            return;
        }
    bestanden += {naam, inhoud};
}

static QString AndereSpelling(QString naam)
{
    for (QChar &teken : naam)
        if (teken.unicode() < 128)
            teken = teken.isLower() ? teken.toUpper() : teken.toLower();
    return naam;
}

static void Controleer(const QString &map, const QString &naam, const QByteArray &inhoud)
{
    const std::optional<QString> pad = Pad(map, {AndereSpelling(naam)});
    EIS(pad && *pad == map + u'/' + naam);
    EIS(Files::Dir(*pad) == naam);
    EIS(Files::Lees(*pad) == inhoud);
    Files::Hernoem(*pad, AndereSpelling(naam));
    EIS(Pad(map, {naam}) == map + u'/' + AndereSpelling(naam));
}

void Probeer(const QByteArray &inhoud)
{
    static const QTemporaryDir tijdelijk;
    const QString map = tijdelijk.path();
    QStringList namen = QString::fromUtf8(inhoud).split(u'\n');
    namen = namen.first(std::min(namen.size(), MeesteNamen));
    Pad(map, namen);

    Bestanden bestanden;
    for (const QString &naam : namen)
        Schrijf(map, naam, bestanden);
    EIS(Files::Lijst(map, u"*"_s).size() == bestanden.size());
    for (const auto &[naam, geschreven] : bestanden)
        Controleer(map, naam, geschreven);
    for (const auto &bestand : bestanden)
        Files::Kill(*Pad(map, {bestand.first}));
    EIS(Files::Lijst(map, u"*"_s).isEmpty());
}

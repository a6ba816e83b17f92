#pragma once

#include "platform/Schijf.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QStringList>

#include <sys/wait.h>
#include <unistd.h>

/// A disk that counts its calls and keeps a log of them. At one of them it hitches: the call fails, or the process dies
/// there. A writing call leaves half of what it was to write then.
class HaperendeSchijf : public Schijf
{
public:
    enum class Hoe { Mislukt, Sterft };
    static constexpr int Dood = 77; ///< what a process that dies here ends with

    /// @param bij the number of the call, from 1; 0 for none
    explicit HaperendeSchijf(int bij = 0, Hoe hoe = Hoe::Mislukt) : bij_(bij), hoe_(hoe) { Gebruik(this); }
    ~HaperendeSchijf() override { Gebruik(nullptr); }
    Q_DISABLE_COPY_MOVE(HaperendeSchijf)

    bool Open(QFile &bestand, QIODevice::OpenMode hoe) override
    {
        return Mag("Open", bestand.fileName()) && Schijf::Open(bestand, hoe);
    }
    bool Lees(QFile &bestand, qint64 hoogstens, QByteArray &inhoud) override
    {
        return Mag("Lees", bestand.fileName()) && Schijf::Lees(bestand, hoogstens, inhoud);
    }
    bool Schrijf(QFile &bestand, QByteArrayView deel) override
    {
        if (Geteld() + 1 == bij_)
            Schijf::Schrijf(bestand, deel.first(deel.size() / 2));
        return Mag("Schrijf", bestand.fileName()) && Schijf::Schrijf(bestand, deel);
    }
    // These two only count: that it came to the disk would show after a power cut alone.
    bool Spoel(QFile &bestand) override { return Mag("Spoel", bestand.fileName()); }
    bool SpoelMap(const QString &map) override { return Mag("SpoelMap", map); }
    Greep Grijp(QFile &bestand) override
    {
        return Mag("Grijp", bestand.fileName()) ? Schijf::Grijp(bestand) : Greep::Onmogelijk;
    }
    bool Verplaats(const QString &van, const QString &naar) override
    {
        return Mag("Verplaats", van, naar) && Schijf::Verplaats(van, naar);
    }
    bool Verwijder(const QString &pad) override { return Mag("Verwijder", pad) && Schijf::Verwijder(pad); }
    bool MaakMap(const QString &pad) override { return Mag("MaakMap", pad) && Schijf::MaakMap(pad); }

    QStringList Logboek; ///< a line a call; the digits that a writer chose stand there as "*"

private:
    int Geteld() const { return static_cast<int>(Logboek.size()); }
    bool Mag(const char *wat, const QString &pad, const QString &naar = {})
    {
        static const QRegularExpression cijfers(QStringLiteral("[0-9a-f]{16}"));
        const QString namen = QFileInfo(pad).fileName() + (naar.isEmpty() ? QString() : QStringLiteral(" > ")) +
                              QFileInfo(naar).fileName();
        Logboek += QLatin1String(wat) + u' ' + QString(namen).replace(cijfers, QStringLiteral("*"));
        if (Geteld() != bij_)
            return true;
        if (hoe_ == Hoe::Sterft)
            _exit(Dood);
        return false;
    }

    int bij_;
    Hoe hoe_;
};

/// Does something in a child of this process, which dies at a call on the disk. @return whether it died there
template <class Opdracht> bool SterftBij(int aanroep, Opdracht &&opdracht)
{
    const pid_t kind = fork();
    if (kind == 0) {
        const HaperendeSchijf schijf(aanroep, HaperendeSchijf::Hoe::Sterft);
        opdracht();
        _exit(0);
    }
    int einde = 0;
    waitpid(kind, &einde, 0);
    if (!WIFEXITED(einde) || (WEXITSTATUS(einde) != 0 && WEXITSTATUS(einde) != HaperendeSchijf::Dood))
        qFatal("the child ended with %d", einde);
    return WEXITSTATUS(einde) == HaperendeSchijf::Dood;
}

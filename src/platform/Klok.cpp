#include "platform/Klok.h"

#include "platform/Fout.h"

#include <QCoreApplication>
#include <QTimer>

#include <cmath>

static Klok *vervanger = nullptr;
static bool programmaEindigt = false;

Klok::~Klok() = default;

double Klok::Timer()
{
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

QDateTime Klok::Nu()
{
    return QDateTime::currentDateTime();
}

void Klok::Slaap(double seconden, QEventLoop::ProcessEventsFlags welke)
{
    QEventLoop lus;
    QTimer::singleShot(static_cast<int>(std::ceil(seconden * 1000)), Qt::PreciseTimer, &lus, &QEventLoop::quit);
    lus.exec(welke);
}

void Klok::Wacht(double seconden, QEventLoop::ProcessEventsFlags welke)
{
    constexpr double Rounding = 1e-6; // what a difference of two times of a day loses at most
    const auto slaap = [&](double zoLang) {
        Slaap(zoLang, welke);
        if (programmaEindigt)
            throw Afgebroken();
    };
    if (seconden <= 0) {
        slaap(0);
        return;
    }
    const double begin = Timer();
    double rest = seconden;
    while (rest > Rounding) {
        slaap(std::min(rest, seconden));
        const double nu = Timer();
        if (nu < begin && welke.testFlag(QEventLoop::ExcludeUserInputEvents))
            break; // at midnight such a wait would shut the user out for a day
        rest = seconden - (nu - begin);
    }
}

Klok &Klok::Huidig()
{
    static Klok echte;
    return vervanger ? *vervanger : echte;
}

void Klok::Gebruik(Klok *klok)
{
    vervanger = klok;
}

void Klok::ProgrammaEindigt(bool eindigt)
{
    programmaEindigt = eindigt;
}

void DirecteKlok::Slaap(double seconden, QEventLoop::ProcessEventsFlags welke)
{
    QCoreApplication::processEvents(welke);
    seconden_ += seconden;
    gewacht_ += seconden;
}

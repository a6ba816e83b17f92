#pragma once

#include <QDateTime>
#include <QEventLoop>

/// The time, and the waiting. One object is in use at a time; tests put their own in its place.
class Klok
{
public:
    virtual ~Klok();

    /// Seconds since midnight, with their fraction: 0 up to 86400.
    virtual double Timer();
    virtual QDateTime Nu();

    /// Sleeps in the event loop for so many seconds, handling the events that come.
    virtual void Slaap(double seconden, QEventLoop::ProcessEventsFlags welke);

    /// Waits until Timer has grown by so many seconds, running events all the while; a wait of nothing runs those that
    /// are pending. It compares seconds since midnight: a wait that spans midnight does not end in time, and nothing
    /// guards against that but where input is held back. Raises Afgebroken when the program has been ended meanwhile.
    /// @param welke ExcludeUserInputEvents keeps clicks and keys for later
    void Wacht(double seconden, QEventLoop::ProcessEventsFlags welke = QEventLoop::AllEvents);

    static Klok &Huidig();
    /// Puts another clock in use, nullptr the real one. The caller keeps it alive.
    static void Gebruik(Klok *klok);
    /// From now on every wait ends by raising Afgebroken: the program is over.
    static void ProgrammaEindigt(bool eindigt = true);
};

/// A clock whose waits return at once, after running the events that are pending: its time goes on by what was waited.
class DirecteKlok : public Klok
{
public:
    double Timer() override { return seconden_; }
    QDateTime Nu() override { return nu_; }
    void Slaap(double seconden, QEventLoop::ProcessEventsFlags welke) override;

    void ZetTimer(double seconden) { seconden_ = seconden; }
    void ZetNu(const QDateTime &nu) { nu_ = nu; }
    /// All that was slept since the start, in seconds.
    double Gewacht() const { return gewacht_; }

private:
    double seconden_ = 36000;
    double gewacht_ = 0;
    QDateTime nu_{QDate(2026, 3, 7), QTime(9, 5, 3)};
};

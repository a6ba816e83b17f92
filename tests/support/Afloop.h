#pragma once

#include <QProcess>

/// Runs a program to its end: how it ended, and what it said.
struct Afloop
{
    Afloop(const QString &programma, const QStringList &argumenten)
    {
        QProcess proces;
        proces.start(programma, argumenten);
        if (proces.waitForFinished(60000) && proces.exitStatus() == QProcess::NormalExit)
            Code = proces.exitCode();
        Uit = proces.readAllStandardOutput();
        Fouten = proces.readAllStandardError();
    }
    /// All that it said.
    QString Tekst() const { return QString::fromUtf8(Uit + Fouten); }

    int Code = -1; ///< what it ended with; -1 when it crashed, or did not end within a minute
    QByteArray Uit, Fouten;
};

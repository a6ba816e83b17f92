#pragma once

#include "support/Bord.h"

#include <QDir>

/// The main window with a word database and word lists that a test writes.
struct Woordbord : Bord
{
    Woordbord()
    {
        for (const char *map : {"Data", "Woordlijsten"})
            QDir(Bank.Map()).mkdir(QLatin1String(map));
    }
    explicit Woordbord(const QByteArray &database) : Woordbord() { Database(database); }

    void Database(const QByteArray &inhoud) const { Bank.Schrijf(QStringLiteral("Data/nederlands.lib"), inhoud); }
    void GeenDatabase() const { QFile::remove(Bank.Map() + QStringLiteral("/Data/nederlands.lib")); }

    /// The ways in which the database can't be read, as rows of a test.
    static void Onleesbaar_data()
    {
        QTest::addColumn<QString>("hoe");
        for (const char *hoe : {"missing", "no folder", "a folder in its place", "forbidden"})
            Geval(hoe, QString::fromLatin1(hoe));
    }
    /// Makes it so; "forbidden" counts for a user whom rights bind (Onbevoegd).
    void MaakOnleesbaar(const QString &hoe) const
    {
        const QString pad = Bank.Map() + QStringLiteral("/Data/nederlands.lib");
        if (hoe == QStringLiteral("forbidden"))
            QFile::setPermissions(pad, {});
        else
            GeenDatabase();
        if (hoe == QStringLiteral("no folder"))
            QDir(Bank.Map()).rmdir(QStringLiteral("Data"));
        if (hoe == QStringLiteral("a folder in its place"))
            QDir().mkdir(pad);
    }

    static QString Lijstnaam(const QString &onderwerp)
    {
        return QStringLiteral("Woordlijsten/") + onderwerp + QStringLiteral(".txt");
    }
    void Lijst(const QString &onderwerp, const QByteArray &inhoud) const { Bank.Schrijf(Lijstnaam(onderwerp), inhoud); }
    QByteArray Lijst(const QString &onderwerp) const { return Bank.Inhoud(Lijstnaam(onderwerp)); }
    QStringList Lijsten() const { return Bank.Bestanden(QStringLiteral("Woordlijsten")); }

    /// Fills the list of the main window, so that it shows whether something is handed over.
    void VulList1() { Venster.GeefWoorden({QStringLiteral("oud"), QStringLiteral("ouder")}); }
    QString List1() const { return Venster.List1->Items().join(u' '); }
};

/// Lines as in a file.
inline QByteArray Regels(const QByteArrayList &regels)
{
    return regels.isEmpty() ? QByteArray() : regels.join("\r\n") + "\r\n";
}

/// A line for each letter that no word begins with, too long for the searches by letters and for what is handed over.
inline QByteArrayList Opvulling(const QByteArrayList &woorden)
{
    QByteArrayList regels;
    for (char letter = 'a'; letter <= 'z'; ++letter)
        if (std::none_of(woorden.begin(), woorden.end(), [&](const QByteArray &woord) { return woord[0] == letter; }))
            regels += letter + QByteArray(19, '1');
    return regels;
}

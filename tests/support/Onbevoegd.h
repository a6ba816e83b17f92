#pragma once

#include "support/Testbank.h"

#include <QDir>
#include <QFile>

#include <unistd.h>

/// As long as it lives, the files of a test bank are another user's: the superuser may do everything, so as such the
/// test goes on as somebody else.
class Onbevoegd
{
public:
    /// @param dicht the folders below the bank's Map where nothing can be made, "" for that folder itself
    /// @param geheim those that cannot be looked into either
    explicit Onbevoegd(const Testbank &bank, const QStringList &dicht, const QStringList &geheim = {})
        : map_(bank.Map()), root_(geteuid() == 0)
    {
        for (const QString &map : Mappen()) {
            const QFile::Permissions kijken = geheim.contains(map.mid(1)) ? QFile::Permissions() : Kijken;
            const bool magSchrijven = !dicht.contains(map.mid(1)) && kijken;
            QFile::setPermissions(map_ + map, magSchrijven ? kijken | Schrijven : kijken);
        }
        if (root_) {
            QFile::setPermissions(map_ + QLatin1String("/.."), Kijken | QFile::WriteOwner);
            QCOMPARE(setresuid(65534, 65534, 0), 0); // it can come back
        }
    }
    ~Onbevoegd()
    {
        if (root_)
            QCOMPARE(setresuid(0, 0, 0), 0);
        for (const QString &map : Mappen())
            QFile::setPermissions(map_ + map, Kijken | Schrijven);
    }
    Q_DISABLE_COPY_MOVE(Onbevoegd)

private:
    static constexpr QFile::Permissions Kijken =
        QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    static constexpr QFile::Permissions Schrijven = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    QStringList Mappen() const
    {
        QStringList mappen{QString()};
        for (const QString &map : QDir(map_).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            mappen += u'/' + map;
        return mappen;
    }

    QString map_;
    bool root_;
};

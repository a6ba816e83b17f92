#pragma once

#include "support/Testbank.h"

#include <QFile>

#include <unistd.h>

/// As long as it lives, the files of a test bank are another user's: the superuser may do everything, so as such the
/// test goes on as somebody else.
class Onbevoegd
{
public:
    /// @param dicht the folders below the bank's Map where nothing can be made, "" for that folder itself
    explicit Onbevoegd(const Testbank &bank, const QStringList &dicht) : map_(bank.Map()), root_(geteuid() == 0)
    {
        for (const QString &map : Mappen())
            QFile::setPermissions(map_ + map, dicht.contains(map.mid(1)) ? Kijken : Kijken | Schrijven);
        if (root_) {
            QFile::setPermissions(map_ + QLatin1String("/.."), Kijken | QFile::WriteOwner);
            QCOMPARE(seteuid(65534), 0);
        }
    }
    ~Onbevoegd()
    {
        if (root_)
            QCOMPARE(seteuid(0), 0);
        for (const QString &map : Mappen())
            QFile::setPermissions(map_ + map, Kijken | Schrijven);
    }
    Q_DISABLE_COPY_MOVE(Onbevoegd)

private:
    static constexpr QFile::Permissions Kijken =
        QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    static constexpr QFile::Permissions Schrijven = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    static QStringList Mappen() { return {QString(), QStringLiteral("/Puzzels")}; }

    QString map_;
    bool root_;
};

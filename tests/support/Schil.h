#pragma once

#include <QDesktopServices>
#include <QObject>
#include <QStringList>
#include <QUrl>

/// As long as it lives, takes what would go to the system's shell.
class Schil : public QObject
{
    Q_OBJECT
public:
    Schil()
    {
        for (const QString &schema : Schemas)
            QDesktopServices::setUrlHandler(schema, this, "Open");
    }
    ~Schil() override
    {
        for (const QString &schema : Schemas)
            QDesktopServices::unsetUrlHandler(schema);
    }
    QList<QUrl> Geopend;

public slots:
    void Open(const QUrl &url) { Geopend += url; }

private:
    const QStringList Schemas{QStringLiteral("https"), QStringLiteral("file"), QStringLiteral("mailto")};
};

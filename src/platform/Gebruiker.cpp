#include "platform/Gebruiker.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <pwd.h>
#include <unistd.h>
#endif

static QString NameInTheSystem()
{
#ifdef Q_OS_UNIX
    if (const passwd *gebruiker = getpwuid(geteuid()))
        return QString::fromLocal8Bit(gebruiker->pw_name);
#endif
    return {}; // elsewhere the environment always has it
}

QString UserName()
{
    for (const char *naam : {"USER", "USERNAME"})
        if (!qEnvironmentVariableIsEmpty(naam))
            return qEnvironmentVariable(naam);
    return NameInTheSystem();
}

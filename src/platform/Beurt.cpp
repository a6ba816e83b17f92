#include "platform/Beurt.h"

#include <QFileInfo>

bool Beurt::Neem(int geduld)
{
    const QFileInfo plaats(slot_.fileName());
    const bool isVrij = !plaats.exists() && !plaats.isSymLink();
    return (isVrij || plaats.isFile()) && slot_.tryLock(geduld);
}

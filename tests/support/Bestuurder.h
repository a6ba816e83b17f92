#pragma once

#include "platform/Form.h"

#include <QApplication>
#include <QTimer>

/// Drives a modal window: waits until a form of this name is open, does something with it, and closes it if that has
/// not been done. To be made before what opens the window.
class Bestuurder
{
public:
    Bestuurder(const QString &naam, std::function<void(Form &)> doe) : naam_(naam), doe_(std::move(doe))
    {
        QObject::connect(&klok_, &QTimer::timeout, &klok_, [this] { Kijk(); });
        klok_.start(0);
    }
    bool Gezien() const { return gezien_; }

private:
    void Kijk()
    {
        auto *form = dynamic_cast<Form *>(QApplication::activeModalWidget());
        if (gezien_ || !form || form->objectName() != naam_)
            return;
        gezien_ = true;
        klok_.stop();
        doe_(*form);
        if (!form->Unloaded())
            form->Unload();
    }

    QString naam_;
    std::function<void(Form &)> doe_;
    QTimer klok_;
    bool gezien_ = false;
};

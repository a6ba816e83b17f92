#pragma once

#include "platform/Schijf.h"

#include <QThread>

#include <functional>
#include <sys/wait.h>
#include <unistd.h>

/// A disk that dawdles when a file has come to its place, while another process does something. It does so once.
class TrageSchijf : public Schijf
{
public:
    /// @param naar how the path of that file ends; any file when it is empty
    TrageSchijf(const QString &naar, std::function<void()> ander) : naar_(naar), ander_(std::move(ander))
    {
        Gebruik(this);
    }
    ~TrageSchijf() override { Gebruik(nullptr); }
    Q_DISABLE_COPY_MOVE(TrageSchijf)

    bool Verplaats(const QString &van, const QString &naar) override
    {
        const bool gelukt = Schijf::Verplaats(van, naar);
        if (kind_ < 0 && naar.endsWith(naar_)) {
            kind_ = fork();
            if (kind_ == 0) {
                Gebruik(nullptr);
                ander_();
                _exit(0);
            }
            QThread::msleep(300);
        }
        return gelukt;
    }
    void WachtOpAnder() const { waitpid(kind_, nullptr, 0); }

private:
    QString naar_;
    std::function<void()> ander_;
    pid_t kind_ = -1;
};

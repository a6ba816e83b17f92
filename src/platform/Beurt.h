#pragma once

#include <QLockFile>

/// A turn at what one process at a time may do: a file that is there for as long as it is taken. It is given back at
/// the end of its life; of one that a killed process left, whoever comes next has it.
class Beurt
{
public:
    /// @param pad the file that says whose turn it is
    explicit Beurt(const QString &pad) : slot_(pad) {}

    /// Waits for it so many milliseconds. When something else than a file has its name there is no turn to be had, and
    /// that is told at once: who looks into a pipe to see whose turn it is may wait for ever.
    bool Neem(int geduld);

private:
    QLockFile slot_;
};

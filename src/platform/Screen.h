#pragma once

#include <QtGlobal>

/// The screen's pointer.
namespace Screen {

inline constexpr int Arrow = 1;
inline constexpr int Hourglass = 11;
inline constexpr int Own = 99; ///< the program's own pointer, after busy work

/// Shows the pointer of a kind everywhere: the hourglass until another kind is asked for.
void MousePointer(int soort);

/// The hourglass for as long as it lives; then the program's own pointer, also when a failure ends the work.
class Bezig
{
public:
    Bezig() { MousePointer(Hourglass); }
    ~Bezig() { MousePointer(Own); }
    Q_DISABLE_COPY_MOVE(Bezig)
};

/// The plain arrow for as long as it lives, also in the midst of busy work; then what was shown before.
class Vraagt
{
public:
    Vraagt();
    ~Vraagt();
    Q_DISABLE_COPY_MOVE(Vraagt)

private:
    bool bezig_;
};

} // namespace Screen

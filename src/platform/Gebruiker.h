#pragma once

#include <QString>

/// The name that the user is logged in with: as the environment has it, or else as the system knows it. Empty when
/// neither does.
QString UserName();

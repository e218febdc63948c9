#pragma once

#include <QIcon>

namespace velmar::sample {

/// The program's icon: that of the desktop's theme where the program is installed, else one that is drawn.
QIcon ProgramIcon();

}  // namespace velmar::sample

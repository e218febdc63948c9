#pragma once

#include <QIcon>

namespace velmar::toolkit {
class Picture;
}

namespace velmar::qt {

/// The picture as an icon in all the sizes that it holds; the program's own icon for the empty picture and
/// for one that Qt cannot decode.
QIcon PictureIcon(const toolkit::Picture& picture);

}  // namespace velmar::qt

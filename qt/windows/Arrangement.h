#pragma once

#include <initializer_list>

class QGridLayout;
class QLayout;
class QWidget;

namespace velmar::qt {

/// Gives all these the width of the widest.
void EqualWidths(std::initializer_list<QWidget*> widgets);

/// Keeps the widget's place in its layout while it is hidden. Of several in one cell, each needs it.
void KeepPlace(QWidget& widget);

/// The title lies over the frame's top edge. The frame has its layout already, and the room for the title is
/// made there. The layout owns neither.
QGridLayout* Titled(QWidget& title, QWidget& frame);

}  // namespace velmar::qt

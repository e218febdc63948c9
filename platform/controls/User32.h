#pragma once

#include <string_view>

namespace velmar::controls {

class Control;

/// Message of SendMessageA: the first item that equals a text over its whole length, without regard to case.
constexpr long LB_FINDSTRINGEXACT = 0x1A2;

/// Sends a message to the control with this handle. LB_FINDSTRINGEXACT searches a list box from behind item
/// `wParam` (-1: from the first) round to where it began, and gives the item's index or -1.
/// Raises kInvalidProcedureCall for a handle that no list has, or another message.
long SendMessageA(long hWnd, long message, long wParam, std::string_view text);

/// Drops the repaint that the control has asked for. Nothing happens for an unknown handle.
void ValidateRect(long hWnd) noexcept;

/// Asks for one repaint of the control. Nothing happens for an unknown handle.
void InvalidateRect(long hWnd);

/// The control with this handle, nullptr if there is none.
Control* ControlOf(long hWnd) noexcept;

/// For Control: a handle that no other control has, from its construction to its end.
long RegisterHandle(Control& control);
void ReleaseHandle(long hWnd) noexcept;

}  // namespace velmar::controls

#include "platform/controls/User32.h"

#include <gtest/gtest.h>

#include "platform/controls/ComboBox.h"
#include "platform/controls/Failure.h"
#include "platform/controls/ListBox.h"
#include "platform/controls/TextBox.h"
#include "platform/error/ErrorNumber.h"

namespace velmar::controls {
namespace {

TEST(User32, SearchesAListByItsHandle) {
  ListBox list("lstOrden");
  TextBox box("txt");
  list.AddItem("(COL) Nombre");
  list.AddItem("(COL) NIF");
  EXPECT_EQ(SendMessageA(list.hWnd(), 418, -1, "(col) nif"), 1);
  EXPECT_EQ(SendMessageA(list.hWnd(), LB_FINDSTRINGEXACT, -1, "(col)"), -1);
  EXPECT_EQ(FailureOf([&] { SendMessageA(box.hWnd(), LB_FINDSTRINGEXACT, -1, "a"); }), kInvalidProcedureCall);
  EXPECT_EQ(FailureOf([&] { SendMessageA(list.hWnd(), 1, -1, "a"); }), kInvalidProcedureCall);
}

TEST(User32, AsksForOneRepaint) {
  long handle = 0;
  {
    ComboBox combo("cboExportar");
    handle = combo.hWnd();
    EXPECT_EQ(ControlOf(handle), &combo);
    combo.Invalidate();
    ValidateRect(handle);
    EXPECT_FALSE(combo.NeedsPaint());
    InvalidateRect(handle);
    EXPECT_TRUE(combo.NeedsPaint());
  }
  EXPECT_EQ(ControlOf(handle), nullptr);
  InvalidateRect(handle);
  EXPECT_EQ(FailureOf([&] { SendMessageA(handle, LB_FINDSTRINGEXACT, -1, "a"); }), kInvalidProcedureCall);
}

}  // namespace
}  // namespace velmar::controls

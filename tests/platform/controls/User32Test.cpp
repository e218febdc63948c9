#include "platform/controls/User32.h"

#include <gtest/gtest.h>

#include "platform/controls/ComboBox.h"
#include "platform/error/Failure.h"

namespace velmar::controls {
namespace {

TEST(User32, SearchesAListAndAsksForRepaintsByHandle) {
  long handle = 0;
  {
    ComboBox combo("cboExportar");
    handle = combo.hWnd();
    combo.AddItem("(COL) NIF");
    EXPECT_EQ(SendMessageA(handle, LB_FINDSTRINGEXACT, -1, "(col) nif"), 0);
    EXPECT_EQ(FailureOf([&] { SendMessageA(handle, 1, -1, "a"); }), kInvalidProcedureCall);
    combo.Invalidate();
    ValidateRect(handle);
    EXPECT_FALSE(combo.NeedsPaint());
    InvalidateRect(handle);
    EXPECT_TRUE(combo.NeedsPaint());
  }
  InvalidateRect(handle);
  EXPECT_EQ(FailureOf([&] { SendMessageA(handle, LB_FINDSTRINGEXACT, -1, "a"); }), kInvalidProcedureCall);
}

}  // namespace
}  // namespace velmar::controls

#include "qt/windows/MakeWindow.h"

#include <gtest/gtest.h>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/toolkit/MakeForm.h"
#include "platform/toolkit/ScriptedToolkit.h"

namespace velmar::qt {
namespace {

TEST(MakeWindowTest, RefusesAFormThatItDoesNotKnow) {
  toolkit::ScriptedToolkit toolkit;
  const auto form = toolkit::MakeForm<toolkit::Form>(toolkit, "frmOtro");
  try {
    MakeWindow(*form, nullptr);
    FAIL();
  } catch (const RuntimeError& failure) {
    EXPECT_EQ(failure.Number(), kInvalidProcedureCall);
    EXPECT_NE(failure.Description().find("frmOtro"), std::string::npos);
  }
}

}  // namespace
}  // namespace velmar::qt

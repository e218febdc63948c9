#include "platform/controls/Menu.h"

#include <gtest/gtest.h>

#include "platform/controls/Failure.h"
#include "platform/error/ErrorNumber.h"

namespace velmar::controls {
namespace {

TEST(Menu, RunsTheChosenEntryButNoLine) {
  Menu menu("mnuEmergente");
  std::string chosen;
  menu.Add({"mnuVerDatos", "Ver datos del campo", [&] { chosen += "a"; }});
  menu.Add({"mnuSeparador0", "-", nullptr});
  menu.Add({"mnuVerFiltro", "Ver filtro", nullptr});
  EXPECT_TRUE(menu.UserChoose(0));
  EXPECT_FALSE(menu.UserChoose(1));
  EXPECT_TRUE(menu.UserChoose(2));
  EXPECT_FALSE(menu.UserChoose(3));
  EXPECT_EQ(chosen, "a");
  EXPECT_EQ(menu.Item("mnuVerFiltro").caption, "Ver filtro");
  EXPECT_EQ(FailureOf([&] { menu.Item("mnu"); }), kSubscriptOutOfRange);
}

}  // namespace
}  // namespace velmar::controls

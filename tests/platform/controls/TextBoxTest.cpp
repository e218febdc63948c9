#include "platform/controls/TextBox.h"

#include <gtest/gtest.h>

#include "platform/error/Failure.h"

namespace velmar::controls {
namespace {

TEST(TextBox, ATextOfTheProgramMovesTheCaretToTheStart) {
  TextBox box("txt");
  int changes = 0;
  box.Change = [&] { ++changes; };
  box.Text("señal");
  box.SelStart(99);
  EXPECT_EQ(box.SelStart(), 5);
  box.SelStart(1);
  box.SelLength(99);
  EXPECT_EQ(box.SelText(), "eñal");
  for (int i = 0; i < 2; ++i) box.Text("otro");
  EXPECT_EQ(box.SelStart(), 0);
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(FailureOf([&] { box.SelStart(-1); }), kInvalidPropertyValue);
}

TEST(TextBox, TypingReplacesTheSelectionAndKeysCanBeDropped) {
  TextBox box("txt");
  box.MultiLine(true);
  box.Text("un valor1 más");
  box.UserSetCaret(3, 6);
  box.KeyPress = [](int& key) {
    if (key == 13) key = 0;
    if (key == 'q') key = U'ñ';
  };
  box.UserType("aq\ro");
  EXPECT_EQ(box.Text(), "un año más");
  EXPECT_EQ(box.SelStart(), 6);
  box.KeyPress = nullptr;
  box.UserType("\r");
  EXPECT_EQ(box.Text(), "un año\r\n más");
  box.UserBackspace();
  EXPECT_EQ(box.Text(), "un año más") << "a line end goes with one key";
  box.UserBackspace();
  box.UserPaste("o\r\ny");
  EXPECT_EQ(box.Text(), "un año\r\ny más") << "a pasted line end stays";
}

TEST(TextBox, HoldsNoMoreThanMaxLength) {
  TextBox box("txtPlantilla");
  box.MaxLength(5);
  box.Text("ñññññññ");
  EXPECT_EQ(box.Text(), "ñññññ");
  box.UserSetCaret(0, 2);
  box.UserPaste("abcdef");
  EXPECT_EQ(box.Text(), "abñññ");
  box.UserType("x");
  EXPECT_EQ(box.Text(), "abñññ");
  box.UserEdit("123456", 6, 0);
  EXPECT_EQ(box.Text(), "12345");
}

TEST(TextBox, TakesNoLineEndsInOneLineAndNoKeysWhenDisabled) {
  TextBox box("txt");
  box.UserType("a\rb");
  box.UserPaste("c\nd");
  box.Enabled(false);
  EXPECT_FALSE(box.UserType("a") || box.UserPaste("a") || box.UserBackspace() || box.UserSetCaret(0) ||
               box.UserEdit("a", 0, 0));
  EXPECT_EQ(box.Text(), "abc");
}

}  // namespace
}  // namespace velmar::controls

#include <gtest/gtest.h>

#include <QClipboard>
#include <QInputMethodEvent>
#include <QTest>
#include <string>
#include <utility>

#include "qt/views/CommandButtonView.h"
#include "qt/views/ShownView.h"
#include "qt/views/TextAreaView.h"
#include "qt/views/TextLineView.h"

namespace velmar::qt {
namespace {

using Span = std::pair<long, long>;

class TextViewsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    area.MultiLine(true);
    line.MaxLength(10);
    lineView = &shown.Add<TextLineView>(line);
    areaView = &shown.Add<TextAreaView>(area);
    shown.Open();
  }
  static Span Caret(const controls::TextBox& box) { return {box.SelStart(), box.SelLength()}; }
  static void Paste(QWidget& view, const QString& text) {
    QApplication::clipboard()->setText(text);
    QTest::keyClick(&view, Qt::Key_V, Qt::ControlModifier);
  }

  controls::TextBox line{"txtLinea"};
  controls::TextBox area{"txtTexto"};
  ShownView shown;
  TextLineView* lineView = nullptr;
  TextAreaView* areaView = nullptr;
};

TEST_F(TextViewsTest, TypingReachesTheBoxWithItsCaret) {
  const std::pair<controls::TextBox*, QWidget*> kBoth[] = {{&line, lineView}, {&area, areaView}};
  for (const auto& [box, view] : kBoth) {
    SCOPED_TRACE(box->Name());
    int changes = 0;
    box->Change = [&changes] { ++changes; };
    view->setFocus();
    EXPECT_TRUE(box->HasFocus());
    QTest::keyClicks(view, "ano");
    EXPECT_EQ(box->Text(), "ano");
    EXPECT_EQ(Caret(*box), Span(3, 0));
    EXPECT_EQ(changes, 3);
    QTest::keyClick(view, Qt::Key_Left, Qt::ShiftModifier);
    QTest::keyClick(view, Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(Caret(*box), Span(1, 2));
    QTest::keyClicks(view, "b");
    EXPECT_EQ(box->Text(), "ab");
    QTest::keyClick(view, Qt::Key_Backspace);
    QTest::keyClick(view, Qt::Key_Home);
    QTest::keyClick(view, Qt::Key_Delete);
    EXPECT_EQ(box->Text(), "");
    QTest::keyClick(view, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box->Text(), "a") << "the editor's own undoing";
    box->Change = {};
  }
}

TEST_F(TextViewsTest, CaretsCountCharactersBeyondTheBasicPlane) {
  area.Text("😀a😀");
  area.SelStart(2);
  area.SelLength(1);
  EXPECT_EQ(areaView->textCursor().selectedText(), QString::fromUtf8("😀"));
  line.Text("😀a😀");
  line.SelStart(1);
  line.SelLength(1);
  EXPECT_EQ(lineView->selectedText(), "a");
  lineView->setFocus();
  QTest::keyClick(lineView, Qt::Key_End);
  EXPECT_EQ(Caret(line), Span(3, 0));
}

TEST_F(TextViewsTest, CaretAndSelectionOutliveTheFocus) {
  areaView->setFocus();
  QTest::keyClicks(areaView, "uno dos");
  QTest::keyClick(areaView, Qt::Key_Left, Qt::ShiftModifier);
  lineView->setFocus();
  EXPECT_EQ(Caret(area), Span(6, 1));
  // Into the line with the tab key: nothing is selected there that was not.
  line.Text("abc");
  line.SelStart(1);
  areaView->setFocus();
  lineView->setFocus(Qt::TabFocusReason);
  EXPECT_EQ(Caret(line), Span(1, 0));
  EXPECT_FALSE(lineView->hasSelectedText());
  areaView->setFocus();
  EXPECT_EQ(areaView->textCursor().selectedText(), "s");
}

TEST_F(TextViewsTest, WhatTheProgramWritesShowsAndLosesNothing) {
  area.Text("uno\ndos\r\ntres");
  EXPECT_EQ(areaView->toPlainText(), "uno\ndos\ntres");
  areaView->setFocus();
  area.SelStart(13);
  QTest::keyClicks(areaView, "!");
  EXPECT_EQ(area.Text(), "uno\ndos\r\ntres!");
  EXPECT_EQ(Caret(area), Span(14, 0));
  area.SelStart(0);
  area.SelLength(9);
  EXPECT_EQ(areaView->textCursor().selectionEnd(), 8);
}

TEST_F(TextViewsTest, PastedTextIsPlainAndKeepsTheBoxesRules) {
  areaView->setFocus();
  Paste(*areaView, "uno\ndos");
  EXPECT_EQ(area.Text(), "uno\r\ndos");
  lineView->setFocus();
  Paste(*lineView, "uno\ndos");
  EXPECT_EQ(line.Text(), "uno");
  QTest::keyClick(lineView, Qt::Key_Left);
  Paste(*lineView, "1234567890");
  EXPECT_EQ(line.Text(), "un1234567o");
  EXPECT_EQ(lineView->text(), "un1234567o");
  QTest::keyClicks(lineView, "x");
  EXPECT_EQ(line.Text(), "un1234567o");
}

TEST_F(TextViewsTest, KeysPassTheKeyEvent) {
  std::string keys;
  area.KeyPress = [&](int& key) {
    keys += key == 8 ? '#' : static_cast<char>(key);
    if (key == 'x') key = 0;
    if (key == 'y') key = 0xD1;
  };
  areaView->setFocus();
  QTest::keyClicks(areaView, "axyb");
  QTest::keyClick(areaView, Qt::Key_Backspace);
  EXPECT_EQ(keys, "axyb#");
  EXPECT_EQ(area.Text(), "aÑ");
  // Composed characters come from the input method.
  QInputMethodEvent composed("", {});
  composed.setCommitString("éx");
  area.KeyPress = [](int& key) {
    if (key == 'x') key = 0;
  };
  QApplication::sendEvent(areaView, &composed);
  EXPECT_EQ(area.Text(), "aÑé");
}

TEST_F(TextViewsTest, EnterIsTheWindows) {
  areaView->setFocus();
  QTest::keyClicks(areaView, "a");
  for (QWidget* view : {static_cast<QWidget*>(areaView), static_cast<QWidget*>(lineView)}) {
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r");
    QApplication::sendEvent(view, &enter);
    EXPECT_FALSE(enter.isAccepted());
  }
  EXPECT_EQ(area.Text(), "a");
}

TEST_F(TextViewsTest, ADisabledBoxKeepsItsText) {
  line.Text("abc");
  line.Enabled(false);
  QTest::keyClicks(lineView, "x");
  EXPECT_EQ(line.Text(), "abc");
  EXPECT_EQ(lineView->text(), "abc");
}

}  // namespace
}  // namespace velmar::qt

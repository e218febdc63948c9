#include <QClipboard>
#include <QInputMethodEvent>
#include <string>
#include <utility>

#include "qt/views/ShownView.h"
#include "qt/views/TextAreaView.h"
#include "qt/views/TextLineView.h"

namespace velmar::qt {
namespace {

class TextViewsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    area.MultiLine(true);
    line.MaxLength(10);
    shown.Open();
  }
  // The text, where the selection starts and how long it is.
  static std::string State(const controls::TextBox& box) {
    return box.Text() + ' ' + std::to_string(box.SelStart()) + '+' + std::to_string(box.SelLength());
  }
  static void Paste(QWidget& view, const QString& text) {
    view.setFocus();
    QApplication::clipboard()->setText(text);
    QTest::keyClick(&view, Qt::Key_V, Qt::ControlModifier);
  }

  controls::TextBox line{"txtLinea"};
  controls::TextBox area{"txtTexto"};
  ShownView shown;
  TextLineView& lineView = shown.Add<TextLineView>(line);
  TextAreaView& areaView = shown.Add<TextAreaView>(area);
};

TEST_F(TextViewsTest, TypingReachesTheBoxWithItsCaret) {
  const std::pair<controls::TextBox*, QWidget*> kBoth[] = {{&line, &lineView}, {&area, &areaView}};
  for (const auto& [box, view] : kBoth) {
    SCOPED_TRACE(box->Name());
    view->setFocus();
    QTest::keyClicks(view, "ano");
    EXPECT_EQ(State(*box), "ano 3+0");
    for (int i = 0; i < 2; ++i) QTest::keyClick(view, Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(State(*box), "ano 1+2");
    QTest::keyClicks(view, "b");
    EXPECT_EQ(State(*box), "ab 2+0");
    QTest::keyClick(view, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box->Text(), "ano") << "the editor's own undoing";
  }
}

TEST_F(TextViewsTest, CaretsCountCharactersAndOutliveTheFocus) {
  area.Text("😀\r\na😀s");
  area.SelStart(4);
  area.SelLength(2);
  EXPECT_EQ(areaView.textCursor().selectedText(), QString::fromUtf8("😀s"));
  line.Text("😀a😀");
  areaView.setFocus();
  // Into the line with the tab key: nothing is selected there that was not.
  lineView.setFocus(Qt::TabFocusReason);
  EXPECT_EQ(State(line), "😀a😀 0+0");
  QTest::keyClick(&lineView, Qt::Key_End);
  QTest::keyClick(&lineView, Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_EQ(State(line), "😀a😀 2+1");
  areaView.setFocus();
  EXPECT_EQ(State(area), "😀\r\na😀s 4+2");
}

TEST_F(TextViewsTest, CharactersThatTheEditorWouldReplaceStay) {
  // No-break spaces, as values of a database may have them, and both other ends of a line.
  const std::string text = "a\u00a0b\u2028c\u2029d";
  area.Text(text);
  areaView.setFocus();
  areaView.moveCursor(QTextCursor::End);
  QTest::keyClick(&areaView, Qt::Key_Left);
  EXPECT_EQ(State(area), text + " 6+0");
  QTest::keyClicks(&areaView, "x");
  EXPECT_EQ(State(area), "a\u00a0b\u2028c\u2029xd 7+0");
  areaView.selectAll();
  QTest::keyClick(&areaView, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QString::fromUtf8("a\u00a0b\u2028c\nxd"));
  Paste(areaView, QString::fromUtf8("p\u00a0q"));
  EXPECT_EQ(State(area), "p\u00a0q 3+0");
}

TEST_F(TextViewsTest, PastedTextIsPlainAndKeepsTheBoxesRules) {
  Paste(areaView, "uno\ndos");
  EXPECT_EQ(area.Text(), "uno\r\ndos");
  Paste(lineView, "uno\ndos");
  EXPECT_EQ(line.Text(), "uno");
  QTest::keyClick(&lineView, Qt::Key_Left);
  Paste(lineView, "1234567890");
  EXPECT_EQ(State(line), "un1234567o 9+0");
  EXPECT_EQ(lineView.text(), "un1234567o");
}

TEST_F(TextViewsTest, KeysPassTheKeyEvent) {
  std::string keys;
  area.KeyPress = [&](int& key) {
    keys += key == 8 ? '#' : static_cast<char>(key);
    if (key == 'x') key = 0;
    if (key == 'y') key = 0xD1;
  };
  areaView.setFocus();
  QTest::keyClicks(&areaView, "axyb");
  QTest::keyClick(&areaView, Qt::Key_Backspace);
  QTest::keyClick(&areaView, Qt::Key_Return);
  EXPECT_EQ(keys, "axyb#") << "Enter is the window's";
  EXPECT_EQ(area.Text(), "aÑ");
  // Composed characters come from the input method.
  QInputMethodEvent composed("", {});
  composed.setCommitString("éx");
  QApplication::sendEvent(&areaView, &composed);
  EXPECT_EQ(area.Text(), "aÑé");
}

}  // namespace
}  // namespace velmar::qt

#include "qt/toolkit/MessageBox.h"

#include <QAbstractButton>

#include "qt/toolkit/QtFixture.h"

namespace velmar::qt {
namespace {

class MessageBoxes : public testing::QtFixture {};

TEST_F(MessageBoxes, HaveTheIconButtonsAndKeysOfTheirStyle) {
  const struct {
    long style;
    QMessageBox::Icon icon;
    std::vector<std::string> buttons;  // the first is the default
    toolkit::MsgBoxResult onEnter;
    toolkit::MsgBoxResult onEscape;
  } kCases[] = {
      {48, QMessageBox::Warning, {"Aceptar"}, toolkit::kOk, toolkit::kOk},
      {16, QMessageBox::Critical, {"Aceptar"}, toolkit::kOk, toolkit::kOk},
      {36, QMessageBox::Question, {"&Sí", "&No"}, toolkit::kYes, toolkit::kNo},
      {35, QMessageBox::Question, {"&Sí", "&No", "Cancelar"}, toolkit::kYes, toolkit::kCancel},
      {53, QMessageBox::Warning, {"&Reintentar", "Cancelar"}, toolkit::kRetry, toolkit::kCancel},
  };
  for (const auto& expected : kCases) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
      SCOPED_TRACE(::testing::Message() << expected.style << ' ' << key);
      user.InModal<MessageBox>("the box", [&](MessageBox& box) {
        EXPECT_EQ(box.icon(), expected.icon);
        EXPECT_EQ(box.text().toStdString(), "Una línea\nOtra <b>línea</b>\nY otra");
        std::vector<std::string> texts;
        for (QAbstractButton* button : box.buttons()) texts.push_back(button->text().toStdString());
        EXPECT_THAT(texts, ::testing::UnorderedElementsAreArray(expected.buttons));
        QTest::keyClick(&box, key);
      });
      EXPECT_EQ(toolkit.MsgBox("Una línea\rOtra <b>línea</b>\r\nY otra", expected.style, "Gestión"),
                key == Qt::Key_Return ? expected.onEnter : expected.onEscape);
    }
  }
}

}  // namespace
}  // namespace velmar::qt

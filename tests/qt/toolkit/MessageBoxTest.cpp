#include "qt/toolkit/MessageBox.h"

#include <QLabel>
#include <QPushButton>

#include "qt/toolkit/QtFixture.h"

namespace velmar::qt {
namespace {

using ::testing::ElementsAreArray;

class MessageBoxes : public testing::QtFixture {};

struct Case {
  long style;
  QMessageBox::Icon icon;
  std::vector<std::string> buttons;  // the first is the default
  toolkit::MsgBoxResult onEnter;
  toolkit::MsgBoxResult onEscape;
};

const Case kCases[] = {
    {48, QMessageBox::Warning, {"Aceptar"}, toolkit::kOk, toolkit::kOk},
    {64, QMessageBox::Information, {"Aceptar"}, toolkit::kOk, toolkit::kOk},
    {16, QMessageBox::Critical, {"Aceptar"}, toolkit::kOk, toolkit::kOk},
    {36, QMessageBox::Question, {"Sí", "No"}, toolkit::kYes, toolkit::kNo},
    {35, QMessageBox::Question, {"Sí", "No", "Cancelar"}, toolkit::kYes, toolkit::kCancel},
    {53, QMessageBox::Warning, {"Reintentar", "Cancelar"}, toolkit::kRetry, toolkit::kCancel},
};

TEST_F(MessageBoxes, HaveTheIconButtonsAndKeysOfTheirStyle) {
  for (const Case& expected : kCases) {
    SCOPED_TRACE(expected.style);
    for (const auto& [key, result] :
         {std::pair(Qt::Key_Return, expected.onEnter), std::pair(Qt::Key_Escape, expected.onEscape)}) {
      user.InModal<MessageBox>("the box", [&, pressed = key](MessageBox& box) {
        EXPECT_EQ(box.icon(), expected.icon);
        EXPECT_EQ(box.windowTitle().toStdString(), "Gestión");
        EXPECT_EQ(box.text().toStdString(), "Una línea\nOtra <b>línea</b>\nY otra");
        EXPECT_TRUE(box.textInteractionFlags() & Qt::TextSelectableByMouse);
        std::vector<std::string> texts;
        for (QAbstractButton* button : box.buttons())
          texts.push_back(button->text().remove('&').toStdString());
        EXPECT_THAT(texts, ::testing::UnorderedElementsAreArray(expected.buttons));
        EXPECT_EQ(box.defaultButton()->text().remove('&').toStdString(), expected.buttons.front());
        QTest::keyClick(&box, pressed);
      });
      EXPECT_EQ(toolkit.MsgBox("Una línea\rOtra <b>línea</b>\r\nY otra", expected.style, "Gestión"), result);
    }
  }
}

TEST_F(MessageBoxes, AreAnsweredWithTheMouse) {
  for (const auto& [text, result] : {std::pair("Sí", toolkit::kYes), std::pair("No", toolkit::kNo)}) {
    user.InModal<MessageBox>("the box", [text](MessageBox& box) { testing::Robot::Press(box, text); });
    EXPECT_EQ(toolkit.MsgBox("¿Desea salir?", 36, "Gestión"), result);
  }
}

TEST_F(MessageBoxes, ShowLongTextsWhole) {
  const std::string path = "/home/oficina/" + std::string(160, 'x') + "/Exportacion.xls";
  user.InModal<MessageBox>("the box", [](MessageBox& box) {
    EXPECT_LE(box.width(), box.screen()->availableSize().width());
    const auto* label = box.findChild<QLabel*>("qt_msgbox_label");
    ASSERT_NE(label, nullptr);
    EXPECT_LE(label->mapTo(&box, label->rect().bottomRight()).x(), box.width());
    EXPECT_GE(label->height(), label->heightForWidth(label->width()));
    QTest::keyClick(&box, Qt::Key_Return);
  });
  toolkit.MsgBox("No se puede exportar al archivo " + path + ": está abierto en otro programa.", 48,
                 "Gestión");
}

}  // namespace
}  // namespace velmar::qt

#include "qt/windows/ExportWindow.h"

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QFontMetrics>
#include <QLabel>
#include <QLayout>
#include <QPushButton>

#include "qt/windows/ShownWizard.h"

namespace velmar::qt {
namespace {

using ::testing::ElementsAre;

class ExportWindowTest : public ShownWizard {};

TEST_F(ExportWindowTest, ASelectionIsComposedByMouseAndKeys) {
  Use([&](Window window) {
    window.Click(form->cmdAgregarQuitar(Controls::kTakeAll));
    window.ClickRow(form->lstDisponibles, 0);
    window.ClickRow(form->lstDisponibles, 2, Qt::ControlModifier);
    // To the button with the tab key, and pressed with the blank key.
    window.Press(Qt::Key_Tab);
    window.Press(Qt::Key_Space);
    window.DoubleClickRow(form->lstDisponibles, 1);
    window.DoubleClickRow(form->msgSeleccionados, 1);
    window.Click(form->cmdCampos(Controls::kFieldDown));
    // The right button on another row: the menu is about the current one.
    office.toolkit.AnswerMenu("Agregar literal al filtro");
    window.ClickRow(form->msgSeleccionados, 0, Qt::NoModifier, Qt::RightButton);
    window.DoubleClickRow(form->lstOperadores, 1);
    window.Click(form->txtFiltro);
    window.Press(Qt::Key_End);
    window.Type("x");
    office.toolkit.Answer(toolkit::kYes, "¿Desea asignar");
    window.Click(form->cmdFiltro(Controls::kFilterAssign));
    EXPECT_THAT(Grid(),
                ElementsAre("(COL)|Apellidos|=2", "(COL)|Nombre|{Nombre} [Que contenga] `valor´ x=1"));
    office.toolkit.AnswerMenu("Agregar al 'orden'");
    window.ClickRow(form->msgSeleccionados, 0, Qt::NoModifier, Qt::RightButton);
    window.ClickRow(form->lstOrden, 0);
    window.Click(form->cmdOrden(Controls::kOrderRemove));
    window.Click(form->cmdOrden(Controls::kOrderRemove));
    EXPECT_EQ(office.Boxes().back(), "+48 ¡Debe seleccionar un elemento de la lista!");
  });
}

TEST_F(ExportWindowTest, EnterExportsButNotFromTheFilter) {
  Use([&](Window window) {
    window.Click(form->lstDisponibles);
    window.Press(Qt::Key_Return);
    EXPECT_EQ(runner->runs, 1);
    window.Click(form->txtFiltro);
    window.Type("ab");
    window.Press(Qt::Key_Return);
    window.Press(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(runner->runs, 1);
    EXPECT_EQ(form->txtFiltro.Text(), "ab");
    EXPECT_FALSE(window.View<QPushButton>(form->cmdExportar(Controls::kExport)).isDefault());
    window.Click(form->lstOrden);
    EXPECT_TRUE(window.View<QPushButton>(form->cmdExportar(Controls::kExport)).isDefault());
    // A button with the focus takes Enter for itself.
    window.Click(form->cmdFiltro(Controls::kFilterClear));
    window.Press(Qt::Key_Enter);
    EXPECT_EQ(runner->runs, 1);
  });
}

TEST_F(ExportWindowTest, EscLeavesFromAnyControl) {
  const controls::Control* const kFrom[] = {&form->txtFiltro, &form->cboExportar, &form->msgSeleccionados};
  for (const controls::Control* from : kFrom) {
    Use([&](Window window) {
      window.View(*from).setFocus();
      window.Press(Qt::Key_Escape);
      EXPECT_FALSE(form->Visible()) << from->Name();
    });
  }
}

TEST_F(ExportWindowTest, EveryControlHasItsPlaceInTheTabOrderAndSaysWhatItIs) {
  Use([&](Window window) {
    window.VisitByTab();
    form->ForEachControl([&](const controls::Control& control) {
      if (!control.TakesFocus()) return;
      const QWidget& view = window.View(control);
      const auto* button = dynamic_cast<const QAbstractButton*>(&view);
      const QString text = button == nullptr ? QString() : button->text();
      const bool speaks = text.startsWith('&') || (!text.isEmpty() && text[0].isLetter());
      EXPECT_TRUE(speaks || button == nullptr || !view.toolTip().isEmpty()) << control.Name();
      EXPECT_TRUE(!text.isEmpty() || button == nullptr || !button->icon().isNull()) << control.Name();
      EXPECT_TRUE(!text.isEmpty() || !view.accessibleName().isEmpty()) << control.Name();
    });
    const auto* heads = window.View<QAbstractItemView>(form->msgSeleccionados).model();
    EXPECT_EQ(heads->headerData(2, Qt::Horizontal), "Filtro del Campo");
  });
}

TEST_F(ExportWindowTest, AccessKeysPressTheirButtons) {
  Use([&](Window window) {
    window.View(form->txtFiltro).setFocus();
    window.Press(Qt::Key_E, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return runner->runs == 1; }));
    EXPECT_EQ(QApplication::focusWidget(), &window.View(form->cmdExportar(Controls::kExport)));
    window.Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !form->Visible(); }));
  });
}

TEST_F(ExportWindowTest, NothingIsCutOnALaptopWithALargeFont) {
  const QFont usual = QApplication::font();
  QFont large = usual;
  large.setPointSizeF(usual.pointSizeF() * 1.5);
  QApplication::setFont(large);
  Use([&](Window window) {
    QDialog& dialog = window.Window();
    EXPECT_LE(dialog.minimumSizeHint().width(), 1366);
    EXPECT_LE(dialog.layout()->totalMinimumSize().height(), 720);
    dialog.setFixedSize(1366, 720);
    window.Settle();
    for (const QWidget* widget : dialog.findChildren<QWidget*>()) {
      const auto* button = dynamic_cast<const QAbstractButton*>(widget);
      const auto* label = dynamic_cast<const QLabel*>(widget);
      if ((button == nullptr && label == nullptr) || !widget->isVisible() || widget->objectName().isEmpty())
        continue;
      const QString text = button != nullptr ? button->text() : label->text();
      const QSize needed = widget->fontMetrics().size(Qt::TextShowMnemonic, text);
      EXPECT_GE(widget->width(), needed.width() + (label != nullptr ? 0 : 8)) << text.toStdString();
      EXPECT_GE(widget->height(), needed.height()) << text.toStdString();
    }
    const auto& operators = window.View<QAbstractItemView>(form->lstOperadores);
    const QRect last = operators.visualRect(operators.model()->index(17, 0));
    EXPECT_LE(last.right(), operators.viewport()->width());
  });
  QApplication::setFont(usual);
}

}  // namespace
}  // namespace velmar::qt

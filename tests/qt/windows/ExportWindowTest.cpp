#include "qt/windows/ExportWindow.h"

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QFontMetrics>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QTableView>
#include <algorithm>
#include <functional>
#include <vector>

#include "qt/windows/ShownWizard.h"

namespace velmar::qt {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Kind = toolkit::Record::Kind;

class ExportWindowTest : public ShownWizard {};

TEST_F(ExportWindowTest, FieldsMoveByButtonDoubleClickAndKeys) {
  Use([&](Window window) {
    ChooseNode(window, 0);
    EXPECT_THAT(Texts(form->lstDisponibles), ElementsAre("Apellidos", "Árbol", "ciudad", "Nombre"));
    window.ClickRow(form->lstDisponibles, 0);
    window.ClickRow(form->lstDisponibles, 2, Qt::ControlModifier);
    window.Click(form->cmdAgregarQuitar(Controls::kAdd));
    EXPECT_THAT(Literals(), ElementsAre("Apellidos", "ciudad"));
    window.DoubleClickRow(form->lstDisponibles, 1);
    EXPECT_THAT(Literals(), ElementsAre("Apellidos", "ciudad", "Nombre"));
    // To the button with the tab key, and pressed with the blank key.
    window.ClickRow(form->lstDisponibles, 0);
    window.Press(Qt::Key_Tab);
    window.Press(Qt::Key_Space);
    EXPECT_THAT(Literals(), ElementsAre("Apellidos", "ciudad", "Nombre", "Árbol"));
    window.DoubleClickRow(form->msgSeleccionados, 1);
    EXPECT_THAT(Texts(form->lstDisponibles), ElementsAre("ciudad"));
    EXPECT_THAT(office.Boxes(), IsEmpty());
    window.Click(form->cmdAgregarQuitar(Controls::kTakeAll));
    window.Click(form->cmdAgregarQuitar(Controls::kTake));
    EXPECT_THAT(office.Boxes(), ElementsAre("+48 ¡Debe seleccionar un elemento de la rejilla!"));
  });
}

TEST_F(ExportWindowTest, RowsDrawnUpwardsAreMovedOutAndOneIsMovedAlone) {
  Use([&](Window window) {
    AddAll(window);
    window.DragRows(form->msgSeleccionados, 2, 1);
    window.Click(form->cmdAgregarQuitar(Controls::kTake));
    EXPECT_THAT(Literals(), ElementsAre("Apellidos", "Nombre"));
    window.ClickRow(form->msgSeleccionados, 1);
    window.Click(form->cmdCampos(Controls::kFieldUp));
    EXPECT_THAT(Literals(), ElementsAre("Nombre", "Apellidos"));
    window.Click(form->cmdCampos(Controls::kFieldDown));
    EXPECT_THAT(Literals(), ElementsAre("Apellidos", "Nombre"));
  });
}

TEST_F(ExportWindowTest, AFilterIsWrittenWithOperatorsAndTheMenuAndAssigned) {
  Use([&](Window window) {
    AddAll(window);
    window.ClickRow(form->msgSeleccionados, 3);
    // The right button on another row: the menu is about the current one.
    office.toolkit.AnswerMenu("Agregar literal al filtro");
    window.ClickRow(form->msgSeleccionados, 0, Qt::NoModifier, Qt::RightButton);
    EXPECT_EQ(form->msgSeleccionados.Row(), 4);
    EXPECT_EQ(form->txtFiltro.Text(), "{Nombre}");
    window.DoubleClickRow(form->lstOperadores, 1);
    EXPECT_EQ(form->txtFiltro.Text(), "{Nombre} [Que contenga] `valor´ ");
    window.Click(form->txtFiltro);
    window.Press(Qt::Key_End);
    window.Type("x");
    EXPECT_EQ(form->txtFiltro.Text(), "{Nombre} [Que contenga] `valor´ x");
    window.Press(Qt::Key_Backspace);
    office.toolkit.Answer(toolkit::kYes, "¿Desea asignar");
    window.Click(form->cmdFiltro(Controls::kFilterAssign));
    EXPECT_EQ(form->msgSeleccionados.TextMatrix(4, 2), "{Nombre} [Que contenga] `valor´ ");
    EXPECT_EQ(form->txtFiltro.Text(), "");
    const QAbstractItemModel& rows = *window.View<QTableView>(form->msgSeleccionados).model();
    EXPECT_EQ(rows.index(3, 2).data().toString().toStdString(), "{Nombre} [Que contenga] `valor´ ");
  });
}

TEST_F(ExportWindowTest, TheOrderIsMovedAndShortened) {
  Use([&](Window window) {
    AddAll(window);
    for (int row = 0; row < 3; ++row) {
      window.ClickRow(form->msgSeleccionados, row);
      office.toolkit.AnswerMenu("Agregar al 'orden'");
      window.ClickRow(form->msgSeleccionados, row, Qt::NoModifier, Qt::RightButton);
    }
    window.ClickRow(form->lstOrden, 2);
    window.Click(form->cmdOrden(Controls::kOrderUp));
    window.Click(form->cmdOrden(Controls::kOrderUp));
    EXPECT_THAT(Texts(form->lstOrden), ElementsAre("(COL) ciudad", "(COL) Apellidos", "(COL) Árbol"));
    window.Click(form->cmdOrden(Controls::kOrderDown));
    window.Click(form->cmdOrden(Controls::kOrderRemove));
    EXPECT_THAT(Texts(form->lstOrden), ElementsAre("(COL) Apellidos", "(COL) Árbol"));
    window.Click(form->cmdOrden(Controls::kOrderRemove));
    EXPECT_THAT(office.Boxes(), ElementsAre("+48 ¡Debe seleccionar un elemento de la lista!"));
  });
}

TEST_F(ExportWindowTest, EnterExportsButNotFromTheFilter) {
  Use([&](Window window) {
    AddAll(window);
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
    // A button with the focus takes Enter for itself.
    window.Click(form->cmdFiltro(Controls::kFilterClear));
    window.Click(form->lstOrden);
    EXPECT_TRUE(window.View<QPushButton>(form->cmdExportar(Controls::kExport)).isDefault());
    window.Press(Qt::Key_Enter);
    EXPECT_EQ(runner->runs, 2);
    EXPECT_TRUE(form->Visible());
  });
}

TEST_F(ExportWindowTest, EscLeavesFromAnyControl) {
  const controls::Control* const kFrom[] = {&form->txtFiltro, &form->cboExportar, &form->msgSeleccionados};
  for (const controls::Control* from : kFrom) {
    SCOPED_TRACE(from->Name());
    Use([&](Window window) {
      window.View(*from).setFocus();
      window.Press(Qt::Key_Escape);
      EXPECT_FALSE(form->Visible());
    });
  }
}

TEST_F(ExportWindowTest, TheTabKeyVisitsTheControlsInTheirOrder) {
  Use([&](Window window) {
    std::vector<const controls::Control*> order;
    form->ForEachControl([&](const controls::Control& control) {
      if (control.TakesFocus()) order.push_back(&control);
    });
    std::sort(order.begin(), order.end(),
              [](const auto* a, const auto* b) { return a->TabIndex() < b->TabIndex(); });
    ASSERT_EQ(order.size(), 26U);
    for (const controls::Control* control : order) {
      const controls::Control* active = form->Scope().ActiveControl();
      EXPECT_EQ(active, control) << (active == nullptr ? "none" : active->Name()) << " before "
                                 << control->Name();
      EXPECT_EQ(QApplication::focusWidget(), &window.View(*control)) << control->Name();
      window.Press(Qt::Key_Tab);
    }
    EXPECT_EQ(form->Scope().ActiveControl(), order.front());
    window.Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(form->Scope().ActiveControl(), order.back());
  });
}

TEST_F(ExportWindowTest, AccessKeysPressTheirButtons) {
  Use([&](Window window) {
    AddAll(window);
    window.View(form->txtFiltro).setFocus();
    const auto alt = [&](Qt::Key key, const std::function<bool()>& done) {
      window.Press(key, Qt::AltModifier);
      EXPECT_TRUE(QTest::qWaitFor(done)) << key;
    };
    alt(Qt::Key_E, [&] { return runner->runs == 1; });
    EXPECT_EQ(QApplication::focusWidget(), &window.View(form->cmdExportar(Controls::kExport)));
    alt(Qt::Key_A, [&] { return !office.toolkit.Records(Kind::kHelp).empty(); });
    EXPECT_EQ(office.toolkit.Records(Kind::kHelp).front().number, Controls::kHelpTopic);
    alt(Qt::Key_S, [&] { return !form->Visible(); });
  });
}

TEST_F(ExportWindowTest, EveryControlSaysWhatItIs) {
  Use([&](Window window) {
    form->ForEachControl([&](const controls::Control& control) {
      if (!control.TakesFocus()) return;
      const QWidget& view = window.View(control);
      const auto* button = dynamic_cast<const QAbstractButton*>(&view);
      const bool speaks = button != nullptr && !button->text().isEmpty() && button->text()[0].isLetter();
      EXPECT_TRUE(speaks || button == nullptr || button->text().startsWith('&') || !view.toolTip().isEmpty())
          << control.Name();
      EXPECT_TRUE(button == nullptr || !button->text().isEmpty() || !button->icon().isNull())
          << control.Name();
      EXPECT_TRUE((button != nullptr && !button->text().isEmpty()) || !view.accessibleName().isEmpty())
          << control.Name();
    });
    const auto* heads = window.View<QTableView>(form->msgSeleccionados).model();
    EXPECT_EQ(heads->headerData(2, Qt::Horizontal), "Filtro del Campo");
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

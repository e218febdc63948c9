#include "qt/windows/ExportWindow.h"

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QLayout>
#include <QPushButton>

#include "qt/windows/ShownWizard.h"

namespace velmar::qt {
namespace {

using ::testing::ElementsAre;

using ExportWindowTest = ShownWizard;

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
    office.toolkit.Answer(toolkit::kYes, "¿Desea asignar");
    window.Click(form->cmdFiltro(Controls::kFilterAssign));
    EXPECT_THAT(Grid(), ElementsAre("(COL)|Apellidos|=2", "(COL)|Nombre|{Nombre}=1"));
  });
}

TEST_F(ExportWindowTest, KeysExportHelpAndLeave) {
  Use([&](Window window) {
    window.Click(form->lstDisponibles);
    window.Press(Qt::Key_Return);
    EXPECT_EQ(runner->runs, 1);
    window.Click(form->txtFiltro);
    window.Type("ab");
    window.Press(Qt::Key_Return);
    window.Press(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(runner->runs, 1);
    EXPECT_FALSE(window.View<QPushButton>(form->cmdExportar(Controls::kExport)).isDefault());
    window.Click(form->lstOrden);
    EXPECT_TRUE(window.View<QPushButton>(form->cmdExportar(Controls::kExport)).isDefault());
    // A button with the focus takes Enter for itself.
    window.Click(form->cmdFiltro(Controls::kFilterClear));
    window.Press(Qt::Key_Enter);
    EXPECT_EQ(runner->runs, 1);
    window.View(form->txtFiltro).setFocus();
    window.Press(Qt::Key_F1);
    window.Press(Qt::Key_A, Qt::AltModifier);
    const auto topics = [&] { return office.toolkit.Records(toolkit::Record::Kind::kHelp); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return topics().size() == 2; }));
    EXPECT_EQ(topics().at(0).number, 138);
    EXPECT_EQ(QApplication::focusWidget(), &window.View(form->cmdExportar(Controls::kHelp)));
    window.View(form->cboExportar).setFocus();
    window.Press(Qt::Key_Escape);
    EXPECT_FALSE(form->Visible());
  });
}

TEST_F(ExportWindowTest, TheTabKeyVisitsTheControlsAndEachSaysWhatItIs) {
  Use([&](Window window) {
    window.VisitByTab();
    QString said;
    for (const controls::Control* control : form->Scope().TabOrder()) {
      const QWidget& view = window.View(*control);
      const auto* button = dynamic_cast<const QAbstractButton*>(&view);
      const QString text = button == nullptr ? QString() : button->text();
      said += (text.isEmpty() ? view.accessibleName() : text) + '|';
      if (button == nullptr) continue;
      EXPECT_TRUE(text.size() > 2 || !view.toolTip().isEmpty()) << control->Name();
      EXPECT_TRUE(!text.isEmpty() || !button->icon().isNull()) << control->Name();
    }
    EXPECT_EQ(
        said,
        "Nodo|Campos disponibles|>|>>|<|<<|Campos seleccionados|&Ver datos|Subir el campo|Bajar el campo|"
        "Relación parcial entre tablas|Relación completa entre tablas|Orden de los registros|Quitar del "
        "orden|Subir en el orden|Bajar en el orden|Operadores del filtro|Condiciones del filtro|Asignar|"
        "Vaciar|&Ayuda|&Cargar plantilla|Salvar &plantilla|&Exportar|&Salir|Eliminar|");
    const auto* heads = window.View<QAbstractItemView>(form->msgSeleccionados).model();
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
      // Buttons and labels have it.
      const QString text = widget->property("text").toString();
      if (text.isEmpty() || !widget->isVisible()) continue;
      const QSize needed = widget->fontMetrics().size(Qt::TextShowMnemonic, text);
      EXPECT_GE(widget->width(), needed.width() + (widget->inherits("QLabel") ? 0 : 8)) << text.toStdString();
      EXPECT_GE(widget->height(), needed.height()) << text.toStdString();
    }
    const auto& operators = window.View<QAbstractItemView>(form->lstOperadores);
    const auto place = [&](int row) { return operators.visualRect(operators.model()->index(row, 0)); };
    EXPECT_EQ(place(17).topLeft() - place(8).topLeft(), QPoint(operators.viewport()->width() / 2, 0));
    EXPECT_TRUE(operators.viewport()->rect().contains(place(17)));
  });
  QApplication::setFont(usual);
}

}  // namespace
}  // namespace velmar::qt

#include "wizard/ExportControls.h"

#include <array>

#include "wizard/FilterOperators.h"

namespace velmar::wizard {

namespace {

template <typename T>
void LoadAll(controls::ControlArray<T>& array, std::initializer_list<const char*> captions) {
  for (const char* caption : captions) array.Load(array.UBound() + 1, caption);
}

}  // namespace

ExportControls::ExportControls() {
  LoadAll(lblExportar, {"Nodo:", "Campos disponibles: ", "Campos seleccionados: "});
  LoadAll(cmdAgregarQuitar, {">", ">>", "<", "<<"});
  LoadAll(cmdCampos, {"", ""});
  LoadAll(optExportar, {"Relación completa entre tablas", "Relación parcial entre tablas"});
  LoadAll(fraExportar, {"Orden de los registros:", "Condiciones del filtro:"});
  LoadAll(cmdOrden, {"", "", ""});
  LoadAll(cmdFiltro, {"Vaciar", "Asignar", "Eliminar"});
  LoadAll(cmdExportar, {"&Salir", "&Exportar", "&Ayuda", "&Cargar plantilla", "Salvar &plantilla"});
  tmrExportacion.Load(0);

  lstDisponibles.Sorted(true);
  lstDisponibles.MultiSelect(2);
  for (const std::string_view item : kFilterOperators) lstOperadores.AddItem(std::string(item));
  lstOperadores.Columns(2);
  txtFiltro.MultiLine(true);
  optExportar.ForEach([this](controls::OptionButton& option, int) { relation_.Add(option); });
  optExportar(kComplete).Value(true);
  cmdExportar(kLeave).Cancel(true);
  cmdExportar(kExport).Default(true);
  cmdExportar(kHelp).HelpContextID(kHelpTopic);
  prgExportar.Visible(false);

  dlgExportar.DefaultExt("xls");
  dlgExportar.DialogTitle("Indique el nombre del archivo para la exportación");
  dlgExportar.Filter("Archivos de Excel |*.xls|");
  dlgExportar.InitDir("C:\\");
  dlgExportar.CancelError(true);

  Name();
  Contain();
  OrderByTab();
}

// What a screen reader says of the controls that bear no text of their own.
void ExportControls::Name() {
  cboExportar.AccessibleName("Nodo");
  lstDisponibles.AccessibleName("Campos disponibles");
  msgSeleccionados.AccessibleName("Campos seleccionados");
  lstOrden.AccessibleName("Orden de los registros");
  lstOperadores.AccessibleName("Operadores del filtro");
  txtFiltro.AccessibleName("Condiciones del filtro");
  prgExportar.AccessibleName("Progreso de la exportación");

  const auto name = [](controls::Control& control, const char* text) {
    control.AccessibleName(text);
    control.ToolTipText(text);
  };
  name(cmdAgregarQuitar(kAdd), "Agregar los campos marcados");
  name(cmdAgregarQuitar(kAddAll), "Agregar todos los campos");
  name(cmdAgregarQuitar(kTake), "Quitar los campos marcados");
  name(cmdAgregarQuitar(kTakeAll), "Quitar todos los campos");
  name(cmdCampos(kFieldUp), "Subir el campo");
  name(cmdCampos(kFieldDown), "Bajar el campo");
  name(cmdOrden(kOrderRemove), "Quitar del orden");
  name(cmdOrden(kOrderUp), "Subir en el orden");
  name(cmdOrden(kOrderDown), "Bajar en el orden");
}

void ExportControls::Contain() {
  lstOrden.Container(&fraExportar(0));
  cmdOrden.ForEach([this](controls::CommandButton& button, int) { button.Container(&fraExportar(0)); });
  lstOperadores.Container(&fraExportar(1));
  txtFiltro.Container(&fraExportar(1));
  cmdFiltro.ForEach([this](controls::CommandButton& button, int) { button.Container(&fraExportar(1)); });
}

void ExportControls::OrderByTab() {
  const std::array<controls::Control*, 26> order = {&cboExportar,
                                                    &lstDisponibles,
                                                    &cmdAgregarQuitar(kAdd),
                                                    &cmdAgregarQuitar(kAddAll),
                                                    &cmdAgregarQuitar(kTake),
                                                    &cmdAgregarQuitar(kTakeAll),
                                                    &msgSeleccionados,
                                                    &cmdVerDatos,
                                                    &cmdCampos(kFieldUp),
                                                    &cmdCampos(kFieldDown),
                                                    &optExportar(kPartial),
                                                    &optExportar(kComplete),
                                                    &lstOrden,
                                                    &cmdOrden(kOrderRemove),
                                                    &cmdOrden(kOrderUp),
                                                    &cmdOrden(kOrderDown),
                                                    &lstOperadores,
                                                    &txtFiltro,
                                                    &cmdFiltro(kFilterAssign),
                                                    &cmdFiltro(kFilterClear),
                                                    &cmdExportar(kHelp),
                                                    &cmdExportar(kLoadTemplate),
                                                    &cmdExportar(kSaveTemplate),
                                                    &cmdExportar(kExport),
                                                    &cmdExportar(kLeave),
                                                    &cmdFiltro(kFilterRemove)};
  int index = 0;
  for (controls::Control* control : order) control->TabIndex(index++);
}

}  // namespace velmar::wizard

#include "qt/windows/MakeWindow.h"

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/toolkit/Form.h"
#include "qt/windows/ExportWindow.h"
#include "qt/windows/TemplatesWindow.h"
#include "qt/windows/ValuesWindow.h"
#include "templates/frmPlantillas.h"
#include "wizard/frmDatos.h"
#include "wizard/frmExportacion.h"

namespace velmar::qt {

namespace {

template <typename Window, typename FormType>
std::unique_ptr<FormWindow> MakeFor(toolkit::Form& form, QWidget* parent) {
  auto* known = dynamic_cast<FormType*>(&form);
  return known == nullptr ? nullptr : std::make_unique<Window>(*known, parent);
}

}  // namespace

std::unique_ptr<FormWindow> MakeWindow(toolkit::Form& form, QWidget* parent) {
  auto window = MakeFor<ExportWindow, wizard::frmExportacion>(form, parent);
  if (window == nullptr) window = MakeFor<ValuesWindow, wizard::frmDatos>(form, parent);
  if (window == nullptr) window = MakeFor<TemplatesWindow, templates::frmPlantillas>(form, parent);
  if (window == nullptr) {
    throw RuntimeError(kInvalidProcedureCall,
                       "No hay ninguna ventana para el formulario \"" + form.Name() + "\".", form.Name());
  }
  return window;
}

}  // namespace velmar::qt

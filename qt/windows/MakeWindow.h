#pragma once

#include <memory>

#include "qt/toolkit/FormWindow.h"

namespace velmar::qt {

/// The window of a form of the wizard. Raises kInvalidProcedureCall for another form.
std::unique_ptr<FormWindow> MakeWindow(toolkit::Form& form, QWidget* parent);

}  // namespace velmar::qt

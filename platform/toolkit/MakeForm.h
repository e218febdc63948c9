#pragma once

#include <memory>
#include <utility>

#include "platform/toolkit/Form.h"

namespace velmar::toolkit {

/// Makes a form and runs its Form_Initialize. When the last reference goes, the form is unloaded if it still
/// is loaded, Form_Terminate runs, and the form is gone.
template <typename FormType, typename... Arguments>
std::shared_ptr<FormType> MakeForm(Arguments&&... arguments) {
  std::shared_ptr<FormType> form(new FormType(std::forward<Arguments>(arguments)...), [](FormType* ended) {
    ended->Terminate();
    delete ended;
  });
  form->Initialize();
  return form;
}

}  // namespace velmar::toolkit

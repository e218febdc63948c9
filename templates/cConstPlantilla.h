#pragma once

#include <cstdint>

namespace velmar {

/// The two modes of the template dialog.
class cConstPlantilla {
 public:
  /// The dialog loads a template: 1.
  std::uint8_t Cargar() const noexcept { return cargar_; }
  /// The dialog saves a template: 2.
  std::uint8_t Salvar() const noexcept { return salvar_; }

 private:
  std::uint8_t cargar_ = 1;
  std::uint8_t salvar_ = 2;
};

}  // namespace velmar

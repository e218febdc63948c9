#include "sample/host/SampleApi.h"

#include <utility>

#include "host/interfaces/CurrentError.h"
#include "platform/ado/Field.h"
#include "platform/ado/Variant.h"
#include "platform/controls/TextBox.h"
#include "platform/text/Characters.h"
#include "platform/text/Trim.h"
#include "platform/toolkit/Toolkit.h"
#include "sample/SpanishIds.h"

namespace velmar::sample {

SampleApi::SampleApi(toolkit::Toolkit& toolkit, std::string title)
    : toolkit_(toolkit), title_(std::move(title)) {}

void SampleApi::VerError(const std::string& rutina, const std::string& formulario,
                         const std::string& componente) {
  const ErrObject& error = CurrentError();
  toolkit_.Beep();
  toolkit_.MsgBox("Error " + std::to_string(error.Number()) + ": " + error.Description() +
                      "\rRutina: " + rutina + "\rVentana: " + formulario + "\rComponente: " + componente,
                  toolkit::kCritical, title_);
}

void SampleApi::SeleccionarTexto(controls::TextBox& caja) {
  caja.SelStart(0);
  caja.SelLength(static_cast<long>(text::Len(caja.Text())));
}

long SampleApi::validar_nif(const ADODB::Field& nif) {
  return IsValidTaxId(text::Trim(nif.Value().TextOrEmpty())) ? 1 : 0;
}

}  // namespace velmar::sample

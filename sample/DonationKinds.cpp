#include "sample/DonationKinds.h"

#include "platform/ado/BulkInsert.h"
#include "sample/RowWriter.h"

namespace velmar::sample {
namespace {

constexpr std::array<DonationType, kDonationTypeCount> kTypes = {{
    {"Cuota de socio", false, true, false, false},
    {"Donativo puntual", false, true, false, true},
    {"Apadrinamiento", false, true, false, false},
    {"Lotería solidaria", false, false, false, true},
    {"Emergencias", false, true, false, false},
    {"Proyectos de cooperación", false, true, false, false},
    {"Herencias y legados", false, false, false, true},
    {"Venta de artículos", false, false, false, true},
    {"Campaña de Navidad", false, true, false, false},
    {"Mecenazgo prioritario", true, true, false, false},
    {"Rifa de verano", false, true, true, true},
}};

constexpr std::array<PaymentPeriod, kPeriodCount> kPeriods = {{
    {"Mensual", 1},
    {"Bimestral", 2},
    {"Trimestral", 3},
    {"Semestral", 6},
    {"Anual", 12},
    {"Pago único", 0},
}};

constexpr std::array<PaymentMethod, kMethodCount> kMethods = {{
    {"Domiciliación bancaria", true, false},
    {"Transferencia", false, false},
    {"Tarjeta", false, false},
    {"Efectivo", false, false},
    {"Cheque", false, false},
    {"Giro postal", false, true},
}};

}  // namespace

const std::array<DonationType, kDonationTypeCount>& DonationTypes() {
  return kTypes;
}

const std::array<PaymentPeriod, kPeriodCount>& PaymentPeriods() {
  return kPeriods;
}

const std::array<PaymentMethod, kMethodCount>& PaymentMethods() {
  return kMethods;
}

void WriteDonationKinds(ADODB::Connection& main) {
  ADODB::BulkInsert types(main, "TipoDonativos",
                          {"IDTipoDonativo", "Nombre", "TipoA", "Modelo182", "Eliminado"});
  for (std::size_t i = 0; i < kTypes.size(); ++i) {
    WriteRow(types, i + 1, kTypes[i].name, kTypes[i].priority, kTypes[i].declared, kTypes[i].deleted);
  }
  ADODB::BulkInsert periods(main, "TipoPeriodos", {"IDTipoPeriodo", "Nombre", "Meses", "Eliminado"});
  for (std::size_t i = 0; i < kPeriods.size(); ++i) {
    WriteRow(periods, i + 1, kPeriods[i].name, kPeriods[i].months, false);
  }
  ADODB::BulkInsert methods(main, "TipoPagos", {"IDTipoPago", "Nombre", "Eliminado"});
  for (std::size_t i = 0; i < kMethods.size(); ++i) {
    WriteRow(methods, i + 1, kMethods[i].name, kMethods[i].deleted);
  }
}

}  // namespace velmar::sample

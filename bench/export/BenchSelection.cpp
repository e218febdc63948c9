#include "export/BenchSelection.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string_view>

#include "catalogue/FieldLookup.h"
#include "query/FromClause.h"
#include "query/ListClauses.h"
#include "query/WhereClause.h"
#include "sample/AccountCodec.h"
#include "sample/Catalogue.h"

namespace velmar::bench {
namespace {

constexpr std::array<std::string_view, 12> kFields{"colaboradores.idcolaborador",
                                                   "colaboradores.nombre",
                                                   "colaboradores.apellido1",
                                                   "colaboradores.apellido2",
                                                   "colaboradores.nif",
                                                   "colaboradores.provincia",
                                                   "recibos.fechaemision",
                                                   "recibos.fechacobro",
                                                   "recibos.mes",
                                                   "recibos.importe",
                                                   "cobros.textorecibo",
                                                   "recibos.cuenta"};

cCampos RecordOf(const sample::CatalogueField& field) {
  cCampos record;
  record.IDCampo(static_cast<std::int16_t>(field.id));
  record.NombreInternoCampo(field.internalName);
  record.LiteralCampo(field.literal);
  record.CaracterValorCampo(field.delimiter);
  record.LiteralCampoSELECT(field.select);
  record.LiteralCampoORDERBY(field.orderBy);
  record.LiteralCampoWHERE(field.where);
  record.IDTabla(static_cast<std::int16_t>(field.nodeId));
  record.LiteralTabla(field.node);
  return record;
}

}  // namespace

BenchSelection::BenchSelection(long lastCollaborator) {
  for (const sample::CatalogueField& field : sample::Catalogue())
    catalogue.Add(RecordOf(field), FieldKey(field.id));
  for (const std::string_view name : kFields) {
    const auto& all = sample::Catalogue();
    const auto field = std::find_if(all.begin(), all.end(),
                                    [name](const auto& candidate) { return candidate.internalName == name; });
    if (field == all.end()) throw std::runtime_error("no hay campo " + std::string(name));
    const std::string filter = selection.rows.empty()
                                   ? "{" + field->literal + "} <= `" + std::to_string(lastCollaborator) + "´"
                                   : "";
    selection.rows.push_back({field->node, field->literal, filter, field->id});
  }
}

Clauses ClausesOf(const BenchSelection& chosen) {
  const auto codec = [] { return std::make_shared<sample::AccountCodec>(); };
  return {GenerarSQLSELECT(chosen.selection, chosen.catalogue, {}),
          GenerarSQLFROM(chosen.selection, chosen.catalogue, {}) +
              GenerarSQLWHERE(chosen.selection, chosen.catalogue, codec, {})};
}

}  // namespace velmar::bench

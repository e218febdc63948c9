#pragma once

#include <string>
#include <utility>
#include <vector>

#include "catalogue/Collection.h"
#include "catalogue/FieldLookup.h"
#include "catalogue/cCampos.h"
#include "host/interfaces/FailureReport.h"
#include "query/Selection.h"

namespace velmar::testing {

/// A catalogue, a selection over it and the failures that builders report, for one test.
struct Fixture {
  Collection<cCampos> catalogue;
  Selection selection;
  std::vector<std::string> reported;  // labels

  FailureReport Report() {
    return [this](const RuntimeError&, const std::string& routine) { reported.push_back(routine); };
  }

  /// Adds a field to the catalogue. The number of the new field is its place, from 1.
  cCampos Describe(const std::string& node, const std::string& internalName, const std::string& literal,
                   const std::string& where = {}, const std::string& delimiter = {}) {
    cCampos field;
    field.IDCampo(static_cast<std::int16_t>(catalogue.Count() + 1));
    field.LiteralTabla(node);
    field.NombreInternoCampo(internalName);
    field.LiteralCampo(literal);
    field.LiteralCampoWHERE(where);
    field.CaracterValorCampo(delimiter);
    field.LiteralCampoSELECT(where + " AS [" + literal + "]");
    field.LiteralCampoORDERBY(where);
    catalogue.Add(field, FieldKey(field.IDCampo()));
    return field;
  }

  /// Adds a row for a field of the catalogue.
  void Select(const cCampos& field, const std::string& filter = {}) {
    selection.rows.push_back({field.LiteralTabla(), field.LiteralCampo(), filter, field.IDCampo()});
  }
};

}  // namespace velmar::testing

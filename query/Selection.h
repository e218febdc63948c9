#pragma once

#include <string>
#include <vector>

namespace velmar {

/// What the user has put together: the fields of the grid, the sort list and the kind of relation. The form
/// makes it from its controls; validation, clause builders and the export read nothing else of the window.
struct Selection {
  /// One row of the grid below its head.
  struct Row {
    /// Column 0: the node, for example "(REC) Recibos".
    std::string tabla;
    /// Column 1: the field's literal.
    std::string campo;
    /// Column 2: the filter exactly as typed; empty for a field without filter.
    std::string filtro;
    /// The field's number in the catalogue, the row's only link to it.
    long idCampo = 0;
  };

  enum class Relation {
    kComplete,  ///< "Relación completa entre tablas": every join is an inner join.
    kPartial,   ///< "Relación parcial entre tablas": every join is a left join.
  };

  /// In the order of the SELECT list.
  std::vector<Row> rows;
  /// Field numbers in order of priority.
  std::vector<long> order;
  Relation relation = Relation::kComplete;
};

}  // namespace velmar

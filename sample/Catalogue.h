#pragma once

#include <string>
#include <vector>

#include "platform/ado/Connection.h"

namespace velmar::sample {

/// One row of the field catalogue: an exportable field and the Jet SQL that stands for it.
struct CatalogueField {
  int id = 0;  ///< IDCampo, from 1
  std::string internalName;
  std::string literal;
  std::string delimiter;  ///< around a value in SQL; empty for numbers, stored as NULL
  std::string select;
  std::string orderBy;
  std::string where;
  int nodeId = 0;
  std::string node;
};

/// The catalogue over the tables of the sample's main database.
///
/// What its texts keep to, so that fields combine freely:
/// - No literal is part of another one, but for fields that would join the same tables twice: they share one.
/// - No two fields that can stand together have the same output name. Names of account columns hold "cuenta",
///   those of date columns "fecha" and need no brackets; no other name holds either word.
/// - They stay valid in lower case and with the receipts' tables replaced by those of pending receipts: no
///   subquery, and no output name that holds "cobros" or "idrecibo" or ends in "recibos".
/// - A text for conditions holds no bracket and no accent used as a value mark, and stands for what the value
///   picker offers: the words for sex and kind of entity, the eight stored digits of a date, the stored form
///   of an account.
const std::vector<CatalogueField>& Catalogue();

/// Fills the table ExportacionCamposTEMP of the open connection.
void WriteCatalogue(ADODB::Connection& reports);

}  // namespace velmar::sample

#pragma once

#include <string>

#include "catalogue/Collection.h"
#include "catalogue/cCampos.h"

namespace velmar {

/// The key of a field in the collection: the digits of its number behind one leading blank, or behind a minus
/// sign. 12 has the key " 12".
std::string FieldKey(long idCampo);

/// The record of a field. A number that the catalogue does not hold is kInvalidProcedureCall, with a text for
/// the office user. The reference is good as long as the collection.
const cCampos& FindField(const Collection<cCampos>& mcolCampos, long idCampo);

}  // namespace velmar

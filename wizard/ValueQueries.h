#pragma once

#include <string>
#include <string_view>

namespace velmar::wizard {

/// The statement that lists the values that a field has in the database, in one column named Campo. The field
/// is known by its internal name, exactly as written; a name without statement gives the empty text.
std::string ObtenerSQLValorCampo(std::string_view nombreInternoCampo);

/// True for the internal names of account fields, regardless of case. The values of their statements hold
/// the tail of the account, behind the tenth character, in its stored form.
bool IsAccountField(std::string_view nombreInternoCampo);

}  // namespace velmar::wizard

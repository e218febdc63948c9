#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "host/interfaces/cCuentaCodec.h"

namespace velmar {

/// What the values of a field's filter undergo before they become SQL.
enum class ValueTreatment { kNone, kDate, kAccount };

/// By the field's internal name, exactly.
ValueTreatment TreatmentOf(std::string_view nombreInternoCampo);

/// The text with the ten characters behind each opening mark, day/month/year, turned into the digits of year,
/// month and day. Ten characters are taken whatever they are; at the end of the text, those that are left.
std::string RewriteDates(std::string text);

/// The text with the tail of its first value, the up to eleven characters behind the tenth, in the form in
/// which the host stores it. A text without an opening mark or with a value of ten characters or less stays
/// as it is.
std::string RewriteAccount(std::string text, const std::function<cCuentaCodec&()>& codec);

}  // namespace velmar

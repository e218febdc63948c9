#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar {

// The two marks around a value. They stand for the delimiter of the field.
inline constexpr std::string_view kOpeningMark = "`";       // U+0060
inline constexpr std::string_view kClosingMark = "\u00B4";  // U+00B4

/// The failure of a filter that its language does not allow at a place: kInvalidProcedureCall with the place.
inline RuntimeError FilterFault(TextSpan place, std::string description) {
  return RuntimeError(kInvalidProcedureCall, std::move(description), "VelmarExportacion", place);
}

}  // namespace velmar

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

/// What a filter says cannot be translated, so that its author has to change it. The description is a part of
/// a sentence, without a full stop.
class FilterFault : public RuntimeError {
 public:
  explicit FilterFault(std::string description)
      : RuntimeError(kInvalidProcedureCall, std::move(description), "VelmarExportacion") {}
  FilterFault(TextSpan place, std::string description, long number = kInvalidProcedureCall)
      : RuntimeError(number, std::move(description), "VelmarExportacion", place) {}
};

}  // namespace velmar

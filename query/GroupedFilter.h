#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/error/RuntimeError.h"

namespace velmar {

/// A filter whose field groups, "{" through the next "}", have given way to the field's condition text, with
/// the way back to the places of the filter as it was typed.
class GroupedFilter {
 public:
  /// A brace that opens no group or closes none is a failure with its place.
  GroupedFilter(std::string_view filter, std::string_view literalCampoWHERE);

  const std::string& Text() const noexcept { return text_; }
  /// The place in the typed filter for a place in Text: within a condition text, the whole group.
  TextSpan Typed(TextSpan place) const;

 private:
  struct Group {
    TextSpan typed;
    std::size_t offset;  // of the condition text in text_
  };

  std::string text_;
  std::vector<Group> groups_;
  std::size_t literalLength_;
};

}  // namespace velmar

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "query/Selection.h"

namespace velmar::templates {

/// What a template keeps: the fields of the grid with their filters, and the sort list.
struct TemplateContent {
  /// One row of the grid. The catalogue need not hold its number any more.
  using Field = Selection::Row;
  /// One item of the sort list.
  struct SortItem {
    std::string text;  ///< see SortText
    long idCampo = 0;
  };

  /// In the order of the grid.
  std::vector<Field> fields;
  /// In order of priority.
  std::vector<SortItem> order;
};

/// What stands for a field in the sort list: the first five characters of the node, one blank and the
/// literal.
std::string SortText(std::string_view tabla, std::string_view campo);

}  // namespace velmar::templates

#pragma once

#include <string>
#include <vector>

namespace velmar::jet {
struct Translation;
}

namespace ADODB {

class Statement;

/// One column of a result.
struct Column {
  std::string name;
  std::string type;      ///< as declared or as the expression fixes it; empty if neither says
  bool boolean = false;  ///< its numbers mean True and False
};

std::vector<Column> ColumnsOf(const Statement& select, const velmar::jet::Translation& translation);

std::vector<std::string> NamesOf(const std::vector<Column>& columns);

}  // namespace ADODB

#include "Page.h"

#include <istream>

namespace {

/// The cells of a table's row; a bar within code is none of the table's.
std::vector<std::string> CellsOf(const std::string& row) {
  std::vector<std::string> cells;
  std::string cell;
  bool code = false;
  for (const char c : row.substr(1)) {
    if (c == '`') code = !code;
    if (c == '|' && !code) {
      const auto first = cell.find_first_not_of(' ');
      const auto last = cell.find_last_not_of(' ');
      cells.push_back(first == std::string::npos ? "" : cell.substr(first, last - first + 1));
      cell.clear();
    } else {
      cell += c;
    }
  }
  return cells;
}

/// One piece of code and nothing else.
bool IsCode(const std::string& cell) {
  return cell.size() > 2 && cell.front() == '`' && cell.find('`', 1) == cell.size() - 1;
}

std::string CodeOf(const std::string& cell) {
  return cell.substr(1, cell.size() - 2);
}

}  // namespace

Page::Page(std::istream& text) {
  std::string line;
  while (std::getline(text, line)) {
    ++line_;
    if (line == "```sql" || line == "```text") {
      ReadBlock(text, line.substr(3));
    } else if (line.starts_with("| ")) {
      ReadRow(line);
    }
  }
}

void Page::ReadBlock(std::istream& text, const std::string& language) {
  Example example;
  example.line = line_;
  std::string part;
  std::string line;
  while (std::getline(text, line) && line != "```") {
    ++line_;
    part += line + "\n";
    if (language != "sql" || !line.ends_with(';')) continue;
    example.statements.push_back(part);
    part.clear();
  }
  ++line_;
  if (language == "sql") {
    if (!part.empty()) example.statements.push_back(part);
    examples_.push_back(std::move(example));
  } else if (!examples_.empty()) {
    examples_.back().result = part;
    examples_.back().hasResult = true;
  }
}

void Page::ReadRow(const std::string& row) {
  const std::vector<std::string> cells = CellsOf(row);
  if (cells.size() < 2) return;
  const std::string& expression = cells[cells.size() - 2];
  // Tables of operators and names have code in their first cell alone.
  if (!IsCode(expression) || !IsCode(cells.back())) return;
  examples_.push_back({line_, true, {CodeOf(expression)}, CodeOf(cells.back()), true});
}

#include "platform/excel/CellModel.h"

#include <cstdio>
#include <memory>
#include <sstream>

namespace {

// One line a cell, as dump_cells.py prints it; nothing for an empty one.
std::string Line(std::size_t sheet, std::size_t row, std::size_t column, const CellModel::Cell& cell) {
  std::ostringstream line;
  line.precision(17);
  line << sheet << ' ' << row << ' ' << column;
  if (const auto* number = std::get_if<double>(&cell)) {
    line << " number " << *number;
  } else if (const auto* boolean = std::get_if<bool>(&cell)) {
    line << " boolean " << *boolean;
  } else if (const auto* text = std::get_if<std::string>(&cell); text != nullptr && !text->empty()) {
    line << " text " << *text;
  } else {
    return "";
  }
  return line.str();
}

}  // namespace

void CellModel::AddRow(velmar::excel::SheetWriter& writer, const Row& row) {
  for (const Cell& cell : row) {
    if (const auto* number = std::get_if<double>(&cell))
      writer.AddNumber(*number);
    else if (const auto* boolean = std::get_if<bool>(&cell))
      writer.AddBoolean(*boolean);
    else if (const auto* text = std::get_if<std::string>(&cell))
      writer.AddText(*text);
    else
      writer.AddNull();
  }
  writer.EndRow();
}

void CellModel::Create(velmar::excel::Workbook& book, const std::string& sheet,
                       const std::vector<std::string>& columns, const std::vector<Row>& rows) {
  const auto writer = book.CreateSheet(sheet, columns);
  for (const Row& row : rows) AddRow(*writer, row);
  writer->Commit();
  sheets.push_back({sheet, {Row(columns.begin(), columns.end())}});
  sheets.back().rows.insert(sheets.back().rows.end(), rows.begin(), rows.end());
}

void CellModel::Append(velmar::excel::Workbook& book, const std::vector<Row>& rows) {
  Sheet& sheet = sheets.back();
  const auto writer = book.AppendTo(sheet.name, sheet.rows.front().size());
  for (const Row& row : rows) AddRow(*writer, row);
  writer->Commit();
  sheet.rows.insert(sheet.rows.end(), rows.begin(), rows.end());
}

std::string CellModel::Differs(const std::string& path) const {
  const std::string command = "/usr/bin/python3 '" TEST_DATA_DIR "/dump_cells.py' '" + path + "' 2>&1";
  const auto close = [](FILE* pipe) { pclose(pipe); };
  const std::unique_ptr<FILE, decltype(close)> pipe(popen(command.c_str(), "r"), close);
  std::string difference;
  const auto expect = [&](const std::string& expected) {
    std::string found;
    for (int c = 0; (c = std::fgetc(pipe.get())) != EOF && c != '\n';) found += static_cast<char>(c);
    if (found != expected && difference.empty())
      difference = "expected " + expected.substr(0, 200) + ", found " + found.substr(0, 200);
  };
  for (std::size_t s = 0; s < sheets.size(); ++s) {
    expect("sheet " + sheets[s].name);
    for (std::size_t r = 0; r < sheets[s].rows.size(); ++r) {
      for (std::size_t c = 0; c < sheets[s].rows[r].size(); ++c) {
        const std::string line = Line(s, r, c, sheets[s].rows[r][c]);
        if (!line.empty()) expect(line);
      }
    }
  }
  expect("end");
  return difference;
}

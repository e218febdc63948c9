#include "platform/excel/CellModel.h"

#include <freexl.h>

#include <array>
#include <bit>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <span>

namespace {

std::string Hex(std::span<const char> bytes) {
  static constexpr const char* kDigits = "0123456789abcdef";
  std::string out;
  for (const char c : bytes) {
    out += kDigits[static_cast<unsigned char>(c) >> 4];
    out += kDigits[c & 15];
  }
  return out;
}

// One line a cell, as dump_cells.py prints it.
std::string Line(std::size_t sheet, std::size_t row, std::size_t column, const CellModel::Cell& cell) {
  const std::string place =
      std::to_string(sheet) + " " + std::to_string(row) + " " + std::to_string(column) + " ";
  if (const auto* number = std::get_if<double>(&cell))
    return place + "number " + Hex(std::bit_cast<std::array<char, 8>>(*number));
  if (const auto* boolean = std::get_if<bool>(&cell)) return place + "boolean " + (*boolean ? "1" : "0");
  if (const auto* text = std::get_if<std::string>(&cell))
    return text->empty() ? "" : place + "text " + Hex(*text);
  return "";
}

bool Same(const CellModel::Cell& expected, const FreeXL_CellValue& found) {
  if (const auto* text = std::get_if<std::string>(&expected); text != nullptr && !text->empty())
    return (found.type == FREEXL_CELL_TEXT || found.type == FREEXL_CELL_SST_TEXT) &&
           *text == found.value.text_value;
  const auto isNumber = [&found](double number) {
    if (found.type == FREEXL_CELL_INT) return number == found.value.int_value;
    return found.type == FREEXL_CELL_DOUBLE && number == found.value.double_value;
  };
  if (const auto* number = std::get_if<double>(&expected)) return isNumber(*number);
  if (const auto* boolean = std::get_if<bool>(&expected)) return isNumber(*boolean ? 1 : 0);
  return found.type == FREEXL_CELL_NULL;
}

}  // namespace

void CellModel::Add(velmar::excel::SheetWriter& writer, const Cell& cell) {
  if (const auto* number = std::get_if<double>(&cell))
    writer.AddNumber(*number);
  else if (const auto* boolean = std::get_if<bool>(&cell))
    writer.AddBoolean(*boolean);
  else if (const auto* text = std::get_if<std::string>(&cell))
    writer.AddText(*text);
  else
    writer.AddNull();
}

void CellModel::AddRow(velmar::excel::SheetWriter& writer, const Row& row) {
  for (const Cell& cell : row) Add(writer, cell);
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

std::string CellModel::DiffersForFreexl(const std::string& path) const {
  const void* handle = nullptr;
  int code = freexl_open(path.c_str(), &handle);
  const auto close = [](const void* opened) { freexl_close(opened); };
  const std::unique_ptr<const void, decltype(close)> guard(handle, close);
  if (code != FREEXL_OK) return "freexl_open: " + std::to_string(code);
  std::uint32_t count = 0;
  freexl_get_info(handle, FREEXL_BIFF_SHEET_COUNT, &count);
  if (count != sheets.size()) return "sheets: " + std::to_string(count);
  for (std::uint16_t s = 0; s < count; ++s) {
    const char* name = nullptr;
    freexl_get_worksheet_name(handle, s, &name);
    if (sheets[s].name != name) return "sheet " + std::to_string(s) + " is called " + name;
    if ((code = freexl_select_active_worksheet(handle, s)) != FREEXL_OK)
      return "select: " + std::to_string(code);
    std::uint32_t rows = 0;
    std::uint16_t columns = 0;
    freexl_worksheet_dimensions(handle, &rows, &columns);
    if (rows != sheets[s].rows.size() || columns != sheets[s].rows.front().size())
      return sheets[s].name + ": " + std::to_string(rows) + " rows, " + std::to_string(columns) + " columns";
    for (std::uint32_t r = 0; r < rows; ++r) {
      for (std::uint16_t c = 0; c < columns; ++c) {
        FreeXL_CellValue value;
        freexl_get_cell_value(handle, r, c, &value);
        const Row& row = sheets[s].rows[r];
        if (!Same(c < row.size() ? row[c] : Cell(), value))
          return sheets[s].name + ": row " + std::to_string(r) + ", column " + std::to_string(c);
      }
    }
  }
  return "";
}

std::string CellModel::DiffersForXlrd(const std::string& path) const {
  const std::string command = "/usr/bin/python3 '" TEST_DATA_DIR "/dump_cells.py' '" + path + "' 2>&1";
  const auto close = [](FILE* pipe) { pclose(pipe); };
  const std::unique_ptr<FILE, decltype(close)> pipe(popen(command.c_str(), "r"), close);
  const auto readLine = [&pipe] {
    std::string line;
    for (int c = 0; (c = std::fgetc(pipe.get())) != EOF && c != '\n';) line += static_cast<char>(c);
    return line;
  };
  const auto differs = [&](const std::string& expected) {
    const std::string found = readLine();
    if (found == expected) return std::string();
    return "expected " + expected.substr(0, 200) + ", found " + found.substr(0, 200);
  };
  for (std::size_t s = 0; s < sheets.size(); ++s) {
    if (std::string problem = differs("sheet " + Hex(sheets[s].name)); !problem.empty()) return problem;
    for (std::size_t r = 0; r < sheets[s].rows.size(); ++r) {
      for (std::size_t c = 0; c < sheets[s].rows[r].size(); ++c) {
        const std::string line = Line(s, r, c, sheets[s].rows[r][c]);
        if (line.empty()) continue;
        if (std::string problem = differs(line); !problem.empty()) return problem;
      }
    }
  }
  return differs("end");
}

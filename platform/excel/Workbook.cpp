#include "platform/excel/Workbook.h"

#include <algorithm>
#include <utility>

#include "platform/excel/SheetName.h"
#include "platform/excel/WorkbookErrors.h"

namespace velmar::excel {

namespace {

constexpr std::size_t kMostColumns = 256;

// The sheet's number, or the count of sheets if there is none of that name.
std::size_t Find(const WorkbookState& state, std::string_view sheet) {
  const auto found = std::find_if(state.sheets.begin(), state.sheets.end(),
                                  [&](const auto& other) { return SheetName::Same(other.name, sheet); });
  return static_cast<std::size_t>(found - state.sheets.begin());
}

}  // namespace

Workbook::Workbook(std::string path, FileLayer& layer) : path_(std::move(path)), layer_(layer) {}

std::unique_ptr<SheetWriter> Workbook::CreateSheet(std::string_view sheet,
                                                   const std::vector<std::string>& columns) {
  const std::string problem = SheetName::Problem(sheet);
  if (!problem.empty()) throw WorkbookErrors::SheetName(path_, sheet, problem);
  if (columns.empty() || columns.size() > kMostColumns)
    throw WorkbookErrors::ColumnCount(path_, sheet, columns.size(), kMostColumns);
  auto store = std::make_unique<WorkbookStore>(path_, layer_, WorkbookStore::Purpose::kWrite,
                                               WorkbookStore::Missing::kCreate);
  if (Find(store->State(), sheet) < store->State().sheets.size())
    throw WorkbookErrors::SheetExists(path_, sheet);
  store->AddSheet(sheet, columns);
  return std::make_unique<SheetWriter>(std::move(store), columns.size());
}

std::unique_ptr<SheetWriter> Workbook::AppendTo(std::string_view sheet, std::size_t columnCount) {
  auto store = std::make_unique<WorkbookStore>(path_, layer_, WorkbookStore::Purpose::kWrite);
  const std::size_t count = store->State().sheets.size();
  const std::size_t index = Require(store->State(), sheet);
  if (index + 1 < count) throw WorkbookErrors::NotTheLastSheet(path_, sheet, store->LastSheet());
  if (columnCount == 0 || columnCount > store->LastColumnCount())
    throw WorkbookErrors::ColumnCount(path_, sheet, columnCount, store->LastColumnCount());
  return std::make_unique<SheetWriter>(std::move(store), columnCount);
}

std::vector<std::string> Workbook::SheetNames() const {
  const WorkbookStore store(path_, layer_, WorkbookStore::Purpose::kRead);
  std::vector<std::string> names;
  for (const auto& sheet : store.State().sheets) names.push_back(sheet.name);
  return names;
}

std::vector<std::string> Workbook::ColumnNames(std::string_view sheet) const {
  const WorkbookStore store(path_, layer_, WorkbookStore::Purpose::kRead);
  return store.State().Columns(Require(store.State(), sheet));
}

std::size_t Workbook::RowCount(std::string_view sheet) const {
  const WorkbookStore store(path_, layer_, WorkbookStore::Purpose::kRead);
  return store.State().sheetRows[Require(store.State(), sheet)] - 1;
}

std::size_t Workbook::Require(const WorkbookState& state, std::string_view sheet) const {
  const std::size_t index = Find(state, sheet);
  if (index == state.sheets.size()) throw WorkbookErrors::NoSheet(path_, sheet);
  return index;
}

}  // namespace velmar::excel

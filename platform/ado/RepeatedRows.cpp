#include "platform/ado/RepeatedRows.h"

#include <sqlite3.h>

#include <algorithm>
#include <bit>

#include "platform/ado/Database.h"
#include "platform/ado/DistinctMemory.h"
#include "platform/ado/Statement.h"
#include "platform/ado/TableNames.h"
#include "platform/ado/TellingColumns.h"
#include "platform/jet/RowHash.h"
#include "platform/jet/Translation.h"

namespace ADODB {
namespace {

using velmar::jet::QuoteIdentifier;

struct HashedRow {
  std::uint64_t hash;
  std::size_t place;  ///< from 0
  auto operator<=>(const HashedRow&) const = default;
};

/// Hashes of some columns will do while they leave fewer pairs of rows to compare than one for so many rows.
constexpr std::size_t kRowsForAPair = 16;

std::string ColumnList(const std::vector<std::string>& columns, const std::string& table) {
  std::string list;
  for (const std::string& column : columns)
    list += (list.empty() ? "" : ", ") + table + QuoteIdentifier(column);
  return list;
}

/// One hash for as many columns as a call of the engine takes.
std::string HashList(const std::vector<std::string>& columns) {
  std::string list;
  for (std::size_t first = 0; first < columns.size(); first += velmar::jet::kRowHashValues) {
    const auto begin = columns.begin() + static_cast<std::ptrdiff_t>(first);
    const auto count = std::min<std::ptrdiff_t>(velmar::jet::kRowHashValues, columns.end() - begin);
    list += std::string(", ") + velmar::jet::kRowHash + "(" +
            ColumnList(std::vector<std::string>(begin, begin + count), {}) + ")";
  }
  return list;
}

/// Leaves out most rows whose hash no other row has, at the cost of eight bytes a row.
void LeaveOutLonely(std::vector<HashedRow>& rows) {
  enum : std::uint8_t { kNone, kOne, kMore };
  std::vector<std::uint8_t> seen(std::bit_ceil(rows.size() * 8));
  const auto seenOf = [&seen](const HashedRow& row) -> std::uint8_t& {
    return seen[row.hash & (seen.size() - 1)];
  };
  for (const HashedRow& row : rows) seenOf(row) = seenOf(row) == kNone ? kOne : kMore;
  std::erase_if(rows, [&](const HashedRow& row) { return seenOf(row) == kOne; });
}

/// Those rows of the table, which is quoted, whose hash other rows may have, in the order of the hashes;
/// keys: of all rows, by place.
std::vector<HashedRow> HashesBy(const std::vector<std::string>& columns, Database& database,
                                const std::string& table, std::vector<std::int64_t>& keys) {
  std::vector<HashedRow> rows;
  keys.clear();
  Statement all(database, "SELECT _rowid_" + HashList(columns) + " FROM " + table + " NOT INDEXED");
  const int count = all.ColumnCount();
  while (all.Step()) {
    std::uint64_t hash = 0;
    for (int column = 1; column < count; ++column)
      hash = hash * 31 + static_cast<std::uint64_t>(all.Long(column));
    rows.push_back({hash, keys.size()});
    keys.push_back(all.Long(0));
  }
  LeaveOutLonely(rows);
  std::sort(rows.begin(), rows.end());
  return rows;
}

/// The rows are in the order of their hashes.
std::size_t PairsOfEqualHash(const std::vector<HashedRow>& rows) {
  std::size_t pairs = 0;
  for (std::size_t at = 1, before = 0; at < rows.size(); ++at) {
    before = rows[at].hash == rows[at - 1].hash ? before + 1 : 0;
    pairs += before;
  }
  return pairs;
}

/// Deletes rows of a table, which is quoted, by their keys.
class Deletion {
 public:
  Deletion(Database& database, const std::string& table)
      : remove_(database, "DELETE FROM " + table + " WHERE _rowid_ = ?1") {}

  void Of(std::int64_t key) {
    remove_.Bind(1, key);
    remove_.Step();
    remove_.Reset();
  }

 private:
  Statement remove_;
};

}  // namespace

std::optional<RepeatedRows> RepeatedRows::Of(Database& database, const velmar::jet::Translation& translation,
                                             const DistinctMemory& memory) {
  if (!translation.distinctTable) return std::nullopt;
  const auto& [alias, name] = *translation.distinctTable;
  const auto table = FindTable(database, alias, name);
  if (!table) return std::nullopt;
  RepeatedRows repeated(database);
  repeated.columns_ = ColumnNames(database, alias, *table);
  repeated.table_ = QuoteIdentifier(alias) + "." + QuoteIdentifier(*table);
  if (!repeated.CanCompare(alias, *table)) return std::nullopt;
  const bool known = alias == "main" && memory.Holds(*table);
  if (!known) repeated.Find();
  return repeated;
}

bool RepeatedRows::CanCompare(const std::string& alias, const std::string& table) {
  if (!HasRowKeys(*database_, alias, table)) return false;
  // The engine does not list columns that it computes from others, but they may differ where those are equal.
  const Statement all(*database_, "SELECT * FROM " + table_);
  if (static_cast<std::size_t>(all.ColumnCount()) != columns_.size()) return false;
  sqlite3* handle = database_->Handle();
  return std::all_of(columns_.begin(), columns_.end(), [&](const std::string& column) {
    const char* order = nullptr;
    const bool known =
        sqlite3_table_column_metadata(handle, alias.c_str(), table.c_str(), column.c_str(), nullptr, &order,
                                      nullptr, nullptr, nullptr) == SQLITE_OK &&
        order != nullptr;
    const bool jet = known && SameName(order, "JET");
    allJet_ = allJet_ && jet;
    return jet || (known && SameName(order, "BINARY"));
  });
}

void RepeatedRows::Find() {
  std::vector<std::int64_t> keys;
  const std::vector<std::string> telling = TellingColumns(*database_, table_, columns_);
  std::vector<HashedRow> rows = HashesBy(telling, *database_, table_, keys);
  if (telling.size() < columns_.size() && PairsOfEqualHash(rows) > keys.size() / kRowsForAPair)
    rows = HashesBy(columns_, *database_, table_, keys);
  // The engine itself says whether rows of one hash are equal.
  Statement same(*database_, "SELECT (" + ColumnList(columns_, "a.") + ") IS (" + ColumnList(columns_, "b.") +
                                 ") FROM " + table_ + " a, " + table_ +
                                 " b WHERE a._rowid_ = ?1 AND b._rowid_ = ?2");
  std::vector<std::size_t> firsts;
  for (std::size_t at = 0; at < rows.size(); ++at) {
    if (at == 0 || rows[at].hash != rows[at - 1].hash) firsts.clear();
    const bool repeats = std::any_of(firsts.begin(), firsts.end(), [&](std::size_t first) {
      same.Bind(1, keys[first]);
      same.Bind(2, keys[rows[at].place]);
      const bool equal = same.Step() && same.Long(0) != 0;
      same.Reset();
      return equal;
    });
    if (repeats) {
      rows_.push_back({static_cast<std::int64_t>(rows[at].place) + 1, keys[rows[at].place]});
    } else {
      firsts.push_back(rows[at].place);
    }
  }
  std::sort(rows_.begin(), rows_.end(), [](const Row& a, const Row& b) { return a.place < b.place; });
}

std::int64_t RepeatedRows::CopyOthers(const velmar::jet::TargetTable& target) const {
  // The engine copies a whole table page by page, much faster than chosen rows, and gives the rows of a new
  // table the keys 1, 2, 3 and so on.
  const std::string all = "SELECT * FROM " + table_ + " NOT INDEXED";
  Statement insert(*database_, velmar::jet::InsertText(target, {}, all));
  insert.Step();
  const std::int64_t rows = sqlite3_changes64(database_->Handle());
  insert.Reset();
  Deletion deletion(*database_, QuoteIdentifier(target.alias) + "." + QuoteIdentifier(target.table));
  for (const Row& row : rows_) deletion.Of(row.place);
  return rows - Count();
}

void RepeatedRows::Remove() const {
  Deletion deletion(*database_, table_);
  for (const Row& row : rows_) deletion.Of(row.key);
}

}  // namespace ADODB

#include "platform/ado/TellingColumns.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "platform/ado/Statement.h"
#include "platform/jet/RowHash.h"
#include "platform/jet/Translation.h"

namespace ADODB {
namespace {

constexpr int kSampledAtEachEnd = 128;

/// A list a column, with the hashes of its sampled values.
using Samples = std::vector<std::vector<std::int64_t>>;

Samples SamplesOf(Database& database, const std::string& table, const std::vector<std::string>& columns) {
  std::string hashes;
  for (const std::string& column : columns) {
    hashes += std::string(hashes.empty() ? "" : ", ") + velmar::jet::kRowHash + "(" +
              velmar::jet::QuoteIdentifier(column) + ")";
  }
  Samples samples(columns.size());
  for (const char* end : {"", " DESC"}) {
    Statement rows(database, "SELECT " + hashes + " FROM " + table + " NOT INDEXED ORDER BY _rowid_" + end +
                                 " LIMIT " + std::to_string(kSampledAtEachEnd));
    while (rows.Step()) {
      for (std::size_t column = 0; column < columns.size(); ++column)
        samples[column].push_back(rows.Long(static_cast<int>(column)));
    }
  }
  return samples;
}

/// Rows of one group are equal in the columns that have been taken so far.
class Groups {
 public:
  explicit Groups(std::size_t rows) : groupOf_(rows, 0), count_(std::min<std::size_t>(rows, 1)) {}

  std::size_t Count() const noexcept { return count_; }

  Groups DividedBy(const std::vector<std::int64_t>& column) const {
    std::vector<std::pair<std::size_t, std::int64_t>> kinds(groupOf_.size());
    for (std::size_t row = 0; row < kinds.size(); ++row) kinds[row] = {groupOf_[row], column[row]};
    auto sorted = kinds;
    std::sort(sorted.begin(), sorted.end());
    sorted.erase(std::unique(sorted.begin(), sorted.end()), sorted.end());
    Groups divided(groupOf_.size());
    divided.count_ = sorted.size();
    for (std::size_t row = 0; row < kinds.size(); ++row) {
      divided.groupOf_[row] = static_cast<std::size_t>(
          std::lower_bound(sorted.begin(), sorted.end(), kinds[row]) - sorted.begin());
    }
    return divided;
  }

 private:
  std::vector<std::size_t> groupOf_;
  std::size_t count_;
};

}  // namespace

std::vector<std::string> TellingColumns(Database& database, const std::string& table,
                                        const std::vector<std::string>& columns) {
  const Samples samples = SamplesOf(database, table, columns);
  std::vector<std::string> telling;
  Groups groups(samples.front().size());
  // Each time the one that tells most of the rest apart, of equally good ones the first: it is read fastest.
  for (bool better = true; better;) {
    better = false;
    Groups best = groups;
    std::size_t bestColumn = 0;
    for (std::size_t column = 0; column < columns.size(); ++column) {
      Groups divided = groups.DividedBy(samples[column]);
      if (divided.Count() <= best.Count()) continue;
      best = std::move(divided);
      bestColumn = column;
      better = true;
    }
    if (better) telling.push_back(columns[bestColumn]);
    groups = std::move(best);
  }
  return telling.empty() ? columns : telling;
}

}  // namespace ADODB

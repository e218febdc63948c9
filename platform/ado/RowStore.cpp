#include "platform/ado/RowStore.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "platform/ado/Statement.h"

namespace ADODB {
namespace {

constexpr std::size_t kBlockBytes = std::size_t{256} * 1024;

/// A cell is one tag and what the tag says.
enum Tag : char { kNull, kByte, kWhole, kDouble, kShortText, kLongText };

using LongSize = std::uint32_t;

template <typename Number>
char* Put(char* at, Number number) {
  std::memcpy(at, &number, sizeof number);
  return at + sizeof number;
}

template <typename Number>
Number Get(const char* at) {
  Number number;
  std::memcpy(&number, at, sizeof number);
  return number;
}

std::size_t SizeOf(const char* cell) {
  switch (static_cast<Tag>(*cell)) {
    case kNull:
      return 1;
    case kByte:
      return 2;
    case kWhole:
      return 1 + sizeof(std::int64_t);
    case kDouble:
      return 1 + sizeof(double);
    case kShortText:
      return 2 + std::size_t{Get<std::uint8_t>(cell + 1)};
    case kLongText:
      return 1 + sizeof(LongSize) + Get<LongSize>(cell + 1);
  }
  return 1;
}

bool FitsByte(std::int64_t number) {
  return number >= -128 && number <= 127;
}

std::size_t SizeOf(const Statement& statement, int column) {
  switch (statement.KindOf(column)) {
    case Statement::Kind::kNull:
      return 1;
    case Statement::Kind::kWhole:
      return FitsByte(statement.Long(column)) ? 2 : 1 + sizeof(std::int64_t);
    case Statement::Kind::kDouble:
      return 1 + sizeof(double);
    case Statement::Kind::kText:
      break;
  }
  const std::size_t length = statement.Text(column).size();
  return length + (length < 256 ? 2 : 1 + sizeof(LongSize));
}

char* PutCell(char* at, const Statement& statement, int column) {
  switch (statement.KindOf(column)) {
    case Statement::Kind::kNull:
      return Put(at, kNull);
    case Statement::Kind::kWhole:
      if (FitsByte(statement.Long(column))) {
        return Put(Put(at, kByte), static_cast<std::int8_t>(statement.Long(column)));
      }
      return Put(Put(at, kWhole), statement.Long(column));
    case Statement::Kind::kDouble:
      return Put(Put(at, kDouble), statement.Double(column));
    case Statement::Kind::kText:
      break;
  }
  const std::string_view text = statement.Text(column);
  at = text.size() < 256 ? Put(Put(at, kShortText), static_cast<std::uint8_t>(text.size()))
                         : Put(Put(at, kLongText), static_cast<LongSize>(text.size()));
  return std::copy(text.begin(), text.end(), at);
}

}  // namespace

void RowStore::Append(const Statement& statement) {
  const int columns = statement.ColumnCount();
  std::size_t size = 0;
  for (int column = 0; column < columns; ++column) size += SizeOf(statement, column);
  char* row = Reserve(size);
  rows_.push_back(row);
  for (int column = 0; column < columns; ++column) row = PutCell(row, statement, column);
}

Variant RowStore::Value(std::size_t row, std::size_t column) const {
  const char* cell = rows_[row];
  for (; column > 0; --column) cell += SizeOf(cell);
  switch (static_cast<Tag>(*cell)) {
    case kNull:
      return {};
    case kByte:
      return static_cast<long long>(Get<std::int8_t>(cell + 1));
    case kWhole:
      return static_cast<long long>(Get<std::int64_t>(cell + 1));
    case kDouble:
      return Get<double>(cell + 1);
    case kShortText:
      return std::string_view(cell + 2, Get<std::uint8_t>(cell + 1));
    case kLongText:
      return std::string_view(cell + 1 + sizeof(LongSize), Get<LongSize>(cell + 1));
  }
  return {};
}

char* RowStore::Reserve(std::size_t size) {
  if (size > free_) {
    const std::size_t block = std::max(size, kBlockBytes);
    blocks_.push_back(std::make_unique_for_overwrite<char[]>(block));
    next_ = blocks_.back().get();
    free_ = block;
  }
  char* place = next_;
  next_ += size;
  free_ -= size;
  return place;
}

}  // namespace ADODB

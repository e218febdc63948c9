#include "platform/ado/BulkInsert.h"

#include <optional>

#include "platform/ado/Connection.h"
#include "platform/ado/Session.h"
#include "platform/ado/SessionUser.h"
#include "platform/ado/Statement.h"
#include "platform/ado/TableNames.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/OperationObserver.h"
#include "platform/error/RuntimeError.h"
#include "platform/jet/Translation.h"

namespace ADODB {

using velmar::RuntimeError;
using velmar::jet::QuoteIdentifier;

namespace {

constexpr const char* kSource = "ADODB.Recordset";

std::string InsertText(Database& database, std::string_view table, const std::vector<std::string>& columns) {
  const auto stored = FindTable(database, "main", table);
  if (!stored) {
    throw RuntimeError(
        velmar::kUnknownTable,
        "No existe la tabla «" + std::string(table) + "» en la base de datos " + database.Path() + ".",
        kSource);
  }
  const std::vector<std::string> available = ColumnNames(database, "main", *stored);
  std::string names;
  std::string values;
  for (const std::string& column : columns) {
    const auto place = FindName(available, column);
    if (!place) {
      throw RuntimeError(velmar::kUnknownName,
                         "La tabla «" + *stored + "» no tiene un campo «" + column + "».", kSource);
    }
    names += (names.empty() ? "" : ", ") + QuoteIdentifier(available[*place]);
    values += values.empty() ? "?" : ", ?";
  }
  const std::string target = "INSERT INTO main." + QuoteIdentifier(*stored);
  return columns.empty() ? target + " DEFAULT VALUES" : target + " (" + names + ") VALUES (" + values + ")";
}

}  // namespace

class BulkInsert::Writer : public SessionUser {
 public:
  Writer(std::shared_ptr<Session> session, std::string_view table, const std::vector<std::string>& columns)
      : SessionUser(std::move(session)), table_(table), columnCount_(static_cast<int>(columns.size())) {
    Owner().EndBatch();
    insert_.emplace(Owner().Engine(), InsertText(Owner().Engine(), table, columns));
  }

  /// The statement and the parameter of the next cell.
  std::pair<Statement&, int> Next() {
    Owner();
    if (cell_ == columnCount_) RaiseCount(cell_ + 1);
    return {*insert_, ++cell_};
  }

  void EndRow() {
    Session& session = Owner();
    if (cell_ != columnCount_) RaiseCount(cell_);
    cell_ = 0;
    velmar::OperationObserver::Announce(velmar::Operation::kWriteRow, table_);
    session.BeforeRowWrite();
    insert_->Step();
    insert_->Reset();
  }

 protected:
  void FreeStatements() noexcept override { insert_.reset(); }

 private:
  [[noreturn]] void RaiseCount(int cells) {
    cell_ = 0;
    throw RuntimeError(velmar::kColumnCountMismatch,
                       "El número de valores (" + std::to_string(cells) + ") no es el de los campos (" +
                           std::to_string(columnCount_) + ").",
                       kSource);
  }

  std::string table_;
  std::optional<Statement> insert_;
  int columnCount_;
  int cell_ = 0;
};

BulkInsert::BulkInsert(Connection& connection, std::string_view table,
                       const std::vector<std::string>& columns)
    : writer_(std::make_unique<Writer>(connection.OpenSession().shared_from_this(), table, columns)) {}

BulkInsert::~BulkInsert() = default;

void BulkInsert::AddNull() {
  const auto [insert, cell] = writer_->Next();
  insert.BindNull(cell);
}

void BulkInsert::AddLong(long long value) {
  const auto [insert, cell] = writer_->Next();
  insert.Bind(cell, std::int64_t{value});
}

void BulkInsert::AddDouble(double value) {
  const auto [insert, cell] = writer_->Next();
  insert.Bind(cell, value);
}

void BulkInsert::AddBoolean(bool value) {
  AddLong(value ? -1 : 0);
}

void BulkInsert::AddText(std::string_view utf8) {
  const auto [insert, cell] = writer_->Next();
  insert.BindStatic(cell, utf8);
}

void BulkInsert::Row(const std::vector<Variant>& values) {
  for (const Variant& value : values) {
    const auto [insert, cell] = writer_->Next();
    insert.BindValue(cell, value);
  }
  EndRow();
}

void BulkInsert::EndRow() {
  writer_->EndRow();
}

}  // namespace ADODB

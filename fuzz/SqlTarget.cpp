#include "fuzz/SqlTarget.h"

#include <sqlite3.h>

#include <memory>
#include <string>
#include <string_view>

#include "fuzz/ScratchFolder.h"
#include "fuzz/Violation.h"
#include "platform/ado/Catalog.h"
#include "platform/ado/ConnectionText.h"
#include "platform/ado/Cursor.h"
#include "platform/ado/Session.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/jet/Translation.h"

namespace velmar::fuzz {

namespace {

constexpr int kStepsBetweenLooks = 1000;
constexpr int kMostLooks = 200;
constexpr std::int64_t kMemoryThatMayStay = 4 << 20;

/// A session on a database with the kinds of columns and rows that the exports meet.
class Database {
 public:
  Database() {
    ADOX::Catalog().Create(folder_.Text("Gestion.mdb"));
    session_ = ADODB::Session::Open(ADODB::ConnectionText(folder_.Text("Gestion.mdb")).DataSource(), "");
    for (const char* statement :
         {"CREATE TABLE Colaboradores (IDColaborador COUNTER PRIMARY KEY, Nombre TEXT(50), Juridico BIT, "
          "CodProvincia LONG, FechaAlta TEXT(8), Nacimiento DATETIME, Notas MEMO, Eliminado BIT)",
          "CREATE TABLE Donativos (IDDonativo LONG PRIMARY KEY, CodColaborador LONG, Importe CURRENCY, "
          "Factor DOUBLE)",
          "CREATE TABLE [A b] ([Año] SHORT, [Select] TEXT(20))",
          "CREATE INDEX PorColaborador ON Donativos (CodColaborador)",
          "INSERT INTO Colaboradores VALUES (1, 'Ana Núñez', False, 28, '20200131', #1/31/1980#, NULL, "
          "False)",
          "INSERT INTO Colaboradores VALUES (2, 'íñigo', True, NULL, '', NULL, 'x', True)",
          "INSERT INTO Donativos VALUES (1, 1, 10.15, 0.5)", "INSERT INTO Donativos VALUES (2, 2, NULL, -3)",
          "INSERT INTO Donativos VALUES (3, 1, -0.0001, 1E300)", "INSERT INTO [A b] VALUES (7, 'uno')"}) {
      session_->Execute(statement, nullptr);
    }
    sqlite3_progress_handler(
        session_->Engine().Handle(), kStepsBetweenLooks,
        [](void* looks) { return ++*static_cast<int*>(looks) > kMostLooks ? 1 : 0; }, &looks_);
  }
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  void RunAndUndo(std::string_view statement) {
    looks_ = 0;
    session_->Begin();
    try {
      session_->Execute(statement, nullptr);
    } catch (const RuntimeError& failure) {
      CheckRefusal(failure, statement);
    }
    looks_ = 0;
    session_->Rollback();
  }

  static void CheckRefusal(const RuntimeError& failure, std::string_view statement) {
    const std::string& description = failure.Description();
    Demand(!description.empty(), "a refusal without a description");
    Demand(!failure.Span() || failure.Span()->offset + failure.Span()->length <= statement.size(),
           "a refusal points outside the statement: " + description);
    for (const std::string_view complaint :
         {"syntax error", "unrecognized token", "incomplete input", "parser stack", "no such collation"}) {
      Demand(description.find(complaint) == std::string::npos || statement.find(complaint) != statement.npos,
             "the engine does not understand what the statement became: " + description);
    }
  }

 private:
  ScratchFolder folder_{"sql"};
  std::shared_ptr<ADODB::Session> session_;
  int looks_ = 0;
};

}  // namespace

void FuzzSql(Bytes input) {
  const std::string statement = Input(input).Rest();
  jet::Translation translation;
  bool leavesHome = false;
  const auto elsewhere = [&leavesHome](const std::string&, const std::string&) {
    leavesHome = true;
    return "otra";
  };
  try {
    translation = jet::Translate(statement, elsewhere);
  } catch (const RuntimeError& refused) {
    Demand(refused.Span().has_value(), "a refusal without a place: " + refused.Description());
    Database::CheckRefusal(refused, statement);
    return;
  }
  for (const jet::SourceSpot& spot : translation.spots) {
    Demand(
        spot.sqlOffset <= translation.sql.size() && spot.span.offset + spot.span.length <= statement.size(),
        "a spot lies outside of the texts");
  }
  // It would reach other files of the machine.
  if (leavesHome || (translation.target && translation.target->excel)) return;
  static Database database;
  static const std::int64_t kAtFirst = sqlite3_memory_used();
  database.RunAndUndo(statement);
  Demand(sqlite3_memory_used() < kAtFirst + kMemoryThatMayStay, "memory of the engine stays behind");
}

}  // namespace velmar::fuzz

#include "platform/jet/Engine.h"

#include <sqlite3.h>

#include <span>
#include <string>
#include <string_view>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/jet/Aggregates.h"
#include "platform/jet/DateFunctions.h"
#include "platform/jet/NumberFunctions.h"
#include "platform/jet/RowHash.h"
#include "platform/jet/TextFunctions.h"
#include "platform/text/Collation.h"

namespace velmar::jet {
namespace {

void Check(int result) {
  if (result == SQLITE_OK) return;
  throw RuntimeError(kEngineFailure,
                     "No se pudo preparar el motor de datos: " + std::string(sqlite3_errstr(result)),
                     "Jet SQL");
}

// noexcept: the engine, written in C, could not pass an exception on.
int Compare(void* /*unused*/, int sizeA, const void* a, int sizeB, const void* b) noexcept {
  return text::CompareText({static_cast<const char*>(a), static_cast<std::size_t>(sizeA)},
                           {static_cast<const char*>(b), static_cast<std::size_t>(sizeB)});
}

void Register(sqlite3* database, std::span<const EngineFunction> functions) {
  for (const EngineFunction& function : functions) {
    const int flags = SQLITE_UTF8 | (function.constant ? SQLITE_DETERMINISTIC : 0);
    Check(sqlite3_create_function_v2(database, function.name, function.count, flags, nullptr,
                                     function.callback, nullptr, nullptr, nullptr));
  }
}

}  // namespace

void RegisterFunctions(sqlite3* database) {
  Check(sqlite3_db_config(database, SQLITE_DBCONFIG_DQS_DML, 0, nullptr));
  Check(sqlite3_db_config(database, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr));
  Check(sqlite3_create_collation_v2(database, "JET", SQLITE_UTF8, nullptr, Compare, nullptr));
  Register(database, TextFunctions());
  Register(database, NumberFunctions());
  Register(database, DateFunctions());
  Register(database, RowHashFunctions());
  RegisterAggregates(database);
}

}  // namespace velmar::jet

#include "platform/jet/TableLocator.h"

#include <cstddef>

#include "platform/jet/Keywords.h"
#include "platform/jet/SyntaxFailure.h"

namespace velmar::jet {
namespace {

struct Place {
  std::string path;
  std::string password;
};

bool HasPrefix(std::string_view text, std::string_view prefix) {
  return EqualWord(text.substr(0, prefix.size()), prefix);
}

std::size_t FindWord(std::string_view text, std::string_view word) {
  for (std::size_t at = 0; at + word.size() <= text.size(); ++at) {
    if (EqualWord(text.substr(at, word.size()), word)) return at;
  }
  return std::string_view::npos;
}

bool IsSheet(std::string_view database) {
  return HasPrefix(database, "Excel ");
}

// "path;pwd=password", where all behind ";pwd=" is the password, or ";DATABASE=path;PWD=password".
Place ReadPlace(std::string_view database) {
  constexpr std::string_view kPassword = ";pwd=";
  constexpr std::string_view kDatabase = ";DATABASE=";
  Place place;
  const std::size_t password = FindWord(database, kPassword);
  if (password != std::string_view::npos) place.password = database.substr(password + kPassword.size());
  database = database.substr(0, password);
  if (HasPrefix(database, "MS Access;")) database.remove_prefix(std::string_view("MS Access").size());
  if (HasPrefix(database, kDatabase)) database.remove_prefix(kDatabase.size());
  place.path = database;
  return place;
}

}  // namespace

std::string TableLocator::AliasOf(std::string_view database, TextSpan span) {
  const Place place = ReadPlace(database);
  if (place.path.empty()) throw FailureAt(jetText_, span, "Falta la ruta de la base de datos");
  return aliases_(place.path, place.password);
}

std::string TableLocator::AliasOf(const TableName& name) {
  RefuseWorkbookAsTable(name);
  if (!name.database) return "main";
  if (IsSheet(*name.database)) {
    throw FailureAt(jetText_, name.databaseSpan,
                    "Una hoja de Excel solo puede ser el destino de SELECT … INTO o de INSERT INTO");
  }
  return AliasOf(*name.database, name.databaseSpan);
}

TargetTable TableLocator::Target(const TableName& name, const std::string& storedName, bool sheetAllowed) {
  TargetTable target;
  target.table = storedName;
  target.span = name.span;
  if (!sheetAllowed || !name.database || !IsSheet(*name.database)) {
    target.alias = AliasOf(name);
    return target;
  }
  RefuseWorkbookAsTable(name);
  target.excel = true;
  target.alias.clear();
  target.excelFile = WorkbookOf(name);
  target.table = name.table;
  if (target.table.ends_with('$')) target.table.pop_back();
  return target;
}

// [Excel 8.0;DATABASE=a.xls] with nothing behind it reads as the name of a table, which nobody wants so.
void TableLocator::RefuseWorkbookAsTable(const TableName& name) const {
  if (IsSheet(name.table) && name.table.find(';') != std::string::npos) {
    throw FailureAt(jetText_, name.span, "Falta el nombre de la hoja detrás del libro");
  }
}

std::string TableLocator::WorkbookOf(const TableName& name) const {
  std::string_view rest = *name.database;
  std::string path;
  if (!EqualWord(rest.substr(0, rest.find(';')), "Excel 8.0")) {
    throw FailureAt(jetText_, name.databaseSpan, "El formato del libro tiene que ser Excel 8.0");
  }
  while (rest.find(';') != std::string_view::npos) {
    rest.remove_prefix(rest.find(';') + 1);
    const std::string_view option = rest.substr(0, rest.find(';'));
    if (HasPrefix(option, "DATABASE=")) {
      path = option.substr(std::string_view("DATABASE=").size());
    } else if (!option.empty() && !EqualWord(option, "HDR=YES") && !HasPrefix(option, "IMEX=")) {
      throw FailureAt(jetText_, name.databaseSpan,
                      "La opción " + std::string(option) + " del libro no se admite");
    }
  }
  if (path.empty()) throw FailureAt(jetText_, name.databaseSpan, "Falta DATABASE= con la ruta del libro");
  return path;
}

}  // namespace velmar::jet

#include "platform/ado/EngineFailure.h"

#include <sqlite3.h>

#include <array>
#include <optional>
#include <string_view>

#include "platform/ado/Database.h"
#include "platform/ado/TableNames.h"
#include "platform/error/ErrorNumber.h"
#include "platform/jet/Translation.h"

namespace ADODB {
namespace {

using velmar::RuntimeError;

constexpr const char* kSource = "ADODB.Connection";

/// A message of the engine: its beginning, and what it means. "«»" stands for the name behind the beginning.
struct NamedMessage {
  std::string_view beginning;
  long number;
  std::string_view description;
};

constexpr std::string_view kTooComplicated =
    "La sentencia es demasiado complicada: tiene demasiados campos, tablas o condiciones.";

constexpr std::string_view kNoTable = "No existe la tabla «». Compruebe que el nombre esté bien escrito.";

constexpr std::string_view kNoKeyAdded =
    "No se puede añadir un campo clave o sin repetidos a una tabla que ya existe. Añada el campo y después "
    "un "
    "índice con CREATE UNIQUE INDEX.";

constexpr std::string_view kOneField =
    "Una subconsulta que está en el lugar de un valor debe tener un solo campo.";

constexpr std::array kNamedMessages{
    NamedMessage{"no such table: ", velmar::kUnknownTable, kNoTable},
    NamedMessage{"vtable constructor failed: ", velmar::kUnknownTable, kNoTable},
    NamedMessage{"no such column: ", velmar::kUnknownName,
                 "No existe el campo «». Compruebe que el nombre esté bien escrito y que su tabla esté en la "
                 "sentencia."},
    NamedMessage{"no such function: ", velmar::kUnknownFunction, "No existe la función «»."},
    NamedMessage{"no such index: ", velmar::kUnknownTable, "No existe el índice «»."},
    NamedMessage{
        "ambiguous column name: ", velmar::kAmbiguousName,
        "El campo «» está en más de una tabla de la sentencia. Ponga delante el nombre de la tabla."},
    NamedMessage{"duplicate column name: ", velmar::kDuplicateOutput, "El campo «» está dos veces."},
    NamedMessage{"misuse of aggregate: ", velmar::kQuerySyntax,
                 "La función de totales «» no puede estar en ese lugar."},
    NamedMessage{"misuse of aggregate function ", velmar::kQuerySyntax,
                 "La función de totales «» no puede estar en ese lugar."},
    NamedMessage{"wrong number of arguments to function ", velmar::kQuerySyntax,
                 "La función «» no lleva ese número de argumentos."},
    NamedMessage{"cannot modify ", velmar::kReadOnly,
                 "No se puede escribir en una consulta: escriba en sus tablas."},
    NamedMessage{"SELECTs to the left and right of ", velmar::kQuerySyntax,
                 "Las partes de un UNION deben tener el mismo número de campos."},
    NamedMessage{"sub-select returns ", velmar::kQuerySyntax, kOneField},
    NamedMessage{"row value misused", velmar::kQuerySyntax, kOneField},
    NamedMessage{"parser stack overflow", velmar::kQuerySyntax, kTooComplicated},
    NamedMessage{"Expression tree is too large", velmar::kQuerySyntax, kTooComplicated},
    NamedMessage{"at most ", velmar::kQuerySyntax, kTooComplicated},
    NamedMessage{
        "too many attached databases", velmar::kEngineFailure,
        "Hay demasiadas bases de datos a la vez en una sentencia o en una transacción: 10 como máximo."},
    NamedMessage{"too many ", velmar::kQuerySyntax, kTooComplicated},
    NamedMessage{
        "UNIQUE constraint failed: ", velmar::kDuplicateKey,
        "No se han guardado los cambios: el valor de «» ya está en otro registro y no puede repetirse."},
    NamedMessage{"NOT NULL constraint failed: ", velmar::kFieldRequired,
                 "No se han guardado los cambios: el campo «» necesita un valor."},
    NamedMessage{
        "CHECK constraint failed: ", velmar::kTypeMismatch,
        "No se han guardado los cambios: un valor no cumple la regla «» de la tabla. Un campo Sí/No sólo "
        "admite Sí (-1) y No (0)."},
    NamedMessage{
        "Cannot add a NOT NULL column", velmar::kFieldRequired,
        "No se puede añadir a una tabla que ya existe un campo que necesita un valor (NOT NULL): sus "
        "registros no lo tienen. Añádalo sin NOT NULL."},
    NamedMessage{"Cannot add a PRIMARY KEY column", velmar::kQuerySyntax, kNoKeyAdded},
    NamedMessage{"Cannot add a UNIQUE column", velmar::kQuerySyntax, kNoKeyAdded},
    NamedMessage{"object name reserved for internal use: ", velmar::kQuerySyntax,
                 "El nombre «» está reservado a la base de datos. Elija otro."},
    NamedMessage{
        "cannot drop column ", velmar::kQuerySyntax,
        "No se puede quitar el campo: es parte de una clave o de un índice, o es el único de su tabla "
        "(«»)."},
};

std::string WithName(std::string_view description, std::string_view name) {
  std::string text(description);
  const std::string_view marks = "«»";
  if (const auto place = text.find(marks); place != std::string::npos) {
    text.insert(place + marks.size() / 2, name);
  }
  return text;
}

/// Splits "alias.table" where the alias is one of an attached file.
std::string WithoutAlias(const Database& database, std::string_view name, std::string& file) {
  const auto point = name.find('.');
  if (point != std::string_view::npos) {
    file = database.FileOf(name.substr(0, point));
    if (!file.empty()) return std::string(name.substr(point + 1));
  }
  file = database.Path();
  return std::string(name);
}

/// For a table of the engine's own, which belongs to no file that the user knows.
RuntimeError ClosedTable(std::string_view name, const std::optional<velmar::TextSpan>& span) {
  return RuntimeError(velmar::kUnknownTable, WithName(kNoTable, name), kSource, span);
}

std::optional<RuntimeError> NamedFailure(const Database& database, std::string_view message,
                                         const std::optional<velmar::TextSpan>& span) {
  for (const NamedMessage& known : kNamedMessages) {
    if (!message.starts_with(known.beginning)) continue;
    std::string file;
    const std::string name = WithoutAlias(database, message.substr(known.beginning.size()), file);
    std::string description = WithName(known.description, name);
    if (known.number == velmar::kUnknownTable) description += " Base de datos: " + file;
    return RuntimeError(known.number, description, kSource, span);
  }
  constexpr std::string_view kNoColumn = " has no column named ";
  if (const auto place = message.find(kNoColumn);
      message.starts_with("table ") && place != std::string_view::npos) {
    return RuntimeError(velmar::kUnknownName,
                        "La tabla «" + std::string(message.substr(6, place - 6)) + "» no tiene un campo «" +
                            std::string(message.substr(place + kNoColumn.size())) + "».",
                        kSource, span);
  }
  // The engine itself is refused when it makes up a table for the first time; this does not tell its name.
  if (message.starts_with("access to ") && message.ends_with(" is prohibited")) {
    return RuntimeError(velmar::kUnknownTable,
                        "La sentencia nombra una tabla interna de la base de datos, que no se puede leer. "
                        "Compruebe los nombres de sus tablas.",
                        kSource, span);
  }
  constexpr std::string_view kClosed = " may not be ";  // "modified", "dropped", "altered", "indexed"
  if (const auto place = message.find(kClosed);
      message.starts_with("table ") && place != std::string_view::npos) {
    return ClosedTable(message.substr(6, place - 6), span);
  }
  if (message.find(" values for ") != std::string_view::npos || message.ends_with(" values were supplied")) {
    return RuntimeError(velmar::kColumnCountMismatch,
                        "El número de valores de la sentencia no es el de los campos de destino.", kSource,
                        span);
  }
  if (message.find(" BY term out of range") != std::string_view::npos) {
    return RuntimeError(velmar::kQuerySyntax,
                        "ORDER BY o GROUP BY nombran por su número un campo que la sentencia no tiene.",
                        kSource, span);
  }
  if (message.ends_with(" already exists")) {
    const std::string_view what =
        message.substr(0, message.size() - std::string_view(" already exists").size());
    const std::string_view name = what.substr(what.rfind(' ') + 1);
    return RuntimeError(velmar::kTableExists,
                        (what.starts_with("index") ? "Ya existe el índice «" : "Ya existe la tabla «") +
                            std::string(name) + "» en la base de datos " + database.Path(),
                        kSource, span);
  }
  return std::nullopt;
}

/// Failures of the file itself, by the engine's primary code.
std::optional<RuntimeError> FileFailure(int code, const std::string& file) {
  switch (code & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return RuntimeError(velmar::kDatabaseLocked,
                          "La base de datos está ocupada por otro programa o por otra operación: " + file +
                              ". Espere a que termine y vuelva a intentarlo.",
                          kSource);
    case SQLITE_READONLY:
      return RuntimeError(velmar::kReadOnly,
                          "No se puede escribir en la base de datos " + file +
                              ": el fichero o su carpeta son de sólo lectura. Compruebe los permisos.",
                          kSource);
    case SQLITE_FULL:
      return RuntimeError(velmar::kDiskFull,
                          "El disco está lleno: no se ha podido escribir en " + file +
                              ". Libere espacio y vuelva a intentarlo.",
                          kSource);
    case SQLITE_NOTADB:
      return NotADatabase(file);
    case SQLITE_CORRUPT:
      return RuntimeError(
          velmar::kNotADatabase,
          "La base de datos " + file + " está dañada o incompleta. Recupere una copia de seguridad.",
          kSource);
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
      return RuntimeError(velmar::kPermissionDenied,
                          "No se puede abrir la base de datos " + file +
                              " o escribir junto a ella. Compruebe los permisos del fichero y "
                              "de su carpeta.",
                          kSource);
    case SQLITE_AUTH:
      return RuntimeError(
          velmar::kPermissionDenied,
          "Permiso denegado: la sentencia nombra una tabla interna de la base de datos " + file + ".",
          kSource);
    case SQLITE_IOERR:
      return RuntimeError(velmar::kDeviceIoError,
                          "Error de lectura o escritura en el disco con la base de datos " + file +
                              ". Compruebe el disco o la red.",
                          kSource);
    case SQLITE_NOMEM:
      return RuntimeError(velmar::kEngineFailure, "No hay memoria suficiente para la operación.", kSource);
    default:
      return std::nullopt;
  }
}

bool Names(const velmar::jet::Translation& translation, const std::string& alias) {
  return (translation.target && translation.target->alias == alias) ||
         translation.sql.find(alias + '.') != std::string::npos;
}

/// The file that a failure is about. The engine does not say which: where a statement has several, a failure
/// to write is about its target, any other about one of them, "A o B".
std::string ConcernedFiles(const Database& database, int code, const velmar::jet::Translation* translation) {
  if (const std::string file = database.FileOf(database.Concern()); !file.empty()) return file;
  const int primary = code & 0xff;
  if (translation != nullptr && translation->target &&
      (primary == SQLITE_READONLY || primary == SQLITE_FULL)) {
    if (const std::string file = database.FileOf(translation->target->alias); !file.empty()) return file;
  }
  std::string files;
  for (const auto& [alias, file] : database.Files()) {
    if (translation == nullptr || Names(*translation, alias)) files += (files.empty() ? "" : " o ") + file;
  }
  return files.empty() ? database.Path() : files;
}

}  // namespace

RuntimeError DatabaseNotFound(const std::string& path) {
  return RuntimeError(
      velmar::kDatabaseNotFound,
      "No se encuentra la base de datos " + path + ". Compruebe la ruta y el nombre del fichero.", kSource);
}

RuntimeError NotADatabase(const std::string& path) {
  return RuntimeError(velmar::kNotADatabase,
                      "El fichero " + path +
                          " no es una base de datos que se pueda abrir. Compruebe que sea el "
                          "fichero correcto.",
                      kSource);
}

RuntimeError EngineFailure(const Database& database, int code, const velmar::jet::Translation* translation) {
  sqlite3* handle = database.Handle();
  if ((code & 0xff) == SQLITE_AUTH && !IsSystemTable(database.RefusedTable())) {
    return ClosedTable(database.RefusedTable(), std::nullopt);
  }
  if (auto failure = FileFailure(code, ConcernedFiles(database, code, translation))) return *failure;
  const std::string message = handle == nullptr ? sqlite3_errstr(code) : sqlite3_errmsg(handle);
  std::optional<velmar::TextSpan> span;
  if (translation != nullptr && handle != nullptr) {
    const int offset = sqlite3_error_offset(handle);
    if (offset >= 0) span = translation->SourceOf(static_cast<std::size_t>(offset));
  }
  if (auto failure = NamedFailure(database, message, span)) return *failure;
  if ((code & 0xff) == SQLITE_MISMATCH) {
    return RuntimeError(
        velmar::kTypeMismatch,
        message == "datatype mismatch" ? "No coinciden los tipos: un valor no sirve para su campo." : message,
        kSource, span);
  }
  if ((code & 0xff) == SQLITE_CONSTRAINT) {
    return RuntimeError(
        velmar::kDuplicateKey,
        "No se han guardado los cambios: un valor incumple una regla de la tabla (" + message + ").", kSource,
        span);
  }
  if ((code & 0xff) == SQLITE_TOOBIG) {
    return RuntimeError(velmar::kFieldSizeExceeded, "Un valor o la sentencia son demasiado largos.", kSource,
                        span);
  }
  return RuntimeError(velmar::kEngineFailure, message, kSource, span);
}

}  // namespace ADODB

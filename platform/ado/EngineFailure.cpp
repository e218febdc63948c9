#include "platform/ado/EngineFailure.h"

#include <sqlite3.h>

#include <array>
#include <optional>
#include <string_view>

#include "platform/ado/Database.h"
#include "platform/ado/TableNames.h"
#include "platform/error/ErrorNumber.h"
#include "platform/jet/Engine.h"
#include "platform/jet/Translation.h"

namespace ADODB {
namespace {

using velmar::RuntimeError;

constexpr const char* kSource = "ADODB.Connection";

/// A message of the engine: its beginning, and what it means. The first "«»" stands for the name behind the
/// beginning; where the message goes on with `middle`, the name ends there, and the second "«»" stands for
/// what is behind it.
struct NamedMessage {
  std::string_view beginning;
  long number;
  std::string_view description;
  std::string_view middle = {};
};

constexpr std::string_view kTooComplicated =
    "La sentencia es demasiado complicada: tiene demasiados campos, tablas o condiciones.";

constexpr std::string_view kNoTable = "No existe la tabla «». Compruebe que el nombre esté bien escrito.";

constexpr std::string_view kNoKeyAdded =
    "No se puede añadir un campo clave o sin repetidos a una tabla que ya existe. Añada el campo y después "
    "un "
    "índice con CREATE UNIQUE INDEX.";

constexpr std::string_view kTotalHere = "Una función de totales no puede estar en ese lugar de la sentencia.";

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
    NamedMessage{"misuse of alias", velmar::kQuerySyntax, kTotalHere},
    NamedMessage{"misuse of aggregate", velmar::kQuerySyntax, kTotalHere},
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
    NamedMessage{"error in index ", velmar::kQuerySyntax,
                 "No se puede quitar el campo: está en el índice «». Quite antes el índice con DROP INDEX.",
                 " after drop column"},
    NamedMessage{"table ", velmar::kUnknownName, "La tabla «» no tiene un campo «».",
                 " has no column named "},
    NamedMessage{"index ", velmar::kTableExists, "Ya existe el índice «». Elija otro nombre.",
                 " already exists"},
    NamedMessage{"table ", velmar::kTableExists, "Ya existe la tabla «». Elija otro nombre.",
                 " already exists"},
};

/// A message of the engine by a part of it, and what it means.
struct UnnamedMessage {
  std::string_view part;
  long number;
  std::string_view description;
};

constexpr std::string_view kValueCount =
    "El número de valores de la sentencia no es el de los campos de destino.";

constexpr std::array kUnnamedMessages{
    UnnamedMessage{" values for ", velmar::kColumnCountMismatch, kValueCount},
    UnnamedMessage{" values were supplied", velmar::kColumnCountMismatch, kValueCount},
    UnnamedMessage{" BY term out of range", velmar::kQuerySyntax,
                   "ORDER BY o GROUP BY nombran por su número un campo que la sentencia no tiene."},
    UnnamedMessage{"ORDER BY term does not match ", velmar::kQuerySyntax,
                   "Detrás de un UNION, ORDER BY sólo puede nombrar los campos que da la consulta, o su "
                   "número."},
    // The engine itself is refused when it makes up a table for the first time; this does not tell its name.
    UnnamedMessage{" is prohibited", velmar::kUnknownTable,
                   "La sentencia nombra una tabla interna de la base de datos, que no se puede leer. "
                   "Compruebe los nombres de sus tablas."},
};

std::string WithName(std::string_view description, std::string_view name) {
  std::string text(description);
  const std::string_view marks = "«»";
  if (const auto place = text.find(marks); place != std::string::npos) {
    text.insert(place + marks.size() / 2, name);
  }
  return text;
}

/// Without the quotation marks that the engine sets around a name that it was given in such marks.
std::string_view WithoutMarks(std::string_view name) {
  const std::string_view marks = "\"\"";
  if (name.size() <= 2 * marks.size() || !name.starts_with(marks) || !name.ends_with(marks)) return name;
  return name.substr(marks.size(), name.size() - 2 * marks.size());
}

/// Splits "alias.table" where the alias is one of an attached file; `file` is that one, else as it was.
std::string WithoutAlias(const Database& database, std::string_view name, std::string& file) {
  const auto point = name.find('.');
  if (point == std::string_view::npos) return std::string(name);
  const std::string named = database.FileOf(name.substr(0, point));
  if (named.empty()) return std::string(name);
  file = named;
  return std::string(name.substr(point + 1));
}

/// For a table of the engine's own, which belongs to no file that the user knows.
RuntimeError ClosedTable(std::string_view name, const std::optional<velmar::TextSpan>& span) {
  return RuntimeError(velmar::kUnknownTable, WithName(kNoTable, name), kSource, span);
}

/// file: that which the message is about, unless it names another.
std::optional<RuntimeError> NamedFailure(const Database& database, std::string_view message, std::string file,
                                         const std::optional<velmar::TextSpan>& span) {
  for (const NamedMessage& known : kNamedMessages) {
    if (!message.starts_with(known.beginning)) continue;
    const std::string_view rest = message.substr(known.beginning.size());
    const auto middle = known.middle.empty() ? rest.size() : rest.find(known.middle);
    if (middle == std::string_view::npos) continue;
    const std::string name = WithoutAlias(database, WithoutMarks(rest.substr(0, middle)), file);
    std::string description = WithName(known.description, name);
    if (!known.middle.empty()) description = WithName(description, rest.substr(middle + known.middle.size()));
    if (known.number == velmar::kUnknownTable || known.number == velmar::kTableExists)
      description += " Base de datos: " + file + ".";
    return RuntimeError(known.number, description, kSource, span);
  }
  for (const UnnamedMessage& known : kUnnamedMessages) {
    if (message.find(known.part) != std::string_view::npos)
      return RuntimeError(known.number, std::string(known.description), kSource, span);
  }
  constexpr std::string_view kClosed = " may not be ";  // "modified", "dropped", "altered", "indexed"
  if (const auto place = message.find(kClosed);
      message.starts_with("table ") && place != std::string_view::npos) {
    return ClosedTable(message.substr(6, place - 6), span);
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
  const std::string files = ConcernedFiles(database, code, translation);
  if (auto failure = FileFailure(code, files)) return *failure;
  const std::string message = handle == nullptr ? sqlite3_errstr(code) : sqlite3_errmsg(handle);
  std::optional<velmar::TextSpan> span;
  if (translation != nullptr && handle != nullptr) {
    const int offset = sqlite3_error_offset(handle);
    if (offset >= 0) span = translation->SourceOf(static_cast<std::size_t>(offset));
  }
  if (code == velmar::jet::kFunctionFailure)
    return RuntimeError(velmar::kEngineFailure, message, kSource, span);
  if (auto failure = NamedFailure(database, message, files, span)) return *failure;
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
  return RuntimeError(velmar::kEngineFailure,
                      "El motor de datos no puede cumplir la sentencia con la base de datos " + files + " (" +
                          message + "). Compruebe la sentencia.",
                      kSource, span);
}

}  // namespace ADODB

#pragma once

#include <memory>
#include <string>

#include "host/interfaces/HostApplication.h"
#include "platform/ado/Connection.h"
#include "platform/files/FileLock.h"

namespace velmar::exporting {

/// The staging table, and the beginning of the names of part tables.
inline constexpr const char* kTable = "ExportacionExcel";
/// The work database.
inline constexpr const char* kAuxiliaryFile = "ExportacionAux.mdb";

/// The work files of an export: scratch databases without password beside the host's reports database, all
/// named "Exportacion*.mdb". The folder is used with its real capitals, however the host writes it, because
/// on a file system that tells capitals apart another spelling may mean another folder. Host properties are
/// read afresh each time. The host's own databases are never deleted, whatever their names.
class WorkFiles {
 public:
  explicit WorkFiles(std::shared_ptr<HostApplication> host) : host_(std::move(host)) {}

  /// The host's connection text for the reports database with this file in its place and no password.
  std::string ConnectionText(const std::string& archivo) const;
  /// The path of a file beside the reports database.
  std::string FilePath(const std::string& archivo) const;
  /// The path as it stands between apostrophes in a statement.
  std::string QuotedPath(const std::string& archivo) const;

  /// Takes the folder for one run. Work files may be made and deleted only by who has it: another wizard's
  /// run in the same folder uses the same names. Refused with a text for the user if another run has it, if
  /// nothing can be written there, or if statements cannot name files in that folder.
  files::FileLock Reserve() const;

  /// An open connection to a new, empty ExportacionAux.mdb. What earlier runs have left goes first.
  std::shared_ptr<ADODB::Connection> CrearBaseAuxiliar() const;
  /// Makes the file named by table and index and copies the first intBloque rows of strTabla into it.
  void CrearBaseParte(const std::string& strTabla, const std::string& strIndice, int intBloque,
                      ADODB::Connection& conAuxiliar) const;

  /// Deletes the files that the pattern in the folder means, but for the host's databases. None is no
  /// failure.
  void Remove(const std::string& pattern) const;
  /// Deletes every work file.
  void RemoveAll() const;
  /// True if the path means a file of this folder that runs make and delete.
  bool IsWorkFile(const std::string& path) const;
  /// True if the path means one of the host's two databases, by whatever spelling or link.
  bool IsHostDatabase(const std::string& path) const;

 private:
  std::shared_ptr<HostApplication> host_;
};

}  // namespace velmar::exporting

#pragma once

#include <string_view>

namespace velmar {

/// The kinds of work with databases and files that can fail for reasons outside the program.
enum class Operation {
  kOpenDatabase,    ///< subject: the file
  kAttachDatabase,  ///< subject: the file
  kCreateDatabase,  ///< subject: the file
  kStatement,       ///< subject: the statement as it was given
  kOpenRows,        ///< a recordset; subject: its source
  kReadRow,         ///< a row fetched from the file; subject: its table or statement
  kWriteRow,        ///< a single row; subject: its table
  kCommit,          ///< subject: the file
  kListFolder,      ///< subject: the folder
  kDeleteFile,      ///< subject: the file, as in all that follow
  kLockFile,
  kOpenFile,
  kCreateFile,
  kReadFile,
  kWriteFile,
  kResizeFile,
  kPublishFile,  ///< a finished file gets its name
};

/// As a trace shows it, in Spanish.
std::string_view NameOf(Operation operation) noexcept;

}  // namespace velmar

#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/ado/Connection.h"

namespace velmar::sample {

inline constexpr std::string_view kMainFile = "Gestion.mdb";
inline constexpr std::string_view kReportsFile = "Informes.mdb";

/// The path of a file in a folder.
std::string PathIn(std::string_view folder, std::string_view file);

/// Moves a file to a name of the same file system that nobody has taken; never replaces another file. The
/// failure, std::errc::file_exists if the name is taken.
std::error_code MoveWithoutReplacing(const std::string& from, const std::string& to);

/// The connection text of a database file; an empty password is none.
std::string ConnectionTextOf(const std::string& path, const std::string& password = {});

/// The connection text of a work file, which is made without durability.
std::string ScratchConnectionTextOf(const std::string& path);

/// An open connection to an existing database.
std::shared_ptr<ADODB::Connection> OpenDatabase(const std::string& path, const std::string& password = {});

}  // namespace velmar::sample

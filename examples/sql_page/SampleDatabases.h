#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "platform/ado/Connection.h"

/// The databases that a page's statements find in the folder that they call /datos: Gestion.mdb, to which
/// they go, Informes.mdb with the password "secreta" and one table, and Salida.mdb. The folder goes with this
/// object.
class SampleDatabases {
 public:
  SampleDatabases();
  ~SampleDatabases();
  SampleDatabases(const SampleDatabases&) = delete;
  SampleDatabases& operator=(const SampleDatabases&) = delete;

  /// What comes of a statement: the rows, a line each with " | " between the values, or how many were
  /// written, or the failure.
  std::string Run(const std::string& statement);
  /// The value of an expression as the page writes it: a text in apostrophes.
  std::string Value(const std::string& expression);

 private:
  std::shared_ptr<ADODB::Connection> Create(const std::string& file) const;
  /// Of the page and of this run.
  std::string WithRealFolder(std::string text) const;
  std::string WithShownFolder(std::string text) const;

  std::filesystem::path folder_;
  std::shared_ptr<ADODB::Connection> connection_;
};

#pragma once

#include <memory>
#include <string>

#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"
#include "platform/files/TemporaryFolder.h"
#include "sample/DatabaseGenerator.h"
#include "sample/SampleFiles.h"

namespace velmar::sample {

inline GeneratorOptions OptionsFor(const std::string& folder, long collaborators, std::uint64_t seed = 42) {
  GeneratorOptions options;
  options.folder = folder;
  options.collaborators = collaborators;
  options.seed = seed;
  options.date = *ParseDate("2025-11-04");
  return options;
}

/// The generator's two databases, open.
struct SampleDatabase {
  explicit SampleDatabase(long collaborators, std::uint64_t seed = 42) {
    DatabaseGenerator(OptionsFor(folder.Path(), collaborators, seed)).Run();
    main = OpenDatabase(folder / "Gestion.mdb");
    reports = OpenDatabase(folder / "Informes.mdb");
  }

  /// The first value of the first row.
  long long Number(const std::string& sql) const { return main->Execute(sql)->Fields(0).Value().AsLong(); }

  files::TemporaryFolder folder;
  std::shared_ptr<ADODB::Connection> main;
  std::shared_ptr<ADODB::Connection> reports;
};

}  // namespace velmar::sample

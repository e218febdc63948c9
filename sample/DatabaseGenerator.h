#pragma once

#include "platform/ado/Connection.h"
#include "sample/GeneratorOptions.h"

namespace velmar::sample {

/// Makes the two databases of a believable charity: Gestion.mdb with its data and Informes.mdb with the field
/// catalogue and the templates that come with it. The same options give the same rows.
class DatabaseGenerator {
 public:
  explicit DatabaseGenerator(GeneratorOptions options);

  /// Makes both files, and the folder if there is none. kFileAlreadyExists if one of the files stands there
  /// or comes there meanwhile: it is left alone. After any failure nothing of this object stands there.
  void Run();

 private:
  void CreateMain(const std::string& path);
  void CreateReports(const std::string& path);
  void FillMain(ADODB::Connection& main);

  GeneratorOptions options_;
};

}  // namespace velmar::sample

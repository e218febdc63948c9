#include "sample/window/OfficeFiles.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "platform/error/RuntimeError.h"
#include "sample/SampleFiles.h"

namespace velmar::sample {
namespace {

TEST(OfficeFiles, AreBothOrNoneAndALostOneIsNotMadeAnew) {
  const struct {
    std::vector<std::string_view> files;
    const char* lost;
  } cases[] = {{{}, nullptr},
               {{kMainFile}, "falta la base de datos 'Informes.mdb'"},
               {{kReportsFile}, "falta la base de datos 'Gestion.mdb'"},
               {{kMainFile, kReportsFile}, nullptr}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.files.size());
    const QTemporaryDir folder;
    const std::string path = folder.path().toStdString();
    for (const auto file : c.files) std::ofstream(PathIn(path, file)) << "x";
    if (c.lost == nullptr) {
      EXPECT_EQ(HasOffice(path), !c.files.empty());
      continue;
    }
    try {
      HasOffice(path);
      ADD_FAILURE() << "one is lost";
    } catch (const RuntimeError& error) {
      EXPECT_NE(error.Description().find(c.lost), std::string::npos) << error.Description();
      EXPECT_NE(error.Description().find(path), std::string::npos);
    }
  }
}

}  // namespace
}  // namespace velmar::sample

#include "sample/window/OfficeFiles.h"

#include <gmock/gmock.h>

#include <fstream>

#include "platform/error/RuntimeError.h"
#include "sample/SampleDatabase.h"

namespace velmar::sample {
namespace {

TEST(OfficeFiles, AreBothOrNoneAndALostOneIsNotMadeAnew) {
  const files::TemporaryFolder both;
  EXPECT_FALSE(HasOffice(both.Path()));
  for (const auto& [there, lost] :
       {std::pair("Gestion.mdb", "Informes.mdb"), {"Informes.mdb", "Gestion.mdb"}}) {
    const files::TemporaryFolder folder;
    std::ofstream(folder / there) << "x";
    std::ofstream(both / there) << "x";
    EXPECT_THAT([&] { HasOffice(folder.Path()); },
                ::testing::ThrowsMessage<RuntimeError>(
                    ::testing::HasSubstr("falta la base de datos '" + std::string(lost))));
  }
  EXPECT_TRUE(HasOffice(both.Path()));
}

}  // namespace
}  // namespace velmar::sample

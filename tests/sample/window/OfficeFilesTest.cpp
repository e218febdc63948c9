#include "sample/window/OfficeFiles.h"

#include <gmock/gmock.h>

#include "platform/error/RuntimeError.h"
#include "platform/files/TemporaryFolder.h"

namespace velmar::sample {
namespace {

TEST(OfficeFiles, AreBothOrNoneAndALostOneIsNotMadeAnew) {
  const files::TemporaryFolder folder;
  const auto has = [&folder] { return HasOffice(folder.Path()); };
  EXPECT_FALSE(has());
  folder.Touch("Gestion.mdb");
  EXPECT_THAT(has, ::testing::ThrowsMessage<RuntimeError>(::testing::HasSubstr("falta la base de datos 'I")));
  folder.Touch("Informes.mdb");
  EXPECT_TRUE(has());
  std::filesystem::remove(folder / "Gestion.mdb");
  EXPECT_THAT(has, ::testing::ThrowsMessage<RuntimeError>(::testing::HasSubstr("falta la base de datos 'G")));
}

}  // namespace
}  // namespace velmar::sample

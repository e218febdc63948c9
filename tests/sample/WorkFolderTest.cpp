#include "sample/WorkFolder.h"

#include <gtest/gtest.h>

#include "platform/error/RuntimeError.h"
#include "platform/files/TemporaryFolder.h"

namespace velmar::sample {
namespace {

using std::filesystem::perms;

TEST(WorkFolderTest, GoesWithItsOwnerAndIsForNobodyElse) {
  const files::TemporaryFolder parent;
  {
    const WorkFolder first(parent.Path());
    const WorkFolder second(parent.Path());
    EXPECT_EQ(std::filesystem::status(first.Path()).permissions(), perms::owner_all);
    std::filesystem::create_directory(first.Path() + "/dentro");
    EXPECT_EQ(parent.Names().size(), 2U);
  }
  EXPECT_TRUE(parent.Empty());
  EXPECT_THROW(WorkFolder(parent / "no"), RuntimeError);
}

TEST(WorkFolderTest, WhatAKilledProcessHasLeftGoesAndNothingThatOnlyLooksLikeIt) {
  const files::TemporaryFolder parent;
  for (const char* name : {"velmar-copias", ".velmar-trabajo-", ".velmar-trabajo-abcdefg",
                           ".velmar-trabajo-abcdef", ".velmar-trabajo-muerto"}) {
    parent.Touch(std::string(name) + "/dentro");
    std::filesystem::permissions(parent / name, perms::owner_all);
  }
  std::filesystem::permissions(parent / ".velmar-trabajo-abcdef", perms::owner_all | perms::group_read);
  parent.Touch(".velmar-trabajo-archiv");
  std::filesystem::create_directory_symlink(parent / "velmar-copias", parent / ".velmar-trabajo-enlace");
  std::set<std::string> expected = parent.Names();
  expected.erase(".velmar-trabajo-muerto");
  { const WorkFolder next(parent.Path()); }
  EXPECT_EQ(parent.Names(), expected);
}

}  // namespace
}  // namespace velmar::sample

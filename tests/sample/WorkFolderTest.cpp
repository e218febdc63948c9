#include "sample/WorkFolder.h"

#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "platform/error/RuntimeError.h"
#include "platform/files/TemporaryFolder.h"

namespace velmar::sample {
namespace {

using std::filesystem::perms;

/// Another process with a work folder in use, stopped there.
pid_t OtherProcess(const std::string& parent) {
  const pid_t process = fork();
  if (process == 0) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const WorkFolder folder(parent);
    std::filesystem::create_directory(folder.Path() + "/dentro");
    std::raise(SIGSTOP);
    _exit(0);
  }
  waitpid(process, nullptr, WUNTRACED);
  return process;
}

void Kill(pid_t process) {
  kill(process, SIGKILL);
  waitpid(process, nullptr, 0);
}

TEST(WorkFolderTest, GoesWithItsOwnerAndIsForNobodyElse) {
  const files::TemporaryFolder parent;
  {
    const WorkFolder first(parent.Path());
    const WorkFolder second(parent.Path());
    EXPECT_NE(first.Path(), second.Path());
    EXPECT_EQ(std::filesystem::status(first.Path()).permissions(), perms::owner_all);
    std::filesystem::create_directory(first.Path() + "/dentro");
    EXPECT_EQ(parent.Names().size(), 2U);
  }
  EXPECT_TRUE(parent.Empty());
  EXPECT_THROW(WorkFolder(parent / "no"), RuntimeError);
}

TEST(WorkFolderTest, WhatAKilledProcessHasLeftGoesAndWhatALivingOneHasStays) {
  const files::TemporaryFolder parent;
  const pid_t living = OtherProcess(parent.Path());
  const std::set<std::string> inUse = parent.Names();
  Kill(OtherProcess(parent.Path()));
  EXPECT_EQ(parent.Names().size(), 2U) << "nobody has cleaned up after it yet";
  { const WorkFolder next(parent.Path()); }
  EXPECT_EQ(parent.Names(), inUse);
  Kill(living);
  { const WorkFolder next(parent.Path()); }
  EXPECT_TRUE(parent.Empty());
}

TEST(WorkFolderTest, TouchesNothingThatOnlyLooksLikeOne) {
  const files::TemporaryFolder parent;
  for (const char* name :
       {"velmar-copias", ".velmar-trabajo-", ".velmar-trabajo-abcdefg", ".velmar-trabajo-abcdef"}) {
    std::filesystem::create_directory(parent / name);
    std::filesystem::permissions(parent / name, perms::owner_all);
  }
  std::filesystem::permissions(parent / ".velmar-trabajo-abcdef", perms::owner_all | perms::group_read);
  parent.Touch(".velmar-trabajo-archiv");
  std::filesystem::create_directory_symlink(parent / "velmar-copias", parent / ".velmar-trabajo-enlace");
  const std::set<std::string> before = parent.Names();
  { const WorkFolder next(parent.Path()); }
  EXPECT_EQ(parent.Names(), before);
}

}  // namespace
}  // namespace velmar::sample

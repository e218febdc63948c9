#include "sample/WorkFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <fstream>
#include <iterator>
#include <memory>
#include <set>

#include "platform/error/RuntimeError.h"
#include "sample/SampleDatabase.h"

namespace velmar::sample {
namespace {

std::set<std::string> Names(const std::string& folder) {
  std::set<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) names.insert(entry.path().filename());
  return names;
}

/// Another process with a work folder in use, until it is killed.
class OtherProcess {
 public:
  explicit OtherProcess(const std::string& parent) {
    int ready[2];
    if (pipe(ready) != 0) throw std::runtime_error("no pipe");
    process_ = fork();
    if (process_ == 0) {
      const WorkFolder folder(parent);
      std::ofstream(folder.Path() + "/Gestion.mdb") << "half";
      if (write(ready[1], "x", 1) != 1) _exit(1);
      for (;;) pause();
    }
    char byte = 0;
    if (read(ready[0], &byte, 1) != 1) throw std::runtime_error("no other process");
    close(ready[0]);
    close(ready[1]);
  }
  ~OtherProcess() { Kill(); }
  OtherProcess(const OtherProcess&) = delete;
  OtherProcess& operator=(const OtherProcess&) = delete;

  void Kill() {
    if (process_ <= 0) return;
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
    process_ = 0;
  }

 private:
  pid_t process_ = 0;
};

TEST(WorkFolderTest, GoesWithItsOwnerAndIsForNobodyElse) {
  const TestFolder parent;
  {
    const WorkFolder first(parent.Path());
    const WorkFolder second(parent.Path());
    EXPECT_NE(first.Path(), second.Path());
    struct stat status {};
    ASSERT_EQ(stat(first.Path().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0700U);
    std::ofstream(first.Path() + "/a") << "x";
    EXPECT_EQ(Names(parent.Path()).size(), 2U);
  }
  EXPECT_TRUE(Names(parent.Path()).empty());
  EXPECT_THROW(WorkFolder(parent / "no"), RuntimeError);
}

TEST(WorkFolderTest, WhatAKilledProcessHasLeftGoesAndWhatALivingOneHasStays) {
  const TestFolder parent;
  OtherProcess living(parent.Path());
  const std::set<std::string> inUse = Names(parent.Path());
  ASSERT_EQ(inUse.size(), 1U);
  {
    OtherProcess killed(parent.Path());
    killed.Kill();
    EXPECT_EQ(Names(parent.Path()).size(), 2U) << "nobody has cleaned up after it yet";
  }
  { const WorkFolder next(parent.Path()); }
  EXPECT_EQ(Names(parent.Path()), inUse);
  EXPECT_TRUE(std::filesystem::exists(parent / *inUse.begin() + "/Gestion.mdb"));
  living.Kill();
  { const WorkFolder next(parent.Path()); }
  EXPECT_TRUE(Names(parent.Path()).empty());
}

TEST(WorkFolderTest, TouchesNothingThatOnlyLooksLikeOne) {
  const TestFolder parent;
  const auto makeFolder = [&](const std::string& name, std::filesystem::perms permissions) {
    std::filesystem::create_directory(parent / name);
    std::filesystem::permissions(parent / name, permissions);
  };
  using std::filesystem::perms;
  makeFolder("velmar-copias", perms::owner_all);
  makeFolder(".velmar-trabajo-", perms::owner_all);
  makeFolder(".velmar-trabajo-abcdefg", perms::owner_all);
  makeFolder(".velmar-trabajo-abcdef", perms::owner_all | perms::group_read);
  std::ofstream(parent / ".velmar-trabajo-archiv") << "x";
  std::filesystem::create_directory_symlink(parent / "velmar-copias", parent / ".velmar-trabajo-enlace");
  const std::set<std::string> before = Names(parent.Path());
  { const WorkFolder next(parent.Path()); }
  EXPECT_EQ(Names(parent.Path()), before);
}

}  // namespace
}  // namespace velmar::sample

#include "platform/com/ClassFile.h"

#include <gtest/gtest.h>

#include "platform/error/RuntimeError.h"
#include "platform/files/TemporaryFolder.h"

namespace velmar::com {
namespace {

class ClassFileTest : public testing::Test {
 protected:
  files::TemporaryFolder folder;
  ClassFile file{folder / "sub/clases.tsv"};
  Guid one{1, 0, 0, {}};
  Guid two{2, 0, 0, {}};
};

TEST_F(ClassFileTest, KeepsWhatIsPublished) {
  EXPECT_TRUE(file.Entries().empty());
  file.Withdraw(one);
  file.Publish({"A.cUno", one, "/opt/un sitio/liba.so"});
  file.Publish({"A.cDos", two, "/opt/liba.so"});
  ASSERT_TRUE(file.Find("a.CUNO"));
  EXPECT_EQ(file.Find("a.CUNO")->server, "/opt/un sitio/liba.so");
  file.Publish({"A.cUno", one, "/opt/nueva.so"});
  EXPECT_EQ(file.Entries().size(), 2U);
  EXPECT_EQ(file.Find(one)->server, "/opt/nueva.so");
  file.Withdraw(one);
  EXPECT_FALSE(file.Find(one));
  EXPECT_TRUE(file.Find(two));
  EXPECT_FALSE(std::filesystem::exists(file.Path() + ".nuevo"));
}

TEST_F(ClassFileTest, TellsWhatItCannotReadOrWrite) {
  folder.Touch("sub/clases.tsv");
  EXPECT_THROW(file.Entries(), RuntimeError);
  EXPECT_THROW(ClassFile("/proc/no/clases.tsv").Publish({"A.cUno", one, "x"}), RuntimeError);
}

}  // namespace
}  // namespace velmar::com

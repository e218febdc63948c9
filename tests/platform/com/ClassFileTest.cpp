#include "platform/com/ClassFile.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "platform/error/RuntimeError.h"

namespace velmar::com {
namespace {

class ClassFileTest : public testing::Test {
 protected:
  ~ClassFileTest() override { std::filesystem::remove_all(folder); }

  std::filesystem::path folder =
      std::filesystem::path(testing::TempDir()) / ("velmar-classes-" + std::to_string(getpid()));
  ClassFile file{(folder / "sub/clases.tsv").string()};
  Guid one{1, 0, 0, {}};
  Guid two{2, 0, 0, {}};
};

TEST_F(ClassFileTest, KeepsWhatIsPublished) {
  EXPECT_TRUE(file.Entries().empty());
  file.Withdraw(one);
  file.Publish({"A.cUno", one, "/opt/un sitio/liba.so"});
  file.Publish({"A.cDos", two, "/opt/liba.so"});
  ASSERT_TRUE(file.Find("a.CUNO"));
  EXPECT_EQ(file.Find("a.CUNO")->library, "/opt/un sitio/liba.so");
  file.Publish({"A.cUno", one, "/opt/nueva.so"});
  EXPECT_EQ(file.Entries().size(), 2U);
  EXPECT_EQ(file.Find(one)->library, "/opt/nueva.so");
  file.Withdraw(one);
  EXPECT_FALSE(file.Find(one));
  EXPECT_TRUE(file.Find(two));
  EXPECT_FALSE(std::filesystem::exists(file.Path() + ".nuevo"));
}

TEST_F(ClassFileTest, TellsWhatItCannotReadOrWrite) {
  std::filesystem::create_directories(folder / "sub");
  std::ofstream(file.Path()) << "no es un registro\n";
  EXPECT_THROW(file.Entries(), RuntimeError);
  EXPECT_THROW(ClassFile("/proc/no/clases.tsv").Publish({"A.cUno", one, "x"}), RuntimeError);
}

}  // namespace
}  // namespace velmar::com

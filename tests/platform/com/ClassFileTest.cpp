#include "platform/com/ClassFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "platform/error/Failure.h"
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
  file.Withdraw(one);
  file.Publish({"A.cUno", one, "/opt/liba.so"});
  file.Publish({"A.cDos", two, "/opt/liba.so"});
  file.Publish({"A.cUno", one, "/opt/un sitio/nueva.so"});
  EXPECT_EQ(file.Entries().size(), 2U);
  ASSERT_TRUE(file.Find("a.CUNO"));
  EXPECT_EQ(file.Find("a.CUNO")->server, "/opt/un sitio/nueva.so");
  file.Withdraw(one);
  for (const char* path : {"/opt/a\tb/liba.so", "/opt/a\nb/liba.so"})
    EXPECT_EQ(FailureOf([&] { file.Publish({"A.cUno", one, path}); }), kInvalidProcedureCall);
  EXPECT_FALSE(file.Find(one));
  EXPECT_TRUE(file.Find(two));
}

TEST_F(ClassFileTest, LosesNothingWherePublishersMeet) {
  std::vector<std::thread> publishers;
  for (std::uint32_t publisher = 0; publisher < 4; ++publisher) {
    publishers.emplace_back([this, publisher] {
      for (std::uint32_t number = 0; number < 25; ++number) {
        const std::uint32_t id = publisher * 100 + number;
        file.Publish({"A.c" + std::to_string(id), {id, 0, 0, {}}, "/opt/liba.so"});
      }
    });
  }
  for (std::thread& publisher : publishers) publisher.join();
  EXPECT_EQ(file.Entries().size(), 100U);
}

TEST_F(ClassFileTest, TellsWhatItCannotReadOrWrite) {
  folder.Touch("sub/clases.tsv");
  for (const char* line : {"A.cDos\tsin servidor", "A.cDos\tno es un identificador\t/opt/liba.so"}) {
    std::ofstream(file.Path()) << "A.cUno\t" << one.ToText() << "\t/opt/liba.so\n" << line << '\n';
    EXPECT_THAT(FailureIn([&] { file.Entries(); }).Description(),
                testing::HasSubstr(file.Path() + "\": la línea 2"));
  }
  EXPECT_THROW(ClassFile("/proc/no/clases.tsv").Publish({"A.cUno", one, "x"}), RuntimeError);
}

}  // namespace
}  // namespace velmar::com

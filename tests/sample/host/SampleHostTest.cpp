#include "sample/host/SampleHost.h"

#include <gtest/gtest.h>

namespace velmar::sample {
namespace {

TEST(SampleHostTest, GivesItsFolderWithoutASeparatorAtTheEnd) {
  for (const auto& [given, told] :
       {std::pair{"/una/carpeta//", "/una/carpeta"}, {"otra\\", "otra"}, {"/", "/"}}) {
    SampleHost::Settings settings;
    settings.folder = given;
    EXPECT_EQ(SampleHost(settings).RutaApp(), told);
  }
}

}  // namespace
}  // namespace velmar::sample

#include "platform/com/Guid.h"

#include <gtest/gtest.h>

#include "platform/error/RuntimeError.h"

namespace velmar::com {
namespace {

TEST(Guid, ReadAndWrittenItIsTheSame) {
  const std::string text = "{0F1E2D3C-4B5A-6978-8796-A5B4C3D2E1F0}";
  const Guid guid = Guid::FromText(text);
  EXPECT_EQ(guid, (Guid{0x0F1E2D3C, 0x4B5A, 0x6978, {0x87, 0x96, 0xA5, 0xB4, 0xC3, 0xD2, 0xE1, 0xF0}}));
  EXPECT_EQ(guid.ToText(), text);
  EXPECT_EQ(Guid::FromText("0f1e2d3c-4b5a-6978-8796-a5b4c3d2e1f0"), guid);
}

TEST(Guid, RefusesAnythingElse) {
  for (const char* bad : {"", "{}", "{0F1E2D3C-4B5A-6978-8796-A5B4C3D2E1F}",
                          "0F1E2D3C4B5A69788796A5B4C3D2E1F0", "{0F1E2D3C-4B5A-6978-8796-A5B4C3D2E1FG}",
                          "{0F1E2D3C-4B5A-6978-8796-A5B4C3D2E1F0", "0F1E2D3C-4B5A-6978-8796-A5B4C3D2-1F0"}) {
    EXPECT_THROW(Guid::FromText(bad), RuntimeError) << bad;
  }
}

}  // namespace
}  // namespace velmar::com

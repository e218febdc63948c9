#include "sample/Catalogue.h"

#include <gtest/gtest.h>

#include <set>
#include <string_view>

#include "platform/text/Case.h"
#include "platform/text/Search.h"

namespace velmar::sample {
namespace {

using text::Contains;

TEST(CatalogueTest, OutputNamesDifferAndTellTheirKindAndMeetNoWordThatIsReplaced) {
  std::set<std::string> names;
  for (const CatalogueField& field : Catalogue()) {
    SCOPED_TRACE(field.select);
    const std::string name = text::LCase(field.select.substr(field.select.rfind(" AS ") + 4));
    EXPECT_TRUE(names.insert(name).second);
    EXPECT_EQ(Contains(name, "cuenta"), field.internalName.ends_with(".cuenta"));
    EXPECT_EQ(Contains(name, "fecha"), Contains(field.internalName, ".fecha"));
    EXPECT_EQ(name.find_first_of(" .[]'"), std::string::npos);
    // The statement of pending receipts is the first one with these words replaced.
    for (const std::string_view word : {"recibos.", "idrecibo", "cobros", "idcobro"}) {
      EXPECT_FALSE(Contains(name, word)) << word;
    }
    EXPECT_FALSE(name.ends_with("recibos"));
  }
}

}  // namespace
}  // namespace velmar::sample

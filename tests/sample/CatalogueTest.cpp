#include "sample/Catalogue.h"

#include <gtest/gtest.h>

#include <set>

#include "platform/text/Case.h"
#include "platform/text/Search.h"

namespace velmar::sample {
namespace {

TEST(CatalogueTest, OutputNamesDifferAndTellTheirKindAndMeetNoWordThatIsReplaced) {
  std::set<std::string> names;
  for (const CatalogueField& field : Catalogue()) {
    SCOPED_TRACE(field.select);
    const std::string name = text::LCase(field.select.substr(field.select.rfind(" AS ") + 4));
    EXPECT_TRUE(names.insert(name).second);
    EXPECT_EQ(text::Contains(name, "cuenta"), field.internalName.ends_with(".cuenta"));
    EXPECT_EQ(text::Contains(name, "fecha"), text::Contains(field.internalName, ".fecha"));
    EXPECT_EQ(name.find_first_of(" .[]'"), std::string::npos);
    // The statement of pending receipts is the first one with these words replaced.
    for (const char* word : {"recibos.", "recibos ", "idrecibo", "cobros", "idcobro"}) {
      EXPECT_FALSE(text::Contains(name + " ", word)) << word;
    }
  }
}

}  // namespace
}  // namespace velmar::sample

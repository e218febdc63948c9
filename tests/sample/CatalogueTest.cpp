#include "sample/Catalogue.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <string_view>

#include "platform/text/Case.h"
#include "platform/text/Search.h"

namespace velmar::sample {
namespace {

using text::Comparison;
using text::Contains;

/// The joins that a field brings, so that two fields with a common one cannot stand together.
std::set<std::string> LookupTables(const std::string& internalName) {
  const std::string column = internalName.substr(internalName.find('.') + 1);
  if (column == "cuenta") return {"cuentas"};
  if (internalName == "donativos.tipodonativo" || internalName == "recibos.tipodonativo")
    return {"tipodonativos"};
  if (internalName == "donativos.tipopago" || internalName == "recibos.tipopago") return {"tipopagos"};
  return {};
}

TEST(CatalogueTest, LiteralsMeetExactlyWhereTablesWouldMeet) {
  for (const CatalogueField& a : Catalogue()) {
    for (const CatalogueField& b : Catalogue()) {
      if (a.id == b.id) continue;
      const std::set<std::string> tables = LookupTables(a.internalName);
      const bool collide = !tables.empty() && tables == LookupTables(b.internalName);
      EXPECT_EQ(Contains(a.literal, b.literal, Comparison::kText), collide)
          << a.literal << " / " << b.literal;
    }
  }
}

std::string OutputName(const CatalogueField& field) {
  return text::LCase(field.select.substr(field.select.rfind(" AS ") + 4));
}

TEST(CatalogueTest, OutputNamesAreTakenOnceAndTellTheirKind) {
  std::set<std::string> names;
  for (const CatalogueField& field : Catalogue()) {
    SCOPED_TRACE(field.select);
    EXPECT_EQ(field.id, static_cast<int>(names.size()) + 1);
    const std::string name = OutputName(field);
    EXPECT_TRUE(names.insert(name).second);
    const bool isAccount = field.internalName.ends_with(".cuenta");
    const bool isDate = Contains(field.internalName, ".fecha");
    EXPECT_EQ(Contains(name, "cuenta"), isAccount);
    EXPECT_EQ(Contains(name, "fecha"), isDate);
    EXPECT_EQ(name.find_first_of(" .[]'"), std::string::npos);
  }
}

TEST(CatalogueTest, TextsSurviveTheRewritingOfTheStatement) {
  for (const CatalogueField& field : Catalogue()) {
    SCOPED_TRACE(field.internalName);
    for (const std::string_view mark : {"[", "`", "´", "{"})
      EXPECT_FALSE(Contains(field.where, mark)) << mark;
    const std::string name = OutputName(field);
    for (const std::string_view found : {"recibos.", "idrecibo", "cobros", "idcobro"}) {
      EXPECT_FALSE(Contains(name, found)) << found;
    }
    EXPECT_FALSE(name.ends_with("recibos"));
    for (const std::string& piece : {field.select, field.where, field.orderBy}) {
      EXPECT_FALSE(Contains(piece, "select", Comparison::kText)) << piece;
    }
    // Bank numbers and dates are texts; sums and counts are not.
    const bool isNumber = field.delimiter.empty();
    EXPECT_TRUE(isNumber || field.delimiter == "'");
  }
}

}  // namespace
}  // namespace velmar::sample

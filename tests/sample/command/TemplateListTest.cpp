#include "sample/command/TemplateList.h"

#include <gtest/gtest.h>

#include "sample/SampleDatabase.h"
#include "sample/command/Words.h"
#include "templates/TemplateStore.h"

namespace velmar::sample {
namespace {

TEST(TemplateListTest, ShowsTheUsersTemplatesWithTheirSizes) {
  const SampleDatabase database(5);
  const templates::TemplateStore store(database.main, 33);
  constexpr auto kNew = templates::TemplateStore::Existing::kNone;
  const std::string node = "(COL) Colaboradores";
  store.Save("Ñandú de Cádiz", {{{node, "Sexo", "", 6}}, {}}, kNew);
  // A name that cannot stand in a statement is listed all the same.
  store.Save(
      "Los \"fijos\"",
      {{{node, "Sexo", "{Sexo} = `Mujer´", 6}, {node, "País", "{País} = `Chile´", 12}}, {{"(COL) País", 12}}},
      kNew);
  std::vector<std::string> list = {"plantillas", "--carpeta", database.folder.Path(), "--usuario", "33"};
  EXPECT_EQ(RunWords(list).out, "Los 'fijos'\t2\t2\t1\nÑandú de Cádiz\t1\t0\t0\n");
  EXPECT_EQ(RunWords(list, true).out,
            "Plantilla       Campos  Filtros  Orden\n"
            "Los 'fijos'          2        2      1\n"
            "Ñandú de Cádiz       1        0      0\n");
  list.back() = "-7";
  const Ended none = RunWords(list);
  EXPECT_EQ(none.code, 0);
  EXPECT_EQ(none.out + none.err, "El usuario -7 no tiene plantillas.\n");
}

}  // namespace
}  // namespace velmar::sample

#include "query/FilterBalance.h"

#include <gtest/gtest.h>

namespace velmar {
namespace {

TEST(FilterBalance, CountsBothCharactersAndNothingElse) {
  const struct {
    const char* opening;
    const char* closing;
    std::string text;
    bool balanced;
  } cases[] = {
      {"(", ")", "", true},
      {"(", ")", ")(", true},
      {"(", ")", "(()", false},
      {"`", "´", "`uno´ `dos´", true},
      {"`", "´", "`uno´ dos´", false},
      {"`", "´", "``´", false},
      {"`", "´", "´ñ`", true},
      {"`", "´", "`Ã´Â", true},      // shares bytes with the mark
      {"`", "´", "`\u00B5", false},  // so does the micro sign
      {"[", "]", std::string(40000, '[') + std::string(40000, ']'), true},
  };
  for (const auto& test : cases) {
    EXPECT_EQ(CaracteresEquilibrados(test.opening, test.closing, test.text), test.balanced)
        << test.text.substr(0, 20);
  }
}

TEST(FilterBalance, AnyOfTheFourPairsOutOfBalanceGivesTheWarning) {
  const std::string warning =
      "¡Existen errores en el filtro, por favor compruebe que existe \r"
      "el mismo nº de caracteres de apertura como de cierre!";
  EXPECT_EQ(ValidarFiltro("( {Nombre} [Comience por] `Ana´ )"), std::nullopt);
  EXPECT_EQ(ValidarFiltro("}{ ][ )( ´`"), std::nullopt);
  for (const std::string character : {"[", "]", "(", ")", "`", "´", "{", "}"}) {
    SCOPED_TRACE(character);
    EXPECT_EQ(ValidarFiltro("{N} = `a´ " + character), warning);
  }
}

}  // namespace
}  // namespace velmar

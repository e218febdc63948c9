#include "query/FilterBalance.h"

#include <gtest/gtest.h>

namespace velmar {
namespace {

TEST(FilterBalance, AnyOfTheFourPairsOutOfBalanceGivesTheWarning) {
  const std::string warning =
      "¡Existen errores en el filtro, por favor compruebe que existe \r"
      "el mismo nº de caracteres de apertura como de cierre!";
  for (const std::string balanced :
       {"", "( {Nombre} [Comience por] `Ana´ )", "}{ ][ )( ´ñ`", "`Ã´Â"}) {  // shares bytes with the mark
    EXPECT_EQ(ValidarFiltro(balanced), std::nullopt);
    for (const std::string character : {"[", "]", "(", ")", "`", "´", "{", "}"}) {
      EXPECT_EQ(ValidarFiltro(balanced + character), warning) << balanced << character;
    }
  }
  EXPECT_EQ(ValidarFiltro("`\u00B5"), warning) << "the micro sign is no mark";
}

}  // namespace
}  // namespace velmar

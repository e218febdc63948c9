#include "query/WhereClause.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <random>

#include "platform/text/Search.h"
#include "query/ReferenceWhere.h"
#include "query/TestCatalogue.h"

namespace velmar {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// Turns a tail round and puts it between angle brackets.
class TurningCodec : public cCuentaCodec {
 public:
  void CodificarTramo(std::string& tramo) override {
    std::reverse(tramo.begin(), tramo.end());
    tramo = "<" + tramo + ">";
  }
  void DecodificarTramo(std::string& tramo) override {
    tramo = tramo.substr(1, tramo.size() - 2);
    std::reverse(tramo.begin(), tramo.end());
  }
};

class WhereClause : public ::testing::Test {
 protected:
  /// A filter, with ‹ and › for the value marks.
  static std::string Filter(const std::string& text) {
    return text::Replace(text::Replace(text, "‹", "`"), "›", "´");
  }

  std::string Build() {
    return GenerarSQLWHERE(
        f_.selection, f_.catalogue,
        [this] {
          ++codecs_;
          return std::make_shared<TurningCodec>();
        },
        f_.Report());
  }

  std::string Build(const cCampos& field, const std::string& filter) {
    f_.selection.rows.clear();
    f_.Select(field, Filter(filter));
    return Build();
  }

  RuntimeError Failure(const cCampos& field, const std::string& filter) {
    f_.reported.clear();
    try {
      ADD_FAILURE() << Build(field, filter);
    } catch (const RuntimeError& failure) {
      EXPECT_THAT(f_.reported, ElementsAre("GenerarSQLWHERE ()"));
      EXPECT_EQ(f_.failures.back().Description(), failure.Description());
      return failure;
    }
    return RuntimeError(0, "");
  }

  testing::Fixture f_;
  int codecs_ = 0;
  const cCampos name_ =
      f_.Describe("(COL) Colaboradores", "colaboradores.nombre", "Nombre", "Colaboradores.Nombre", "'");
  const cCampos amount_ =
      f_.Describe("(DON) Donativos/Suscripciones", "donativos.importe", "Importe", "Donativos.Importe");
  const cCampos date_ = f_.Describe("(REC) Recibos", "recibos.fechaemision", "Fecha", "Recibos.Fecha", "'");
  const cCampos account_ = f_.Describe("(REC) Recibos", "recibos.cuenta", "Cuenta", "Cuentas.Cuenta", "'");
  const cCampos bare_ = f_.Describe("(COL) Colaboradores", "colaboradores.vacio", "Vacío", "", "'");
};

TEST_F(WhereClause, TranslatesTheLanguage) {
  const struct {
    const cCampos& field;
    std::string filter;
    std::string clause;
  } cases[] = {
      {name_, "{Nombre} [Comience por] ‹Ana›", " WHERE Colaboradores.Nombre  LIKE  'Ana%' "},
      {name_, "{Nombre} [Que contenga] ‹Ana›", " WHERE Colaboradores.Nombre  LIKE  '%Ana%' "},
      {name_, "{Nombre} [Acabe en] ‹Ana›", " WHERE Colaboradores.Nombre  LIKE  '%Ana' "},
      {amount_, "{Importe} >= ‹10›", " WHERE Donativos.Importe >= 10 "},
      {amount_, "{Importe} [Entre] ‹10› [Y] ‹20›", " WHERE Donativos.Importe  BETWEEN  10  AND  20 "},
      {amount_, "{Importe} [Igual a uno de] (‹10›, ‹20›, ‹30›)",
       " WHERE Donativos.Importe  IN  (10, 20, 30) "},
      {name_, "( {Nombre} = ‹Ana› [O]{Nombre} = ‹Eva› )",
       " WHERE ( Colaboradores.Nombre = 'Ana'  OR Colaboradores.Nombre = 'Eva' ) "},
      {name_, "{Nombre} [Comience por] ‹A› [O]{Nombre} [Comience por] ‹B›",
       " WHERE Colaboradores.Nombre  LIKE  'A%'  OR Colaboradores.Nombre  LIKE  'B%' "},
      // the literal of the row's field, whatever stands in the braces
      {name_, "{Importe} = ‹ñandú› [Y] {} <> {a{b}",
       " WHERE Colaboradores.Nombre = 'ñandú'  AND  Colaboradores.Nombre <> "
       "Colaboradores.Nombre "},
      {name_, "{[Y]‹} = ‹a›", " WHERE Colaboradores.Nombre = 'a' "},
      {bare_, "{Vacío} = ‹a›", " WHERE  = 'a' "},
      {name_, "Apellidos] = ‹a› y otra cosa", " WHERE Apellidos] = 'a' y otra cosa "},
      {name_, "  ", " WHERE    "},
      {name_, "{Nombre} [Que contenga] ‹›", " WHERE Colaboradores.Nombre  LIKE  '%%' "},
      {name_, "{Nombre} [Comience por] ‹›", " WHERE Colaboradores.Nombre  LIKE  '%' "},
      {name_, "{Nombre} = ‹O'Neill›", " WHERE Colaboradores.Nombre = 'O'Neill' "},
      {name_, "{Nombre} = ‹Ana [Y] Eva›", " WHERE Colaboradores.Nombre = 'Ana  AND  Eva' "},
      {name_, "[Acabe en][Comience por] ‹Ana›", " WHERE  LIKE  LIKE  '%Ana%' "},
      {name_, "[Que contenga] ‹µ¶Â›", " WHERE  LIKE  '%µ¶Â%' "},
      // dates
      {date_, "{Fecha} [Entre] ‹01/02/2023› [Y] ‹31/12/2024›",
       " WHERE Recibos.Fecha  BETWEEN  '20230201'  AND  '20241231' "},
      {date_, "{Fecha} = ‹ñá/éí/óúüç›", " WHERE Recibos.Fecha = 'óúüçéíñá' "},
      {date_, "{Fecha} = ‹1/2/2020›", " WHERE Recibos.Fecha = '020'/21/ "},
      {date_, "{Fecha} = ‹1/2/2020› )", " WHERE Recibos.Fecha = '20' /21/) "},
      {date_, "{Fecha} [Comience por] ‹2020›", " WHERE Recibos.Fecha  LIKE  '20%'0%20 "},
      {date_, "{Fecha} = ‹", " WHERE Recibos.Fecha = ' "},
      // accounts: ten characters stay, up to eleven behind them are encoded
      {account_, "{Cuenta} = ‹00112222333344445555›", " WHERE Cuentas.Cuenta = '0011222233<5555444433>' "},
      {account_, "{Cuenta} = ‹0011222233334444555566777›",
       " WHERE Cuentas.Cuenta = '0011222233<65555444433>6777' "},
      {account_, "{Cuenta} = ‹00000000000000000000›", " WHERE Cuentas.Cuenta = '0000000000<0000000000>' "},
      {account_, "{Cuenta} = ‹0123456789›", " WHERE Cuentas.Cuenta = '0123456789' "},
      {account_, "{Cuenta} = ‹12› [O] {Cuenta} = ‹00112222333344445555›",
       " WHERE Cuentas.Cuenta = '12'  OR  Cuentas.Cuenta = '00112222333344445555' "},
      {account_, "{Cuenta} [Entre] ‹00112222333344445555› [Y] ‹00112222333344446666›",
       " WHERE Cuentas.Cuenta  BETWEEN  '0011222233<5555444433>'  AND  '00112222333344446666' "},
      {account_, "abcdefghijK {Cuenta} = ‹0123456789ABCDEFGHIJKlm›",
       " WHERE <KJIHGFEDCBA> Cuentas.Cuenta = '0123456789ABCDEFGHIJKlm' "},
      {account_, "{Cuenta} IS NULL", " WHERE Cuentas.Cuenta IS NULL "},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.filter);
    EXPECT_EQ(Build(test.field, test.filter), test.clause);
  }
}

TEST_F(WhereClause, JoinsTheFiltersOfTheRowsThatHaveOne) {
  EXPECT_EQ(Build(), "");
  f_.Select(amount_);
  EXPECT_EQ(Build(), "");
  f_.Select(name_, Filter("{Nombre} [Comience por] ‹Ana›"));
  f_.Select(date_);
  f_.Select(amount_, Filter("{Importe} [Entre] ‹10› [Y] ‹20›"));
  f_.selection.rows.push_back({"n", "no filter, no look-up", "", 99});
  const std::string clause =
      " WHERE Colaboradores.Nombre  LIKE  'Ana%' AND Donativos.Importe  BETWEEN  10  AND  20 ";
  EXPECT_EQ(Build(), clause);
  EXPECT_EQ(codecs_, 0);

  f_.Select(account_, Filter("‹0123456789a›"));
  f_.Select(account_, Filter("‹0123456789b›"));
  EXPECT_EQ(Build(), clause + "AND '0123456789<a>' AND '0123456789<b>' ");
  EXPECT_EQ(codecs_, 1);
  EXPECT_TRUE(f_.reported.empty());
}

TEST_F(WhereClause, AFilterThatCannotBeTranslatedStopsTheClauseWithItsFieldAndPlace) {
  const std::string longest = "ñ" + std::string(kMaxFilterLength - 1, 'x');
  EXPECT_EQ(Build(name_, longest).size(), 7 + longest.size() + 1);

  const struct {
    std::string filter;
    int position;
    const char* expected;
    const char* found;
  } cases[] = {
      {"{Nombre} [Comienza por] ‹Ana›", 10, "[Comience por]", "«[Comienza por]»"},
      {"{Ñandú} ñ [y] ‹Ana›", 11, "[Y]", "«[y]»"},
      {"‹año› {Nombre} = ‹[a-z]›", 19, "[Igual a uno de]", "«[a-z]»"},
      {"[" + std::string(60, 'x') + "]", 1, "[Entre]", "«[xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx…»"},
      {"{Nombre} [Entre ‹1›", 10, "«]»", "«[»"},
      {"{Nombre} [Acabe en]", 10, "` y ´", "«[Acabe en]»"},
      {"‹Ana› [Acabe en] Ana", 7, "` y ´", "«[Acabe en]»"},
      {"[Comience por] ‹Ana", 1, "` y ´", "«[Comience por]»"},
      {"{Nombre} = ›Ana‹", 12, "«`»", "«´»"},
      {"‹Ana›› [Acabe en] ‹a›", 6, "«`»", "«´»"},
      {"‹Ana [Acabe en] a› ‹e›", 18, "«`»", "«´»"},
      {"ñ {Nombre", 3, "«}»", "«{»"},
      {"}{Nombre} = ‹Ana›", 1, "«{»", "«}»"},
      {longest + "x", 32768, "32767", "32768"},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.filter.substr(0, 60));
    const RuntimeError failure = Failure(name_, test.filter);
    EXPECT_THAT(failure.Description(),
                HasSubstr("«Nombre» (fila 1, posición " + std::to_string(test.position) + ")"));
    EXPECT_THAT(failure.Description(), HasSubstr(test.expected));
    EXPECT_THAT(failure.Description(), HasSubstr(test.found));
  }
  EXPECT_EQ(Failure(name_, longest + "x").Number(), kOverflow);
  EXPECT_EQ(Failure(name_, "}").Number(), kInvalidProcedureCall);
  EXPECT_EQ(Failure(date_, std::string(11, '`')).Number(), kInvalidProcedureCall);
}

TEST_F(WhereClause, PlacesCountInTheTypedFilterAlsoBehindGroups) {
  const RuntimeError failure = Failure(name_, "{A} = ‹x› [O] {Campo muy largo} = ‹y› [o] {B}");
  EXPECT_THAT(failure.Description(), HasSubstr("posición 39"));
  ASSERT_TRUE(failure.Span().has_value());
  EXPECT_EQ(f_.selection.rows[0].filtro.substr(failure.Span()->offset, failure.Span()->length), "[o]");

  const cCampos bracketed = f_.Describe("(COL) Colaboradores", "x.y", "z", "[Tabla].[Campo]", "'");
  EXPECT_THAT(Failure(bracketed, "ñ {z} = ‹a›").Description(), HasSubstr("posición 3)"));
}

TEST_F(WhereClause, OtherFailuresStopItToo) {
  f_.selection.rows = {{"n", "lost", "x", 99}};
  EXPECT_THROW(Build(), RuntimeError);
  EXPECT_THAT(f_.reported, ElementsAre("GenerarSQLWHERE ()"));

  f_.selection.rows.clear();
  f_.Select(name_);
  f_.Select(account_, Filter("‹0123456789a›"));
  const CodecFactory none = [] { return std::shared_ptr<cCuentaCodec>(); };
  try {
    GenerarSQLWHERE(f_.selection, f_.catalogue, none, f_.Report());
    FAIL();
  } catch (const RuntimeError& failure) {
    EXPECT_EQ(failure.Number(), kCannotCreateObject);
    EXPECT_THAT(failure.Description(), HasSubstr("«Cuenta» (fila 2)"));
  }
}

class RandomFilters {
 public:
  explicit RandomFilters(unsigned seed) : random_(seed) {}

  std::string Next() {
    std::string filter = "QZ ";  // a word of its own, that nothing in a filter may swallow
    for (std::size_t pieces = 1 + Below(6); pieces > 0; --pieces) filter += Condition();
    return filter;
  }

  std::string Damaged(std::string filter) {
    static const std::vector<std::string> kPieces = {"[", "]", "{", "}",   "`",          "´",
                                                     "(", "'", "%", "[Y]", "[Acabe en]", "ñ"};
    const std::size_t behindWord = 3;
    for (std::size_t times = 1 + Below(3); times > 0; --times) {
      std::size_t at = behindWord + Below(filter.size() - behindWord + 1);
      while (at < filter.size() && (filter[at] & '\xC0') == '\x80') ++at;  // between characters
      if (Below(2) == 0 || at == filter.size()) {
        filter.insert(at, kPieces[Below(kPieces.size())]);
      } else {
        filter.erase(at, filter[at] < 0 ? 2 : 1);
      }
    }
    return filter;
  }

  std::size_t Below(std::size_t limit) { return random_() % limit; }

 private:
  std::string Condition() {
    static const std::vector<std::string> kForms = {"{N} [Comience por] $ ",
                                                    "{N} [Que contenga] $ ",
                                                    " {Nombre ñ} [Acabe en] $",
                                                    "({N} [Entre] $ [Y] $)",
                                                    "{N}[Igual a uno de]($, $, $)",
                                                    "{N} <> $ ",
                                                    "[Y]",
                                                    "[O]",
                                                    " NOT ",
                                                    "{N} = {M}"};
    static const std::vector<std::string> kValues = {"Ana",        "ñandú",   "",         "10.5",
                                                     "01/02/2024", "O'Neill", "1/1/2024", "a%b_"};
    std::string form = kForms[Below(kForms.size())];
    for (std::size_t at = form.find('$'); at != form.npos; at = form.find('$')) {
      form.replace(at, 1, "`" + kValues[Below(kValues.size())] + "´");
    }
    return form;
  }

  std::mt19937 random_;
};

TEST(WhereClauseProperty, BuildsWhatPlainSubstitutionBuildsOrFailsWithAReport) {
  testing::Fixture f;
  for (int id = 1; id <= 12; ++id) {
    const std::string literal = "Campo" + std::to_string(id);
    f.Describe("(COL) Colaboradores", id % 4 == 0 ? "recibos.fechacobro" : "colaboradores." + literal,
               literal, id == 5 ? "" : "T." + literal,
               id % 3 == 0   ? ""
               : id % 3 == 1 ? "'"
                             : "#");
  }
  int built = 0;
  int failed = 0;
  for (unsigned seed = 1; seed <= 6000; ++seed) {
    RandomFilters filters(seed);
    const bool damage = seed % 3 != 0;
    f.selection.rows.clear();
    f.reported.clear();
    std::size_t conditions = 0;
    for (std::size_t rows = filters.Below(5); rows > 0; --rows) {
      std::string filter = filters.Below(4) == 0 ? std::string() : filters.Next();
      if (damage && !filter.empty()) filter = filters.Damaged(filter);
      conditions += filter.empty() ? 0 : 1;
      f.selection.rows.push_back({"n", "l", filter, static_cast<long>(1 + filters.Below(12))});
    }
    std::string context;
    for (const auto& row : f.selection.rows)
      context += std::to_string(row.idCampo) + ": " + row.filtro + "\n";
    SCOPED_TRACE(context);
    const std::optional<std::string> reference = testing::ReferenceWhere::Build(f.selection, f.catalogue);
    std::optional<std::string> clause;
    try {
      clause = GenerarSQLWHERE(f.selection, f.catalogue, nullptr, f.Report());
    } catch (const RuntimeError&) {
    }
    ASSERT_EQ(f.reported.size(), clause ? 0U : 1U);
    ASSERT_EQ(clause, reference);
    if (!clause) {
      ASSERT_TRUE(damage);
      ++failed;
      continue;
    }
    ++built;
    std::size_t words = 0;
    for (std::size_t at = clause->find("QZ "); at != clause->npos; at = clause->find("QZ ", at + 1)) ++words;
    ASSERT_EQ(words, conditions);
    ASSERT_EQ(clause->empty(), conditions == 0);
  }
  EXPECT_GT(built, 2000);
  EXPECT_GT(failed, 1000);
}

}  // namespace
}  // namespace velmar

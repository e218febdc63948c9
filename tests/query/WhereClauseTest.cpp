#include "query/WhereClause.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "host/interfaces/HostObjects.h"
#include "platform/error/Failure.h"
#include "platform/text/Search.h"
#include "query/TestCatalogue.h"

namespace velmar {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Property;

constexpr const char* kAdvice = ". Corrija el filtro y vuelva a exportar.";

/// Turns a tail round and puts it between angle brackets.
class TurningCodec : public cCuentaCodec {
 public:
  void CodificarTramo(std::string& tramo) override {
    std::reverse(tramo.begin(), tramo.end());
    tramo = "<" + tramo + ">";
  }
  void DecodificarTramo(std::string&) override { ADD_FAILURE() << "only coding is asked for"; }
};

class FailingCodec : public TurningCodec {
 public:
  void CodificarTramo(std::string&) override { throw RuntimeError(7001, "Tramo ilegible.", "codec"); }
};

class WhereClause : public ::testing::Test {
 protected:
  std::string Build() {
    const CodecFactory codecs = [this] {
      ++codecs_;
      return std::make_shared<TurningCodec>();
    };
    return GenerarSQLWHERE(f_.selection, f_.catalogue, codecs, f_.Report());
  }

  /// One row; the filter has ‹ and › for the value marks.
  std::string Build(const cCampos& field, const std::string& filter) {
    f_.selection.rows.clear();
    f_.Select(field, text::Replace(text::Replace(filter, "‹", "`"), "›", "´"));
    return Build();
  }

  RuntimeError Failure(const cCampos& field, const std::string& filter) {
    try {
      ADD_FAILURE() << Build(field, filter);
    } catch (const RuntimeError& failure) {
      return failure;
    }
    return RuntimeError(0, "");
  }

  testing::Fixture f_;
  int codecs_ = 0;
  const cCampos name_ = f_.Describe("n", "colaboradores.nombre", "Nombre", "C.Nombre", "'");
  const cCampos amount_ = f_.Describe("n", "donativos.importe", "Importe", "D.Importe");
  const cCampos date_ = f_.Describe("n", "recibos.fechaemision", "Fecha", "R.Fecha", "'");
  const cCampos account_ = f_.Describe("n", "recibos.cuenta", "Cuenta", "Q.Cuenta", "'");
};

TEST_F(WhereClause, TranslatesTheLanguage) {
  const struct {
    const cCampos& field;
    std::string filter;
    std::string clause;
  } cases[] = {
      {name_, "{Nombre} [Que contenga] ‹Ana›", "C.Nombre  LIKE  '%Ana%'"},
      {name_, "{Nombre} [Acabe en] ‹Ana›", "C.Nombre  LIKE  '%Ana'"},
      {name_, "[Comience por] ‹A› [O] [Comience por] ‹B›", " LIKE  'A%'  OR   LIKE  'B%'"},
      {amount_, "{Importe} [Igual a uno de] (‹10›, ‹20›, ‹30›)", "D.Importe  IN  (10, 20, 30)"},
      // the condition text of the row's field, whatever stands in the braces
      {name_, "{Importe} = ‹ñandú› [Y] {} <> {a{b}", "C.Nombre = 'ñandú'  AND  C.Nombre <> C.Nombre"},
      {name_, "{[Y]‹} = ‹a›", "C.Nombre = 'a'"},
      {name_, "{Nombre} = ‹O'Neill›", "C.Nombre = 'O'Neill'"},
      {name_, "{Nombre} = ‹Ana [Y] Eva›", "C.Nombre = 'Ana  AND  Eva'"},
      {name_, "[Acabe en][Comience por] ‹Ana›‹e›", " LIKE  LIKE  '%Ana%''e'"},
      {name_, "[Que contenga] ‹µ¶Â›", " LIKE  '%µ¶Â%'"},
      // dates
      {date_, "[Entre] ‹01/02/2023› [Y] ‹31/12/2024›", " BETWEEN  '20230201'  AND  '20241231'"},
      {date_, "{Fecha} = ‹ñá/éí/óúüç›", "R.Fecha = 'óúüçéíñá'"},
      {date_, "{Fecha} = ‹1/2/2020›", "R.Fecha = '020'/21/"},
      {date_, "{Fecha} = ‹", "R.Fecha = '"},
      // accounts: ten characters stay, up to eleven behind them are encoded
      {account_, "{Cuenta} = ‹0011222233334444555566777›", "Q.Cuenta = '0011222233<65555444433>6777'"},
      {account_, "{Cuenta} = ‹00000000000000000000›", "Q.Cuenta = '0000000000<0000000000>'"},
      {account_, "‹0123456789› [O] ‹00112222333344445555›", "'0123456789'  OR  '00112222333344445555'"},
      {account_, "abcdefghijK = ‹0123456789ABCDEFGHIJKlm›", "<KJIHGFEDCBA> = '0123456789ABCDEFGHIJKlm'"},
  };
  for (const auto& test : cases) EXPECT_EQ(Build(test.field, test.filter), " WHERE " + test.clause + " ");
}

TEST_F(WhereClause, JoinsTheFiltersOfTheRowsThatHaveOne) {
  f_.Select(amount_);
  EXPECT_EQ(Build(), "");
  f_.Select(name_, "{Nombre} [Comience por] `Ana´");
  f_.Select(amount_, "{Importe} [Entre] `10´ [Y] `20´");
  f_.selection.rows.push_back({"n", "no filter, no look-up", "", 99});
  const std::string clause = " WHERE C.Nombre  LIKE  'Ana%' AND D.Importe  BETWEEN  10  AND  20 ";
  EXPECT_EQ(Build(), clause);
  EXPECT_EQ(codecs_, 0);

  f_.Select(account_, "`0123456789a´");
  f_.Select(account_, "`0123456789b´");
  EXPECT_EQ(Build(), clause + "AND '0123456789<a>' AND '0123456789<b>' ");
  EXPECT_EQ(codecs_, 1);
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
      {"{Ñandú} ñ [y] ‹Ana›", 11, "[Y]", "«[y]»"},
      {"{A} = ‹x› [O] {Campo muy largo} = ‹y› [o] {B}", 39, "[Y]", "«[o]»"},
      {"[" + std::string(60, 'x') + "]", 1, "[Entre]", "«[xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx…»"},
      {"{Nombre} [Entre ‹1›", 10, "«]»", "«[»"},
      {"[Acabe en][Comience por] Ana", 1, "` y ´", "«[Acabe en]»"},
      {"‹Ana› [Acabe en] Ana", 7, "` y ´", "«[Acabe en]»"},
      {"{Nombre} = ›Ana‹", 12, "«`»", "«´»"},
      {"‹Ana›› [Acabe en] ‹a›", 6, "«`»", "«´»"},
      {"ñ {Nombre", 3, "«}»", "«{»"},
      {"}{Nombre} = ‹Ana›", 1, "«{»", "«}»"},
      {longest + "x", 32768, "32767", "32768"},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.filter.substr(0, 60));
    const RuntimeError failure = Failure(name_, test.filter);
    EXPECT_THAT(failure.Description(),
                AllOf(HasSubstr("«Nombre» (fila 1, posición " + std::to_string(test.position) + ")"),
                      EndsWith(kAdvice)));
    EXPECT_THAT(failure.Description(), HasSubstr(test.expected));
    EXPECT_THAT(failure.Description(), HasSubstr(test.found));
  }
  EXPECT_EQ(Failure(name_, longest + "x").Number(), kOverflow);
  EXPECT_THAT(Failure(date_, std::string(11, '`')),
              AllOf(Property(&RuntimeError::Number, kInvalidProcedureCall),
                    Property(&RuntimeError::Description, EndsWith(kAdvice))));
  EXPECT_EQ(Failure(name_, "{A} [falso]").Span()->length, 7U);
  const cCampos bracketed = f_.Describe("(COL) Colaboradores", "x.y", "z", "[Tabla].[Campo]", "'");
  EXPECT_EQ(Failure(bracketed, "ñ {z} = ‹a›").Span()->length, 3U) << "the whole group";
}

TEST_F(WhereClause, OtherFailuresStopItToo) {
  f_.selection.rows = {{"n", "lost", "x", 99}};
  EXPECT_THROW(Build(), RuntimeError);
  EXPECT_THAT(f_.reported, ElementsAre("GenerarSQLWHERE ()"));

  f_.selection.rows = {{"n", "no filter", "", 99}};
  f_.Select(account_, "`0123456789a´");
  const struct {
    CodecFactory codecs;
    long number;
    std::string reason;
  } cases[] = {
      {{}, kCannotCreateObject, "No se puede crear el objeto que codifica las cuentas (cCuentaCodec)."},
      {CreateCuentaCodec, kCannotCreateObject, FailureIn([] { CreateCuentaCodec(); }).Description()},
      {[] { return std::make_shared<FailingCodec>(); }, 7001, "Tramo ilegible."},
  };
  for (const auto& test : cases) {
    const auto failure =
        FailureIn([&] { GenerarSQLWHERE(f_.selection, f_.catalogue, test.codecs, f_.Report()); });
    EXPECT_EQ(failure.Number(), test.number);
    EXPECT_EQ(failure.Description(), "Filtro del campo «Cuenta» (fila 2): " + test.reason);
  }
}

}  // namespace
}  // namespace velmar

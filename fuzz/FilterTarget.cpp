#include "fuzz/FilterTarget.h"

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "catalogue/Collection.h"
#include "catalogue/FieldLookup.h"
#include "catalogue/cCampos.h"
#include "fuzz/Violation.h"
#include "platform/error/RuntimeError.h"
#include "platform/jet/Lexer.h"
#include "platform/jet/Translation.h"
#include "platform/text/CodePoints.h"
#include "query/FilterBalance.h"
#include "query/FilterSyntax.h"
#include "query/Selection.h"
#include "query/WhereClause.h"

namespace velmar::fuzz {

namespace {

constexpr std::string_view kStaging =
    "SELECT DISTINCT Colaboradores.Nombre AS [Nombre] INTO ExportacionExcel FROM Colaboradores";

/// The alias of any other database that a filter may name.
std::string Elsewhere(const std::string& /*path*/, const std::string& /*password*/) {
  return "otra";
}

struct Kind {
  const char* internalName;
  const char* column;
  const char* delimiter;
};

constexpr std::array kKinds = {
    Kind{"colaboradores.nombre", "Colaboradores.Nombre", "'"},
    Kind{"donativos.importe", "Donativos.Importe", ""},
    Kind{"recibos.fechacobro", "Recibos.FechaCobro", "'"},
    Kind{"recibos.cuenta", "Cuentas.Numero", "'"},
    Kind{"colaboradores.vacio", "", "'"},
    Kind{"colaboradores.observaciones", "Colaboradores.Observaciones", "\""},
};
constexpr std::size_t kPlainText = 0;
constexpr std::size_t kPlainNumber = 1;
constexpr std::size_t kDate = 2;

/// Gives a tail of any length a form with every sign that a statement could stumble over but the apostrophe.
class Codec : public cCuentaCodec {
 public:
  void CodificarTramo(std::string& tramo) override { tramo = "<" + tramo + "]%>"; }
  void DecodificarTramo(std::string& tramo) override { tramo = tramo.substr(1, tramo.size() - 4); }
};

const Collection<cCampos>& Catalogue() {
  static const Collection<cCampos> kCatalogue = [] {
    Collection<cCampos> fields;
    for (const Kind& kind : kKinds) {
      cCampos field;
      field.IDCampo(static_cast<std::int16_t>(fields.Count() + 1));
      field.LiteralCampo(kind.internalName);
      field.NombreInternoCampo(kind.internalName);
      field.LiteralCampoWHERE(kind.column);
      field.CaracterValorCampo(kind.delimiter);
      fields.Add(field, FieldKey(field.IDCampo()));
    }
    return fields;
  }();
  return kCatalogue;
}

void AddRow(Selection& selection, std::size_t kind, std::string filter) {
  selection.rows.push_back(
      {"(COL) Colaboradores", kKinds[kind].internalName, std::move(filter), static_cast<long>(kind) + 1});
}

/// Nothing if the builder refuses the selection.
std::optional<std::string> Clause(const Selection& selection) {
  try {
    return GenerarSQLWHERE(selection, Catalogue(), [] { return std::make_shared<Codec>(); }, {});
  } catch (const RuntimeError& refused) {
    Demand(refused.Description().find("(fila ") != std::string::npos,
           "a refusal does not tell the row: " + refused.Description());
    return std::nullopt;
  }
}

bool IsText(std::string_view bytes) {
  std::string text;
  for (std::size_t at = 0; at < bytes.size();) text::AppendCodePoint(text, text::NextCodePoint(bytes, at));
  return text == bytes;
}

void FuzzTyped(Input& input) {
  Selection selection;
  bool isText = true;
  for (std::size_t i = 0; !input.Empty() && i < 2 * kKinds.size(); ++i) {
    const std::string filter = input.Line();
    isText = isText && IsText(filter);
    ValidarFiltro(filter);
    AddRow(selection, i % kKinds.size(), filter);
  }
  const std::optional<std::string> where = Clause(selection);
  if (!where) return;
  const bool any = std::any_of(selection.rows.begin(), selection.rows.end(),
                               [](const auto& row) { return !row.filtro.empty(); });
  Demand(where->empty() != any, "a filter is lost, or there is a clause without one");
  // In bytes that are no text, a mark can come about where another is taken out.
  for (const std::string_view mark : {kOpeningMark, kClosingMark}) {
    Demand(!isText || where->find(mark) == std::string::npos, "a mark stays in " + *where);
  }
  const std::string statement = std::string(kStaging) + *where;
  try {
    const jet::Translation translation = jet::Translate(statement, Elsewhere);
    Demand(translation.kind == jet::StatementKind::kSelectInto && translation.target &&
               translation.target->table == "ExportacionExcel" && !translation.target->excel &&
               translation.target->alias == "main",
           "the filter has made the export another statement: " + statement);
  } catch (const RuntimeError& refused) {
    Demand(refused.Span().has_value(), "a refusal without a place: " + refused.Description());
  }
}

/// Builds a filter that the language knows, out of choices.
class Author {
 public:
  Author(Input& input, std::size_t kind) : input_(input), kind_(kind) {}

  std::string Write() {
    std::string filter = Condition();
    for (int more = input_.Byte() % 4; more > 0; --more) {
      filter += (input_.Byte() % 2 == 0 ? " [Y] " : "[O]") + Condition();
    }
    return filter;
  }
  std::size_t Values() const { return values_; }

 private:
  std::string Condition() {
    const int depth = input_.Byte() % 3;
    return std::string(static_cast<std::size_t>(depth), '(') + Bare() +
           std::string(static_cast<std::size_t>(depth), ')');
  }

  std::string Bare() {
    constexpr std::array kSigns = {"=", "<>", "<", "<=", ">", ">="};
    constexpr std::array kPatterns = {"[Comience por]", "[Que contenga]", "[Acabe en]"};
    const std::string group = "{" + Value(kPlainText) + "}";
    switch (input_.Byte() % 4) {
      case 0:
        return group + " [Entre] " + Marked() + " [Y] " + Marked();
      case 1: {
        std::string list = group + " [Igual a uno de] (" + Marked();
        for (int more = input_.Byte() % 4; more > 0; --more) list += ", " + Marked();
        return list + ")";
      }
      case 2:
        // Wildcards would stand beside a bare number, and scramble a date.
        if (kind_ == kPlainText)
          return group + " " + kPatterns[input_.Byte() % kPatterns.size()] + " " + Marked();
        [[fallthrough]];
      default:
        return group + " " + kSigns[input_.Byte() % kSigns.size()] + " " + Marked();
    }
  }

  std::string Marked() {
    ++values_;
    return std::string(kOpeningMark) + Value(kind_) + std::string(kClosingMark);
  }

  /// A value without any of the signs that have a meaning inside of it.
  std::string Value(std::size_t kind) {
    const Bytes taken = input_.Take(input_.Byte() % 24U);
    if (kind == kPlainNumber) return std::to_string(taken.size()) + ".5";
    if (kind == kDate) return "31/12/20" + std::to_string(10 + taken.size());
    std::string value;
    for (const std::uint8_t byte : taken) {
      const char letter = static_cast<char>(byte);
      if (byte >= 0x80) {
        value += "ñ";
      } else if (byte != 0 && std::string_view("`'[](){}\n").find(letter) == std::string_view::npos) {
        value += letter;
      }
    }
    return value;
  }

  Input& input_;
  std::size_t kind_;
  std::size_t values_ = 0;
};

void FuzzWellFormed(Input& input) {
  Selection selection;
  std::size_t texts = 0;
  for (int rows = 1 + input.Byte() % 3; rows > 0; --rows) {
    const std::size_t kind = input.Byte() % 3U;
    Author author(input, kind);
    const std::string filter = author.Write();
    Demand(!ValidarFiltro(filter), "the balance test refuses " + filter);
    AddRow(selection, kind, filter);
    if (kind != kPlainNumber) texts += author.Values();
  }
  const std::optional<std::string> where = Clause(selection);
  Demand(where.has_value(), "a filter that the language knows is refused: " + selection.rows.front().filtro);
  try {
    jet::Translate(std::string(kStaging) + *where, Elsewhere);
    const auto tokens = jet::Lexer(*where).Tokens();
    const auto found = std::count_if(tokens.begin(), tokens.end(), [](const jet::Token& token) {
      return token.kind == jet::TokenKind::kText;
    });
    Demand(static_cast<std::size_t>(found) == texts, "the values are not the clause's texts: " + *where);
  } catch (const RuntimeError& refused) {
    throw Violation("the database does not take" + *where + ": " + refused.Description());
  }
}

}  // namespace

void FuzzFilter(Bytes bytes) {
  Input input(bytes);
  if (input.Byte() % 2 == 0) {
    FuzzTyped(input);
  } else {
    FuzzWellFormed(input);
  }
}

}  // namespace velmar::fuzz

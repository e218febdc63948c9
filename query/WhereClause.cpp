#include "query/WhereClause.h"

#include <array>
#include <exception>
#include <optional>
#include <string_view>
#include <utility>

#include "catalogue/FieldLookup.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/text/Characters.h"
#include "platform/text/Search.h"
#include "query/FilterSyntax.h"
#include "query/GroupedFilter.h"
#include "query/PatternTokens.h"
#include "query/SpecialFields.h"

namespace velmar {

namespace {

constexpr std::string_view kAnd = " AND ";

constexpr std::array<std::pair<std::string_view, std::string_view>, 4> kOperators = {{
    {"[Entre]", " BETWEEN "},
    {"[Igual a uno de]", " IN "},
    {"[Y]", kAnd},
    {"[O]", " OR "},
}};

std::string TranslateFilter(const std::string& filter, const cCampos& field,
                            const std::function<cCuentaCodec&()>& codec) {
  const std::size_t length = text::Len(filter);
  if (length > kMaxFilterLength) {
    throw FilterFault({text::ByteOffset(filter, kMaxFilterLength + 1), 0},
                      "tiene " + std::to_string(length) + " caracteres; se esperaban como mucho " +
                          std::to_string(kMaxFilterLength),
                      kOverflow);
  }
  std::string translated = ReplacePatternTokens(GroupedFilter(filter, field.LiteralCampoWHERE()));
  switch (TreatmentOf(field.NombreInternoCampo())) {
    case ValueTreatment::kNone:
      break;
    case ValueTreatment::kDate:
      translated = RewriteDates(std::move(translated));
      break;
    case ValueTreatment::kAccount:
      translated = RewriteAccount(std::move(translated), codec);
      break;
  }
  translated = text::Replace(translated, kOpeningMark, field.CaracterValorCampo());
  return text::Replace(translated, kClosingMark, field.CaracterValorCampo());
}

/// How a failure in the work on one filter begins: its row, its field and its place in characters.
std::string InFilter(const Selection::Row& row, std::size_t rowNumber,
                     const std::optional<TextSpan>& span = std::nullopt) {
  std::string place;
  if (span) {
    place =
        ", posición " + std::to_string(text::Len(std::string_view(row.filtro).substr(0, span->offset)) + 1);
  }
  return "Filtro del campo «" + row.campo + "» (fila " + std::to_string(rowNumber) + place + "): ";
}

std::string BuildWhere(const Selection& selection, const Collection<cCampos>& mcolCampos,
                       const CodecFactory& codecFactory) {
  std::shared_ptr<cCuentaCodec> held;
  const auto codec = [&]() -> cCuentaCodec& {
    if (held == nullptr && codecFactory) held = codecFactory();
    if (held == nullptr) {
      throw RuntimeError(kCannotCreateObject,
                         "No se puede crear el objeto que codifica las cuentas (cCuentaCodec).",
                         "VelmarExportacion");
    }
    return *held;
  };

  std::string conditions;
  for (std::size_t index = 0; index < selection.rows.size(); ++index) {
    const Selection::Row& row = selection.rows[index];
    if (row.filtro.empty()) continue;
    const cCampos& field = FindField(mcolCampos, row.idCampo);
    try {
      conditions.append(TranslateFilter(row.filtro, field, codec)).append(kAnd);
    } catch (const FilterFault& fault) {
      throw RuntimeError(fault.Number(),
                         InFilter(row, index + 1, fault.Span()) + fault.Description() +
                             ". Corrija el filtro y vuelva a exportar.",
                         fault.Source(), fault.Span());
    } catch (const RuntimeError& failure) {
      throw RuntimeError(failure.Number(), InFilter(row, index + 1) + failure.Description(),
                         failure.Source());
    }
  }
  if (conditions.empty()) return {};
  for (const auto& [token, sql] : kOperators) conditions = text::Replace(conditions, token, sql);
  conditions.resize(conditions.size() - (kAnd.size() - 1));
  return " WHERE " + conditions;
}

}  // namespace

std::string GenerarSQLWHERE(const Selection& selection, const Collection<cCampos>& mcolCampos,
                            const CodecFactory& codecFactory, const FailureReport& report) {
  std::string clause;
  std::exception_ptr failure;
  RunReporting(report, "GenerarSQLWHERE ()", [&] {
    try {
      clause = BuildWhere(selection, mcolCampos, codecFactory);
    } catch (...) {
      failure = std::current_exception();
      throw;
    }
  });
  if (failure) std::rethrow_exception(failure);
  return clause;
}

}  // namespace velmar

#include "query/SpecialFields.h"

#include <algorithm>
#include <array>

#include "platform/text/Characters.h"
#include "platform/text/Search.h"
#include "query/FilterSyntax.h"

namespace velmar {

namespace {

constexpr std::array<std::string_view, 7> kDateFields = {
    "colaboradores.fechanacimiento",
    "colaboradores.fechaalta",
    "colaboradores.fechabaja",
    "donativos.fechaalta",
    "donativos.fechaprimerpago",
    "recibos.fechaemision",
    "recibos.fechacobro",
};

constexpr std::array<std::string_view, 4> kAccountFields = {
    "colaboradores.cuenta",
    "donativos.cuenta",
    "recibos.cuenta",
    "remesas.cuenta",
};

constexpr std::size_t kDateLength = 10;
constexpr std::size_t kPlainHead = 10;
constexpr std::size_t kTailLength = 11;

/// The first characters of the text at a byte, without a look at all that follows.
std::string CharactersAt(std::string_view text, std::size_t offset, std::size_t count) {
  constexpr std::size_t kMaxBytes = 4;
  return text::Left(text.substr(offset, count * kMaxBytes), count);
}

}  // namespace

ValueTreatment TreatmentOf(std::string_view nombreInternoCampo) {
  const auto isOneOf = [&](const auto& names) {
    return std::find(names.begin(), names.end(), nombreInternoCampo) != names.end();
  };
  if (isOneOf(kDateFields)) return ValueTreatment::kDate;
  if (isOneOf(kAccountFields)) return ValueTreatment::kAccount;
  return ValueTreatment::kNone;
}

std::string RewriteDates(std::string text) {
  std::string result;
  result.reserve(text.size());
  // What is put in is scanned again and may hold marks itself; at the end of the text they can multiply.
  std::size_t marksLeft = text.size();
  std::size_t at = 0;
  for (std::size_t mark = text.find(kOpeningMark); mark != text.npos; mark = text.find(kOpeningMark, at)) {
    if (marksLeft-- == 0) {
      throw FilterFault("las marcas de los valores no tienen fechas detrás; se esperaba `dd/mm/aaaa´");
    }
    const std::size_t behind = mark + kOpeningMark.size();
    result.append(text, at, behind - at);
    const std::string date = CharactersAt(text, behind, kDateLength);
    const std::string turned = text::Right(date, 4) + text::Mid(date, 4, 2) + text::Left(date, 2);
    // Ten characters give way to eight of them, so there is room in front of what follows; only at the end of
    // the text can fewer than ten grow.
    at = behind + date.size() - std::min(date.size(), turned.size());
    text.replace(at, behind + date.size() - at, turned);
  }
  return result.append(text, at);
}

std::string RewriteAccount(std::string text, const std::function<cCuentaCodec&()>& codec) {
  const std::size_t mark = text.find(kOpeningMark);
  if (mark == text.npos) return text;
  const std::string value = CharactersAt(text, mark + kOpeningMark.size(), kPlainHead + kTailLength);
  const std::size_t close = value.find(kClosingMark);
  const std::string tail = text::Mid(value.substr(0, close), kPlainHead + 1);
  if (tail.empty()) return text;

  std::string coded = tail;
  codec().CodificarTramo(coded);
  // A tail that the closing mark ends is sought together with it, so that the same digits in the value's head
  // are not taken for it.
  const std::string_view end = close == value.npos ? std::string_view() : kClosingMark;
  return text::Replace(text, tail + std::string(end), coded.append(end), text::Comparison::kText, 1);
}

}  // namespace velmar

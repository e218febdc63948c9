// Prints the median time of each clause builder, in microseconds, beside that of a floor: the bare append of
// the same output, byte by byte, to an empty text.

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <functional>
#include <iostream>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "catalogue/FieldLookup.h"
#include "platform/text/Characters.h"
#include "query/FilterBalance.h"
#include "query/FromClause.h"
#include "query/ListClauses.h"
#include "query/SelectionValidation.h"
#include "query/WhereClause.h"

namespace {

using velmar::cCampos;
using velmar::Collection;
using velmar::Selection;

constexpr int kRuns = 501;
constexpr int kFields = 200;
constexpr std::size_t kFilterLength = 32000;

volatile std::size_t sink;

double MedianMicroseconds(const std::function<std::string()>& run) {
  std::vector<double> times;
  for (int count = 0; count < kRuns; ++count) {
    const auto start = std::chrono::steady_clock::now();
    const std::string result = run();
    const auto end = std::chrono::steady_clock::now();
    sink = result.size();
    times.push_back(std::chrono::duration<double, std::micro>(end - start).count());
  }
  std::nth_element(times.begin(), times.begin() + kRuns / 2, times.end());
  return times[kRuns / 2];
}

void Print(const char* name, const std::function<std::string()>& run) {
  const std::string output = run();
  const double time = MedianMicroseconds(run);
  const double floor = MedianMicroseconds([&] {
    std::string copy;
    for (const char byte : output) copy.push_back(byte);
    return copy;
  });
  std::printf("%-44s %9zu %10.1f %10.2f %8.1f\n", name, output.size(), time, floor, time / floor);
}

class Codec : public velmar::cCuentaCodec {
 public:
  void CodificarTramo(std::string& tramo) override { std::reverse(tramo.begin(), tramo.end()); }
  void DecodificarTramo(std::string& tramo) override { std::reverse(tramo.begin(), tramo.end()); }
};

std::string Repeated(const std::string& piece) {
  const std::size_t length = velmar::text::Len(piece);
  std::string filter;
  for (std::size_t count = 0; count + length <= kFilterLength; count += length) filter += piece;
  return filter;
}

void AddField(Collection<cCampos>& catalogue, int id, const std::string& internalName) {
  cCampos field;
  const std::string number = std::to_string(id);
  field.IDCampo(static_cast<std::int16_t>(id));
  field.LiteralTabla(id % 2 == 0 ? "(COL) Colaboradores" : "(REC) Recibos");
  field.NombreInternoCampo(internalName);
  field.LiteralCampo("Campo número " + number + " de todos");
  field.LiteralCampoSELECT("Colaboradores.Campo" + number + " AS [Campo " + number + "]");
  field.LiteralCampoORDERBY("Colaboradores.Campo" + number);
  field.LiteralCampoWHERE("Colaboradores.Campo" + number);
  field.CaracterValorCampo("'");
  catalogue.Add(field, velmar::FieldKey(id));
}

void Run() {
  Collection<cCampos> catalogue;
  Selection wide;
  for (int id = 1; id <= kFields; ++id) {
    AddField(catalogue, id, "colaboradores.camponumero" + std::to_string(id));
    wide.rows.push_back({id % 2 == 0 ? "(COL) Colaboradores" : "(REC) Recibos", "Campo",
                         "{Campo} [Entre] `10´ [Y] `20´ [O] {Campo} [Comience por] `A´", id});
    wide.order.push_back(id);
  }
  const int plain = 1;
  const int date = kFields + 1;
  const int account = kFields + 2;
  AddField(catalogue, date, "recibos.fechaemision");
  AddField(catalogue, account, "recibos.cuenta");

  const velmar::FailureReport report = [](const velmar::RuntimeError& failure, const std::string& routine) {
    std::cerr << routine << ": " << failure.what() << "\n";
  };
  const velmar::CodecFactory codec = [] { return std::make_shared<Codec>(); };

  std::printf("%-44s %9s %10s %10s %8s\n", "", "bytes out", "median µs", "floor µs", "ratio");
  Print("validation, 200 fields", [&] { return ValidarExportacion(wide, catalogue).value_or("accepted"); });
  Print("SELECT, 200 fields", [&] { return GenerarSQLSELECT(wide, catalogue, report); });
  Print("FROM, 200 fields", [&] { return GenerarSQLFROM(wide, catalogue, report); });
  Print("WHERE, 200 fields with a filter each",
        [&] { return GenerarSQLWHERE(wide, catalogue, codec, report); });
  Print("ORDER BY, 200 fields", [&] { return GenerarSQLORDERBY(wide, catalogue, report); });

  const std::vector<std::pair<const char*, std::pair<int, std::string>>> filters = {
      {"WHERE, 32,000 characters, one value", {plain, "{C} = `" + std::string(kFilterLength - 8, 'x') + "´"}},
      {"WHERE, 32,000 characters, ñ alone", {plain, Repeated("ñ")}},
      {"WHERE, 32,000 characters, comparisons", {plain, Repeated("{C} = `valor´ [O] ")}},
      {"WHERE, 32,000 characters, patterns", {plain, Repeated("{C} [Que contenga] `ñu´ [Y] ")}},
      {"WHERE, 32,000 characters, groups alone", {plain, Repeated("{}")}},
      {"WHERE, 32,000 characters, tokens on one value", {plain, Repeated("[Acabe en]") + "`x´"}},
      {"WHERE, 32,000 characters, dates", {date, Repeated("{F} = `01/02/2024´ [O] ")}},
      {"WHERE, 32,000 characters, short dates", {date, Repeated("`1´")}},
      {"WHERE, 32,000 characters, accounts", {account, Repeated("{C} = `00112222333344445555´ [O] ")}},
  };
  for (const auto& [name, filter] : filters) {
    Selection narrow;
    narrow.rows.push_back({"(REC) Recibos", "Campo", filter.second, filter.first});
    Print(name, [&] { return GenerarSQLWHERE(narrow, catalogue, codec, report); });
  }
  const std::string balanced = Repeated("( {C} [Entre] `1´ [Y] `2´ ) ");
  Print("balance test, 32,000 characters",
        [&] { return velmar::ValidarFiltro(balanced) ? std::string("warned") : balanced; });
}

}  // namespace

int main() {
  try {
    Run();
    return 0;
  } catch (const std::exception& failure) {
    std::cerr << failure.what() << "\n";
    return 1;
  }
}

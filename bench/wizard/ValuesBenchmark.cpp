// Prints what the value picker takes to list many values of a text, a number and an account field, beside the
// bare query that gives the same values through the same connection, without and with one sort of them at the
// end. Medians of processor time.

#include <stdlib.h>
#include <time.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "catalogue/FieldLookup.h"
#include "host/interfaces/modVelmarExportacion.h"
#include "platform/ado/BulkInsert.h"
#include "platform/ado/Catalog.h"
#include "platform/ado/Recordset.h"
#include "platform/text/Collation.h"
#include "platform/toolkit/MakeForm.h"
#include "platform/toolkit/ScriptedToolkit.h"
#include "sample/AccountCodec.h"
#include "sample/SampleFiles.h"
#include "sample/host/SampleClasses.h"
#include "sample/host/SampleHost.h"
#include "wizard/ValueQueries.h"
#include "wizard/frmDatos.h"

namespace velmar::bench {
namespace {

constexpr std::array<const char*, 3> kFields = {"colaboradores.nombre", "colaboradores.idcolaborador",
                                                "colaboradores.cuenta"};
constexpr std::array<const char*, 3> kNames = {"texto", "número", "cuenta"};

struct Options {
  long values = 100000;
  int rounds = 7;
};

/// A main database whose three fields have so many values each; gone with this object.
class Office {
 public:
  explicit Office(long values) {
    if (mkdtemp(folder_.data()) == nullptr) throw std::runtime_error("no hay carpeta temporal");
    sample::SampleHost::Settings settings;
    settings.folder = folder_;
    host = std::make_shared<sample::SampleHost>(settings);
    ADOX::Catalog().Create(sample::ConnectionTextOf(sample::PathIn(folder_, sample::kMainFile)));
    host->conGestion()->Open();
    Fill(*host->conGestion(), values);
    for (const char* name : kFields) {
      cCampos field;
      field.IDCampo(static_cast<std::int16_t>(catalogue.Count() + 1));
      field.NombreInternoCampo(name);
      catalogue.Add(field, FieldKey(field.IDCampo()));
    }
    objHost = host;
    sample::RegisterSampleClasses(surroundings, settings.title);
  }
  ~Office() {
    objHost = nullptr;
    host.reset();
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }
  Office(const Office&) = delete;
  Office& operator=(const Office&) = delete;

  std::shared_ptr<sample::SampleHost> host;
  toolkit::ScriptedToolkit surroundings;
  Collection<cCampos> catalogue;

 private:
  /// Names come in no order, as people do; half of them have an accent.
  static void Fill(ADODB::Connection& main, long values) {
    for (const char* statement :
         {"CREATE TABLE Colaboradores (IDColaborador LONG, Nombre TEXT(100), Eliminado BIT)",
          "CREATE TABLE Bancos (IDBanco LONG, Numero TEXT(4))",
          "CREATE TABLE Sucursales (IDSucursal LONG, CodBanco LONG, Codigo TEXT(4))",
          "CREATE TABLE Cuentas (CodSucursal LONG, DC TEXT(2), Numero TEXT(20), Eliminado BIT)",
          "INSERT INTO Bancos VALUES (1, '0049')", "INSERT INTO Sucursales VALUES (1, 1, '1500')"}) {
      main.Execute(statement);
    }
    main.BeginTrans();
    ADODB::BulkInsert people(main, "Colaboradores", {"IDColaborador", "Nombre", "Eliminado"});
    ADODB::BulkInsert accounts(main, "Cuentas", {"CodSucursal", "DC", "Numero", "Eliminado"});
    for (long i = 0; i < values; ++i) {
      const long mixed = (i * 77773 + 12345) % values;
      const std::string number = std::to_string(1'000'000'000L + mixed);
      people.Row(
          {static_cast<long long>(mixed + 1), (i % 2 == 0 ? "María Núñez " : "Ana Lopez ") + number, false});
      accounts.Row({1LL, std::string("57"), sample::AccountCodec::Encode(number), false});
    }
    main.CommitTrans();
  }

  std::string folder_ = (std::filesystem::temp_directory_path() / "velmar-valores-XXXXXX").string();
};

double CpuSeconds() {
  timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

void Require(long count, const Options& options) {
  if (count != options.values) throw std::runtime_error("se han leído " + std::to_string(count) + " valores");
}

/// The values as the connection gives them, each as text.
std::vector<std::string> ListBare(Office& office, std::size_t field) {
  const auto rows = office.host->conGestion()->Execute(wizard::ObtenerSQLValorCampo(kFields[field]));
  std::vector<std::string> values;
  for (; !rows->Eof(); rows->MoveNext()) values.push_back(rows->Fields("Campo").Value().AsText());
  return values;
}

/// The same in the order of a sorted list, by one sort at the end.
std::vector<std::string> ListSorted(Office& office, std::size_t field) {
  std::vector<std::string> values = ListBare(office, field);
  std::stable_sort(values.begin(), values.end(),
                   [](const std::string& a, const std::string& b) { return text::CompareText(a, b) < 0; });
  return values;
}

/// The dialog from its showing to its closing.
long ListInDialog(Office& office, std::size_t field) {
  long count = 0;
  office.surroundings.WhenShown("frmDatos", [&](toolkit::Form& form) {
    count = dynamic_cast<wizard::frmDatos&>(form).lstDatos.ListCount();
    form.UserClose();
  });
  const auto dialog = toolkit::MakeForm<wizard::frmDatos>(office.surroundings, office.catalogue);
  dialog->mintIDCampo = static_cast<std::int16_t>(field + 1);
  dialog->Show();
  return count;
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

void Run(const Options& options) {
  Office office(options.values);
  std::printf("%ld valores distintos, medianas de %d veces, tiempo de procesador\n", options.values,
              options.rounds);
  std::printf("%-10s %12s %12s %12s %8s\n", "campo", "consulta ms", "y orden ms", "selector ms", "razón");
  for (std::size_t field = 0; field < kFields.size(); ++field) {
    const std::array<std::function<long()>, 3> steps = {
        [&] { return static_cast<long>(ListBare(office, field).size()); },
        [&] { return static_cast<long>(ListSorted(office, field).size()); },
        [&] { return ListInDialog(office, field); }};
    std::array<std::vector<double>, 3> seconds;
    for (int round = 0; round < options.rounds; ++round) {
      for (std::size_t step = 0; step < steps.size(); ++step) {
        const double start = CpuSeconds();
        Require(steps[step](), options);
        seconds[step].push_back(CpuSeconds() - start);
      }
    }
    const double bare = Median(seconds[0]);
    const double dialog = Median(seconds[2]);
    std::printf("%-10s %12.1f %12.1f %12.1f %8.2f\n", kNames[field], bare * 1e3, Median(seconds[1]) * 1e3,
                dialog * 1e3, dialog / bare);
  }
}

Options Parse(const std::vector<std::string>& words) {
  Options options;
  for (std::size_t i = 0; i + 1 < words.size(); i += 2) {
    if (words[i] == "--valores") {
      options.values = std::max(1L, std::stol(words[i + 1]));
    } else if (words[i] == "--veces") {
      options.rounds = std::max(1, std::stoi(words[i + 1]));
    } else {
      throw std::runtime_error("opción desconocida: " + words[i]);
    }
  }
  return options;
}

}  // namespace
}  // namespace velmar::bench

int main(int count, char** words) {
  try {
    velmar::bench::Run(velmar::bench::Parse({words + 1, words + count}));
    return 0;
  } catch (const std::exception& failure) {
    std::cerr << failure.what() << '\n';
    return 1;
  }
}

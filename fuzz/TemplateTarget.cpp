#include "fuzz/TemplateTarget.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "fuzz/ScratchFolder.h"
#include "fuzz/Violation.h"
#include "platform/ado/Catalog.h"
#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "templates/TemplateStore.h"

namespace velmar::fuzz {

namespace {

using templates::TemplateContent;
using templates::TemplateStore;

constexpr std::int32_t kUser = 7;
constexpr std::int32_t kOther = 8;
constexpr const char* kNode = "(COL) Colaboradores";

/// A main database where two users have templates, some of the same name.
class Office {
 public:
  Office() {
    ADOX::Catalog().Create(folder_.Text("Gestion.mdb"));
    connection_->Open(folder_.Text("Gestion.mdb"));
    connection_->Execute(
        "CREATE TABLE ExportacionPlantillas (Nombre TEXT(150), CodUsuario LONG, LiteralTabla TEXT(40), "
        "IDCampo SHORT, LiteralCampo TEXT(60), OrdenCampo SHORT, FiltroCampo MEMO)");
    for (const char* name : {"Socios", "Árbol", "%", "a b", "O\"Donnell"}) {
      Store(kOther).Save(name, Example(), TemplateStore::Existing::kNone);
    }
    others_ = Rows();
  }

  static TemplateContent Example() {
    return {{{kNode, "Nombre", "{Nombre} [Comience por] `A´", 1}, {kNode, "NIF", "", 2}},
            {{"(COL) Nombre", 1}}};
  }

  TemplateStore Store(std::int32_t user = kUser) const { return {connection_, user}; }
  /// A store that no statement can get through.
  TemplateStore ClosedStore() const { return {std::make_shared<ADODB::Connection>(), kUser}; }

  /// The user's templates are the same for every input.
  void Reset() {
    connection_->Execute("DELETE * FROM ExportacionPlantillas WHERE CodUsuario <> " + std::to_string(kOther));
    Store().Save("Socios", Example(), TemplateStore::Existing::kNone);
  }
  void DemandOthersUntouched(const std::string& after) const {
    Demand(Rows() == others_, "another user's rows are not what they were after " + after);
  }

 private:
  std::vector<std::string> Rows() const {
    std::vector<std::string> lines;
    const auto rows = connection_->Execute("SELECT * FROM ExportacionPlantillas WHERE CodUsuario <> " +
                                           std::to_string(kUser));
    for (; !rows->Eof(); rows->MoveNext()) {
      std::string line;
      for (long i = 0; i < rows->Fields().Count(); ++i) line += rows->Fields(i).Value().AsText() + '|';
      lines.push_back(line);
    }
    return lines;
  }

  ScratchFolder folder_{"template"};
  std::shared_ptr<ADODB::Connection> connection_ = std::make_shared<ADODB::Connection>();
  std::vector<std::string> others_;
};

/// 0 if the action has no failure.
template <typename Action>
long FailureOf(Action&& action) {
  try {
    action();
    return 0;
  } catch (const RuntimeError& failure) {
    Demand(!failure.Description().empty(), "a failure without a description");
    return failure.Number();
  }
}

bool Same(const TemplateContent& left, const TemplateContent& right) {
  return std::equal(left.fields.begin(), left.fields.end(), right.fields.begin(), right.fields.end(),
                    [](const auto& l, const auto& r) {
                      return l.tabla == r.tabla && l.campo == r.campo && l.filtro == r.filtro &&
                             l.idCampo == r.idCampo;
                    });
}

TemplateContent ReadContent(Input& input) {
  TemplateContent content;
  for (const std::size_t count = 1 + input.Byte() % 4U; content.fields.size() < count;) {
    const std::string literal = input.Line();
    const std::string filter = input.Line();
    const long number = static_cast<long>(content.fields.size()) + 1;
    content.fields.push_back({kNode, literal, filter, number});
    if (number % 2 == 0) content.order.push_back({templates::SortText(kNode, literal), number});
  }
  return content;
}

void Save(const TemplateStore& store, const std::string& name, const TemplateContent& content) {
  const long failure = FailureOf([&] { store.Save(name, content, TemplateStore::Existing::kReplace); });
  if (failure != 0) return;
  TemplateContent loaded;
  store.Load(name, loaded);
  Demand(Same(loaded, content), "a template does not come back as it was saved: " + name);
  Demand(store.Exists(name), "a template is not there after it was saved: " + name);
}

}  // namespace

void FuzzTemplate(Bytes bytes) {
  static Office office;
  office.Reset();
  Input input(bytes);
  const TemplateStore store = office.Store();
  for (int calls = 0; calls < 8 && !input.Empty(); ++calls) {
    const std::uint8_t call = input.Byte();
    const std::string name = input.Line();
    const bool plain = name.find('\'') == std::string::npos && name.find('\0') == std::string::npos;
    TemplateContent content;
    const auto run = [&](const TemplateStore& on) {
      switch (call) {
        case 's':
          if (&on == &store) content = ReadContent(input);
          Save(on, name, content);
          return;
        case 'd':
          return on.Delete(name);
        case 'e':
          on.Exists(name);
          return;
        default:
          return on.Load(name, content);
      }
    };
    const long failure = FailureOf([&] { run(store); });
    office.DemandOthersUntouched("'" + std::string(1, static_cast<char>(call)) + "' with the name " + name);
    Demand(plain || call == 's' || failure == kQuerySyntax, "a name that ends its text was taken: " + name);
    if (!plain) {
      const TemplateStore closed = office.ClosedStore();
      const long unsent = FailureOf([&] {
        call == 's' ? closed.Save(name, Office::Example(), TemplateStore::Existing::kReplace) : run(closed);
      });
      Demand(unsent == kQuerySyntax, "a statement ran for the name " + name);
    } else if (call == 'd' && failure == 0) {
      Demand(!store.Exists(name), "a template is still there after it was deleted: " + name);
    }
    const std::vector<std::string> names = store.Names();
    Demand(names.size() == store.Summaries().size(), "the two lists of templates differ");
  }
}

}  // namespace velmar::fuzz

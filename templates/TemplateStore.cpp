#include "templates/TemplateStore.h"

#include <cstddef>
#include <limits>
#include <utility>

#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"
#include "platform/error/ErrObject.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/text/Collation.h"
#include "platform/text/Search.h"

namespace velmar::templates {

namespace {

constexpr const char* kSource = "ExportacionPlantillas";

/// Values stand in the statements as they are: an apostrophe would end a text early, a zero character the
/// statement.
void RequirePlain(const std::string& value, const std::string& what) {
  if (value.find('\'') != std::string::npos) {
    throw RuntimeError(kQuerySyntax,
                       what + " lleva un apóstrofo (') y no puede formar parte de una consulta: «" + value +
                           "». Escríbalo sin apóstrofos.",
                       kSource);
  }
  if (value.find('\0') != std::string::npos) {
    throw RuntimeError(kQuerySyntax, what + " lleva un carácter nulo. Bórrelo.", kSource);
  }
}

std::string ShortInteger(long value, const std::string& what) {
  using Limits = std::numeric_limits<std::int16_t>;
  if (value < Limits::min() || value > Limits::max()) {
    throw RuntimeError(kOverflow, what + " " + std::to_string(value) + " no está entre -32768 y 32767.",
                       kSource);
  }
  return std::to_string(value);
}

/// The field's place in the sort list, -1 if it is not there.
long PlaceInOrder(const TemplateContent& content, const TemplateContent::Field& field) {
  const std::string sought = SortText(field.tabla, field.campo);
  for (std::size_t i = 0; i < content.order.size(); ++i) {
    if (text::EqualText(content.order[i].text, sought)) return static_cast<long>(i);
  }
  return -1;
}

/// A transaction that is rolled back unless Commit was reached.
class Transaction {
 public:
  explicit Transaction(ADODB::Connection& connection) : connection_(connection) { connection_.BeginTrans(); }
  ~Transaction() {
    ErrObject Err;
    if (!committed_) Err.Try([this] { connection_.RollbackTrans(); });
  }
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;

  void Commit() {
    connection_.CommitTrans();
    committed_ = true;
  }

 private:
  ADODB::Connection& connection_;
  bool committed_ = false;
};

ADODB::Variant Value(const ADODB::Recordset& rows, std::string_view column) {
  return rows.Fields(column).Value();
}

}  // namespace

std::string PrepararTextoSQL(std::string_view text) {
  return text::Replace(text, "\"", "''");
}

TemplateStore::TemplateStore(std::shared_ptr<ADODB::Connection> conGestion, std::int32_t codUsuario,
                             std::function<void()> doEvents)
    : conGestion_(std::move(conGestion)), codUsuario_(codUsuario), doEvents_(std::move(doEvents)) {
  if (conGestion_ == nullptr) {
    throw RuntimeError(kObjectNotSet, "La aplicación no ofrece la base de datos de gestión (conGestion).",
                       kSource);
  }
}

std::string TemplateStore::Where(const std::string& name) const {
  RequirePlain(name, "El nombre de la plantilla");
  return "WHERE Nombre = '" + PrepararTextoSQL(name) + "' AND CodUsuario = " + std::to_string(codUsuario_);
}

std::shared_ptr<ADODB::Recordset> TemplateStore::Select(const std::string& statement) const {
  auto rows = conGestion_->Execute(statement);
  if (doEvents_) doEvents_();
  return rows;
}

std::vector<std::string> TemplateStore::Names() const {
  const auto rows = Select(
      "SELECT Nombre "
      "FROM ExportacionPlantillas "
      "WHERE CodUsuario = " +
      std::to_string(codUsuario_) +
      " "
      "GROUP BY Nombre "
      "ORDER BY Nombre");
  std::vector<std::string> names;
  for (; !rows->Eof(); rows->MoveNext()) names.push_back(Value(*rows, "Nombre").AsText());
  if (rows->State() == ADODB::kStateOpen) rows->Close();
  return names;
}

std::vector<TemplateStore::Summary> TemplateStore::Summaries() const {
  const auto rows = Select(
      "SELECT Nombre, Count(*) AS Campos, Sum(IIf(FiltroCampo <> '', 1, 0)) AS Filtros, "
      "Sum(IIf(OrdenCampo <> -1, 1, 0)) AS Ordenados FROM ExportacionPlantillas WHERE CodUsuario = " +
      std::to_string(codUsuario_) + " GROUP BY Nombre ORDER BY Nombre");
  const auto number = [&rows](std::string_view column) {
    return static_cast<long>(Value(*rows, column).AsLong());
  };
  std::vector<Summary> summaries;
  for (; !rows->Eof(); rows->MoveNext()) {
    summaries.push_back(
        {Value(*rows, "Nombre").AsText(), number("Campos"), number("Filtros"), number("Ordenados")});
  }
  return summaries;
}

bool TemplateStore::Exists(const std::string& name) const {
  return Select("SELECT Nombre FROM ExportacionPlantillas " + Where(name))->RecordCount() != 0;
}

void TemplateStore::Load(const std::string& name, TemplateContent& into, const Progress& progress) const {
  into = {};
  const std::string where = Where(name);
  long total = 0;
  const auto tell = [&](long done) {
    if (progress) progress(done, total);
  };

  const auto rows =
      Select("SELECT LiteralTabla, LiteralCampo, IDCampo, FiltroCampo FROM ExportacionPlantillas " + where);
  total = rows->RecordCount();
  tell(0);
  for (long done = 1; !rows->Eof(); rows->MoveNext(), ++done) {
    tell(done);
    into.fields.push_back({Value(*rows, "LiteralTabla").AsText(), Value(*rows, "LiteralCampo").AsText(),
                           Value(*rows, "FiltroCampo").TextOrEmpty(),
                           static_cast<long>(Value(*rows, "IDCampo").AsLong())});
  }
  if (rows->State() == ADODB::kStateOpen) rows->Close();
  tell(total);

  const auto order =
      Select("SELECT IDCampo, LiteralCampo, OrdenCampo, LiteralTabla FROM ExportacionPlantillas " + where +
             " AND OrdenCampo <> -1 ORDER BY OrdenCampo");
  tell(0);
  for (long done = 1; !order->Eof(); order->MoveNext(), ++done) {
    tell(done);
    into.order.push_back(
        {SortText(Value(*order, "LiteralTabla").AsText(), Value(*order, "LiteralCampo").AsText()),
         static_cast<long>(Value(*order, "IDCampo").AsLong())});
  }
  tell(total);
  if (order->State() == ADODB::kStateOpen) order->Close();
}

std::string TemplateStore::InsertStatement(const std::string& name, const TemplateContent::Field& field,
                                           long ordenCampo) const {
  RequirePlain(field.tabla, "El nodo del campo «" + field.campo + "»");
  RequirePlain(field.campo, "El literal de un campo de la plantilla");
  RequirePlain(field.filtro, "El filtro del campo «" + field.campo + "»");
  const std::string whose = " del campo «" + field.campo + "»";
  return "INSERT INTO ExportacionPlantillas (Nombre, CodUsuario, LiteralTabla, IDCampo, LiteralCampo, "
         "OrdenCampo, FiltroCampo) VALUES ('" +
         PrepararTextoSQL(name) + "', " + std::to_string(codUsuario_) + ", '" + field.tabla + "', " +
         ShortInteger(field.idCampo, "El número" + whose) + ", '" + field.campo + "', " +
         ShortInteger(ordenCampo, "El orden" + whose) + ", '" + field.filtro + "')";
}

void TemplateStore::Save(const std::string& name, const TemplateContent& content, Existing existing,
                         const Progress& progress) const {
  const std::string where = Where(name);
  if (content.fields.empty()) {
    throw RuntimeError(kInvalidProcedureCall,
                       "La plantilla «" + name + "» no tiene campos. Agregue alguno antes de salvarla.",
                       kSource);
  }
  std::vector<std::string> statements;
  for (const TemplateContent::Field& field : content.fields) {
    statements.push_back(InsertStatement(name, field, PlaceInOrder(content, field)));
  }

  Transaction transaction(*conGestion_);
  if (existing == Existing::kReplace) conGestion_->Execute("DELETE * FROM ExportacionPlantillas " + where);
  const long total = static_cast<long>(statements.size());
  if (progress) progress(0, total);
  for (long done = 0; done < total; ++done) {
    if (progress) progress(done + 1, total);
    conGestion_->Execute(statements[static_cast<std::size_t>(done)]);
  }
  transaction.Commit();
}

void TemplateStore::Delete(const std::string& name) const {
  conGestion_->Execute("DELETE * FROM ExportacionPlantillas " + Where(name));
}

}  // namespace velmar::templates

#include "catalogue/CatalogueReader.h"

#include <cstdint>
#include <limits>
#include <memory>
#include <string>

#include "catalogue/FieldLookup.h"
#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar {

namespace {

template <typename Conversion>
auto Read(const ADODB::Recordset& recordset, const char* column, Conversion conversion) {
  const ADODB::Variant value = recordset.Fields(std::string_view(column)).Value();
  try {
    return conversion(value);
  } catch (const RuntimeError& failure) {
    throw RuntimeError(failure.Number(),
                       std::string("Columna ") + column + " de la tabla ExportacionCampos: " +
                           failure.Description() + " Corrija la fila en la base de datos de gestión.",
                       failure.Source());
  }
}

/// The columns of the current row, each failure told with the column's name.
class Row {
 public:
  explicit Row(const ADODB::Recordset& recordset) : recordset_(recordset) {}

  std::string Text(const char* column) const {
    return Read(recordset_, column, [](const ADODB::Variant& value) { return value.AsText(); });
  }

  std::string TextOrEmpty(const char* column) const {
    return Read(recordset_, column, [](const ADODB::Variant& value) { return value.TextOrEmpty(); });
  }

  std::int16_t Number(const char* column) const {
    return Read(recordset_, column, [](const ADODB::Variant& value) {
      const long long number = value.AsLong();
      using Limits = std::numeric_limits<std::int16_t>;
      if (number < Limits::min() || number > Limits::max()) {
        throw RuntimeError(kOverflow,
                           "El número " + std::to_string(number) + " no está entre -32768 y 32767.",
                           "VelmarExportacion");
      }
      return static_cast<std::int16_t>(number);
    });
  }

 private:
  const ADODB::Recordset& recordset_;
};

template <typename Take>
void ForEachRow(ADODB::Recordset& recordset, Take take) {
  for (; !recordset.Eof(); recordset.MoveNext()) take(Row(recordset));
  if (recordset.State() == ADODB::kStateOpen) recordset.Close();
}

cCampos ReadField(const Row& row) {
  cCampos field;
  field.IDCampo(row.Number("IDCampo"));
  field.NombreInternoCampo(row.Text("NombreInternoCampo"));
  field.LiteralCampo(row.Text("LiteralCampo"));
  field.CaracterValorCampo(row.TextOrEmpty("CaracterValorCampo"));
  field.LiteralCampoSELECT(row.Text("LiteralCampoSELECT"));
  field.LiteralCampoORDERBY(row.Text("LiteralCampoORDERBY"));
  field.LiteralCampoWHERE(row.Text("LiteralCampoWHERE"));
  field.IDTabla(row.Number("IDTabla"));
  field.LiteralTabla(row.Text("LiteralTabla"));
  return field;
}

class NodeUpdate {
 public:
  explicit NodeUpdate(NodeSink& sink) : sink_(sink) { sink_.BeginNodes(); }
  ~NodeUpdate() { sink_.EndNodes(); }
  NodeUpdate(const NodeUpdate&) = delete;
  NodeUpdate& operator=(const NodeUpdate&) = delete;

 private:
  NodeSink& sink_;
};

}  // namespace

void LlenarColeccionCampos(ADODB::Connection& conGestion, Collection<cCampos>& mcolCampos,
                           const std::function<void()>& doEvents, const FailureReport& report) {
  RunReporting(report, "LlenarColeccionCampos ()", [&] {
    const auto recordset = conGestion.Execute(
        "SELECT IDCampo, NombreInternoCampo, "
        "LiteralCampo, CaracterValorCampo, "
        "LiteralCampoSELECT, LiteralCampoORDERBY, LiteralCampoWHERE, "
        "IDTabla, LiteralTabla "
        "FROM ExportacionCampos "
        "ORDER BY IDCampo");
    if (doEvents) doEvents();
    ForEachRow(*recordset, [&](const Row& row) {
      cCampos field = ReadField(row);
      std::string key = FieldKey(field.IDCampo());
      mcolCampos.Add(std::move(field), std::move(key));
    });
  });
}

void LeerTablasExportacion(ADODB::Connection& conGestion, NodeSink& sink,
                           const std::function<void()>& doEvents, const FailureReport& report) {
  RunReporting(report, "fillTablasExportacion ()", [&] {
    const auto recordset = conGestion.Execute(
        "SELECT DISTINCT IDTabla, LiteralTabla "
        "FROM ExportacionCampos "
        "ORDER BY LiteralTabla ASC");
    if (doEvents) doEvents();
    const NodeUpdate update(sink);
    ForEachRow(*recordset,
               [&](const Row& row) { sink.AddNode(row.Text("LiteralTabla"), row.Number("IDTabla")); });
  });
}

}  // namespace velmar

#include "sample/Catalogue.h"

#include <string_view>
#include <utility>

#include "platform/ado/BulkInsert.h"
#include "platform/text/Case.h"
#include "sample/RowWriter.h"

namespace velmar::sample {
namespace {

using std::string;

/// Collects the fields in the order of their numbers, node by node.
class CatalogueBuilder {
 public:
  void Node(string name) {
    node_ = std::move(name);
    ++nodeId_;
  }

  /// A field whose value stands in the table as it is shown. Its internal name is the column in lower case.
  void Text(const string& column, const string& literal, const string& output) {
    Add(text::LCase(column), literal, "'", column, output, column, column);
  }

  void Number(const string& column, const string& literal, const string& output) {
    Add(text::LCase(column), literal, "", column, output, column, column);
  }

  /// A date: shown as day/month/year, "//" if there is none, and compared by its eight stored digits.
  void Date(const string& column, const string& literal, const string& output) {
    const string shown =
        "(Right(" + column + ", 2) + '/' + Mid(" + column + ", 5, 2) + '/' + Left(" + column + ", 4))";
    Add(text::LCase(column), literal, "'", shown, output, column, column);
  }

  /// A field that stands for the name in a lookup table.
  void Lookup(const string& internalName, const string& table, const string& literal, const string& output) {
    const string column = table + ".Nombre";
    Add(internalName, literal, "'", column, output, column, column);
  }

  /// An account: bank, branch and control digits as they are shown, then the number in its stored form. The
  /// empty texts keep the parts texts on either side of each sign.
  void Account(const string& internalName, const string& output) {
    const string account = "(Bancos.Numero + '' + Sucursales.Codigo + '' + Cuentas.DC + '' + Cuentas.Numero)";
    Add(internalName, "Cuenta bancaria", "'", account, output, account, account);
  }

  /// A code: exported as text, compared by the words that the value picker offers.
  void Code(const string& column, const string& literal, const string& output, const string& words) {
    Add(text::LCase(column), literal, "'", column + " & ''", output, column, words);
  }

  void Add(const string& internalName, const string& literal, const string& delimiter, const string& value,
           const string& output, const string& orderBy, const string& where) {
    fields_.push_back({static_cast<int>(fields_.size()) + 1, internalName, literal, delimiter,
                       value + " AS " + output, orderBy, where, nodeId_, node_});
  }

  std::vector<CatalogueField> Take() { return std::move(fields_); }

 private:
  std::vector<CatalogueField> fields_;
  string node_;
  int nodeId_ = 0;
};

void AddCollaborators(CatalogueBuilder& c) {
  c.Node("(COL) Colaboradores");
  c.Number("Colaboradores.IDColaborador", "Código de colaborador", "IDColaborador");
  c.Text("Colaboradores.Nombre", "Nombre o razón social", "Nombre");
  c.Text("Colaboradores.Apellido1", "Primer apellido", "Apellido1");
  c.Text("Colaboradores.Apellido2", "Segundo apellido", "Apellido2");
  c.Text("Colaboradores.NIF", "NIF o CIF", "NIF");
  c.Code("Colaboradores.Sexo", "Sexo", "Sexo",
         "IIf(Colaboradores.Sexo = 1, 'Hombre', IIf(Colaboradores.Sexo = 2, 'Mujer', ''))");
  c.Code("Colaboradores.Juridico", "Tipo de entidad", "TipoEntidad",
         "IIf(Colaboradores.Juridico = 0, 'Física', 'Jurídica')");
  c.Text("Colaboradores.Direccion", "Dirección", "Dirección");
  c.Text("Colaboradores.CP", "Código postal", "CP");
  c.Text("Colaboradores.Poblacion", "Población", "Población");
  c.Lookup("colaboradores.provincia", "Provincias", "Provincia de residencia", "Provincia");
  c.Lookup("colaboradores.pais", "Paises", "País", "País");
  c.Text("Colaboradores.Telefono2", "Teléfono móvil", "TeléfonoMóvil");
  c.Date("Colaboradores.FechaNacimiento", "Fecha de nacimiento", "FechaNacimiento");
  c.Date("Colaboradores.FechaAlta", "Fecha de alta del colaborador", "FechaAlta");
  c.Date("Colaboradores.FechaBaja", "Fecha de baja", "FechaBaja");
  c.Account("colaboradores.cuenta", "CuentaColaborador");
  c.Text("Colaboradores.Observaciones", "Observaciones", "Observaciones");
}

void AddDonations(CatalogueBuilder& c) {
  c.Node("(DON) Donativos/Suscripciones");
  c.Date("Donativos.FechaAlta", "Fecha de alta del donativo", "FechaAltaDonativo");
  c.Date("Donativos.FechaPrimerPago", "Fecha del primer pago", "FechaPrimerPago");
  c.Number("Donativos.Importe", "Importe del donativo", "ImporteDonativo");
  c.Lookup("donativos.tipodonativo", "TipoDonativos", "Tipo de donativo", "TipoDonativo");
  c.Lookup("donativos.tipoperiodo", "TipoPeriodos", "Periodicidad", "Periodicidad");
  c.Lookup("donativos.tipopago", "TipoPagos", "Forma de pago", "FormaPago");
  c.Account("donativos.cuenta", "CuentaDonativo");
}

void AddReceipts(CatalogueBuilder& c) {
  c.Node("(REC) Recibos");
  c.Date("Recibos.FechaEmision", "Fecha de emisión", "FechaEmisión");
  c.Date("Recibos.FechaCobro", "Fecha de cobro", "FechaCobro");
  c.Number("Recibos.Mes", "Mes del recibo", "MesRecibo");
  c.Number("Recibos.Importe", "Importe del recibo", "ImporteRecibo");
  c.Number("Recibos.CodRemesa", "Remesa del recibo", "RemesaRecibo");
  c.Number("Recibos.Devolucion", "Devoluciones", "Devoluciones");
  c.Text("Cobros.TextoRecibo", "Concepto", "Concepto");
  c.Lookup("recibos.tipodonativo", "TipoDonativos", "Tipo de donativo", "TipoDonativoRecibo");
  c.Lookup("recibos.tipopago", "TipoPagos", "Forma de pago", "FormaPagoRecibo");
  c.Account("recibos.cuenta", "CuentaRecibo");
}

void AddRemittances(CatalogueBuilder& c) {
  c.Node("(REM) Remesas");
  c.Number("Remesas.IDRemesa", "Número de remesa", "IDRemesa");
  c.Lookup("remesas.codemisor", "Emisores", "Emisor", "Emisor");
  c.Number("Remesas.RecibosBanco", "Recibos enviados al banco", "RecibosBanco");
  c.Number("Remesas.TotalBanco", "Total enviado al banco", "TotalBanco");
  c.Account("remesas.cuenta", "CuentaRemesa");
}

void AddModelo182(CatalogueBuilder& c) {
  c.Node("(MOD) Modelo182");
  const string table = "Modelo182Hacienda.";
  const string key = "modelo182hacienda.";
  const auto field = [&](const string& name, const string& column, const string& literal,
                         const string& delimiter, const string& output) {
    c.Add(key + name, literal, delimiter, table + column, output, table + column, table + column);
  };
  field("nombre", "NombreColaborador", "Nombre del declarado", "'", "NombreDeclarado");
  field("nif", "NIFColaborador", "NIF del declarado", "'", "NIFDeclarado");
  field("provincia", "Provincia", "Provincia del declarado", "'", "ProvinciaDeclarado");
  field("tipodonativo", "TipoDonativo", "Clave del Modelo 182", "'", "ClaveDonativo");
  field("importe", "Importe", "Importe declarado", "", "ImporteDeclarado");
}

std::vector<CatalogueField> Build() {
  CatalogueBuilder builder;
  AddCollaborators(builder);
  AddDonations(builder);
  AddReceipts(builder);
  AddRemittances(builder);
  AddModelo182(builder);
  return builder.Take();
}

}  // namespace

const std::vector<CatalogueField>& Catalogue() {
  static const std::vector<CatalogueField> fields = Build();
  return fields;
}

void WriteCatalogue(ADODB::Connection& reports) {
  ADODB::BulkInsert rows(
      reports, "ExportacionCamposTEMP",
      {"IDCampo", "NombreInternoCampo", "LiteralCampo", "CaracterValorCampo", "LiteralCampoSELECT",
       "LiteralCampoORDERBY", "LiteralCampoWHERE", "IDTabla", "LiteralTabla"});
  for (const CatalogueField& field : Catalogue()) {
    const std::optional<string> delimiter =
        field.delimiter.empty() ? std::nullopt : std::optional(field.delimiter);
    WriteRow(rows, field.id, field.internalName, field.literal, delimiter, field.select, field.orderBy,
             field.where, field.nodeId, field.node);
  }
}

}  // namespace velmar::sample

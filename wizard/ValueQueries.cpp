#include "wizard/ValueQueries.h"

#include <array>

#include "platform/text/Search.h"

namespace velmar::wizard {

namespace {

enum class Pattern {
  kText,       ///< the column's values that are not empty
  kNumber,     ///< the column's values that are not 0
  kDate,       ///< as kText, the eight digits of the date shown as day/month/year
  kModelo182,  ///< as kText, of a table without logical deletion
  kName,       ///< the names of a lookup table
  kFixed,      ///< the statement as it stands in `from`
};

struct ValueQuery {
  std::string_view key;
  Pattern pattern;
  std::string_view from;
  std::string_view close;
};

constexpr std::string_view kFromColaboradores = "FROM Colaboradores ";
constexpr std::string_view kLiveColaboradores = "AND Colaboradores.Eliminado = False";
constexpr std::string_view kFromDonativos = "FROM Donativos ";
constexpr std::string_view kLiveDonativos = "AND Donativos.Eliminado = False";
constexpr std::string_view kFromRecibos = "FROM Recibos ";
constexpr std::string_view kLiveRecibos = "AND Recibos.Eliminado = False";
constexpr std::string_view kFromRemesas = "FROM Remesas ";
constexpr std::string_view kLiveRemesas = "AND Remesas.Eliminado = False ";
constexpr std::string_view kFromModelo182 = "FROM Modelo182Hacienda ";
constexpr std::string_view kFromTipoPagos = "FROM TipoPagos ";
constexpr std::string_view kLiveTipoPagos = "WHERE TipoPagos.Eliminado = False";
constexpr std::string_view kFromTipoDonativos = "FROM TipoDonativos ";
constexpr std::string_view kLiveTipoDonativos = "WHERE TipoDonativos.Eliminado = False";

constexpr std::string_view kSexo =
    "SELECT TOP 1 'Hombre' AS Campo FROM Colaboradores WHERE Sexo=1 AND Colaboradores.Eliminado=0 UNION "
    "SELECT TOP 1 'Mujer' AS Campo FROM Colaboradores WHERE Sexo=2 AND Colaboradores.Eliminado=0";

constexpr std::string_view kJuridico =
    "SELECT TOP 1 'Jurídica' AS Campo FROM Colaboradores WHERE Juridico=-1 AND Colaboradores.Eliminado=0 "
    "UNION "
    "SELECT TOP 1 'Física' AS Campo FROM Colaboradores WHERE Juridico=0 AND Colaboradores.Eliminado=0";

constexpr std::string_view kTextoRecibo =
    "SELECT DISTINCT Cobros.TextoRecibo AS Campo FROM Cobros "
    "WHERE Cobros.TextoRecibo<>'' AND Cobros.TextoRecibo "
    "IS NOT NULL AND Cobros.Eliminado=0";

constexpr std::string_view kCuenta =
    "SELECT DISTINCT (Bancos.Numero + '' + Sucursales.Codigo + '' + "
    "Cuentas.DC + '' + Cuentas.Numero) AS Campo "
    "FROM Cuentas INNER JOIN (Sucursales INNER JOIN Bancos "
    "ON Sucursales.CodBanco = Bancos.IDBanco) "
    "ON Cuentas.CodSucursal = Sucursales.IDSucursal "
    "WHERE Cuentas.Eliminado = False "
    "AND Cuentas.Numero IS NOT NULL";

constexpr auto kQueries = std::to_array<ValueQuery>({
    {"colaboradores.nombre", Pattern::kText, kFromColaboradores, kLiveColaboradores},
    {"colaboradores.apellido1", Pattern::kText, kFromColaboradores, kLiveColaboradores},
    {"colaboradores.apellido2", Pattern::kText, kFromColaboradores, kLiveColaboradores},
    {"colaboradores.telefono2", Pattern::kText, kFromColaboradores, kLiveColaboradores},
    {"colaboradores.direccion", Pattern::kText, kFromColaboradores, kLiveColaboradores},
    {"colaboradores.poblacion", Pattern::kText, kFromColaboradores, kLiveColaboradores},
    {"colaboradores.cp", Pattern::kText, kFromColaboradores, kLiveColaboradores},
    {"colaboradores.nif", Pattern::kText, kFromColaboradores, kLiveColaboradores},
    {"colaboradores.observaciones", Pattern::kText, kFromColaboradores, kLiveColaboradores},
    {"colaboradores.idcolaborador", Pattern::kNumber, kFromColaboradores, kLiveColaboradores},
    {"colaboradores.fechanacimiento", Pattern::kDate, kFromColaboradores, kLiveColaboradores},
    {"colaboradores.fechaalta", Pattern::kDate, kFromColaboradores, kLiveColaboradores},
    {"colaboradores.fechabaja", Pattern::kDate, kFromColaboradores, kLiveColaboradores},
    {"colaboradores.sexo", Pattern::kFixed, kSexo, {}},
    {"colaboradores.juridico", Pattern::kFixed, kJuridico, {}},
    {"colaboradores.pais", Pattern::kName, "FROM Paises WHERE Eliminado = False", {}},
    {"colaboradores.provincia", Pattern::kName, "FROM Provincias WHERE Eliminado = False", {}},
    {"colaboradores.cuenta", Pattern::kFixed, kCuenta, {}},
    {"donativos.fechaprimerpago", Pattern::kDate, kFromDonativos, kLiveDonativos},
    {"donativos.fechaalta", Pattern::kDate, kFromDonativos, kLiveDonativos},
    {"donativos.importe", Pattern::kNumber, kFromDonativos, kLiveDonativos},
    {"donativos.tipopago", Pattern::kName, kFromTipoPagos, kLiveTipoPagos},
    {"donativos.tipodonativo", Pattern::kName, kFromTipoDonativos, kLiveTipoDonativos},
    {"donativos.tipoperiodo", Pattern::kName, "FROM TipoPeriodos ", "WHERE TipoPeriodos.Eliminado = False"},
    {"donativos.cuenta", Pattern::kFixed, kCuenta, {}},
    {"recibos.fechacobro", Pattern::kDate, kFromRecibos, kLiveRecibos},
    {"recibos.fechaemision", Pattern::kDate, kFromRecibos, kLiveRecibos},
    {"recibos.mes", Pattern::kNumber, kFromRecibos, kLiveRecibos},
    {"recibos.importe", Pattern::kNumber, kFromRecibos, kLiveRecibos},
    {"recibos.codremesa", Pattern::kNumber, kFromRecibos, kLiveRecibos},
    {"recibos.devolucion", Pattern::kNumber, kFromRecibos, kLiveRecibos},
    {"recibos.tipopago", Pattern::kName, kFromTipoPagos, kLiveTipoPagos},
    {"recibos.tipodonativo", Pattern::kName, kFromTipoDonativos, kLiveTipoDonativos},
    {"recibos.cuenta", Pattern::kFixed, kCuenta, {}},
    {"cobros.textorecibo", Pattern::kFixed, kTextoRecibo, {}},
    {"remesas.idremesa", Pattern::kNumber, kFromRemesas, kLiveRemesas},
    {"remesas.recibosbanco", Pattern::kNumber, kFromRemesas, kLiveRemesas},
    {"remesas.totalbanco", Pattern::kNumber, kFromRemesas, kLiveRemesas},
    {"remesas.codemisor", Pattern::kName, "FROM Emisores ", "WHERE Emisores.Eliminado = False"},
    {"remesas.cuenta", Pattern::kFixed, kCuenta, {}},
    {"modelo182hacienda.nombre", Pattern::kModelo182, kFromModelo182, {}},
    {"modelo182hacienda.nif", Pattern::kModelo182, kFromModelo182, {}},
    {"modelo182hacienda.provincia", Pattern::kModelo182, kFromModelo182, {}},
    {"modelo182hacienda.tipodonativo", Pattern::kModelo182, kFromModelo182, {}},
    {"modelo182hacienda.importe", Pattern::kModelo182, kFromModelo182, {}},
});

/// `$` stands for the key, `@` for the FROM piece.
constexpr std::string_view Template(Pattern pattern) {
  switch (pattern) {
    case Pattern::kText:
      return "SELECT DISTINCT $ AS Campo @WHERE $ <> '' AND $ IS NOT NULL ";
    case Pattern::kNumber:
      return "SELECT DISTINCT $ AS Campo @WHERE $ <> 0 AND $ IS NOT NULL ";
    case Pattern::kDate:
      return "SELECT DISTINCT (Right($, 2) + '/' + Mid($, 5, 2) + '/' + Left($, 4)) AS Campo "
             "@WHERE $ <> '' AND $ IS NOT NULL ";
    case Pattern::kModelo182:
      return "SELECT DISTINCT $ AS Campo @WHERE $ <> '' AND $ IS NOT NULL";
    case Pattern::kName:
      return "SELECT DISTINCT Nombre AS Campo @";
    case Pattern::kFixed:
      return "@";
  }
  return {};
}

}  // namespace

std::string ObtenerSQLValorCampo(std::string_view nombreInternoCampo) {
  for (const ValueQuery& query : kQueries) {
    if (query.key != nombreInternoCampo) continue;
    std::string statement;
    for (const char c : Template(query.pattern)) {
      if (c == '$') {
        statement += query.key;
      } else if (c == '@') {
        statement += query.from;
      } else {
        statement += c;
      }
    }
    return statement.append(query.close);
  }
  return {};
}

bool IsAccountField(std::string_view nombreInternoCampo) {
  return text::Contains(nombreInternoCampo, "cuenta", text::Comparison::kText);
}

}  // namespace velmar::wizard

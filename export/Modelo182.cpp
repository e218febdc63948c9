#include "export/Modelo182.h"

#include "platform/ado/Recordset.h"
#include "platform/text/Case.h"
#include "platform/text/Characters.h"
#include "platform/toolkit/Toolkit.h"

namespace velmar::exporting {
namespace {

/// The condition that leaves out the collaborators of an ID list, each number followed by a comma; empty for
/// an empty list.
std::string Exclusion(std::string_view opening, const std::string& ids) {
  if (ids.empty()) return {};
  return std::string(opening) + "Colaboradores.IDColaborador NOT IN (" + ids.substr(0, ids.size() - 1) + ")";
}

void AppendId(std::string& ids, const ADODB::Recordset& row) {
  ids += row.Fields("IDColaborador").Value().AsText() + ",";
}

bool IsForeigner(const ADODB::Variant& nif) {
  return text::UCase(text::Left(nif.AsText(), 1)) == "X";
}

}  // namespace

void Modelo182::GenerarModelo182() {
  context_.window.Surroundings().MousePointer(11);
  Vaciar();
  const std::shared_ptr<HostApi> api = context_.createApi();
  const std::string restriction = Restriction();
  std::string ids = FindMissingData(restriction);
  ids += FindInvalidNifs(*api, restriction, Exclusion("AND ", ids));
  Insert(restriction, Exclusion(" AND ", ids));
  MarkKinds();
  context_.window.Surroundings().MousePointer(0);
}

void Modelo182::Vaciar() {
  context_.host->conGestion()->Execute("DELETE FROM Modelo182Hacienda");
}

void Modelo182::ForEachRow(const std::string& statement, const RowVisitor& visit) {
  ADODB::Recordset rows;
  rows.CacheSize(30);
  rows.PageSize(10);
  rows.CursorLocation(ADODB::kUseServer);
  rows.CursorType(ADODB::kOpenForwardOnly);
  rows.LockType(ADODB::kLockReadOnly);
  rows.ActiveConnection(context_.host->conGestion());
  rows.Open(statement);
  for (; !rows.Eof(); rows.MoveNext()) visit(rows);
  rows.Close();
}

std::string Modelo182::FindMissingData(const std::string& restriction) {
  std::string ids;
  const std::string statement =
      "SELECT DISTINCT Colaboradores.IDColaborador AS IDColaborador FROM Colaboradores INNER JOIN (Recibos "
      "INNER JOIN (Cobros INNER JOIN Donativos ON Cobros.CodDonativo=Donativos.IDDonativo)ON "
      "Recibos.IDRecibo=Cobros.CodRecibo) "
      "ON Colaboradores.IDColaborador=Recibos.CodColaborador WHERE "
      "(Colaboradores.Nombre='' OR "
      "Colaboradores.Apellido1='' OR "
      "Len(Colaboradores.NIF)>9 OR "
      "Recibos.Importe=0) AND "
      "Colaboradores.Eliminado=0 AND Colaboradores.Modelo182<>0 AND Recibos.Eliminado=0 AND " +
      restriction + "Colaboradores.Juridico=0 AND " + InYear();
  ForEachRow(statement, [&ids](ADODB::Recordset& row) { AppendId(ids, row); });
  return ids;
}

std::string Modelo182::FindInvalidNifs(HostApi& api, const std::string& restriction,
                                       const std::string& exclusion) {
  std::string ids;
  const std::string statement =
      "SELECT DISTINCT Colaboradores.IDColaborador as IDColaborador,Colaboradores.NIF AS NIF "
      "FROM Colaboradores INNER JOIN (Recibos INNER JOIN (Cobros INNER JOIN Donativos "
      "ON Cobros.CodDonativo=Donativos.IDDonativo) "
      "ON Recibos.IDRecibo=Cobros.CodRecibo)ON Colaboradores.IDColaborador=Recibos.CodColaborador "
      "WHERE Colaboradores.Eliminado=0 AND Recibos.Eliminado=0 AND Colaboradores.Modelo182<>0 "
      "AND Colaboradores.Juridico=0 AND " +
      restriction + InYear() + exclusion;
  ForEachRow(statement, [&](ADODB::Recordset& row) {
    const ADODB::Field nif = row.Fields("NIF");
    const ADODB::Variant value = nif.Value();
    if (!value.IsNull() && !IsForeigner(value) && api.validar_nif(nif) != 1) AppendId(ids, row);
    loop_.DoEvents();
  });
  return ids;
}

void Modelo182::Insert(const std::string& restriction, const std::string& exclusion) {
  context_.host->conGestion()->Execute(
      "INSERT INTO Modelo182Hacienda SELECT Colaboradores.IDColaborador AS codColaborador, trim("
      "Colaboradores.Apellido1 + ' ' + Colaboradores.Apellido2 + ' ' + Colaboradores.Nombre) AS "
      "NombreColaborador, Colaboradores.NIF AS NIFColaborador, "
      "Sum(Cobros.Importe)AS Importe,Provincias.Nombre AS Provincia,ABS(TipoDonativos.TipoA) AS TipoDonativo "
      "FROM (Colaboradores LEFT JOIN Provincias ON Colaboradores.CodProvincia=Provincias.IDProvincia)INNER "
      "JOIN "
      "(Recibos INNER JOIN (Cobros INNER JOIN (Donativos INNER JOIN TipoDonativos "
      "ON Donativos.CodTipoDonativo=TipoDonativos.IDTipoDonativo) "
      "ON Cobros.CodDonativo=Donativos.IDDonativo)ON Recibos.IDRecibo=Cobros.CodRecibo)"
      "ON Colaboradores.IDColaborador=Recibos.CodColaborador WHERE"
      " Colaboradores.Eliminado=0 AND Colaboradores.Modelo182<>0 AND Colaboradores.Juridico=0 AND "
      "Recibos.Eliminado=0 " +
      exclusion + " AND " + restriction + " " + InYear() +
      " GROUP BY Colaboradores.IDColaborador,Colaboradores.Nombre,Colaboradores.Apellido1, "
      "Colaboradores.Apellido2,Colaboradores.NIF,Provincias.Nombre,TipoDonativos.TipoA");
}

void Modelo182::MarkKinds() {
  // The other order would turn every 'A' into 'B'.
  const auto conGestion = context_.host->conGestion();
  conGestion->Execute("UPDATE Modelo182Hacienda SET TipoDonativo='B' WHERE TipoDonativo<>'0'");
  conGestion->Execute("UPDATE Modelo182Hacienda SET TipoDonativo='A' WHERE TipoDonativo='0'");
}

std::string Modelo182::Restriction() const {
  if (!context_.host->Brivana().value_or(false)) return {};
  return " Donativos.CodTipoDonativo NOT IN (4,8) AND Donativos.codTipoDonativo IN(SELECT IdTipoDonativo "
         "FROM "
         "TipoDonativos WHERE Eliminado=0 AND Modelo182=-1) AND ";
}

std::string Modelo182::InYear() const {
  return "Left(Recibos.FechaCobro,4)='" + std::to_string(context_.currentYear() - 1) + "'";
}

}  // namespace velmar::exporting

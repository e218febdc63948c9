#include "catalogue/CatalogueTransfer.h"

#include <memory>
#include <string>

#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"
#include "platform/error/ErrObject.h"

namespace velmar {

namespace {

/// Where a database lies and what opens it, as the qualifier of a table in another database.
struct Place {
  std::string dataSource;
  std::string password;

  std::string Table(const std::string& table) const {
    return "[" + dataSource + ";pwd=" + password + "].[" + table + "]";
  }
};

void ReadPlace(ErrObject& err, ADODB::Connection& connection, Place& place) {
  err.Try([&] { place.dataSource = connection.Properties("Data Source").Value(); });
  err.Try([&] { place.password = connection.Properties("Jet OLEDB:Database Password").Value(); });
}

}  // namespace

void ActualizarCatalogo(ADODB::Connection& conGestion, ADODB::Connection& coninformes,
                        const std::function<void()>& doEvents) {
  ErrObject Err;
  const auto turn = [&] {
    if (doEvents) Err.Try(doEvents);
  };

  std::shared_ptr<ADODB::Recordset> probe;
  // The probe alone tells: an event that fails in the turn says nothing about the table.
  const bool found = Err.Try([&] { probe = conGestion.Execute("SELECT IDTabla FROM ExportacionCampos"); });
  turn();
  if (found) return;
  Err.Clear();

  // If the host has a transaction of its own, this one does not begin, and the host's is not to be committed.
  const bool begun = Err.Try([&] { conGestion.BeginTrans(); });
  Place management;
  Place reports;
  ReadPlace(Err, conGestion, management);
  ReadPlace(Err, coninformes, reports);
  const auto copy = [&](const std::string& table, const std::string& source) {
    const std::string sql = "SELECT * INTO " + management.Table(table) + " FROM " + reports.Table(source);
    const bool copied = Err.Try([&] { coninformes.Execute(sql); });
    turn();
    return copied;
  };
  copy("ExportacionCampos", "ExportacionCamposTEMP");
  const bool templatesAreNew = copy("ExportacionPlantillas", "ExportacionPlantillasTEMP");
  if (begun) Err.Try([&] { conGestion.CommitTrans(); });
  // A table that was there before holds what users have saved, and a probe also fails on a busy database.
  if (!templatesAreNew) return;
  Err.Try([&] { conGestion.Execute("DELETE FROM ExportacionPlantillas"); });
  turn();
}

}  // namespace velmar

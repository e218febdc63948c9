#include "export/PartProcessor.h"

#include "platform/text/Case.h"
#include "platform/text/Characters.h"
#include "platform/text/Search.h"

namespace velmar::exporting {
namespace {

constexpr std::size_t kPlainCharacters = 10;
constexpr long kTableCommand = 512;

}  // namespace

void PartProcessor::ProcesarParte(const std::string& strParte) {
  const auto connection = std::make_shared<ADODB::Connection>();
  connection->Open(workFiles_.ConnectionText(strParte + ".mdb"), "", "", -1);
  ADODB::Recordset rows;
  rows.Open("SELECT * FROM " + strParte, connection, ADODB::kOpenKeyset, ADODB::kLockOptimistic,
            kTableCommand);
  loop_.DoEvents();
  if (!(rows.Eof() && rows.Bof())) {
    const std::vector<AccountColumn> accounts = PrepareColumns(strParte, *connection, rows);
    if (!accounts.empty()) DecodeAccounts(accounts, rows);
  }
  loop_.DoEvents();
  context_.window.Refresh();
  if (rows.State() == ADODB::kStateOpen) rows.Close();
  if (connection->State() == ADODB::kStateOpen) connection->Close();
}

std::vector<PartProcessor::AccountColumn> PartProcessor::PrepareColumns(const std::string& strParte,
                                                                        ADODB::Connection& connection,
                                                                        const ADODB::Recordset& rows) {
  std::vector<AccountColumn> accounts;
  const long count = rows.Fields().Count();
  for (long index = 0; index < count; ++index) {
    const std::string name = text::LCase(rows.Fields(index).Name());
    if (text::Contains(name, "cuenta")) {
      accounts.push_back({index, rows.Fields(index).Name()});
    } else if (text::Contains(name, "fecha")) {
      connection.Execute("UPDATE " + strParte + " SET [" + name + "]='' WHERE [" + name + "]='//'");
    }
  }
  return accounts;
}

void PartProcessor::DecodeAccounts(const std::vector<AccountColumn>& accounts, ADODB::Recordset& rows) {
  const std::shared_ptr<cCuentaCodec> codec = context_.createCodec();
  controls::ProgressBar& bar = context_.prgExportar;
  for (; !rows.Eof(); rows.MoveNext()) {
    if (bar.Value() + 1 < bar.Max()) bar.Value(bar.Value() + 1);
    for (const AccountColumn& column : accounts) {
      loop_.DoEvents();
      const std::string value = rows.Fields(column.index).Value().TextOrEmpty();
      if (value.empty()) continue;
      std::string tail = text::Mid(value, kPlainCharacters + 1);
      codec->DecodificarTramo(tail);
      rows.Update(column.name, text::Left(value, kPlainCharacters) + tail);
    }
    loop_.DoEvents();
  }
}

}  // namespace velmar::exporting

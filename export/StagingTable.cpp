#include "export/StagingTable.h"

#include <string>

#include "export/WorkFiles.h"

namespace velmar::exporting {

void StagingTable::Fill(const StagingStatement& statement) {
  context_.Begin(RunStage::kStaging);
  context_.host->conGestion()->Execute(statement.Text());
  const bool pending = statement.Holds("recibo");
  const long added = pending ? AppendPending(statement) : 0;
  // Behind the pending rows, so that theirs are recoded too, and before equal rows are sought.
  const bool recoded = Recode(statement);
  // The statement itself brings no row twice: only what was added or recoded can repeat another.
  if (pending && (added > 0 || recoded)) RemoveRepeated();
}

long StagingTable::AppendPending(const StagingStatement& statement) {
  context_.Begin(RunStage::kPending);
  long added = 0;
  context_.host->conGestion()->Execute(statement.PendingText(), &added);
  // The rows were written through the main database's connection.
  context_.conAuxiliar->Close();
  context_.conAuxiliar->Open("", "", "", -1);
  return added;
}

bool StagingTable::Recode(const StagingStatement& statement) {
  context_.Begin(RunStage::kRecoding);
  const std::string update = std::string("UPDATE ") + kTable + " SET ";
  const bool sexes = statement.Holds("colaboradores.sexo");
  if (sexes) {
    context_.conAuxiliar->Execute(update + "Sexo='' WHERE Sexo='0'");
    context_.conAuxiliar->Execute(update + "Sexo='Hombre' WHERE Sexo='1'");
    context_.conAuxiliar->Execute(update + "Sexo='Mujer' WHERE Sexo='2'");
    loop_.DoEvents();
  }
  const bool kinds = statement.Holds("colaboradores.juridico");
  if (kinds) {
    context_.conAuxiliar->Execute(update + "TipoEntidad='Física' WHERE TipoEntidad='0'");
    context_.conAuxiliar->Execute(update + "TipoEntidad='Jurídica' WHERE TipoEntidad='-1'");
    loop_.DoEvents();
  }
  return sexes || kinds;
}

void StagingTable::RemoveRepeated() {
  context_.Begin(RunStage::kRepeated);
  // A copy keeps the first of equal rows where it stands, so the order stays.
  const std::string table = kTable;
  context_.conAuxiliar->Execute("SELECT DISTINCT * INTO " + table + "2 FROM " + table);
  context_.conAuxiliar->Execute("DROP TABLE " + table);
  context_.conAuxiliar->Execute("SELECT DISTINCT * INTO " + table + " FROM " + table + "2");
  context_.conAuxiliar->Execute("DROP TABLE " + table + "2");
}

}  // namespace velmar::exporting

#include "export/BlockRun.h"

#include <utility>

#include "platform/ado/Recordset.h"
#include "platform/error/ErrObject.h"

namespace velmar::exporting {
namespace {

constexpr long kFirstInterval = 1;
constexpr long kNextInterval = 2000;

}  // namespace

/// Carries out a step of a block and notes its failure. True if it succeeded.
template <typename Step>
bool BlockRun::Attempt(int block, Step&& step) {
  ErrObject Err;
  if (Err.Try(std::forward<Step>(step))) return true;
  ledger_->Lose(block, RuntimeError(Err.Number(), Err.Description(), Err.Source()));
  return false;
}

BlockRun::BlockRun(const RunContext& context, RunLoop& loop, const WorkFiles& workFiles,
                   std::string strFichero)
    : context_(context),
      loop_(loop),
      workFiles_(workFiles),
      processor_(context, loop, workFiles),
      pending_(context.tmrExportacion(0)),
      sheets_(std::move(strFichero)),
      rsExportacion_(std::make_unique<ADODB::Recordset>()) {
  rsExportacion_->CursorLocation(ADODB::kUseServer);
  rsExportacion_->CacheSize(500);
  rsExportacion_->PageSize(kBlockRows);
  rsExportacion_->CursorType(ADODB::kOpenStatic);
  rsExportacion_->Open(std::string("SELECT * FROM ") + kTable, context_.conAuxiliar, -1, -1, -1);
  intUltimoBloque_ = static_cast<int>(rsExportacion_->PageCount()) - 1;
  ledger_ = std::make_unique<BlockLedger>(rsExportacion_->RecordCount(), kBlockRows);
}

BlockRun::~BlockRun() {
  // A timer that cannot be taken back finds nothing pending.
  ErrObject ignored;
  ignored.Try([this] {
    pending_.Clear();
    context_.tmrExportacion(0).Enabled(false);
    for (int index = context_.tmrExportacion.UBound(); index > 0; --index) {
      if (context_.tmrExportacion.Has(index)) context_.tmrExportacion.Unload(index);
    }
  });
}

void BlockRun::ExportBlocks() {
  ErrObject Err;
  Err.Try([&] {
    Cut();
    PostProcess();
    WriteSheets();
  });
  if (Err.Number() == 0) return;
  const RuntimeError failure(Err.Number(), Err.Description(), Err.Source());
  for (int block = nextToWrite_; block <= intUltimoBloque_; ++block) ledger_->Lose(block, failure);
}

/// Moves the staging table into part databases; afterwards it is empty.
void BlockRun::Cut() {
  context_.Begin(RunStage::kCutting);
  std::optional<RuntimeError> stop;
  for (int block = 0; block <= intUltimoBloque_; ++block) {
    if (stop) {
      ledger_->Lose(block, *stop);
    } else {
      stop = CutBlock(block);
    }
    if (block > 0) context_.tmrExportacion.Load(block);
    pending_.Add(block);
    loop_.DoEvents();
  }
}

/// Gives the reason if the rows of the block are still in the staging table: what would be cut next is not
/// the next block then.
std::optional<RuntimeError> BlockRun::CutBlock(int block) {
  const std::string table = kTable;
  Attempt(block, [&] {
    workFiles_.CrearBaseParte(table, std::to_string(block), kBlockRows, *context_.conAuxiliar);
  });
  ErrObject Err;
  const bool removed = Err.Try([&] {
    context_.conAuxiliar->Execute("DELETE " + table + " FROM (SELECT TOP " + std::to_string(kBlockRows) +
                                  " * FROM " + table + ") As T1 ");
  });
  if (removed) return std::nullopt;
  return RuntimeError(Err.Number(), Err.Description(), Err.Source());
}

/// Starts the chain of timers and waits until every block has been worked on.
void BlockRun::PostProcess() {
  context_.Begin(RunStage::kPostProcessing);
  controls::ProgressBar& bar = context_.prgExportar;
  bar.Visible(true);
  bar.Refresh();
  bar.Min(0);
  bar.Max(rsExportacion_->RecordCount() + 1);
  controls::Timer& first = context_.tmrExportacion(0);
  first.Enabled(true);
  first.Interval(kFirstInterval);
  while (!pending_.Empty()) {
    loop_.DoEvents();
    if (!pending_.Empty() && !ChainGoesOn()) LosePending();
  }
}

/// What nobody will work on any more must neither be waited for nor be written as it is.
void BlockRun::LosePending() {
  const RuntimeError reason(kInternalError, "El temporizador del bloque se ha detenido antes de tiempo.",
                            "VelmarExportacion");
  for (int block = 0; block <= intUltimoBloque_; ++block) {
    if (pending_.Holds(block)) ledger_->Lose(block, reason);
  }
  pending_.Clear();
}

/// False when no timer is left that could finish what is pending.
bool BlockRun::ChainGoesOn() const {
  if (inProgress_ > 0) return true;
  bool armed = false;
  context_.tmrExportacion.ForEach([&armed](const controls::Timer& timer, int) {
    armed = armed || (timer.Enabled() && timer.Interval() > 0);
  });
  return armed;
}

void BlockRun::TimerFired(int index) {
  ++inProgress_;
  const std::string strParte = kTable + std::to_string(index);
  try {
    Attempt(index, [&] {
      context_.tmrExportacion(index).Enabled(false);
      context_.tmrExportacion(index).Interval(0);
      if (index + 1 <= context_.tmrExportacion.Count() - 1) {
        controls::Timer& next = context_.tmrExportacion(index + 1);
        next.Enabled(true);
        next.Interval(kNextInterval);
      }
      if (!ledger_->IsLost(index)) processor_.ProcesarParte(strParte);
    });
  } catch (const RunCancelled&) {
    // The wait below sees it at its own next turn.
  }
  pending_.Remove(index);
  --inProgress_;
}

/// Writes the blocks in their order and deletes their files.
void BlockRun::WriteSheets() {
  context_.Begin(RunStage::kSheets);
  controls::ProgressBar& bar = context_.prgExportar;
  bar.Min(0);
  bar.Value(0);
  bar.Max(intUltimoBloque_ + 1);
  for (int block = 0; block <= intUltimoBloque_; ++block) {
    bar.Value(block);
    WriteBlock(block);
    nextToWrite_ = block + 1;
    loop_.DoEvents();
  }
  rsExportacion_->Close();
}

void BlockRun::WriteBlock(int block) {
  const std::string archivo = kTable + std::to_string(block) + ".mdb";
  const std::string statement = sheets_.StatementFor(block);
  if (!ledger_->IsLost(block)) {
    Attempt(block, [&] {
      ADODB::Connection conParte(workFiles_.ConnectionText(archivo));
      conParte.Open("", "", "", -1);
      conParte.Execute(statement);
      sheets_.Written();
      conParte.Close();
    });
  }
  // A part that cannot be deleted goes with the next run.
  ErrObject Err;
  Err.Try([&] { workFiles_.Remove(archivo); });
}

}  // namespace velmar::exporting

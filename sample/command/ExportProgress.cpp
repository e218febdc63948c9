#include "sample/command/ExportProgress.h"

#include <cstddef>

#include "platform/controls/ProgressBar.h"

namespace velmar::sample {
namespace {

using exporting::RunStage;

constexpr long kWhole = 100;
constexpr long kQuarter = 25;
constexpr std::size_t kBarWidth = 30;
/// Back to the start of the line, and what stands there goes.
constexpr const char* kClearLine = "\r\x1b[K";

const char* TextOf(RunStage stage) {
  switch (stage) {
    case RunStage::kModelo182:
      return "Calculando los datos del Modelo 182";
    case RunStage::kStaging:
      return "Leyendo las filas seleccionadas";
    case RunStage::kPending:
      return "Añadiendo los recibos pendientes";
    case RunStage::kRecoding:
      return "Cambiando códigos por palabras";
    case RunStage::kRepeated:
      return "Quitando las filas repetidas";
    case RunStage::kCutting:
      return "Repartiendo las filas en bloques";
    case RunStage::kPostProcessing:
      return "Preparando fechas y cuentas";
    case RunStage::kSheets:
      return "Escribiendo las hojas";
    case RunStage::kClosing:
      return "Retirando los archivos de trabajo";
  }
  return "Exportando";
}

}  // namespace

void ExportProgress::Begin(RunStage stage) {
  text_ = TextOf(stage);
  percent_ = -1;
  if (terminal_.errIsTerminal) {
    Draw();
  } else {
    terminal_.err << text_ << "...\n" << std::flush;
  }
}

void ExportProgress::Changed(controls::Control& control, controls::Property what) {
  const auto* bar = dynamic_cast<const controls::ProgressBar*>(&control);
  if (bar == nullptr || what != controls::Property::kValue || text_.empty()) return;
  const long range = bar->Max() - bar->Min();
  const long percent = range > 0 ? (bar->Value() - bar->Min()) * kWhole / range : 0;
  if (percent == percent_) return;
  const bool newQuarter = percent / kQuarter > percent_ / kQuarter && percent < kWhole;
  percent_ = percent;
  if (terminal_.errIsTerminal) {
    Draw();
  } else if (newQuarter && percent >= kQuarter) {
    terminal_.err << text_ << ": " << percent << " %\n" << std::flush;
  }
}

void ExportProgress::Draw() {
  terminal_.err << kClearLine;
  if (percent_ >= 0) {
    const auto full = static_cast<std::size_t>(percent_) * kBarWidth / static_cast<std::size_t>(kWhole);
    terminal_.err << '[' << std::string(full, '#') << std::string(kBarWidth - full, '.') << "] " << percent_
                  << " %  ";
  }
  terminal_.err << text_ << (percent_ < 0 ? "..." : "") << std::flush;
  drawn_ = true;
}

void ExportProgress::End() {
  if (drawn_) terminal_.err << kClearLine << std::flush;
  drawn_ = false;
  text_.clear();
}

}  // namespace velmar::sample

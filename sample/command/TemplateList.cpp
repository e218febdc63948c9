#include "sample/command/TemplateList.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "platform/ado/Connection.h"
#include "platform/text/Characters.h"
#include "templates/TemplateStore.h"

namespace velmar::sample {
namespace {

using Line = std::array<std::string, 4>;

std::string Padded(const std::string& text, std::size_t width, bool toTheRight) {
  const std::string blanks(width - text::Len(text), ' ');
  return toTheRight ? blanks + text : text + blanks;
}

/// The name to the left, the numbers to the right.
void PrintAligned(const std::vector<Line>& lines, std::ostream& out) {
  std::array<std::size_t, 4> widths{};
  for (const Line& line : lines) {
    for (std::size_t i = 0; i < line.size(); ++i) widths[i] = std::max(widths[i], text::Len(line[i]));
  }
  for (const Line& line : lines) {
    for (std::size_t i = 0; i < line.size(); ++i) {
      out << (i == 0 ? "" : "  ") << Padded(line[i], widths[i], i > 0);
    }
    out << '\n';
  }
}

}  // namespace

void PrintTemplates(const SampleHost::Settings& settings, const Terminal& terminal) {
  const SampleHost host(settings);
  host.conGestion()->Open();
  const templates::TemplateStore store(host.conGestion(), settings.user);
  std::vector<Line> lines;
  for (const auto& summary : store.Summaries()) {
    lines.push_back({summary.name, std::to_string(summary.fields), std::to_string(summary.filters),
                     std::to_string(summary.sorted)});
  }
  if (lines.empty()) {
    terminal.err << "El usuario " << settings.user << " no tiene plantillas.\n";
  } else if (terminal.outIsTerminal) {
    lines.insert(lines.begin(), {"Plantilla", "Campos", "Filtros", "Orden"});
    PrintAligned(lines, terminal.out);
  } else {
    for (const Line& line : lines) {
      terminal.out << line[0] << '\t' << line[1] << '\t' << line[2] << '\t' << line[3] << '\n';
    }
  }
}

}  // namespace velmar::sample

#include "export/StagingStatement.h"

#include <array>
#include <cstddef>
#include <utility>

#include "export/WorkFiles.h"
#include "platform/jet/Lexer.h"
#include "platform/text/Case.h"
#include "platform/text/Search.h"

namespace velmar::exporting {
namespace {

using text::LCase;
using text::Replace;

/// From receipts to pending receipts, in this order.
constexpr std::array<std::pair<std::string_view, std::string_view>, 5> kPendingNames{{
    {"recibos.", "recibospendientes."},
    {"recibos ", " recibospendientes "},
    {"idrecibo", "idrecibopendiente"},
    {"cobros", "cobrospendientes"},
    {"idcobro", "idcobropendiente"},
}};

/// The text with the change made to all that stands outside of quoted texts: what the user has typed into a
/// filter is no name and no keyword, whatever it reads like.
template <typename Change>
std::string OutsideQuotes(const std::string& text, const Change& change) {
  std::string changed;
  std::size_t done = 0;
  const auto upTo = [&](std::size_t end) { changed += change(text.substr(done, end - done)); };
  for (const jet::Token& token : jet::Lexer(text).Tokens()) {
    if (token.kind != jet::TokenKind::kText) continue;
    upTo(token.span.offset);
    changed += text.substr(token.span.offset, token.span.length);
    done = token.span.offset + token.span.length;
  }
  upTo(text.size());
  return changed;
}

}  // namespace

StagingStatement::StagingStatement(std::string select, std::string workPath, std::string fromWhereOrder)
    : select_(std::move(select)), workPath_(std::move(workPath)), rest_(std::move(fromWhereOrder)) {}

std::string StagingStatement::Target() const {
  return "[" + workPath_ + "]." + kTable;
}

std::string StagingStatement::Text() const {
  return select_ + " INTO " + Target() + " " + rest_;
}

bool StagingStatement::Holds(std::string_view piece) const {
  return text::Contains(LCase(Text()), piece);
}

std::string StagingStatement::PendingText() const {
  // Without the INTO clause, so that its path, whatever it holds, is not rewritten. The blank in front of
  // INTO stays: a name there is followed by it.
  return OutsideQuotes(LCase(select_ + " " + rest_), [this](std::string piece) {
    for (const auto& [name, pending] : kPendingNames) piece = Replace(piece, name, pending);
    return Replace(piece, "select", "insert into " + Target() + " select");
  });
}

}  // namespace velmar::exporting

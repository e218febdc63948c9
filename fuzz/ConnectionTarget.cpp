#include "fuzz/ConnectionTarget.h"

#include <string>

#include "fuzz/Violation.h"
#include "platform/ado/Connection.h"
#include "platform/ado/ConnectionText.h"
#include "platform/error/RuntimeError.h"

namespace velmar::fuzz {

namespace {

std::string SourceOf(const ADODB::ConnectionText& text) {
  try {
    return text.DataSource();
  } catch (const RuntimeError&) {
    return {};
  }
}

}  // namespace

void FuzzConnection(Bytes input) {
  const std::string text = Input(input).Rest();
  ADODB::ConnectionText read;
  try {
    read = ADODB::ConnectionText(text);
  } catch (const RuntimeError& refused) {
    Demand(refused.Span().has_value() && refused.Span()->offset + refused.Span()->length <= text.size(),
           "a refusal points outside the text: " + refused.Description());
    return;
  }
  const std::string written = read.Text();
  const ADODB::ConnectionText again(written);
  Demand(again.Text() == written, "what was written reads back as another text: " + written);
  ADODB::Connection connection(text);
  for (const std::string_view key : {ADODB::kDataSourceKey, ADODB::kPasswordKey, ADODB::kScratchKey}) {
    Demand(again.Find(key) == read.Find(key), "a value is lost in writing: " + written);
    Demand(again.Flag(key) == read.Flag(key), "a flag is lost in writing: " + written);
    const auto value = read.Find(key);
    if (value.has_value()) {
      Demand(connection.Properties(key).Value() == *value, "a property is not the key's value");
    }
  }
  Demand(SourceOf(again) == SourceOf(read), "the data source is lost in writing: " + written);
}

}  // namespace velmar::fuzz

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextDocument>
#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "sample/Catalogue.h"
#include "sample/DatabaseGenerator.h"
#include "sample/SampleFiles.h"
#include "sample/command/WizardRun.h"
#include "sample/help/HelpTopic.h"
#include "wizard/ExportControls.h"

namespace velmar::sample {
namespace {

/// The complete filters of the page's examples, each with the field that it is for.
std::vector<std::pair<std::string, std::string>> Examples() {
  const std::string_view page = *HelpTopic(kAssistantTopic);
  const QString html = QString::fromUtf8(page.data(), static_cast<qsizetype>(page.size()));
  std::vector<std::pair<std::string, std::string>> examples;
  const QRegularExpression cell("<td>(\\(?\\{([^}]*)\\}[^\n]*)</td></tr>");
  for (auto found = cell.globalMatch(html); found.hasNext();) {
    const QRegularExpressionMatch match = found.next();
    QTextDocument plain;
    plain.setHtml(match.captured(1));
    examples.emplace_back(match.captured(2).toStdString(), plain.toPlainText().toStdString());
  }
  return examples;
}

TEST(HelpExamples, EachIsAFilterThatExportsRows) {
  const QTemporaryDir folder;
  GeneratorOptions options;
  options.folder = folder.path().toStdString();
  options.collaborators = 400;
  options.date = *ParseDate("2026-06-15");
  DatabaseGenerator(options).Run();
  SampleHost::Settings settings;
  settings.folder = options.folder;
  const auto examples = Examples();
  ASSERT_GE(examples.size(), 14U);
  for (const auto& [literal, filter] : examples) {
    SCOPED_TRACE(filter);
    const auto& fields = Catalogue();
    const auto field = std::find_if(fields.begin(), fields.end(),
                                    [&](const CatalogueField& known) { return known.literal == literal; });
    ASSERT_NE(field, fields.end());
    EXPECT_NO_THROW(WizardRun(settings).Export({{field->node, literal, filter, true}},
                                               PathIn(options.folder, "ejemplo.xls")));
  }
}

TEST(HelpExamples, ExplainEveryOperatorOfTheList) {
  const std::string page(*HelpTopic(kAssistantTopic));
  const wizard::ExportControls controls;
  for (long index = 0; index < controls.lstOperadores.ListCount(); ++index) {
    const std::string item =
        QString::fromStdString(controls.lstOperadores.List(index)).toHtmlEscaped().toStdString();
    const bool isMark = item == "`" || item == "´" || item == "(" || item == ")";
    EXPECT_NE(page.find(isMark ? item : "<td>" + item + "</td>"), std::string::npos) << item;
  }
  EXPECT_EQ(HelpTopic(kFirstTopic), HelpTopic(kAssistantTopic));
  EXPECT_FALSE(HelpTopic(kAssistantTopic + 1).has_value());
}

}  // namespace
}  // namespace velmar::sample

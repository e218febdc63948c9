#include <QRegularExpression>
#include <QTextDocumentFragment>
#include <algorithm>

#include "sample/Catalogue.h"
#include "sample/SampleDatabase.h"
#include "sample/command/WizardRun.h"
#include "sample/help/HelpTopic.h"
#include "wizard/ExportControls.h"

namespace velmar::sample {
namespace {

const std::string kPage(*HelpTopic(kAssistantTopic));

TEST(HelpExamples, EachIsAFilterThatExportsRows) {
  const SampleDatabase office(400);
  SampleHost::Settings settings;
  settings.folder = office.folder.Path();
  // A filter, which names its field first, in a table's last cell.
  const QRegularExpression cell("<td>(\\(?\\{([^}]*)\\}[^\n]*)</td></tr>");
  int examples = 0;
  for (auto found = cell.globalMatch(QString::fromStdString(kPage)); found.hasNext(); ++examples) {
    const QRegularExpressionMatch match = found.next();
    const std::string filter = QTextDocumentFragment::fromHtml(match.captured(1)).toPlainText().toStdString();
    const std::string literal = match.captured(2).toStdString();
    SCOPED_TRACE(filter);
    const auto field = std::find_if(Catalogue().begin(), Catalogue().end(),
                                    [&](const CatalogueField& known) { return known.literal == literal; });
    ASSERT_NE(field, Catalogue().end());
    EXPECT_NO_THROW(
        WizardRun(settings).Export({{field->node, literal, filter, true}}, office.folder / "ejemplo.xls"));
  }
  EXPECT_GE(examples, 14);
}

TEST(HelpExamples, ExplainEveryOperatorOfTheList) {
  const wizard::ExportControls controls;
  for (long index = 0; index < controls.lstOperadores.ListCount(); ++index) {
    const std::string item =
        QString::fromStdString(controls.lstOperadores.List(index)).toHtmlEscaped().toStdString();
    const bool isMark = item == "`" || item == "´" || item == "(" || item == ")";
    EXPECT_NE(kPage.find(isMark ? item : "<td>" + item + "</td>"), std::string::npos) << item;
  }
}

}  // namespace
}  // namespace velmar::sample

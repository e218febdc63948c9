#include "sample/command/WorkbookExport.h"

#include <filesystem>
#include <fstream>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/ado/Catalog.h"
#include "platform/ado/Recordset.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/jet/Lexer.h"
#include "platform/text/Case.h"
#include "platform/text/Search.h"
#include "sample/SampleFiles.h"
#include "sample/WorkFolder.h"

namespace velmar::sample {
namespace {

constexpr const char* kSource = "WorkbookExport";
constexpr long kBlockRows = 8000;
constexpr long kBlocksPerSheet = 8;
const std::string kTable = "ExportacionExcel";

bool IsWord(const jet::Token& token, std::string_view word) {
  return token.kind == jet::TokenKind::kName && text::UCase(token.text) == word;
}

/// True for a file that begins as the compound files in which Excel 8.0 workbooks lie.
bool IsCompoundFile(const std::string& file) {
  constexpr std::string_view kSignature = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";
  std::string start(kSignature.size(), '\0');
  std::ifstream(file, std::ios::binary).read(start.data(), static_cast<std::streamsize>(start.size()));
  return start == kSignature;
}

void RequireFree(const std::string& file, bool overwrite) {
  if (!std::filesystem::exists(file)) return;
  if (!IsCompoundFile(file)) {
    throw RuntimeError(
        kFileAlreadyExists,
        "El archivo '" + file + "' no es un libro de Excel y no se sustituye. Elija otro nombre.", kSource);
  }
  if (overwrite) return;
  throw RuntimeError(kFileAlreadyExists,
                     "Ya existe el archivo '" + file + "'. Elija otro nombre o permita sobrescribirlo.",
                     kSource);
}

std::shared_ptr<ADODB::Connection> MakeWorkDatabase(const std::string& path) {
  const std::string text = ScratchConnectionTextOf(path);
  ADOX::Catalog().Create(text);
  auto connection = std::make_shared<ADODB::Connection>();
  connection->Open(text);
  return connection;
}

/// Moves the first block of the staging table into a database of its own and from there into its sheet.
void MoveBlock(ADODB::Connection& work, const std::string& folder, const std::string& workbook, long block) {
  const std::string table = kTable + std::to_string(block);
  const std::string path = PathIn(folder, table + ".mdb");
  const std::string rows = std::to_string(kBlockRows);
  const auto part = MakeWorkDatabase(path);
  work.Execute("SELECT TOP " + rows + " * INTO " + table + " IN '" + text::Replace(path, "'", "''") +
               "' FROM " + kTable);
  work.Execute("DELETE " + kTable + " FROM (SELECT TOP " + rows + " * FROM " + kTable + ") As T1 ");

  const std::string sheet =
      "[Excel 8.0;DATABASE=" + workbook + "].[Hoja" + std::to_string(block / kBlocksPerSheet + 1) + "] ";
  if (block % kBlocksPerSheet == 0) {
    part->Execute("SELECT * INTO " + sheet + "FROM [" + table + "] ");
  } else {
    part->Execute("INSERT INTO " + sheet + "SELECT * FROM [" + table + "]");
  }
  part->Close();
  std::filesystem::remove(path);
}

}  // namespace

WorkbookExport::WorkbookExport(std::shared_ptr<ADODB::Connection> main, std::string workParent)
    : main_(std::move(main)), workParent_(std::move(workParent)) {}

std::string WorkbookExport::WithTarget(std::string_view statement, std::string_view target) {
  const std::vector<jet::Token> tokens = jet::Lexer(statement).Tokens();
  if (!IsWord(tokens.front(), "SELECT")) {
    throw RuntimeError(kQuerySyntax, "La sentencia debe empezar por SELECT: solo se exportan consultas.",
                       kSource, tokens.front().span);
  }
  int depth = 0;
  for (const jet::Token& token : tokens) {
    const bool isSymbol = token.kind == jet::TokenKind::kSymbol;
    if (isSymbol && token.text == "(") ++depth;
    if (isSymbol && token.text == ")") --depth;
    if (depth != 0) continue;
    if (IsWord(token, "INTO")) {
      throw RuntimeError(kQuerySyntax, "La sentencia no debe llevar INTO: el destino lo pone la exportación.",
                         kSource, token.span);
    }
    if (!IsWord(token, "FROM")) continue;
    std::string result(statement.substr(0, token.span.offset));
    result += "INTO ";
    result += target;
    result += ' ';
    return result.append(statement.substr(token.span.offset));
  }
  throw RuntimeError(kQuerySyntax, "A la sentencia le falta la cláusula FROM.", kSource, tokens.back().span);
}

WorkbookExport::Result WorkbookExport::Run(std::string_view statement, const std::string& file,
                                           bool overwrite) const {
  RequireFree(file, overwrite);
  const WorkFolder folder(workParent_);
  const std::string workPath = PathIn(folder.Path(), "ExportacionAux.mdb");
  const auto work = MakeWorkDatabase(workPath);
  main_->Execute(WithTarget(statement, "[" + workPath + "]." + kTable));

  ADODB::Recordset staged;
  staged.CursorLocation(ADODB::kUseServer);
  staged.PageSize(kBlockRows);
  staged.CursorType(ADODB::kOpenStatic);
  staged.Open("SELECT * FROM " + kTable, work);
  const long rows = staged.RecordCount();
  const long blocks = staged.PageCount();
  staged.Close();
  if (rows == 0) return {};

  // Written in a folder of its own beside its place, so that a failure leaves neither half a workbook nor a
  // lost one.
  const std::filesystem::path target = std::filesystem::absolute(file);
  const WorkFolder targetFolder(target.parent_path().string());
  const std::string unfinished = PathIn(targetFolder.Path(), "Exportacion.xls");
  for (long block = 0; block < blocks; ++block) MoveBlock(*work, folder.Path(), unfinished, block);
  work->Close();

  std::error_code failure;
  std::filesystem::rename(unfinished, target, failure);
  if (failure) {
    throw RuntimeError(kPermissionDenied,
                       "No se puede escribir el archivo '" + file + "'. Compruebe la carpeta y los permisos.",
                       kSource);
  }
  return {rows, (blocks + kBlocksPerSheet - 1) / kBlocksPerSheet};
}

}  // namespace velmar::sample

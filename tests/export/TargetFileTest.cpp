#include "export/TargetFile.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "export/TestOffice.h"
#include "platform/error/RuntimeError.h"
#include "platform/files/FileLock.h"

namespace velmar::testing {
namespace {

using exporting::PrepareTarget;
using exporting::WorkFiles;

TEST(TargetFile, DeletesTheFileOfThatNameAndNoOther) {
  TestOffice office;
  const WorkFiles workFiles(office.host);
  for (const char* name : {"Lista.xls", "Lista2.xls", "Otra.xls"}) office.folder.Touch(name);
  EXPECT_EQ(PrepareTarget(office.Path("Lista.xls"), workFiles), office.Path("Lista.xls"));
  EXPECT_EQ(PrepareTarget(office.Path("Nueva.xls"), workFiles), office.Path("Nueva.xls"));
  EXPECT_EQ(office.Files(),
            (std::vector<std::string>{"Gestion.mdb", "Informes.mdb", "Lista2.xls", "Otra.xls"}));
}

TEST(TargetFile, RefusesBeforeAnythingIsTouched) {
  TestOffice office;
  const WorkFiles workFiles(office.host);
  for (const char* name : {"Lista.xls", "a1.xls", "Abierta.xls", ".~lock.Abierta.xls#", "Vista.xls",
                           "~$Vista.xls", "Copiada.xls"}) {
    office.folder.Touch(name);
  }
  const auto held = files::FileLock::TryTake(office.Path("Copiada.xls"));
  const std::vector<std::string> before = office.Files();
  const std::pair<const char*, const char*> cases[] = {
      {"a?.xls", "caracteres"},
      {"*.xls", "caracteres"},
      {"a;b.xls", "caracteres"},
      {"Lista [1].xls", "caracteres"},
      {"LISTA.xls", "mayúsculas"},
      {"Gestion.mdb", "aplicación"},
      {"informes.MDB", "aplicación"},
      {"no hay/Lista.xls", "no hay"},
      {"Abierta.xls", "abierto en otro programa"},
      {"Vista.xls", "~$Vista.xls"},
      {"Copiada.xls", "lo está usando"},
      {"exportacionExcel7.MDB", "de trabajo"},
  };
  for (const auto& [name, reason] : cases) {
    SCOPED_TRACE(name);
    try {
      PrepareTarget(office.Path(name), workFiles);
      ADD_FAILURE() << "accepted";
    } catch (const RuntimeError& refusal) {
      EXPECT_NE(refusal.Description().find(reason), std::string::npos) << refusal.Description();
      EXPECT_NE(refusal.Description().find(office.folder / ""), std::string::npos) << refusal.Description();
    }
    EXPECT_EQ(office.Files(), before);
  }
}

}  // namespace
}  // namespace velmar::testing

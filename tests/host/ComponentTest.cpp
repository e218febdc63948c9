// A host that knows the component by its library alone: this program links nothing of the wizard.

#include <dlfcn.h>
#include <gmock/gmock.h>

#include <array>
#include <cstdio>
#include <cstdlib>

#include "host/Principal.h"
#include "platform/com/ClassFile.h"
#include "platform/com/CreateObject.h"
#include "platform/com/Server.h"
#include "platform/toolkit/Form.h"
#include "wizard/WizardOffice.h"

namespace velmar {
namespace {

class Component : public ::testing::Test, public ComponentSite {
 protected:
  com::HResult Call(const char* entry) const {
    return reinterpret_cast<com::HResult (*)()>(dlsym(library_, entry))();
  }

  toolkit::Toolkit& Surroundings() override { return office_.toolkit; }

  testing::WizardOffice office_;
  void* library_ = dlopen(VELMAR_COMPONENT, RTLD_NOW | RTLD_LOCAL);
};

TEST_F(Component, ExportsTheFourEntryPointsAndNothingElse) {
  std::FILE* pipe =
      popen("nm -D --defined-only '" VELMAR_COMPONENT "' | cut -d ' ' -f 3 | tr '\\n' ' '", "r");
  std::array<char, 512> names{};
  ASSERT_NE(std::fgets(names.data(), static_cast<int>(names.size()), pipe), nullptr);
  EXPECT_EQ(pclose(pipe), 0);
  EXPECT_STREQ(names.data(), "DllCanUnloadNow DllGetClassObject DllRegisterServer DllUnregisterServer ");
}

TEST_F(Component, RunsTheWizardForAHostThatLoadedIt) {
  EXPECT_EQ(Call("DllCanUnloadNow"), com::kSOk);
  {
    const auto principal = com::Query<Principal>(com::CreateFromLibrary(VELMAR_COMPONENT, kPrincipalClass));
    EXPECT_EQ(Call("DllCanUnloadNow"), com::kSFalse);
    EXPECT_THROW(principal->PasarDatos(office_.host), RuntimeError) << "there is no site";
    principal->SetSite(this);
    office_.log->FailAt(5);
    office_.toolkit.WhenShown("frmExportacion", [](toolkit::Form& form) { form.UserClose(); });
    principal->PasarDatos(office_.host);
    // The number is read from this program's own current error.
    EXPECT_THAT(office_.log->Take(),
                ::testing::Contains("VerError Form_Load() frmExportacion VelmarExportacion 7000"));
    principal->SetSite(nullptr);
  }
  EXPECT_EQ(Call("DllCanUnloadNow"), com::kSOk);
}

TEST_F(Component, RegistersOneClassForTheUserAndTakesItBack) {
  const files::TemporaryFolder folder;
  ::setenv("XDG_DATA_HOME", (folder / "datos").c_str(), 1);
  EXPECT_EQ(Call("DllRegisterServer"), com::kSOk);
  const auto entries = com::ClassFile::OfUser().Entries();
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_EQ(entries[0].progId, "VelmarExportacion.cPrincipal");
  EXPECT_EQ(entries[0].server, std::filesystem::canonical(VELMAR_COMPONENT));
  EXPECT_NE(com::Query<Principal>(com::CreateObject("velmarexportacion.CPRINCIPAL")), nullptr);
  EXPECT_EQ(Call("DllUnregisterServer"), com::kSOk);
  EXPECT_TRUE(com::ClassFile::OfUser().Entries().empty());

  ::setenv("XDG_DATA_HOME", "/dev/null", 1);
  EXPECT_LT(Call("DllRegisterServer"), 0);
  ::unsetenv("XDG_DATA_HOME");
}

}  // namespace
}  // namespace velmar

// A host that knows the component by its library alone: this program links nothing of the wizard.

#include <dlfcn.h>
#include <gmock/gmock.h>

#include <array>
#include <cstdio>
#include <cstdlib>

#include "host/Principal.h"
#include "platform/com/ClassFactory.h"
#include "platform/com/ClassFile.h"
#include "platform/com/CreateObject.h"
#include "platform/com/ObjectUnknown.h"
#include "platform/toolkit/Form.h"
#include "wizard/WizardOffice.h"

namespace velmar {
namespace {

class Component : public ::testing::Test, public ComponentSite {
 protected:
  using Plain = com::HResult (*)();
  using GetClassObject = com::HResult (*)(const com::Guid*, const com::Guid*, void**);

  template <typename Function>
  Function Entry(const char* name) const {
    const auto entry = reinterpret_cast<Function>(dlsym(library_, name));
    if (entry == nullptr) throw std::runtime_error(dlerror());
    return entry;
  }

  /// A cPrincipal, by way of the class factory.
  std::shared_ptr<Principal> Create() const {
    void* result = nullptr;
    EXPECT_EQ(Entry<GetClassObject>("DllGetClassObject")(&kPrincipalClass, &com::ClassFactory::kId, &result),
              com::kSOk);
    auto* factory = static_cast<com::ClassFactory*>(result);
    EXPECT_EQ(factory->CreateInstance(nullptr, com::Unknown::kId, &result), com::kSOk);
    factory->Release();
    auto* unknown = static_cast<com::Unknown*>(result);
    EXPECT_EQ(unknown->QueryInterface(com::ObjectUnknown::kObjectId, &result), com::kSOk);
    unknown->Release();
    std::shared_ptr<com::Object> object(static_cast<com::Object*>(result),
                                        [unknown](com::Object*) { unknown->Release(); });
    return com::Query<Principal>(object);
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
  const auto canUnload = Entry<Plain>("DllCanUnloadNow");
  EXPECT_EQ(canUnload(), com::kSOk);
  {
    const auto principal = Create();
    EXPECT_EQ(canUnload(), com::kSFalse);
    EXPECT_THROW(principal->PasarDatos(office_.host), RuntimeError) << "there is no site";
    principal->SetSite(this);
    office_.log->FailAt(5);
    office_.toolkit.WhenShown("frmExportacion", [](toolkit::Form& form) {
      EXPECT_EQ(form.Caption(), "Exportación de datos a una hoja de Excel");
      form.UserClose();
    });
    principal->PasarDatos(office_.host);
    // The number is read from this program's own current error.
    EXPECT_THAT(office_.log->Take(),
                ::testing::Contains("VerError Form_Load() frmExportacion VelmarExportacion 7000"));
    EXPECT_EQ(office_.host->main->State(), ADODB::kStateClosed);
    principal->SetSite(nullptr);
  }
  EXPECT_EQ(canUnload(), com::kSOk);
}

TEST_F(Component, RegistersOneClassForTheUserAndTakesItBack) {
  const files::TemporaryFolder folder;
  ::setenv("XDG_DATA_HOME", (folder / "datos").c_str(), 1);
  EXPECT_EQ(Entry<Plain>("DllRegisterServer")(), com::kSOk);
  const auto entries = com::ClassFile::OfUser().Entries();
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_EQ(entries[0].progId, "VelmarExportacion.cPrincipal");
  EXPECT_EQ(entries[0].server, std::filesystem::canonical(VELMAR_COMPONENT));
  EXPECT_NE(com::Query<Principal>(com::CreateObject("velmarexportacion.CPRINCIPAL")), nullptr);
  EXPECT_EQ(Entry<Plain>("DllUnregisterServer")(), com::kSOk);
  EXPECT_TRUE(com::ClassFile::OfUser().Entries().empty());

  ::setenv("XDG_DATA_HOME", "/dev/null", 1);
  EXPECT_LT(Entry<Plain>("DllRegisterServer")(), 0);
  ::unsetenv("XDG_DATA_HOME");
}

}  // namespace
}  // namespace velmar

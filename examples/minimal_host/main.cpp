// A host with the wizard linked in. Unattended, or with --ventana on the screen.

#include <cstdio>
#include <string>

#include "MinimalHost.h"
#include "host/ComponentSite.h"
#include "host/cPrincipal.h"
#include "platform/error/RuntimeError.h"
#ifdef MINIMAL_HOST_QT
#include "qt/toolkit/Application.h"
#include "qt/toolkit/QtToolkit.h"
#include "qt/windows/MakeWindow.h"
#endif

namespace {

/// What the wizard runs in, for as long as this object lives.
class Site final : public velmar::ComponentSite {
 public:
  explicit Site(velmar::toolkit::Toolkit& toolkit) : toolkit_(toolkit) { velmar::cPrincipal().SetSite(this); }
  ~Site() override { velmar::cPrincipal().SetSite(nullptr); }
  velmar::toolkit::Toolkit& Surroundings() override { return toolkit_; }

 private:
  velmar::toolkit::Toolkit& toolkit_;
};

void Run(velmar::toolkit::Toolkit& toolkit, const std::string& folder) {
  minimal::RegisterClasses();
  const Site site(toolkit);
  velmar::cPrincipal().PasarDatos(std::make_shared<minimal::Application>(folder));
}

int RunUnattended(const std::string& folder) {
  velmar::toolkit::ScriptedToolkit user;
  minimal::Play(user, folder + "/Colaboradores.xls");
  Run(user, folder);
  return minimal::Tell(user) ? 0 : 1;
}

#ifdef MINIMAL_HOST_QT
int RunOnScreen(int argc, char** argv, const std::string& folder) {
  velmar::qt::Application application(argc, argv);
  velmar::qt::QtToolkit toolkit(application, velmar::qt::MakeWindow);
  Run(toolkit, folder);
  return 0;
}
#else
int RunOnScreen(int, char**, const std::string&) {
  std::fputs("Este programa se ha construido sin Qt: ejecútelo sin --ventana.\n", stderr);
  return 2;
}
#endif

}  // namespace

int main(int argc, char** argv) {
  const bool onScreen = argc == 3 && std::string(argv[2]) == "--ventana";
  if (argc != 2 && !onScreen) {
    std::fprintf(stderr, "Uso: %s CARPETA [--ventana]\n", argv[0]);
    return 2;
  }
  try {
    const std::string folder = std::filesystem::absolute(argv[1]).string();
    return onScreen ? RunOnScreen(argc, argv, folder) : RunUnattended(folder);
  } catch (const velmar::RuntimeError& failure) {
    std::fprintf(stderr, "Error %ld: %s\n", failure.Number(), failure.Description().c_str());
    return 1;
  }
}

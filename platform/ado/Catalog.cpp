#include "platform/ado/Catalog.h"

#include "platform/ado/ConnectionText.h"
#include "platform/ado/DatabaseFile.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/files/Paths.h"

namespace ADOX {

void Catalog::Create(const std::string& connectionText) {
  const ADODB::ConnectionText settings(connectionText);
  const std::string path = settings.DataSource();
  if (const auto existing = velmar::files::ResolveForChange(path)) {
    throw velmar::RuntimeError(
        velmar::kFileAlreadyExists,
        "No se ha creado la base de datos: ya existe " + *existing + ". Bórrelo o elija otro nombre.",
        "ADOX.Catalog");
  }
  ADODB::DatabaseFile file(velmar::files::ResolveForCreation(path));
  file.Initialise(settings.Flag(ADODB::kScratchKey), settings.Value(ADODB::kPasswordKey));
  file.Keep();
}

}  // namespace ADOX

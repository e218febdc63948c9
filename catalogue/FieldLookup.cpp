#include "catalogue/FieldLookup.h"

#include "platform/text/Numbers.h"

namespace velmar {

std::string FieldKey(long idCampo) {
  return text::Str(idCampo);
}

const cCampos& FindField(const Collection<cCampos>& mcolCampos, long idCampo) {
  const cCampos* field = mcolCampos.Find(FieldKey(idCampo));
  if (field == nullptr) {
    throw RuntimeError(kInvalidProcedureCall,
                       "El catálogo no tiene ningún campo con el número " + std::to_string(idCampo) +
                           ". Quite el campo de la selección o revise la tabla ExportacionCampos.",
                       "VelmarExportacion");
  }
  return *field;
}

}  // namespace velmar

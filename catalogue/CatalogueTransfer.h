#pragma once

#include <functional>

namespace ADODB {
class Connection;
}

namespace velmar {

/// Brings the catalogue tables into a management database that cannot read `ExportacionCampos`: copies
/// `ExportacionCamposTEMP` and `ExportacionPlantillasTEMP` of the reports database and empties the templates.
/// A database whose table can be read is left alone, even if the table is empty.
///
/// Never fails and reports nothing: each step runs whatever became of the one before it, and what is missing
/// afterwards shows when it is read. doEvents gives the message loop one turn behind each statement.
void ActualizarCatalogo(ADODB::Connection& conGestion, ADODB::Connection& coninformes,
                        const std::function<void()>& doEvents);

}  // namespace velmar

#pragma once

#include <functional>

#include "catalogue/Collection.h"
#include "catalogue/NodeSink.h"
#include "catalogue/cCampos.h"
#include "host/interfaces/FailureReport.h"

namespace ADODB {
class Connection;
}

namespace velmar {

/// Reads the whole catalogue from `ExportacionCampos` of the management database into the collection, in the
/// order of `IDCampo`. doEvents gives the message loop one turn behind the query.
///
/// The first failure ends the reading, is reported as "LlenarColeccionCampos ()", and the rows before it
/// stay: a database error, a Null in any column but `CaracterValorCampo` (which becomes the empty text), an
/// `IDCampo` that has come before, a number outside of 16 bits with its sign.
void LlenarColeccionCampos(ADODB::Connection& conGestion, Collection<cCampos>& mcolCampos,
                           const std::function<void()>& doEvents, const FailureReport& report);

/// Reads the distinct nodes of the catalogue in the order of their names into the sink. Failures as above,
/// under "fillTablasExportacion ()".
void LeerTablasExportacion(ADODB::Connection& conGestion, NodeSink& sink,
                           const std::function<void()>& doEvents, const FailureReport& report);

}  // namespace velmar

#pragma once

#include <functional>
#include <optional>
#include <string>

#include "catalogue/Collection.h"
#include "catalogue/cCampos.h"
#include "query/Selection.h"

namespace velmar {

/// True if the nodes of the selection can be related. Gives the message loop one turn through doEvents.
bool ValidarTablas(const Selection& selection, const std::function<void()>& doEvents = {});

/// True if no field's literal is part of the literals of the rows above it, without regard to case. Reads the
/// literals of the catalogue; a field that it does not hold is a failure for the caller.
bool ValidarLiterales(const Selection& selection, const Collection<cCampos>& mcolCampos);

/// Tells whether the selection can be exported: nothing if it can, else the text of the refusal, to be shown
/// with a beep as an exclamation. Its lines are parted by a carriage return.
std::optional<std::string> ValidarExportacion(const Selection& selection,
                                              const Collection<cCampos>& mcolCampos,
                                              const std::function<void()>& doEvents = {});

}  // namespace velmar

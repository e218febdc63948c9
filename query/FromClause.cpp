#include "query/FromClause.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "platform/text/Case.h"
#include "platform/text/Search.h"
#include "platform/text/Trim.h"
#include "query/DistinctList.h"
#include "query/Nodes.h"
#include "query/SelectionTexts.h"

namespace velmar {

namespace {

// In the texts of both tables "|" stands for the join word of the clause.

/// The fixed nesting of one combination of nodes. They stand in the order of their prefixes, without gaps.
struct BaseText {
  std::array<std::string_view, 3> nodes;
  std::string_view text;
};

/// One further join around the text built so far, "(" in front, for a field with this internal name. A
/// combination whose base text holds these tables already does without.
struct LookupJoin {
  std::string_view field;
  std::string_view text;
  std::string_view notWith = {};
};

// A receipt reaches its donations only through its payments, so donations beside receipts add nothing.
constexpr std::string_view kCollaboratorReceipts =
    " (Colaboradores | (Recibos | (Cobros | Donativos ON Cobros.CodDonativo = Donativos.IDDonativo)"
    " ON Recibos.IDRecibo = Cobros.CodRecibo) ON Colaboradores.IDColaborador = Recibos.CodColaborador) ";

constexpr std::array kBaseTexts = {
    BaseText{{kColaboradores}, " Colaboradores "},
    BaseText{{kColaboradores, kDonativos},
             " (Colaboradores | Donativos ON Colaboradores.IDColaborador = Donativos.CodColaborador) "},
    BaseText{{kColaboradores, kRecibos}, kCollaboratorReceipts},
    BaseText{{kColaboradores, kDonativos, kRecibos}, kCollaboratorReceipts},
    BaseText{{kColaboradores, kRemesas},
             " (Colaboradores | ((Recibos | Remesas ON Recibos.CodRemesa = Remesas.IDRemesa)"
             " | Cobros ON Recibos.IDRecibo = Cobros.CodRecibo)"
             " ON Colaboradores.IDColaborador = Recibos.CodColaborador) "},
    BaseText{{kColaboradores, kRecibos, kRemesas},
             " (Colaboradores | ((Recibos | Remesas ON Recibos.CodRemesa = Remesas.IDRemesa)"
             " | (Cobros | Donativos ON Cobros.CodDonativo = Donativos.IDDonativo)"
             " ON Recibos.IDRecibo = Cobros.CodRecibo)"
             " ON Colaboradores.IDColaborador = Recibos.CodColaborador) "},
    BaseText{{kColaboradores, kModelo182},
             " (Colaboradores | Modelo182Hacienda"
             " ON Colaboradores.IDColaborador = Modelo182Hacienda.CodColaborador) "},
    BaseText{{kDonativos}, " Donativos "},
    BaseText{{kDonativos, kRecibos},
             " (Donativos | (Cobros | Recibos ON Cobros.CodRecibo = Recibos.IDRecibo)"
             " ON Donativos.IDDonativo = Cobros.CodDonativo) "},
    BaseText{{kRecibos},
             " (Recibos | (Cobros | Donativos ON Cobros.CodDonativo = Donativos.IDDonativo)"
             " ON Recibos.IDRecibo = Cobros.CodRecibo) "},
    BaseText{{kRecibos, kRemesas},
             " ((Recibos | Remesas ON Recibos.CodRemesa = Remesas.IDRemesa)"
             " | (Cobros | Donativos ON Cobros.CodDonativo = Donativos.IDDonativo)"
             " ON Recibos.IDRecibo = Cobros.CodRecibo) "},
    BaseText{{kRemesas},
             " remesas | ((Recibos | (Emisores_Cuentas | (Cuentas | sucursales"
             " ON cuentas.codsucursal = sucursales.idsucursal)"
             " ON Emisores_cuentas.codCuenta = Cuentas.idcuenta)"
             " ON Recibos.codEmisor_cuenta=Emisores_Cuentas.idemisor_Cuenta)"
             " | (Emisores | (Presentadores | Bancos ON Presentadores.codBanco=Bancos.IDBanco)"
             " ON Emisores.codPresentador=Presentadores.IDPresentador)"
             " ON Emisores.idemisor=emisores_cuentas.codemisor)"
             " ON remesas.idremesa=recibos.codremesa"},
    BaseText{{kModelo182}, " Modelo182Hacienda "},
};

constexpr std::string_view kTipoDonativos =
    "| TipoDonativos ON Donativos.CodTipoDonativo = TipoDonativos.IDTipoDonativo) ";
constexpr std::string_view kTipoPagos = "| TipoPagos ON Donativos.CodTipoPago = TipoPagos.IDTipoPago) ";

// The order is that of the nesting: the first join found stands innermost.
constexpr std::array kLookupJoins = {
    LookupJoin{"colaboradores.provincia",
               "| Provincias ON Colaboradores.CodProvincia = Provincias.IDProvincia) "},
    LookupJoin{"colaboradores.pais", "| Paises ON Colaboradores.CodPais = Paises.IDPais) "},
    LookupJoin{"colaboradores.cuenta",
               "| (Colaboradores_Cuentas | (Cuentas | (Sucursales | Bancos"
               " ON Sucursales.CodBanco = Bancos.IDBanco) ON Cuentas.CodSucursal = Sucursales.IDSucursal)"
               " ON Colaboradores_Cuentas.CodCuenta = Cuentas.IDCuenta)"
               " ON Colaboradores.IDColaborador = Colaboradores_Cuentas.CodColaborador) "},
    LookupJoin{"donativos.tipodonativo", kTipoDonativos},
    LookupJoin{"donativos.tipoperiodo",
               "| TipoPeriodos ON Donativos.CodTipoPeriodo = TipoPeriodos.IDTipoPeriodo) "},
    LookupJoin{"donativos.tipopago", kTipoPagos},
    LookupJoin{"donativos.cuenta",
               "| (Cuentas | (Sucursales | Bancos ON Sucursales.CodBanco = Bancos.IDBanco)"
               " ON Cuentas.CodSucursal = Sucursales.IDSucursal)"
               " ON Donativos.CodColaborador_Cuenta = Cuentas.IDCuenta) "},
    LookupJoin{"recibos.tipodonativo", kTipoDonativos},
    LookupJoin{"recibos.tipopago", kTipoPagos},
    LookupJoin{"recibos.cuenta",
               "| (Cuentas | (Sucursales | Bancos ON Sucursales.CodBanco = Bancos.IDBanco)"
               " ON Cuentas.CodSucursal = Sucursales.IDSucursal) ON Recibos.CodCuenta = Cuentas.IDCuenta) "},
    LookupJoin{"remesas.codemisor", "| Emisores ON Remesas.CodEmisor = Emisores.IDEmisor) ", kRemesas},
    LookupJoin{"remesas.cuenta",
               "| (Emisores_Cuentas | (Cuentas | (Sucursales | Bancos"
               " ON Sucursales.CodBanco = Bancos.IDBanco) ON Cuentas.CodSucursal = Sucursales.IDSucursal)"
               " ON Emisores_Cuentas.CodCuenta = Cuentas.IDCuenta)"
               " ON Emisores_Cuentas.idemisor_cuenta=recibos.codemisor_cuenta)",
               kRemesas},
};

/// As ObtenerStrTablasSeleccionadas joins them.
std::string Joined(const std::array<std::string_view, 3>& nodes) {
  DistinctList list;
  for (const std::string_view node : nodes) {
    if (!node.empty()) list.Add(node);
  }
  return list.Joined();
}

}  // namespace

std::string GenerarSQLFROM(const Selection& selection, const Collection<cCampos>& mcolCampos,
                           const FailureReport& report) {
  const std::string nodes = ObtenerStrTablasSeleccionadas(selection);
  const std::string fields = text::FoldCase(ObtenerStrCamposSeleccionados(selection, mcolCampos, report));

  const auto base = std::find_if(kBaseTexts.begin(), kBaseTexts.end(),
                                 [&](const BaseText& candidate) { return Joined(candidate.nodes) == nodes; });
  std::string opening;
  std::string lookups;
  for (const LookupJoin& lookup : kLookupJoins) {
    const bool inBaseText = !lookup.notWith.empty() && nodes == lookup.notWith;
    if (inBaseText || !text::Contains(fields, lookup.field)) continue;
    opening.push_back('(');
    lookups.append(lookup.text);
  }
  std::string from = opening;
  if (base != kBaseTexts.end()) from.append(base->text);
  from.append(lookups);
  const std::string_view join =
      selection.relation == Selection::Relation::kComplete ? " INNER JOIN " : " LEFT JOIN ";
  return " FROM " + text::Replace(text::Trim(from), "|", join);
}

}  // namespace velmar

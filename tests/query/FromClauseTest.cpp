#include "query/FromClause.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>

#include "query/TestCatalogue.h"

namespace velmar {
namespace {

// The expected text is made here as a tree of joins, each told by its two sides and its condition.
class Tree {
 public:
  explicit Tree(std::string joinWord) : join_("  " + std::move(joinWord) + "  ") {}

  std::string Join(const std::string& left, const std::string& right, const std::string& condition) const {
    return left + join_ + right + " ON " + condition;
  }
  std::string In(const std::string& left, const std::string& right, const std::string& condition) const {
    return "(" + Join(left, right, condition) + ")";
  }

  std::string Payments() const {
    return In("Cobros", "Donativos", "Cobros.CodDonativo = Donativos.IDDonativo");
  }
  std::string Remitted() const { return In("Recibos", "Remesas", "Recibos.CodRemesa = Remesas.IDRemesa"); }
  std::string Paid(const std::string& receipts) const {
    return In(receipts, Payments(), "Recibos.IDRecibo = Cobros.CodRecibo");
  }
  std::string OfCollaborator(const std::string& what, const std::string& table) const {
    return In("Colaboradores", what, "Colaboradores.IDColaborador = " + table + ".CodColaborador");
  }
  std::string Bank() const {
    return In("Cuentas", In("Sucursales", "Bancos", "Sucursales.CodBanco = Bancos.IDBanco"),
              "Cuentas.CodSucursal = Sucursales.IDSucursal");
  }

  /// One of the thirteen combinations, by the initials of its nodes: C, D, R, S (remittances), M.
  std::string Base(const std::string& nodes) const {
    if (nodes == "C") return "Colaboradores";
    if (nodes == "D") return "Donativos";
    if (nodes == "M") return "Modelo182Hacienda";
    if (nodes == "CD") return OfCollaborator("Donativos", "Donativos");
    if (nodes == "CM") return OfCollaborator("Modelo182Hacienda", "Modelo182Hacienda");
    if (nodes == "R") return Paid("Recibos");
    if (nodes == "RS") return Paid(Remitted());
    if (nodes == "CR" || nodes == "CDR") return OfCollaborator(Paid("Recibos"), "Recibos");
    if (nodes == "CRS") return OfCollaborator(Paid(Remitted()), "Recibos");
    if (nodes == "CS") {
      return OfCollaborator(In(Remitted(), "Cobros", "Recibos.IDRecibo = Cobros.CodRecibo"), "Recibos");
    }
    if (nodes == "DR") {
      return In("Donativos", In("Cobros", "Recibos", "Cobros.CodRecibo = Recibos.IDRecibo"),
                "Donativos.IDDonativo = Cobros.CodDonativo");
    }
    if (nodes == "S") {
      const std::string accounts =
          In("Emisores_Cuentas", In("Cuentas", "sucursales", "cuentas.codsucursal = sucursales.idsucursal"),
             "Emisores_cuentas.codCuenta = Cuentas.idcuenta");
      const std::string issuers =
          In("Emisores", In("Presentadores", "Bancos", "Presentadores.codBanco=Bancos.IDBanco"),
             "Emisores.codPresentador=Presentadores.IDPresentador");
      const std::string receipts =
          In("Recibos", accounts, "Recibos.codEmisor_cuenta=Emisores_Cuentas.idemisor_Cuenta");
      return Join("remesas", In(receipts, issuers, "Emisores.idemisor=emisores_cuentas.codemisor"),
                  "remesas.idremesa=recibos.codremesa");
    }
    return {};
  }

  /// What a field joins: the table or tables, and the condition.
  std::pair<std::string, std::string> Lookup(const std::string& field) const {
    const std::map<std::string, std::pair<std::string, std::string>> lookups = {
        {"colaboradores.provincia", {"Provincias", "Colaboradores.CodProvincia = Provincias.IDProvincia"}},
        {"colaboradores.pais", {"Paises", "Colaboradores.CodPais = Paises.IDPais"}},
        {"colaboradores.cuenta",
         {In("Colaboradores_Cuentas", Bank(), "Colaboradores_Cuentas.CodCuenta = Cuentas.IDCuenta"),
          "Colaboradores.IDColaborador = Colaboradores_Cuentas.CodColaborador"}},
        {"donativos.tipodonativo",
         {"TipoDonativos", "Donativos.CodTipoDonativo = TipoDonativos.IDTipoDonativo"}},
        {"donativos.tipoperiodo", {"TipoPeriodos", "Donativos.CodTipoPeriodo = TipoPeriodos.IDTipoPeriodo"}},
        {"donativos.tipopago", {"TipoPagos", "Donativos.CodTipoPago = TipoPagos.IDTipoPago"}},
        {"donativos.cuenta", {Bank(), "Donativos.CodColaborador_Cuenta = Cuentas.IDCuenta"}},
        {"recibos.tipodonativo",
         {"TipoDonativos", "Donativos.CodTipoDonativo = TipoDonativos.IDTipoDonativo"}},
        {"recibos.tipopago", {"TipoPagos", "Donativos.CodTipoPago = TipoPagos.IDTipoPago"}},
        {"recibos.cuenta", {Bank(), "Recibos.CodCuenta = Cuentas.IDCuenta"}},
        {"remesas.codemisor", {"Emisores", "Remesas.CodEmisor = Emisores.IDEmisor"}},
        {"remesas.cuenta",
         {In("Emisores_Cuentas", Bank(), "Emisores_Cuentas.CodCuenta = Cuentas.IDCuenta"),
          "Emisores_Cuentas.idemisor_cuenta=recibos.codemisor_cuenta"}},
    };
    return lookups.at(field);
  }

 private:
  std::string join_;
};

struct Node {
  char initial;
  std::string name;
  std::string table;
  std::vector<std::string> lookups;  // in the order of nesting
};

const std::array<Node, 5> kNodes = {{
    {'C',
     "(COL) Colaboradores",
     "colaboradores",
     {"colaboradores.provincia", "colaboradores.pais", "colaboradores.cuenta"}},
    {'D',
     "(DON) Donativos/Suscripciones",
     "donativos",
     {"donativos.tipodonativo", "donativos.tipoperiodo", "donativos.tipopago", "donativos.cuenta"}},
    {'R', "(REC) Recibos", "recibos", {"recibos.tipodonativo", "recibos.tipopago", "recibos.cuenta"}},
    {'S', "(REM) Remesas", "remesas", {"remesas.codemisor", "remesas.cuenta"}},
    {'M', "(MOD) Modelo182", "modelo182", {}},
}};

std::string Expected(const std::string& nodes, const std::vector<std::string>& lookups,
                     const std::string& word) {
  const Tree tree(word);
  const std::string base = tree.Base(nodes);
  if (nodes == "S") return " FROM " + base;
  std::string opening;
  std::string behind;
  for (const std::string& field : lookups) {
    const auto [tables, condition] = tree.Lookup(field);
    opening.push_back('(');
    behind += "  " + word + "  " + tables + " ON " + condition + ")";
  }
  return " FROM " + opening + (opening.empty() ? "" : " ") + base + behind;
}

TEST(FromClause, EveryCombinationWithEverySubsetOfItsLookups) {
  int clauses = 0;
  for (const std::string nodes :
       {"C", "D", "R", "S", "M", "CD", "CR", "CS", "CM", "DR", "RS", "CDR", "CRS"}) {
    std::vector<std::string> possible;
    for (const Node& node : kNodes) {
      if (nodes.find(node.initial) != std::string::npos) {
        possible.insert(possible.end(), node.lookups.begin(), node.lookups.end());
      }
    }
    for (unsigned mask = 0; mask < 1U << possible.size(); ++mask) {
      testing::Fixture f;
      std::vector<std::string> chosen;
      for (std::size_t bit = 0; bit < possible.size(); ++bit) {
        if (mask >> bit & 1) chosen.push_back(possible[bit]);
      }
      for (const Node& node : kNodes) {
        if (nodes.find(node.initial) == std::string::npos) continue;
        f.Select(f.Describe(node.name, node.table + ".importe", "l"));
        for (const std::string& field : chosen) {
          if (field.starts_with(node.table + ".")) f.Select(f.Describe(node.name, field, "l"));
        }
      }
      if (mask % 2 == 1) std::reverse(f.selection.rows.begin(), f.selection.rows.end());
      for (const auto relation : {Selection::Relation::kComplete, Selection::Relation::kPartial}) {
        f.selection.relation = relation;
        const std::string word = relation == Selection::Relation::kComplete ? "INNER JOIN" : "LEFT JOIN";
        ASSERT_EQ(GenerarSQLFROM(f.selection, f.catalogue, f.Report()), Expected(nodes, chosen, word))
            << nodes << " " << mask;
        ++clauses;
      }
      ASSERT_TRUE(f.reported.empty());
    }
  }
  EXPECT_EQ(clauses, 2 * (8 + 16 + 8 + 4 + 1 + 128 + 64 + 32 + 8 + 128 + 32 + 1024 + 256));
}

TEST(FromClause, WorkedExamples) {
  testing::Fixture f;
  f.Select(f.Describe("(COL) Colaboradores", "colaboradores.provincia", "Provincia"));
  f.Select(f.Describe("(REC) Recibos", "recibos.cuenta", "Cuenta"));
  EXPECT_EQ(
      GenerarSQLFROM(f.selection, f.catalogue, f.Report()),
      " FROM (( (Colaboradores  INNER JOIN  (Recibos  INNER JOIN  (Cobros  INNER JOIN  Donativos ON "
      "Cobros.CodDonativo = Donativos.IDDonativo) ON Recibos.IDRecibo = Cobros.CodRecibo) ON "
      "Colaboradores.IDColaborador = Recibos.CodColaborador)  INNER JOIN  Provincias ON "
      "Colaboradores.CodProvincia = Provincias.IDProvincia)  INNER JOIN  (Cuentas  INNER JOIN  (Sucursales  "
      "INNER JOIN  Bancos ON Sucursales.CodBanco = Bancos.IDBanco) ON Cuentas.CodSucursal = "
      "Sucursales.IDSucursal) ON Recibos.CodCuenta = Cuentas.IDCuenta)");

  testing::Fixture g;
  g.selection.relation = Selection::Relation::kPartial;
  g.Select(g.Describe("(DON) Donativos/Suscripciones", "donativos.tipopago", "Tipo de pago"));
  EXPECT_EQ(GenerarSQLFROM(g.selection, g.catalogue, g.Report()),
            " FROM ( Donativos  LEFT JOIN  TipoPagos ON Donativos.CodTipoPago = TipoPagos.IDTipoPago)");
}

TEST(FromClause, AFieldWhoseNameStartsWithASoughtOneJoinsToo) {
  testing::Fixture f;
  f.Select(f.Describe("(COL) Colaboradores", "COLABORADORES.PAISnacimiento", "País"));
  EXPECT_EQ(GenerarSQLFROM(f.selection, f.catalogue, f.Report()),
            " FROM ( Colaboradores  INNER JOIN  Paises ON Colaboradores.CodPais = Paises.IDPais)");
}

TEST(FromClause, WhatTheTableDoesNotHold) {
  testing::Fixture unknown;
  unknown.Select(unknown.Describe("(XXX) Otros", "otros.x", "x"));
  EXPECT_EQ(GenerarSQLFROM(unknown.selection, unknown.catalogue, unknown.Report()), " FROM ");
  unknown.Select(unknown.Describe("(XXX) Otros", "colaboradores.pais", "y"));
  EXPECT_EQ(GenerarSQLFROM(unknown.selection, unknown.catalogue, unknown.Report()),
            " FROM ( INNER JOIN  Paises ON Colaboradores.CodPais = Paises.IDPais)");

  testing::Fixture lost;
  lost.Select(lost.Describe("(COL) Colaboradores", "colaboradores.pais", "x"));
  lost.selection.rows.push_back({"(COL) Colaboradores", "y", "", 9});
  EXPECT_EQ(GenerarSQLFROM(lost.selection, lost.catalogue, lost.Report()), " FROM Colaboradores");
  EXPECT_EQ(lost.reported, std::vector<std::string>{"ObtenerStrCamposSeleccionados ()"});

  testing::Fixture empty;
  EXPECT_THROW(GenerarSQLFROM(empty.selection, empty.catalogue, empty.Report()), RuntimeError);
  EXPECT_TRUE(empty.reported.empty());
}

}  // namespace
}  // namespace velmar

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/interfaces/TestDatabases.h"
#include "query/FromClause.h"
#include "query/ListClauses.h"
#include "query/TestCatalogue.h"
#include "query/WhereClause.h"

namespace velmar {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The clauses together, run on the tables that they name.
class ClausesOnDatabase : public ::testing::Test {
 protected:
  ClausesOnDatabase() {
    for (const char* table :
         {"Colaboradores (IDColaborador LONG, CodProvincia LONG, CodPais LONG, Nombre TEXT(50))",
          "Donativos (IDDonativo LONG, CodColaborador LONG, CodTipoDonativo LONG, CodTipoPeriodo LONG, "
          "CodTipoPago LONG, CodColaborador_Cuenta LONG, Importe CURRENCY)",
          "Recibos (IDRecibo LONG, CodColaborador LONG, CodRemesa LONG, CodCuenta LONG, CodEmisor_Cuenta "
          "LONG, "
          "FechaEmision TEXT(8))",
          "Cobros (CodRecibo LONG, CodDonativo LONG)", "Remesas (IDRemesa LONG, CodEmisor LONG)",
          "Modelo182Hacienda (CodColaborador LONG)", "Provincias (IDProvincia LONG, Provincia TEXT(50))",
          "Paises (IDPais LONG)", "Colaboradores_Cuentas (CodColaborador LONG, CodCuenta LONG)",
          "Cuentas (IDCuenta LONG, CodSucursal LONG)", "Sucursales (IDSucursal LONG, CodBanco LONG)",
          "Bancos (IDBanco LONG)", "TipoDonativos (IDTipoDonativo LONG)", "TipoPeriodos (IDTipoPeriodo LONG)",
          "TipoPagos (IDTipoPago LONG)", "Emisores (IDEmisor LONG, CodPresentador LONG)",
          "Emisores_Cuentas (IDEmisor_Cuenta LONG, CodCuenta LONG, CodEmisor LONG)",
          "Presentadores (IDPresentador LONG, CodBanco LONG)"}) {
      connection_->Execute(std::string("CREATE TABLE ") + table);
    }
  }

  std::vector<std::string> Rows() {
    const std::string sql = GenerarSQLSELECT(f_.selection, f_.catalogue, f_.Report()) +
                            GenerarSQLFROM(f_.selection, f_.catalogue, f_.Report()) +
                            GenerarSQLWHERE(f_.selection, f_.catalogue, nullptr, f_.Report()) +
                            GenerarSQLORDERBY(f_.selection, f_.catalogue, f_.Report());
    SCOPED_TRACE(sql);
    std::vector<std::string> rows;
    EXPECT_NO_THROW({
      const auto recordset = connection_->Execute(sql);
      for (; !recordset->Eof(); recordset->MoveNext())
        rows.push_back(recordset->Fields(0L).Value().TextOrEmpty());
    });
    return rows;
  }

  cCampos Field(const std::string& node, const std::string& name, const std::string& column,
                const std::string& delimiter = {}) {
    return f_.Describe(node, name, "C" + std::to_string(f_.catalogue.Count()), column, delimiter);
  }

  testing::TestDatabases databases_;
  std::shared_ptr<ADODB::Connection> connection_ = databases_.Create("Gestion.mdb");
  testing::Fixture f_;
};

TEST_F(ClausesOnDatabase, EveryCombinationOfNodesWithEachLookupIsAccepted) {
  const struct {
    char initial;
    const char* name;
    const char* column;
    std::vector<const char*> lookups;
  } nodes[] = {
      {'C',
       "(COL) Colaboradores",
       "Colaboradores.Nombre",
       {"colaboradores.nombre", "colaboradores.provincia", "colaboradores.pais", "colaboradores.cuenta"}},
      {'D',
       "(DON) Donativos/Suscripciones",
       "Donativos.Importe",
       {"donativos.importe", "donativos.tipodonativo", "donativos.tipoperiodo", "donativos.tipopago",
        "donativos.cuenta"}},
      {'R',
       "(REC) Recibos",
       "Recibos.FechaEmision",
       {"recibos.importe", "recibos.tipodonativo", "recibos.tipopago", "recibos.cuenta"}},
      {'S', "(REM) Remesas", "Remesas.IDRemesa", {"remesas.fecha", "remesas.codemisor", "remesas.cuenta"}},
      {'M', "(MOD) Modelo182", "Modelo182Hacienda.CodColaborador", {"modelo182.nif"}},
  };
  for (const std::string combination :
       {"C", "D", "R", "S", "M", "CD", "CR", "CS", "CM", "DR", "RS", "CDR", "CRS"}) {
    for (const auto& looking : nodes) {
      if (combination.find(looking.initial) == std::string::npos) continue;
      for (const char* lookup : looking.lookups) {
        SCOPED_TRACE(combination + " " + lookup);
        f_ = {};
        for (const auto& node : nodes) {
          if (combination.find(node.initial) != std::string::npos)
            f_.Select(Field(node.name, "x.y", node.column));
        }
        f_.Select(Field(looking.name, lookup, looking.column));
        f_.selection.order = {1};
        for (const auto relation : {Selection::Relation::kComplete, Selection::Relation::kPartial}) {
          f_.selection.relation = relation;
          EXPECT_THAT(Rows(), IsEmpty());
          EXPECT_THAT(f_.reported, IsEmpty());
        }
      }
    }
  }
}

TEST_F(ClausesOnDatabase, RelationFilterAndOrderChooseTheRows) {
  for (const char* row :
       {"Colaboradores VALUES (1, 10, 0, 'Núñez')", "Colaboradores VALUES (2, 99, 0, 'nuño')",
        "Colaboradores VALUES (3, 10, 0, 'Ana')", "Provincias VALUES (10, 'León')",
        "Recibos VALUES (7, 1, 0, 0, 0, '20240131')", "Recibos VALUES (8, 3, 0, 0, 0, '20240301')",
        "Cobros VALUES (7, 5)", "Cobros VALUES (8, 5)", "Donativos VALUES (5, 1, 0, 0, 0, 0, 12.5)"}) {
    connection_->Execute(std::string("INSERT INTO ") + row);
  }
  const cCampos name = Field("(COL) Colaboradores", "colaboradores.nombre", "Colaboradores.Nombre", "'");
  const cCampos province =
      Field("(COL) Colaboradores", "colaboradores.provincia", "Provincias.Provincia", "'");
  const cCampos date = Field("(REC) Recibos", "recibos.fechaemision", "Recibos.FechaEmision", "'");
  f_.Select(name);
  f_.Select(province);
  f_.selection.order = {name.IDCampo()};
  EXPECT_THAT(Rows(), ElementsAre("Ana", "Núñez"));
  f_.selection.relation = Selection::Relation::kPartial;
  EXPECT_THAT(Rows(), ElementsAre("Ana", "Núñez", "nuño"));
  f_.selection.rows[0].filtro = "{x} [Que contenga] `Ñ´ [Y] ({x}<>`x´ [O] {x} [Igual a uno de] (`x´, `y´))";
  EXPECT_THAT(Rows(), ElementsAre("Núñez", "nuño"));

  f_.selection.rows[0].filtro.clear();
  f_.Select(date, "{Fecha} [Entre] `01/01/2024´ [Y] `29/02/2024´");
  f_.selection.relation = Selection::Relation::kComplete;
  EXPECT_THAT(Rows(), ElementsAre("Núñez"));
  f_.selection.rows[2].filtro = "{Fecha} [Comience por] `2024´";
  EXPECT_THROW(connection_->Execute(GenerarSQLSELECT(f_.selection, f_.catalogue, f_.Report()) +
                                    GenerarSQLFROM(f_.selection, f_.catalogue, f_.Report()) +
                                    GenerarSQLWHERE(f_.selection, f_.catalogue, nullptr, f_.Report())),
               RuntimeError);
}

}  // namespace
}  // namespace velmar

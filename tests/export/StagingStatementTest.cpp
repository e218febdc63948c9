#include "export/StagingStatement.h"

#include <gtest/gtest.h>

namespace velmar::testing {
namespace {

using exporting::StagingStatement;

TEST(StagingStatement, JoinsTheClausesAroundItsTarget) {
  const StagingStatement statement("SELECT DISTINCT Colaboradores.Sexo AS Sexo", "/datos/ExportacionAux.mdb",
                                   " FROM Colaboradores WHERE A = 'X' ");
  EXPECT_EQ(
      statement.Text(),
      "SELECT DISTINCT Colaboradores.Sexo AS Sexo INTO [/datos/ExportacionAux.mdb].ExportacionExcel  FROM "
      "Colaboradores WHERE A = 'X' ");
  EXPECT_TRUE(statement.Holds("colaboradores.sexo"));
  EXPECT_FALSE(statement.Holds("recibo"));
  EXPECT_TRUE(StagingStatement("SELECT A", "/Recibos/x", " FROM T").Holds("recibo")) << "the path counts too";
}

struct Case {
  const char* select;
  const char* path;
  const char* rest;
  const char* pending;
};

TEST(StagingStatement, AppendsPendingReceiptsWithoutTouchingThePath) {
  const Case cases[] = {
      {"SELECT DISTINCT Recibos.Mes", "/d/a.mdb",
       " FROM (Recibos INNER JOIN Cobros ON Recibos.IDRecibo = Cobros.CodRecibo)",
       "insert into [/d/a.mdb].ExportacionExcel select distinct recibospendientes.mes  from ( "
       "recibospendientes inner "
       "join cobrospendientes on recibospendientes.idrecibopendiente = cobrospendientes.codrecibo)"},
      {"SELECT Cobros.IDCobro", "/d/a.mdb", " FROM Recibos WHERE R = 'RECIBOS Ñ'",
       "insert into [/d/a.mdb].ExportacionExcel select cobrospendientes.idcobropendiente  from  "
       "recibospendientes where "
       "r = ' recibospendientes ñ'"},
      // A name at the very end of the list is followed by the blank of the clause behind it.
      {"SELECT A AS Recibos", "/d/a.mdb", " FROM T",
       "insert into [/d/a.mdb].ExportacionExcel select a as  recibospendientes  from t"},
      {"SELECT A", "/Cobros/Select Recibos ] idrecibo/a.mdb", " FROM Recibos",
       "insert into [/Cobros/Select Recibos ] idrecibo/a.mdb].ExportacionExcel select a  from recibos"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.select);
    EXPECT_EQ(StagingStatement(c.select, c.path, c.rest).PendingText(), c.pending);
  }
}

}  // namespace
}  // namespace velmar::testing

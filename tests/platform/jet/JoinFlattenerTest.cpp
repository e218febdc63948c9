#include "platform/jet/JoinFlattener.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <vector>

#include "platform/jet/Parser.h"
#include "platform/jet/StatementEmitter.h"
#include "platform/jet/TestDatabase.h"
#include "platform/text/Search.h"

namespace velmar::jet {
namespace {

// FROM texts as the export builds them; J stands for INNER JOIN or LEFT JOIN.
constexpr auto kExportSources = std::to_array<std::string_view>({
    "(Colaboradores J Donativos ON Colaboradores.IDColaborador = Donativos.CodColaborador)",
    "(Colaboradores J (Recibos J (Cobros J Donativos ON Cobros.CodDonativo = Donativos.IDDonativo) ON "
    "Recibos.IDRecibo = Cobros.CodRecibo) ON Colaboradores.IDColaborador = Recibos.CodColaborador)",
    "(Colaboradores J ((Recibos J Remesas ON Recibos.CodRemesa = Remesas.IDRemesa) J Cobros ON "
    "Recibos.IDRecibo = "
    "Cobros.CodRecibo) ON Colaboradores.IDColaborador = Recibos.CodColaborador)",
    "(Colaboradores J ((Recibos J Remesas ON Recibos.CodRemesa = Remesas.IDRemesa) J (Cobros J Donativos ON "
    "Cobros.CodDonativo = Donativos.IDDonativo) ON Recibos.IDRecibo = Cobros.CodRecibo) ON "
    "Colaboradores.IDColaborador = Recibos.CodColaborador)",
    "(Donativos J (Cobros J Recibos ON Cobros.CodRecibo = Recibos.IDRecibo) ON Donativos.IDDonativo = "
    "Cobros.CodDonativo)",
    "(Recibos J (Cobros J Donativos ON Cobros.CodDonativo = Donativos.IDDonativo) ON Recibos.IDRecibo = "
    "Cobros.CodRecibo)",
    "((Recibos J Remesas ON Recibos.CodRemesa = Remesas.IDRemesa) J (Cobros J Donativos ON "
    "Cobros.CodDonativo = "
    "Donativos.IDDonativo) ON Recibos.IDRecibo = Cobros.CodRecibo)",
    "remesas J ((Recibos J (Emisores_Cuentas J (Cuentas J sucursales ON cuentas.codsucursal = "
    "sucursales.idsucursal) ON Emisores_cuentas.codCuenta = Cuentas.idcuenta) ON "
    "Recibos.codEmisor_cuenta=Emisores_Cuentas.idemisor_Cuenta) J (Emisores J (Presentadores J Bancos ON "
    "Presentadores.codBanco=Bancos.IDBanco) ON Emisores.codPresentador=Presentadores.IDPresentador) ON "
    "Emisores.idemisor=emisores_cuentas.codemisor) ON remesas.idremesa=recibos.codremesa",
});

// What the export puts around them, in place of F.
constexpr auto kExportWraps = std::to_array<std::string_view>({
    "(F J Provincias ON Colaboradores.CodProvincia = Provincias.IDProvincia)",
    "(F J (Colaboradores_Cuentas J (Cuentas J (Sucursales J Bancos ON Sucursales.CodBanco = Bancos.IDBanco) "
    "ON "
    "Cuentas.CodSucursal = Sucursales.IDSucursal) ON Colaboradores_Cuentas.CodCuenta = Cuentas.IDCuenta) ON "
    "Colaboradores.IDColaborador = Colaboradores_Cuentas.CodColaborador)",
    "(F J (Emisores_Cuentas J (Cuentas J (Sucursales J Bancos ON Sucursales.CodBanco = Bancos.IDBanco) ON "
    "Cuentas.CodSucursal = Sucursales.IDSucursal) ON Emisores_Cuentas.CodCuenta = Cuentas.IDCuenta) ON "
    "Emisores_Cuentas.idemisor_cuenta=recibos.codemisor_cuenta)",
});

std::string With(std::string_view source, std::string_view kind) {
  return text::Replace(source, " J ", " " + std::string(kind) + " JOIN ");
}

bool IsFlat(const std::string& sql) {
  return sql.find("JOIN (") == std::string::npos && sql.find("FROM (") == std::string::npos;
}

TEST(JoinFlattener, EveryExportSourceComesOutFlat) {
  for (const std::string_view kind : {"INNER", "LEFT"}) {
    for (const std::string_view source : kExportSources) {
      SCOPED_TRACE(source);
      EXPECT_TRUE(IsFlat(Translated("SELECT 1 FROM " + With(source, kind)).sql));
    }
    for (const std::string_view wrap : kExportWraps) {
      SCOPED_TRACE(wrap);
      const std::string source = text::Replace(wrap, "F J", std::string(kExportSources[3]) + " J");
      EXPECT_TRUE(IsFlat(Translated("SELECT 1 FROM " + With(source, kind)).sql));
    }
  }
}

// Sources over a, b, c, d, each with the columns k (key), x and y, which hold NULLs and unmatched values.
constexpr auto kSources = std::to_array<std::string_view>({
    "a J (b J c ON b.x = c.k) ON a.x = b.k",
    "a J (b J (c J d ON c.x = d.k) ON b.x = c.k) ON a.x = b.y",
    "a J ((b J c ON b.x = c.x) J (d J e ON d.x = e.x) ON c.y = d.y) ON a.x = b.x",
    "a J (b J c ON b.x = c.k) ON a.x = c.x",
    "a J (b J c ON b.x = c.k) ON a.x = b.k AND a.y = c.y",
    "a J (b J c ON b.x = c.k OR b.y = c.y) ON a.x = b.k",
    "a J (b J c ON b.x = c.k AND b.y > 1) ON a.x = b.k AND b.x = 2",
    "a J (b J c ON c.k = 2) ON a.x = b.k",
    "a J (b J c ON b.x Is Null) ON a.x = b.k",
    "(a J b ON a.x = b.x) J (c J d ON c.x = d.x) ON b.y = c.y",
    "(a J b ON a.x = b.x) J (c J (d J e ON d.y = e.y) ON c.x = d.x) ON a.y = c.k",
});

std::vector<std::string> Rows(TestDatabase& database, const Translation& translation) {
  auto rows = database.Run(translation).rows;
  std::sort(rows.begin(), rows.end());
  return rows;
}

TEST(JoinFlattener, GivesTheRowsOfTheNesting) {
  std::mt19937 random(182);
  std::uniform_int_distribution<int> value(0, 4);
  std::uniform_int_distribution<int> kind(0, 1);
  TestDatabase database;
  for (const std::string table : {"a", "b", "c", "d", "e"}) {
    database.Run("CREATE TABLE " + table + " (k LONG, x LONG, y LONG)");
    for (int i = 0; i < 7; ++i) {
      const auto cell = [&] {
        const int drawn = value(random);
        return drawn == 0 ? std::string("NULL") : std::to_string(drawn);
      };
      database.Run("INSERT INTO " + table + " VALUES (" + cell() + ", " + cell() + ", " + cell() + ")");
    }
  }
  int flat = 0;
  for (const std::string_view source : kSources) {
    for (int round = 0; round < 12; ++round) {
      std::string from(source);
      for (auto at = from.find(" J "); at != std::string::npos; at = from.find(" J ")) {
        const bool left = round == 0 ? true : round == 1 ? false : kind(random) == 1;
        from.replace(at, 3, left ? " LEFT JOIN " : " INNER JOIN ");
      }
      const std::string text = "SELECT * FROM " + from;
      SCOPED_TRACE(text);
      // Without rewriting, the nesting goes through as it is.
      const Statement nested = Parser(text).Parse();
      const AliasLookup none;
      const Translation asWritten = StatementEmitter(text, nullptr, none).Emit(nested);
      const Translation translated = Translated(text);
      flat += IsFlat(translated.sql) ? 1 : 0;
      EXPECT_EQ(Rows(database, asWritten), Rows(database, translated)) << translated.sql;
    }
  }
  EXPECT_GT(flat, 40);
}

}  // namespace
}  // namespace velmar::jet

#include "sample/Schema.h"

#include <array>

namespace velmar::sample {
namespace {

constexpr auto kMainTables = std::to_array<std::string_view>({
    "CREATE TABLE Provincias (IDProvincia LONG PRIMARY KEY, Codigo TEXT(2) NOT NULL, Nombre TEXT(50) NOT "
    "NULL, "
    "Eliminado BIT NOT NULL)",

    "CREATE TABLE Paises (IDPais LONG PRIMARY KEY, Codigo TEXT(2) NOT NULL, Nombre TEXT(50) NOT NULL, "
    "Eliminado BIT NOT NULL)",

    "CREATE TABLE Bancos (IDBanco LONG PRIMARY KEY, Numero TEXT(4) NOT NULL, Nombre TEXT(60) NOT NULL, "
    "Eliminado BIT NOT NULL)",

    "CREATE TABLE Sucursales (IDSucursal LONG PRIMARY KEY, CodBanco LONG NOT NULL, Codigo TEXT(4) NOT NULL, "
    "Poblacion TEXT(60), CP TEXT(5), Eliminado BIT NOT NULL)",

    // Numero holds the account number in the stored form of its tail.
    "CREATE TABLE Cuentas (IDCuenta LONG PRIMARY KEY, CodSucursal LONG NOT NULL, DC TEXT(2) NOT NULL, "
    "Numero TEXT(20) NOT NULL, Eliminado BIT NOT NULL)",

    // Sexo: 0 unknown, 1 man, 2 woman. Modelo182: whether the person is to be declared.
    "CREATE TABLE Colaboradores (IDColaborador LONG PRIMARY KEY, Nombre TEXT(100), Apellido1 TEXT(50), "
    "Apellido2 TEXT(50), NIF TEXT(20), Sexo SHORT NOT NULL, Juridico BIT NOT NULL, Direccion TEXT(120), "
    "CP TEXT(10), Poblacion TEXT(60), CodProvincia LONG, CodPais LONG, Telefono1 TEXT(15), Telefono2 "
    "TEXT(15), "
    "Email TEXT(80), FechaNacimiento TEXT(8), FechaAlta TEXT(8), FechaBaja TEXT(8), Observaciones MEMO, "
    "Modelo182 BIT NOT NULL, Eliminado BIT NOT NULL)",

    "CREATE TABLE Colaboradores_Cuentas (IDColaborador_Cuenta LONG PRIMARY KEY, CodColaborador LONG NOT "
    "NULL, "
    "CodCuenta LONG NOT NULL, Eliminado BIT NOT NULL)",

    // TipoA marks priority sponsorship; Modelo182 whether donations of the type are declared.
    "CREATE TABLE TipoDonativos (IDTipoDonativo LONG PRIMARY KEY, Nombre TEXT(50) NOT NULL, TipoA BIT NOT "
    "NULL, "
    "Modelo182 BIT NOT NULL, Eliminado BIT NOT NULL)",

    "CREATE TABLE TipoPeriodos (IDTipoPeriodo LONG PRIMARY KEY, Nombre TEXT(50) NOT NULL, Meses SHORT NOT "
    "NULL, "
    "Eliminado BIT NOT NULL)",

    "CREATE TABLE TipoPagos (IDTipoPago LONG PRIMARY KEY, Nombre TEXT(50) NOT NULL, Eliminado BIT NOT NULL)",

    // CodColaborador_Cuenta refers to Cuentas.
    "CREATE TABLE Donativos (IDDonativo LONG PRIMARY KEY, CodColaborador LONG NOT NULL, "
    "CodTipoDonativo LONG NOT NULL, CodTipoPeriodo LONG NOT NULL, CodTipoPago LONG NOT NULL, "
    "CodColaborador_Cuenta LONG, Importe CURRENCY NOT NULL, FechaAlta TEXT(8), FechaPrimerPago TEXT(8), "
    "Eliminado BIT NOT NULL)",

    "CREATE TABLE Presentadores (IDPresentador LONG PRIMARY KEY, CodBanco LONG NOT NULL, Nombre TEXT(80) NOT "
    "NULL, "
    "CIF TEXT(9) NOT NULL, Eliminado BIT NOT NULL)",

    "CREATE TABLE Emisores (IDEmisor LONG PRIMARY KEY, CodPresentador LONG NOT NULL, Nombre TEXT(80) NOT "
    "NULL, "
    "CIF TEXT(9) NOT NULL, Eliminado BIT NOT NULL)",

    "CREATE TABLE Emisores_Cuentas (IDEmisor_Cuenta LONG PRIMARY KEY, CodEmisor LONG NOT NULL, "
    "CodCuenta LONG NOT NULL, Eliminado BIT NOT NULL)",

    "CREATE TABLE Remesas (IDRemesa LONG PRIMARY KEY, CodEmisor LONG NOT NULL, Fecha TEXT(8) NOT NULL, "
    "RecibosBanco LONG NOT NULL, TotalBanco CURRENCY NOT NULL, Eliminado BIT NOT NULL)",

    // Devolucion counts how often the bank returned the receipt.
    "CREATE TABLE Recibos (IDRecibo LONG PRIMARY KEY, CodColaborador LONG NOT NULL, CodRemesa LONG, "
    "CodCuenta LONG, CodEmisor_Cuenta LONG, FechaEmision TEXT(8), FechaCobro TEXT(8), Mes SHORT NOT NULL, "
    "Importe CURRENCY NOT NULL, Devolucion SHORT NOT NULL, Eliminado BIT NOT NULL)",

    "CREATE TABLE Cobros (IDCobro LONG PRIMARY KEY, CodRecibo LONG NOT NULL, CodDonativo LONG NOT NULL, "
    "Importe CURRENCY NOT NULL, TextoRecibo TEXT(80), Eliminado BIT NOT NULL)",

    "CREATE TABLE RecibosPendientes (IDReciboPendiente LONG PRIMARY KEY, CodColaborador LONG NOT NULL, "
    "CodRemesa LONG, CodCuenta LONG, CodEmisor_Cuenta LONG, FechaEmision TEXT(8), FechaCobro TEXT(8), "
    "Mes SHORT NOT NULL, Importe CURRENCY NOT NULL, Devolucion SHORT NOT NULL, Eliminado BIT NOT NULL)",

    "CREATE TABLE CobrosPendientes (IDCobroPendiente LONG PRIMARY KEY, CodRecibo LONG NOT NULL, "
    "CodDonativo LONG NOT NULL, Importe CURRENCY NOT NULL, TextoRecibo TEXT(80), Eliminado BIT NOT NULL)",

    // The declaration fills the columns up to TipoDonativo. Nombre and NIF are the names by which the value
    // picker asks for the two before them; it does so when the table is empty, and finds no value.
    "CREATE TABLE Modelo182Hacienda (CodColaborador LONG NOT NULL, NombreColaborador TEXT(200), "
    "NIFColaborador TEXT(20), Importe CURRENCY, Provincia TEXT(50), TipoDonativo TEXT(1), Nombre TEXT(200), "
    "NIF TEXT(20))",
});

constexpr auto kMainIndexes = std::to_array<std::string_view>({
    "CREATE INDEX SucursalesBanco ON Sucursales (CodBanco)",
    "CREATE INDEX CuentasSucursal ON Cuentas (CodSucursal)",
    "CREATE INDEX ColaboradoresCuentasColaborador ON Colaboradores_Cuentas (CodColaborador)",
    "CREATE INDEX ColaboradoresCuentasCuenta ON Colaboradores_Cuentas (CodCuenta)",
    "CREATE INDEX DonativosColaborador ON Donativos (CodColaborador)",
    "CREATE INDEX EmisoresPresentador ON Emisores (CodPresentador)",
    "CREATE INDEX EmisoresCuentasEmisor ON Emisores_Cuentas (CodEmisor)",
    "CREATE INDEX EmisoresCuentasCuenta ON Emisores_Cuentas (CodCuenta)",
    "CREATE INDEX RecibosColaborador ON Recibos (CodColaborador)",
    "CREATE INDEX RecibosRemesa ON Recibos (CodRemesa)",
    "CREATE INDEX CobrosRecibo ON Cobros (CodRecibo)",
    "CREATE INDEX CobrosDonativo ON Cobros (CodDonativo)",
    "CREATE INDEX RecibosPendientesColaborador ON RecibosPendientes (CodColaborador)",
    "CREATE INDEX RecibosPendientesRemesa ON RecibosPendientes (CodRemesa)",
    "CREATE INDEX CobrosPendientesRecibo ON CobrosPendientes (CodRecibo)",
    "CREATE INDEX CobrosPendientesDonativo ON CobrosPendientes (CodDonativo)",
    "CREATE INDEX Modelo182Colaborador ON Modelo182Hacienda (CodColaborador)",
});

constexpr auto kReportTables = std::to_array<std::string_view>({
    "CREATE TABLE ExportacionCamposTEMP (IDCampo SHORT NOT NULL, NombreInternoCampo TEXT(60) NOT NULL, "
    "LiteralCampo TEXT(60) NOT NULL, CaracterValorCampo TEXT(1), LiteralCampoSELECT MEMO NOT NULL, "
    "LiteralCampoORDERBY MEMO NOT NULL, LiteralCampoWHERE MEMO NOT NULL, IDTabla SHORT NOT NULL, "
    "LiteralTabla TEXT(40) NOT NULL)",
});

}  // namespace

std::span<const std::string_view> MainTables() {
  return kMainTables;
}

std::span<const std::string_view> MainIndexes() {
  return kMainIndexes;
}

std::span<const std::string_view> ReportTables() {
  return kReportTables;
}

}  // namespace velmar::sample

#include "platform/excel/WorkbookErrors.h"

#include <cerrno>

#include "platform/error/ErrorNumber.h"
#include "platform/error/SystemFailure.h"

namespace velmar::excel {

namespace {

RuntimeError Make(long number, std::string description) {
  return {number, std::move(description), "Excel"};
}

std::string Quote(std::string_view text) {
  return "«" + std::string(text) + "»";
}

std::string Book(const std::string& path) {
  return "el libro de Excel " + Quote(path);
}

std::string SheetOf(std::string_view sheet, const std::string& path) {
  return "la hoja " + Quote(sheet) + " del libro de Excel " + Quote(path);
}

}  // namespace

RuntimeError WorkbookErrors::System(int error, std::string_view doing, const std::string& path) {
  const std::string what = "No se puede " + std::string(doing) + " " + Book(path);
  switch (error) {
    case EEXIST:
      return Make(kPermissionDenied,
                  what + ": otro programa acaba de crear un archivo con ese nombre. Elija otro.");
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return Make(kDiskFull,
                  what +
                      ": no queda espacio en el disco. El archivo no ha cambiado; libere espacio o "
                      "elija otro disco y vuelva a exportar.");
    case EBUSY:
    case ETXTBSY:
      return InUse(path);
    default:
      return SystemFailure(error, what, "Excel");
  }
}

RuntimeError WorkbookErrors::NoFile(const std::string& path) {
  return Make(kFileNotFound, "No existe " + Book(path) + ". Compruebe el nombre y la carpeta.");
}

RuntimeError WorkbookErrors::NotAWorkbook(const std::string& path) {
  return Make(kWorkbookFormat,
              "El archivo " + Quote(path) +
                  " existe, pero no es un libro de Excel 97-2003. No se ha tocado; elija otro "
                  "nombre o bórrelo antes de exportar.");
}

RuntimeError WorkbookErrors::SavedElsewhere(const std::string& path) {
  return Make(
      kWorkbookFormat,
      "No se pueden añadir datos al libro de Excel " + Quote(path) +
          ": lo ha guardado otro programa o está dañado. No se ha tocado; elija otro nombre o bórrelo antes "
          "de exportar.");
}

RuntimeError WorkbookErrors::Truncated(const std::string& path) {
  return Make(kWorkbookFormat, "No se pueden añadir datos al libro de Excel " + Quote(path) +
                                   ": le falta el final, quizá por una copia interrumpida. No se ha tocado; "
                                   "recupere una copia completa o elija otro nombre.");
}

RuntimeError WorkbookErrors::InUse(const std::string& path) {
  return Make(kPermissionDenied, "Otro programa está escribiendo en " + Book(path) +
                                     ". Espere a que termine y vuelva a intentarlo.");
}

RuntimeError WorkbookErrors::ChangedMeanwhile(const std::string& path) {
  return Make(kWorkbookFormat,
              "Otro programa ha cambiado " + Book(path) +
                  " durante la exportación. No se ha tocado; vuelva a exportar con otro nombre.");
}

RuntimeError WorkbookErrors::SheetName(const std::string& path, std::string_view sheet,
                                       const std::string& problem) {
  return Make(kWorkbookLimit, "No se puede crear " + SheetOf(sheet, path) + " porque su nombre " + problem +
                                  ". Elija otro nombre para la hoja.");
}

RuntimeError WorkbookErrors::SheetExists(const std::string& path, std::string_view sheet) {
  return Make(kTableExists,
              "Ya existe " + SheetOf(sheet, path) + ". Elija otro nombre de archivo o borre el libro.");
}

RuntimeError WorkbookErrors::NoSheet(const std::string& path, std::string_view sheet) {
  return Make(kUnknownTable, "No existe " + SheetOf(sheet, path) + ". Compruebe el nombre de la hoja.");
}

RuntimeError WorkbookErrors::NotTheLastSheet(const std::string& path, std::string_view sheet,
                                             std::string_view last) {
  return Make(kWorkbookLimit, "No se pueden añadir filas a " + SheetOf(sheet, path) +
                                  ": solo puede crecer la última hoja, " + Quote(last) +
                                  ". Añada las filas a ella o cree otra hoja.");
}

RuntimeError WorkbookErrors::ColumnCount(const std::string& path, std::string_view sheet, std::size_t count,
                                         std::size_t most) {
  return Make(kWorkbookLimit, "No se pueden escribir " + std::to_string(count) + " columnas en " +
                                  SheetOf(sheet, path) + ": admite de 1 a " + std::to_string(most) +
                                  ". Cambie el número de campos.");
}

RuntimeError WorkbookErrors::TooManyRows(const std::string& path, std::string_view sheet) {
  return Make(kWorkbookLimit,
              "No caben más filas en " + SheetOf(sheet, path) +
                  ": una hoja tiene 65.536 como mucho, con la de los títulos. Reparta los datos en "
                  "más hojas.");
}

RuntimeError WorkbookErrors::TextTooLong(const std::string& path, std::string_view sheet, std::size_t row,
                                         const std::string& column) {
  return Make(kFieldSizeExceeded,
              "El texto de la columna " + Quote(column) + " en la fila " + std::to_string(row) +
                  " no cabe en " + SheetOf(sheet, path) +
                  ": una celda admite 32.767 caracteres. Acorte el texto o quite el campo.");
}

RuntimeError WorkbookErrors::FileTooLong(const std::string& path) {
  return Make(kWorkbookLimit, "No caben más datos en " + Book(path) +
                                  ": un libro llega a 2 GB como mucho. Reparta los datos en varios libros.");
}

RuntimeError WorkbookErrors::CellCount(const std::string& path, std::string_view sheet, std::size_t columns) {
  return Make(kInvalidProcedureCall, "Cada fila que se escribe en " + SheetOf(sheet, path) + " debe tener " +
                                         std::to_string(columns) + " celdas. No se ha escrito nada.");
}

RuntimeError WorkbookErrors::WriterDone(const std::string& path) {
  return Make(kInvalidProcedureCall,
              "La escritura en " + Book(path) + " ya ha terminado. Empiece otra para añadir más filas.");
}

}  // namespace velmar::excel

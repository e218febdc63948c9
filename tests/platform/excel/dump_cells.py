"""Prints every sheet and every cell of a workbook that is not empty, one a line, as xlrd reads them."""
import io
import sys

import xlrd

log = io.StringIO()
out = io.StringIO()
book = xlrd.open_workbook(sys.argv[1], logfile=log, on_demand=True)
for number, name in enumerate(book.sheet_names()):
    out.write("sheet %s\n" % name)
    sheet = book.sheet_by_name(name)
    for row in range(sheet.nrows):
        for column, (kind, value) in enumerate(zip(sheet.row_types(row), sheet.row_values(row))):
            if kind == xlrd.XL_CELL_TEXT:
                shown = "text " + value
            elif kind == xlrd.XL_CELL_NUMBER:
                shown = "number %.17g" % value
            elif kind == xlrd.XL_CELL_BOOLEAN:
                shown = "boolean %d" % value
            elif kind in (xlrd.XL_CELL_EMPTY, xlrd.XL_CELL_BLANK):
                continue
            else:
                shown = "kind %d" % kind
            out.write("%d %d %d %s\n" % (number, row, column, shown))
    book.unload_sheet(name)
out.write("warning %s\n" % log.getvalue() if log.getvalue() else "end\n")
sys.stdout.buffer.write(out.getvalue().encode())

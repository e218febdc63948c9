"""Prints every sheet and every cell of a workbook that is not empty, one a line, as xlrd reads them."""
import io
import struct
import sys

import xlrd

log = io.StringIO()
book = xlrd.open_workbook(sys.argv[1], logfile=log, on_demand=True)
out = io.StringIO()
for number, name in enumerate(book.sheet_names()):
    out.write("sheet %s\n" % name.encode().hex())
    sheet = book.sheet_by_name(name)
    for row in range(sheet.nrows):
        for column, (kind, value) in enumerate(zip(sheet.row_types(row), sheet.row_values(row))):
            if kind == xlrd.XL_CELL_TEXT:
                shown = "text " + value.encode().hex()
            elif kind == xlrd.XL_CELL_NUMBER:
                shown = "number " + struct.pack("<d", value).hex()
            elif kind == xlrd.XL_CELL_BOOLEAN:
                shown = "boolean %d" % value
            elif kind in (xlrd.XL_CELL_EMPTY, xlrd.XL_CELL_BLANK):
                continue
            else:
                shown = "kind %d" % kind
            out.write("%d %d %d %s\n" % (number, row, column, shown))
    book.unload_sheet(name)
    sys.stdout.write(out.getvalue())
    out = io.StringIO()
print("warning " + log.getvalue() if log.getvalue() else "end")

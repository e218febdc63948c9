"""Writes the rows of a staged table to an Excel 97 workbook with xlwt: xlwt_writer.py STAGED.db BOOK.xls"""
import sqlite3
import sys

import xlwt

SHEET_ROWS = 64000


def main(staged, book_path):
    rows = sqlite3.connect(staged).execute("SELECT * FROM t")
    heads = [column[0] for column in rows.description]
    book = xlwt.Workbook(encoding="utf-8")
    sheet = None
    for number, row in enumerate(rows):
        line = number % SHEET_ROWS
        if line == 0:
            sheet = book.add_sheet("Hoja%d" % (number // SHEET_ROWS + 1))
            for column, head in enumerate(heads):
                sheet.write(0, column, head)
        for column, value in enumerate(row):
            if value is not None:
                sheet.write(line + 1, column, value)
        if (line + 1) % 1000 == 0:
            sheet.flush_row_data()
    book.save(book_path)


main(sys.argv[1], sys.argv[2])

#pragma once

#include "fuzz/Input.h"

namespace velmar::fuzz {

/// The input says how a good workbook is damaged (or is the file itself, after the byte 0xFF), and how the
/// next statement would grow it:
///
///   which workbook; bit 0: give the damaged parts their right digests, bit 1: a new sheet, else more rows;
///   then any number of damages: 0 write (place, count, bytes), 1 cut (size), 2 add (bytes), 3 copy (from,
///   to, count). Places have three bytes and count from the front; 4 is 0 within the writer's own stream.
///
/// The file is refused and stays as it is, or it grows and can be read again. Neither takes memory that is
/// not in proportion to the file.
void FuzzWorkbook(Bytes input);

}  // namespace velmar::fuzz

#include "platform/jet/Keywords.h"

#include <algorithm>
#include <array>

namespace velmar::jet {
namespace {

constexpr auto kReserved = std::to_array<std::string_view>(
    {"ADD",        "ALL",     "ALTER",  "AND",    "ANY",      "AS",          "ASC",   "BETWEEN", "BY",
     "CONSTRAINT", "CREATE",  "DELETE", "DESC",   "DISTINCT", "DISTINCTROW", "DROP",  "EQV",     "EXISTS",
     "FALSE",      "FROM",    "GROUP",  "HAVING", "IMP",      "IN",          "INNER", "INSERT",  "INTO",
     "IS",         "JOIN",    "LEFT",   "LIKE",   "MOD",      "NOT",         "NULL",  "ON",      "OR",
     "ORDER",      "PRIMARY", "RIGHT",  "SELECT", "SET",      "SOME",        "TABLE", "TOP",     "TRUE",
     "UNION",      "UNIQUE",  "UPDATE", "VALUES", "WHERE",    "XOR"});

char Upper(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

}  // namespace

bool EqualWord(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return Upper(x) == Upper(y); });
}

bool IsReserved(std::string_view word) {
  return std::any_of(kReserved.begin(), kReserved.end(),
                     [word](std::string_view reserved) { return EqualWord(word, reserved); });
}

bool IsValueWord(std::string_view word) {
  return EqualWord(word, "TRUE") || EqualWord(word, "FALSE") || EqualWord(word, "NULL");
}

}  // namespace velmar::jet

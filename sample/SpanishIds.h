#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace velmar::sample {

/// Control characters of the Spanish tax numbers. A NIF is eight digits and a letter (or K, L, M, seven
/// digits and a letter), an NIE is X, Y or Z, seven digits and a letter, a CIF is a letter for the kind of
/// entity, seven digits and a control digit or letter. Sources: Real Decreto 1065/2007, articles 18 to 23;
/// Orden EHA/451/2008.

/// The control letter of a number: its rest by 23 in the official row of letters.
char NifLetter(std::uint32_t number);

/// The full NIF of eight digits; number is below 100,000,000.
std::string MakeNif(std::uint32_t number);

/// The full NIE; prefix is X, Y or Z, number is below 10,000,000.
std::string MakeNie(char prefix, std::uint32_t number);

/// The full CIF; kind is one of ABCDEFGHJNPQRSUVW, number is below 10,000,000. P, Q, R, S, N and W end in a
/// letter, the other kinds in a digit.
std::string MakeCif(char kind, std::uint32_t number);

/// True for a NIF, NIE or CIF of nine characters with the right control character, in capitals or not.
/// Anything else, blanks and hyphens included, is false.
bool IsValidTaxId(std::string_view id);

}  // namespace velmar::sample

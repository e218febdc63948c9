#pragma once

#include <string>

#include "sample/Random.h"

namespace velmar::sample {

/// Names as they stand in an office's files, with accents, ñ and the odd apostrophe.
class SpanishNames {
 public:
  static std::string Woman(Random& random);
  static std::string Man(Random& random);
  static std::string Surname(Random& random);
  /// A surname of someone from abroad.
  static std::string ForeignSurname(Random& random);
  /// The name of a company, foundation, association or parish.
  static std::string LegalPerson(Random& random);
  /// Street, number and, mostly, floor and door: "C/ Mayor, 12, 3º B".
  static std::string Street(Random& random);
  /// A remark of the office about a collaborator; mostly empty.
  static std::string Remark(Random& random);
};

}  // namespace velmar::sample

#pragma once

#include <cstdint>

#include "platform/ado/BulkInsert.h"
#include "platform/ado/Connection.h"
#include "sample/Collaborator.h"
#include "sample/GeneratorOptions.h"
#include "sample/Random.h"

namespace velmar::sample {

/// Makes the people and legal persons of the sample and fills Colaboradores with them.
///
/// Of every 200 collaborators eight are exemplary for the annual declaration: without a name, without a first
/// surname, with a tax number that is too long, NULL, empty or begins with a small x, without a province, and
/// with a receipt over 0 euros. About one natural person in a hundred has a wrong control letter.
class PeopleGenerator {
 public:
  PeopleGenerator(ADODB::Connection& main, const GeneratorOptions& options);

  /// The collaborator with this number, from 1; the same for the same seed and date.
  Collaborator Make(long id) const;
  void Write(const Collaborator& person);

 private:
  void MakeLegalPerson(Collaborator& person, Random& random) const;
  void MakeNaturalPerson(Collaborator& person, Random& random) const;
  void MakeResidence(Collaborator& person, Random& random) const;
  void MakeHistory(Collaborator& person, Random& random) const;

  ADODB::BulkInsert rows_;
  std::uint64_t seed_;
  CalendarDate date_;
};

}  // namespace velmar::sample

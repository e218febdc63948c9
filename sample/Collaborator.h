#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "sample/CalendarDate.h"

namespace velmar::sample {

/// One collaborator as the generator knows it: the row of the table, and what its money depends on.
struct Collaborator {
  long id = 0;
  std::string name;
  std::string surname1;
  std::string surname2;
  std::optional<std::string> taxId;
  int sex = 0;  ///< 0 unknown, 1 man, 2 woman
  bool legalPerson = false;
  std::string address;
  std::string postcode;
  std::string town;
  std::optional<std::size_t> province;  ///< from 0; none abroad and where the office does not know it
  std::size_t country = 0;              ///< from 0
  std::string landline;
  std::string mobile;
  std::string email;
  std::string birthDate;  ///< stored form, empty if unknown
  CalendarDate joined;
  std::optional<CalendarDate> left;
  std::string remark;
  bool declared = true;  ///< wants to stand in Modelo 182
  bool deleted = false;

  bool exemplary = false;    ///< one of the cases that PeopleGenerator makes sure of
  bool zeroReceipt = false;  ///< the first receipt of the year before is over 0 euros
};

}  // namespace velmar::sample

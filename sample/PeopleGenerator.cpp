#include "sample/PeopleGenerator.h"

#include <array>
#include <string_view>

#include "sample/RowWriter.h"
#include "sample/SpanishIds.h"
#include "sample/SpanishNames.h"
#include "sample/SpanishPlaces.h"

namespace velmar::sample {
namespace {

/// The exemplary cases stand at fixed places of each two hundred, so that small samples hold them too.
constexpr long kCycle = 200;

enum class ExemplaryCase {
  kNone = 0,
  kNoName = 7,
  kNoSurname = 11,
  kLongTaxId = 13,
  kNullTaxId = 17,
  kEmptyTaxId = 19,
  kNoProvince = 23,
  kZeroReceipt = 29,
  kSmallX = 31
};

ExemplaryCase CaseOf(long id) {
  switch (const long place = id % kCycle; place) {
    case 7:
    case 11:
    case 13:
    case 17:
    case 19:
    case 23:
    case 29:
    case 31:
      return static_cast<ExemplaryCase>(place);
    default:
      return ExemplaryCase::kNone;
  }
}

/// Area codes of some large towns.
constexpr std::array<std::string_view, 8> kLandlines = {"91", "93", "954", "96", "944", "976", "981", "952"};

std::string Digits(Random& random, std::string_view prefix, std::size_t length) {
  std::string number(prefix);
  while (number.size() < length) number += static_cast<char>('0' + random.Below(10));
  return number;
}

/// Another control letter than the right one.
void Spoil(std::string& taxId) {
  char& letter = taxId.back();
  letter = letter == 'T' ? 'R' : 'T';
}

std::string NaturalTaxId(bool foreigner, Random& random) {
  constexpr std::string_view kNiePrefixes = "XXYYZ";
  std::string taxId = foreigner && random.Chance(850)
                          ? MakeNie(kNiePrefixes[random.Below(5)], random.Below(10'000'000))
                          : MakeNif(random.Below(99'000'000) + 100'000);
  if (random.Chance(10)) Spoil(taxId);
  return taxId;
}

void MakeExemplary(Collaborator& person, Random& random) {
  const ExemplaryCase kind = CaseOf(person.id);
  if (kind == ExemplaryCase::kNone) return;
  person.exemplary = true;
  person.declared = true;
  switch (kind) {
    case ExemplaryCase::kNoName:
      person.name.clear();
      break;
    case ExemplaryCase::kNoSurname:
      person.surname1.clear();
      break;
    case ExemplaryCase::kLongTaxId:
      person.taxId = "PASAPORTE " + Digits(random, "", 8);
      break;
    case ExemplaryCase::kNullTaxId:
      person.taxId.reset();
      break;
    case ExemplaryCase::kEmptyTaxId:
      person.taxId = "";
      break;
    case ExemplaryCase::kNoProvince:
      person.province.reset();
      break;
    case ExemplaryCase::kZeroReceipt:
      person.zeroReceipt = true;
      break;
    case ExemplaryCase::kSmallX:
      person.taxId = MakeNie('X', random.Below(10'000'000));
      person.taxId->front() = 'x';
      Spoil(*person.taxId);
      break;
    case ExemplaryCase::kNone:
      break;
  }
}

}  // namespace

PeopleGenerator::PeopleGenerator(ADODB::Connection& main, const GeneratorOptions& options)
    : rows_(main, "Colaboradores",
            {"IDColaborador", "Nombre",    "Apellido1", "Apellido2",       "NIF",          "Sexo",
             "Juridico",      "Direccion", "CP",        "Poblacion",       "CodProvincia", "CodPais",
             "Telefono1",     "Telefono2", "Email",     "FechaNacimiento", "FechaAlta",    "FechaBaja",
             "Observaciones", "Modelo182", "Eliminado"}),
      seed_(options.seed),
      date_(options.date) {}

Collaborator PeopleGenerator::Make(long id) const {
  Random random = Random::ForRow(seed_, static_cast<std::uint64_t>(id) * 2);
  Collaborator person;
  person.id = id;
  const bool exemplary = CaseOf(id) != ExemplaryCase::kNone;
  person.legalPerson = random.Chance(50) && !exemplary;
  if (person.legalPerson) {
    MakeLegalPerson(person, random);
  } else {
    MakeNaturalPerson(person, random);
  }
  MakeResidence(person, random);
  MakeHistory(person, random);
  person.remark = SpanishNames::Remark(random);
  MakeExemplary(person, random);
  return person;
}

void PeopleGenerator::MakeLegalPerson(Collaborator& person, Random& random) const {
  constexpr std::string_view kKinds = "ABBBFGGGR";
  person.name = SpanishNames::LegalPerson(random);
  person.taxId =
      MakeCif(kKinds[random.Below(static_cast<std::uint32_t>(kKinds.size()))], random.Below(10'000'000));
  person.declared = random.Chance(700);
}

void PeopleGenerator::MakeNaturalPerson(Collaborator& person, Random& random) const {
  const bool woman = random.Chance(540);
  person.name = woman ? SpanishNames::Woman(random) : SpanishNames::Man(random);
  person.sex = random.Chance(20) ? 0 : (woman ? 2 : 1);
  const bool foreigner = random.Chance(60);
  person.surname1 = foreigner ? SpanishNames::ForeignSurname(random) : SpanishNames::Surname(random);
  if (!foreigner) person.surname2 = SpanishNames::Surname(random);
  person.taxId = NaturalTaxId(foreigner, random);
  person.declared = random.Chance(930);
}

void PeopleGenerator::MakeResidence(Collaborator& person, Random& random) const {
  person.address = SpanishNames::Street(random);
  if (random.Chance(10)) {
    person.country = 1 + random.Below(static_cast<std::uint32_t>(kCountryCount - 1));
    person.town = Countries()[person.country].city;
  } else {
    person.province = random.PickWeighted(ProvinceWeights(), ProvinceWeightTotal());
    const Town& town = random.Pick(Provinces()[*person.province].towns);
    person.town = town.name;
    person.postcode = town.postcode;
  }
  if (random.Chance(550)) person.landline = Digits(random, random.Pick(kLandlines), 9);
  if (random.Chance(800)) person.mobile = Digits(random, "6", 9);
  if (random.Chance(600)) person.email = "colaborador" + std::to_string(person.id) + "@example.org";
}

void PeopleGenerator::MakeHistory(Collaborator& person, Random& random) const {
  const bool exemplary = CaseOf(person.id) != ExemplaryCase::kNone;
  const int longest = 20 * 365;
  // Exemplary cases joined before the first year with receipts and stay.
  person.joined = AddDays(date_, -random.Between(exemplary ? 3 * 365 : 20, longest));
  if (!person.legalPerson && random.Chance(850)) {
    person.birthDate = StoredDate(AddDays(person.joined, -random.Between(18 * 366, 75 * 365)));
  }
  if (random.Chance(100) && !exemplary) {
    const CalendarDate left = AddDays(person.joined, random.Between(90, longest));
    if (std::chrono::sys_days(left) < std::chrono::sys_days(date_)) person.left = left;
  }
  person.deleted = random.Chance(30) && !exemplary;
}

void PeopleGenerator::Write(const Collaborator& person) {
  std::optional<std::size_t> province = person.province;
  if (province) ++*province;
  const std::string left = person.left ? StoredDate(*person.left) : std::string();
  WriteRow(rows_, person.id, person.name, person.surname1, person.surname2, person.taxId, person.sex,
           person.legalPerson, person.address, person.postcode, person.town, province, person.country + 1,
           person.landline, person.mobile, person.email, person.birthDate, StoredDate(person.joined), left,
           person.remark, person.declared, person.deleted);
}

}  // namespace velmar::sample

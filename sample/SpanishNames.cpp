#include "sample/SpanishNames.h"

#include <array>
#include <string_view>

namespace velmar::sample {
namespace {

using Text = std::string_view;

constexpr std::array<Text, 48> kWomen = {
    "María Carmen", "María",      "Carmen",      "Ana María", "Laura",      "Isabel", "Cristina",
    "Marta",        "Lucía",      "Dolores",     "Pilar",     "Ana",        "Elena",  "Sara",
    "Raquel",       "Paula",      "Rosa",        "Begoña",    "Rocío",      "Inés",   "Nuria",
    "Beatriz",      "Concepción", "Encarnación", "Ángela",    "Montserrat", "Núria",  "Irene",
    "Julia",        "Teresa",     "Sofía",       "Alba",      "Andrea",     "Silvia", "Yolanda",
    "Asunción",     "Inmaculada", "Olga",        "Verónica",  "Mónica",     "Itziar", "Ainhoa",
    "Uxía",         "Aránzazu",   "Mª José",     "Consuelo",  "Adela",      "Noemí"};

constexpr std::array<Text, 48> kMen = {
    "Antonio",   "José",        "Manuel",  "Francisco", "Juan",         "David",      "José Antonio",
    "José Luis", "Javier",      "Daniel",  "Jesús",     "Carlos",       "Miguel",     "Rafael",
    "Pedro",     "José Manuel", "Ángel",   "Alejandro", "Miguel Ángel", "José María", "Fernando",
    "Luis",      "Sergio",      "Pablo",   "Jorge",     "Alberto",      "Ramón",      "Iñaki",
    "Óscar",     "Andrés",      "Joaquín", "Enrique",   "Íñigo",        "Rubén",      "Álvaro",
    "Víctor",    "Tomás",       "Adrián",  "Xosé",      "Jordi",        "Agustín",    "Julián",
    "Germán",    "Eduardo",     "Nicolás", "Sebastián", "Unai",         "Félix"};

constexpr std::array<Text, 72> kSurnames = {
    "García",   "Rodríguez",  "González", "Fernández",    "López",     "Martínez", "Sánchez",   "Pérez",
    "Gómez",    "Martín",     "Jiménez",  "Ruiz",         "Hernández", "Díaz",     "Moreno",    "Muñoz",
    "Álvarez",  "Romero",     "Alonso",   "Gutiérrez",    "Navarro",   "Torres",   "Domínguez", "Vázquez",
    "Ramos",    "Gil",        "Ramírez",  "Serrano",      "Blanco",    "Molina",   "Morales",   "Suárez",
    "Ortega",   "Delgado",    "Castro",   "Ortiz",        "Rubio",     "Marín",    "Sanz",      "Núñez",
    "Iglesias", "Medina",     "Garrido",  "Cortés",       "Castillo",  "Santos",   "Lozano",    "Guerrero",
    "Cano",     "Prieto",     "Méndez",   "Cruz",         "Calvo",     "Gallego",  "Vidal",     "León",
    "Márquez",  "Herrera",    "Peña",     "Flores",       "Cabrera",   "Campos",   "Vega",      "Fuentes",
    "Ibáñez",   "Etxeberria", "Puig",     "de la Fuente", "Nuño",      "Zúñiga",   "Ferreiro",  "Belmonte"};

constexpr std::array<Text, 20> kForeignSurnames = {
    "Müller",   "Dupont",    "O'Brien",  "Rossi",    "Silva",  "Johansson", "Popescu",
    "Ben Ali",  "D'Angelo",  "Schmidt",  "Kowalski", "Nguyễn", "Ferreira",  "Ionescu",
    "Van Dijk", "El Amrani", "François", "Šimić",    "Smith",  "Quispe"};

constexpr std::array<Text, 20> kStreets = {
    "Mayor",         "Real",         "de la Constitución", "San José",
    "del Carmen",    "Cervantes",    "Ramón y Cajal",      "Goya",
    "de la Iglesia", "de España",    "Miguel de Unamuno",  "del Sol",
    "Nueva",         "Colón",        "Velázquez",          "de los Peñascos",
    "Santa Ana",     "de la Fuente", "Antonio Machado",    "Alfonso X el Sabio"};

constexpr std::array<Text, 5> kStreetKinds = {"C/ ", "Avda. ", "Plaza ", "Pº ", "Camino "};
constexpr std::array<Text, 6> kDoors = {"A", "B", "C", "D", "izda.", "dcha."};

constexpr std::array<Text, 12> kRemarks = {"Prefiere el correo electrónico.",
                                           "No llamar antes de las 17:00.",
                                           "Pide el certificado de donaciones en papel.",
                                           "Voluntaria en el comedor los sábados.",
                                           "Conoció la entidad en la feria \"Solidaria\".",
                                           "Cambió de banco; comprobar la cuenta.",
                                           "Habla catalán y francés.",
                                           "Aportación en memoria de su padre.",
                                           "L'any vinent vol apujar la quota.",
                                           "=contactar otra vez en enero",
                                           "Donó 50 € en metálico en la cena benéfica.",
                                           "Dos avisos devueltos: «destinatario desconocido»."};

constexpr std::array<Text, 14> kTrades = {
    "Construcciones", "Talleres", "Panadería", "Librería", "Transportes", "Conservas",  "Farmacia",
    "Viñedos",        "Aceites",  "Asesoría",  "Clínica",  "Muebles",     "Ferretería", "Cerámicas"};

constexpr std::array<Text, 8> kBodies = {"Fundación",   "Asociación", "Hermandad",      "Parroquia de",
                                         "Cofradía de", "Colegio",    "Club Deportivo", "Peña"};

constexpr std::array<Text, 10> kPatrons = {"San Isidro", "Santa Lucía",  "Nuestra Señora del Pilar",
                                           "San Fermín", "La Esperanza", "Virgen del Rocío",
                                           "Sant Jordi", "La Almudena",  "San Blas",
                                           "Santo Ángel"};

}  // namespace

std::string SpanishNames::Woman(Random& random) {
  return std::string(random.Pick(kWomen));
}

std::string SpanishNames::Man(Random& random) {
  return std::string(random.Pick(kMen));
}

std::string SpanishNames::Surname(Random& random) {
  // Two draws and the smaller place: the names at the head of the list are the frequent ones.
  const std::uint32_t size = static_cast<std::uint32_t>(kSurnames.size());
  const std::uint32_t first = random.Below(size);
  const std::uint32_t second = random.Below(size);
  return std::string(kSurnames[first < second ? first : second]);
}

std::string SpanishNames::ForeignSurname(Random& random) {
  return std::string(random.Pick(kForeignSurnames));
}

std::string SpanishNames::LegalPerson(Random& random) {
  if (random.Chance(400)) {
    return std::string(random.Pick(kBodies)) + ' ' + std::string(random.Pick(kPatrons));
  }
  std::string name = std::string(random.Pick(kTrades)) + ' ' + Surname(random);
  if (random.Chance(300)) name += " e Hijos";
  return name + (random.Chance(200) ? ", S.A." : ", S.L.");
}

std::string SpanishNames::Street(Random& random) {
  std::string street(random.Pick(kStreetKinds));
  street += random.Pick(kStreets);
  street += ", " + std::to_string(1 + random.Below(140));
  if (random.Chance(750)) {
    street += ", " + std::to_string(1 + random.Below(9)) + "º ";
    street += random.Pick(kDoors);
  }
  return street;
}

std::string SpanishNames::Remark(Random& random) {
  return random.Chance(80) ? std::string(random.Pick(kRemarks)) : std::string();
}

}  // namespace velmar::sample

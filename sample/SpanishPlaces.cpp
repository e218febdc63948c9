#include "sample/SpanishPlaces.h"

namespace velmar::sample {
namespace {

constexpr std::array<Province, kProvinceCount> kProvinces = {{
    {"01", "Álava", 3, {{{"Vitoria-Gasteiz", "01003"}, {"Llodio", "01400"}, {"Amurrio", "01470"}}}},
    {"02", "Albacete", 4, {{{"Albacete", "02002"}, {"Hellín", "02400"}, {"Villarrobledo", "02600"}}}},
    {"03", "Alicante", 18, {{{"Alicante", "03001"}, {"Elche", "03202"}, {"Torrevieja", "03181"}}}},
    {"04", "Almería", 7, {{{"Almería", "04001"}, {"El Ejido", "04700"}, {"Roquetas de Mar", "04740"}}}},
    {"05", "Ávila", 2, {{{"Ávila", "05001"}, {"Arévalo", "05200"}, {"Arenas de San Pedro", "05400"}}}},
    {"06", "Badajoz", 7, {{{"Badajoz", "06001"}, {"Mérida", "06800"}, {"Don Benito", "06400"}}}},
    {"07", "Illes Balears", 11, {{{"Palma", "07001"}, {"Manacor", "07500"}, {"Eivissa", "07800"}}}},
    {"08",
     "Barcelona",
     56,
     {{{"Barcelona", "08015"}, {"L'Hospitalet de Llobregat", "08901"}, {"Sabadell", "08201"}}}},
    {"09", "Burgos", 4, {{{"Burgos", "09003"}, {"Aranda de Duero", "09400"}, {"Miranda de Ebro", "09200"}}}},
    {"10",
     "Cáceres",
     4,
     {{{"Cáceres", "10001"}, {"Plasencia", "10600"}, {"Navalmoral de la Mata", "10300"}}}},
    {"11", "Cádiz", 12, {{{"Cádiz", "11003"}, {"Jerez de la Frontera", "11402"}, {"Algeciras", "11201"}}}},
    {"12",
     "Castellón",
     6,
     {{{"Castellón de la Plana", "12001"}, {"Vila-real", "12540"}, {"Vinaròs", "12500"}}}},
    {"13", "Ciudad Real", 5, {{{"Ciudad Real", "13001"}, {"Puertollano", "13500"}, {"Tomelloso", "13700"}}}},
    {"14", "Córdoba", 8, {{{"Córdoba", "14001"}, {"Lucena", "14900"}, {"Puente Genil", "14500"}}}},
    {"15",
     "A Coruña",
     11,
     {{{"A Coruña", "15003"}, {"Santiago de Compostela", "15701"}, {"Ferrol", "15402"}}}},
    {"16", "Cuenca", 2, {{{"Cuenca", "16001"}, {"Tarancón", "16400"}, {"Motilla del Palancar", "16200"}}}},
    {"17", "Girona", 8, {{{"Girona", "17001"}, {"Figueres", "17600"}, {"Blanes", "17300"}}}},
    {"18", "Granada", 9, {{{"Granada", "18009"}, {"Motril", "18600"}, {"Guadix", "18500"}}}},
    {"19",
     "Guadalajara",
     3,
     {{{"Guadalajara", "19001"}, {"Azuqueca de Henares", "19200"}, {"Sigüenza", "19250"}}}},
    {"20", "Gipuzkoa", 7, {{{"Donostia-San Sebastián", "20003"}, {"Irun", "20302"}, {"Eibar", "20600"}}}},
    {"21", "Huelva", 5, {{{"Huelva", "21001"}, {"Lepe", "21440"}, {"Almonte", "21730"}}}},
    {"22", "Huesca", 2, {{{"Huesca", "22001"}, {"Monzón", "22400"}, {"Jaca", "22700"}}}},
    {"23", "Jaén", 6, {{{"Jaén", "23001"}, {"Linares", "23700"}, {"Úbeda", "23400"}}}},
    {"24", "León", 5, {{{"León", "24001"}, {"Ponferrada", "24400"}, {"Astorga", "24700"}}}},
    {"25", "Lleida", 4, {{{"Lleida", "25002"}, {"Balaguer", "25600"}, {"Tàrrega", "25300"}}}},
    {"26", "La Rioja", 3, {{{"Logroño", "26001"}, {"Calahorra", "26500"}, {"Haro", "26200"}}}},
    {"27", "Lugo", 3, {{{"Lugo", "27001"}, {"Monforte de Lemos", "27400"}, {"Viveiro", "27850"}}}},
    {"28", "Madrid", 67, {{{"Madrid", "28004"}, {"Móstoles", "28931"}, {"Alcalá de Henares", "28801"}}}},
    {"29", "Málaga", 17, {{{"Málaga", "29001"}, {"Marbella", "29601"}, {"Antequera", "29200"}}}},
    {"30", "Murcia", 15, {{{"Murcia", "30001"}, {"Cartagena", "30201"}, {"Lorca", "30800"}}}},
    {"31", "Navarra", 7, {{{"Pamplona", "31001"}, {"Tudela", "31500"}, {"Estella", "31200"}}}},
    {"32", "Ourense", 3, {{{"Ourense", "32003"}, {"O Barco de Valdeorras", "32300"}, {"Verín", "32600"}}}},
    {"33", "Asturias", 10, {{{"Oviedo", "33001"}, {"Gijón", "33201"}, {"Avilés", "33400"}}}},
    {"34", "Palencia", 2, {{{"Palencia", "34001"}, {"Aguilar de Campoo", "34800"}, {"Guardo", "34880"}}}},
    {"35",
     "Las Palmas",
     11,
     {{{"Las Palmas de Gran Canaria", "35001"}, {"Telde", "35200"}, {"Arrecife", "35500"}}}},
    {"36",
     "Pontevedra",
     9,
     {{{"Pontevedra", "36001"}, {"Vigo", "36201"}, {"Vilagarcía de Arousa", "36600"}}}},
    {"37", "Salamanca", 3, {{{"Salamanca", "37001"}, {"Béjar", "37700"}, {"Ciudad Rodrigo", "37500"}}}},
    {"38",
     "Santa Cruz de Tenerife",
     10,
     {{{"Santa Cruz de Tenerife", "38001"}, {"San Cristóbal de La Laguna", "38201"}, {"Arona", "38640"}}}},
    {"39",
     "Cantabria",
     6,
     {{{"Santander", "39001"}, {"Torrelavega", "39300"}, {"Castro-Urdiales", "39700"}}}},
    {"40", "Segovia", 2, {{{"Segovia", "40001"}, {"Cuéllar", "40200"}, {"El Espinar", "40400"}}}},
    {"41", "Sevilla", 19, {{{"Sevilla", "41001"}, {"Dos Hermanas", "41700"}, {"Écija", "41400"}}}},
    {"42", "Soria", 1, {{{"Soria", "42001"}, {"Almazán", "42200"}, {"El Burgo de Osma", "42300"}}}},
    {"43", "Tarragona", 8, {{{"Tarragona", "43001"}, {"Reus", "43201"}, {"Tortosa", "43500"}}}},
    {"44", "Teruel", 1, {{{"Teruel", "44001"}, {"Alcañiz", "44600"}, {"Calamocha", "44200"}}}},
    {"45", "Toledo", 7, {{{"Toledo", "45001"}, {"Talavera de la Reina", "45600"}, {"Illescas", "45200"}}}},
    {"46", "Valencia", 26, {{{"Valencia", "46001"}, {"Torrent", "46900"}, {"Gandia", "46700"}}}},
    {"47",
     "Valladolid",
     5,
     {{{"Valladolid", "47001"}, {"Medina del Campo", "47400"}, {"Laguna de Duero", "47140"}}}},
    {"48", "Bizkaia", 11, {{{"Bilbao", "48001"}, {"Barakaldo", "48901"}, {"Getxo", "48930"}}}},
    {"49", "Zamora", 2, {{{"Zamora", "49001"}, {"Benavente", "49600"}, {"Toro", "49800"}}}},
    {"50",
     "Zaragoza",
     10,
     {{{"Zaragoza", "50001"}, {"Calatayud", "50300"}, {"Ejea de los Caballeros", "50600"}}}},
    {"51", "Ceuta", 1, {{{"Ceuta", "51001"}, {"Ceuta", "51002"}, {"Benzú", "51004"}}}},
    {"52", "Melilla", 1, {{{"Melilla", "52001"}, {"Melilla", "52004"}, {"Melilla", "52006"}}}},
}};

constexpr std::array<Country, kCountryCount> kCountries = {{
    {"ES", "España", "Madrid"},
    {"AD", "Andorra", "Andorra la Vella"},
    {"DE", "Alemania", "Múnich"},
    {"AR", "Argentina", "Buenos Aires"},
    {"AT", "Austria", "Viena"},
    {"BE", "Bélgica", "Bruselas"},
    {"BR", "Brasil", "São Paulo"},
    {"CL", "Chile", "Santiago de Chile"},
    {"CO", "Colombia", "Bogotá"},
    {"DK", "Dinamarca", "Copenhague"},
    {"EC", "Ecuador", "Quito"},
    {"US", "Estados Unidos", "Nueva York"},
    {"FR", "Francia", "Perpiñán"},
    {"IE", "Irlanda", "Dublín"},
    {"IT", "Italia", "Milán"},
    {"MA", "Marruecos", "Tánger"},
    {"MX", "México", "Ciudad de México"},
    {"NL", "Países Bajos", "Róterdam"},
    {"PE", "Perú", "Lima"},
    {"PT", "Portugal", "Lisboa"},
    {"GB", "Reino Unido", "Londres"},
    {"RO", "Rumanía", "Cluj-Napoca"},
    {"CH", "Suiza", "Zúrich"},
    {"UY", "Uruguay", "Montevideo"},
}};

constexpr std::array<std::uint32_t, kProvinceCount> CollectWeights() {
  std::array<std::uint32_t, kProvinceCount> weights{};
  for (std::size_t i = 0; i < kProvinceCount; ++i) weights[i] = kProvinces[i].weight;
  return weights;
}

constexpr std::array<std::uint32_t, kProvinceCount> kWeights = CollectWeights();

constexpr std::uint32_t SumWeights() {
  std::uint32_t sum = 0;
  for (const std::uint32_t weight : kWeights) sum += weight;
  return sum;
}

constexpr std::uint32_t kWeightTotal = SumWeights();

}  // namespace

const std::array<Province, kProvinceCount>& Provinces() {
  return kProvinces;
}

const std::array<std::uint32_t, kProvinceCount>& ProvinceWeights() {
  return kWeights;
}

std::uint32_t ProvinceWeightTotal() {
  return kWeightTotal;
}

const std::array<Country, kCountryCount>& Countries() {
  return kCountries;
}

}  // namespace velmar::sample

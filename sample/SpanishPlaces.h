#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace velmar::sample {

struct Town {
  std::string_view name;
  std::string_view postcode;  ///< five digits; the first two are the province's code
};

struct Province {
  std::string_view code;  ///< two digits (INE)
  std::string_view name;
  std::uint32_t weight;  ///< how many of the sample's people live here, relative to the other provinces
  std::array<Town, 3> towns;
};

struct Country {
  std::string_view code;  ///< two letters (ISO 3166-1)
  std::string_view name;
  std::string_view city;  ///< where the sample's people there live
};

inline constexpr std::size_t kProvinceCount = 52;
inline constexpr std::size_t kCountryCount = 24;

/// The 52 provinces and autonomous cities in the order of their codes, "01" first.
const std::array<Province, kProvinceCount>& Provinces();

/// The weights of Provinces, for Random::PickWeighted.
const std::array<std::uint32_t, kProvinceCount>& ProvinceWeights();
std::uint32_t ProvinceWeightTotal();

/// Spain first.
const std::array<Country, kCountryCount>& Countries();

}  // namespace velmar::sample

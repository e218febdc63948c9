#include "query/GroupedFilter.h"

#include <algorithm>
#include <iterator>

#include "query/FilterSyntax.h"

namespace velmar {

GroupedFilter::GroupedFilter(std::string_view filter, std::string_view literalCampoWHERE)
    : literalLength_(literalCampoWHERE.size()) {
  text_.reserve(filter.size() + literalCampoWHERE.size());
  std::size_t copied = 0;
  for (;;) {
    const std::size_t brace = filter.find_first_of("{}", copied);
    if (brace == filter.npos) break;
    if (filter[brace] == '}') {
      throw FilterFault({brace, 1},
                        "hay una llave de cierre «}» sin su llave de apertura; se esperaba antes «{»");
    }
    const std::size_t end = filter.find('}', brace);
    if (end == filter.npos) {
      throw FilterFault({brace, 1},
                        "la llave «{» no se cierra; se esperaba «}» después del nombre del campo");
    }
    text_.append(filter.substr(copied, brace - copied));
    groups_.push_back({{brace, end + 1 - brace}, text_.size()});
    text_.append(literalCampoWHERE);
    copied = end + 1;
  }
  text_.append(filter.substr(copied));
}

TextSpan GroupedFilter::Typed(TextSpan place) const {
  const auto behind =
      std::upper_bound(groups_.begin(), groups_.end(), place.offset,
                       [](std::size_t offset, const Group& group) { return offset < group.offset; });
  if (behind == groups_.begin()) return place;
  const Group& group = *std::prev(behind);
  const std::size_t end = group.offset + literalLength_;
  if (place.offset < end) return group.typed;
  return {group.typed.offset + group.typed.length + (place.offset - end), place.length};
}

}  // namespace velmar

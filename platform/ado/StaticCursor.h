#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/ado/CountedCursor.h"
#include "platform/ado/RowStore.h"
#include "platform/jet/Translation.h"

namespace ADODB {

/// Rows whose number is fixed at opening. Up to kRowsReadAtOnce are read then; more are only counted, and
/// read when the first value is asked for, which is refused if the database has changed in between.
class StaticCursor : public CountedCursor {
 public:
  static constexpr std::size_t kRowsReadAtOnce = 10'000;

  /// The text names no other database than the connection's own. counted is engine text that gives as many
  /// rows.
  StaticCursor(std::shared_ptr<Session> session, velmar::jet::Translation translation,
               const std::string& counted);

 protected:
  Variant StoredValue(std::size_t column) override;
  void FreeStatements() noexcept override {}

 private:
  /// What changes whenever any connection has written to the database.
  struct Version {
    std::int64_t own = 0;
    std::int64_t others = 0;
    bool operator==(const Version&) const = default;
  };
  Version CurrentVersion() const;
  void Read();

  velmar::jet::Translation translation_;
  Version version_;
  std::optional<RowStore> rows_;
};

}  // namespace ADODB

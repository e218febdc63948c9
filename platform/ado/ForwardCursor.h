#pragma once

#include <optional>

#include "platform/ado/Cursor.h"
#include "platform/ado/Statement.h"
#include "platform/jet/Translation.h"

namespace ADODB {

/// One row at a time, straight from the running statement.
class ForwardCursor : public Cursor {
 public:
  ForwardCursor(std::shared_ptr<Session> session, velmar::jet::Translation translation);
  ~ForwardCursor() override;

  bool Eof() const override { return eof_; }
  bool Bof() const override { return empty_; }
  void MoveNext() override;
  void MoveFirst() override;
  long RecordCount() const override { return -1; }

 protected:
  Variant StoredValue(std::size_t column) override;
  void FreeStatements() noexcept override;

 private:
  void Advance();

  velmar::jet::Translation translation_;
  std::optional<Statement> select_;
  bool empty_ = false;
  bool moved_ = false;
  bool eof_ = false;
};

}  // namespace ADODB

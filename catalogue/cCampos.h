#pragma once

#include <cstdint>
#include <string>
#include <utility>

namespace velmar {

/// One exportable field of the catalogue: a plain record whose properties only copy their value in and out.
class cCampos {
 public:
  /// The delimiter that a value of this field takes in a statement; empty for values that stand bare.
  void CaracterValorCampo(std::string value) { caracterValorCampo_ = std::move(value); }
  const std::string& CaracterValorCampo() const noexcept { return caracterValorCampo_; }

  /// The text that stands for the field in a condition. It holds no "[" and no value mark.
  void LiteralCampoWHERE(std::string value) { literalCampoWHERE_ = std::move(value); }
  const std::string& LiteralCampoWHERE() const noexcept { return literalCampoWHERE_; }

  /// The text that stands for the field in the ORDER BY list, its direction included.
  void LiteralCampoORDERBY(std::string value) { literalCampoORDERBY_ = std::move(value); }
  const std::string& LiteralCampoORDERBY() const noexcept { return literalCampoORDERBY_; }

  /// The text that stands for the field in the SELECT list, its alias included.
  void LiteralCampoSELECT(std::string value) { literalCampoSELECT_ = std::move(value); }
  const std::string& LiteralCampoSELECT() const noexcept { return literalCampoSELECT_; }

  /// Identity of the node that the field belongs to.
  void IDTabla(std::int16_t value) noexcept { idTabla_ = value; }
  std::int16_t IDTabla() const noexcept { return idTabla_; }

  /// Display name of the node, for example "(REC) Recibos".
  void LiteralTabla(std::string value) { literalTabla_ = std::move(value); }
  const std::string& LiteralTabla() const noexcept { return literalTabla_; }

  /// Internal name, table.field in lower case. Never part of a statement.
  void NombreInternoCampo(std::string value) { nombreInternoCampo_ = std::move(value); }
  const std::string& NombreInternoCampo() const noexcept { return nombreInternoCampo_; }

  /// Display name of the field.
  void LiteralCampo(std::string value) { literalCampo_ = std::move(value); }
  const std::string& LiteralCampo() const noexcept { return literalCampo_; }

  /// Identity of the field. 0 is taken by the head row of the grid, so fields are numbered from 1.
  void IDCampo(std::int16_t value) noexcept { idCampo_ = value; }
  std::int16_t IDCampo() const noexcept { return idCampo_; }

 private:
  std::int16_t idCampo_ = 0;
  std::string literalCampo_;
  std::string nombreInternoCampo_;
  std::string literalTabla_;
  std::int16_t idTabla_ = 0;
  std::string literalCampoSELECT_;
  std::string literalCampoWHERE_;
  std::string literalCampoORDERBY_;
  std::string caracterValorCampo_;
};

}  // namespace velmar

#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "templates/TemplateContent.h"

namespace ADODB {
class Connection;
class Recordset;
}  // namespace ADODB

namespace velmar::templates {

/// A template's name as it goes into a statement: every double quote becomes two apostrophes, which a
/// statement reads as one.
std::string PrepararTextoSQL(std::string_view text);

/// The templates of one user in the table `ExportacionPlantillas`. Names are told apart without regard to
/// case. No call reads or changes a row of another user.
///
/// A name that holds an apostrophe, and content that does where a statement is to take it, is kQuerySyntax
/// before any statement runs. All other failures are those of the database.
class TemplateStore {
 public:
  /// How many of `total` rows are done, from 0 on.
  using Progress = std::function<void(long done, long total)>;
  /// What becomes of an older template of the same name.
  enum class Existing {
    kNone,     ///< There is none.
    kReplace,  ///< It goes, in the same transaction.
  };

  /// What one template holds.
  struct Summary {
    std::string name;
    long fields = 0;
    long filters = 0;  ///< of the fields, those with a filter
    long sorted = 0;   ///< of the fields, those in the sort list
  };

  /// doEvents gives the message loop a turn behind each statement that returns rows. kObjectNotSet without a
  /// connection.
  TemplateStore(std::shared_ptr<ADODB::Connection> conGestion, std::int32_t codUsuario,
                std::function<void()> doEvents = {});

  /// Each template once, in the order of their names.
  std::vector<std::string> Names() const;
  /// The same templates in the same order, also those whose names cannot stand in a statement.
  std::vector<Summary> Summaries() const;
  bool Exists(const std::string& name) const;
  /// Replaces `into`, by nothing for a name without template. After a failure it holds what was read until
  /// then. Progress counts the fields and then, under the same total, the sort list.
  void Load(const std::string& name, TemplateContent& into, const Progress& progress = {}) const;
  /// All or nothing: a failure leaves what was stored before. Items of the sort list whose field is not among
  /// the fields are not kept. Content without fields is kInvalidProcedureCall, a number outside 16 bits
  /// kOverflow.
  void Save(const std::string& name, const TemplateContent& content, Existing existing,
            const Progress& progress = {}) const;
  /// Nothing happens for a name without template.
  void Delete(const std::string& name) const;

 private:
  /// The condition that reaches this user's template of the name.
  std::string Where(const std::string& name) const;
  std::string InsertStatement(const std::string& name, const TemplateContent::Field& field,
                              long ordenCampo) const;
  std::shared_ptr<ADODB::Recordset> Select(const std::string& statement) const;

  std::shared_ptr<ADODB::Connection> conGestion_;
  std::int32_t codUsuario_;
  std::function<void()> doEvents_;
};

}  // namespace velmar::templates

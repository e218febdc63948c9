#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "platform/error/RuntimeError.h"

namespace velmar::jet {

// The tree of a Jet statement: plain values, each node owning what stands below it. Names are as written,
// without brackets.

struct Expression;
struct Query;

struct NumberLiteral {
  std::string digits;  ///< without a sign, unless it was hexadecimal
};
struct TextLiteral {
  std::string value;
};
struct DateLiteral {
  double date = 0;
};
struct BooleanLiteral {
  bool value = false;
};
struct NullLiteral {};

struct ColumnName {
  std::string table;  ///< empty if not qualified
  std::string column;
};

/// The place of a row among those of its table, in the order in which they came. Rewriting puts it in; no Jet
/// text can.
struct RowPlace {
  std::string table;  ///< empty: the only table
};

struct Call {
  std::string function;
  bool star = false;  ///< Count(*)
  std::vector<Expression> arguments;
};

enum class Operator {
  kNot,
  kAnd,  ///< two or more operands, as kOr, kPlus and kConcatenate: chains are flat
  kOr,
  kXor,
  kEqv,
  kImp,
  kNegate,
  kPlus,
  kMinus,
  kTimes,
  kDivide,
  kIntegerDivide,
  kModulo,
  kPower,
  kConcatenate
};

struct Operation {
  Operator symbol = Operator::kNot;
  std::vector<Expression> operands;
};

enum class Quantifier { kNone, kAny, kAll };

/// `operands` are the two sides; with a quantifier only the left one, and `query` is the right.
struct Comparison {
  std::string symbol;  ///< = <> < <= > >=
  Quantifier quantifier = Quantifier::kNone;
  std::vector<Expression> operands;
  std::unique_ptr<Query> query;
};

struct LikeTest {
  bool negated = false;
  std::vector<Expression> operands;  ///< value, pattern
};

struct BetweenTest {
  bool negated = false;
  std::vector<Expression> operands;  ///< value, low, high
};

struct InTest {
  bool negated = false;
  std::vector<Expression> operands;  ///< value, then the list
  std::unique_ptr<Query> query;      ///< instead of a list
};

struct NullTest {
  bool negated = false;
  std::vector<Expression> operands;  ///< one
};

struct ExistsTest {
  std::unique_ptr<Query> query;
};

struct Subquery {
  std::unique_ptr<Query> query;
};

struct Expression {
  TextSpan span;
  std::variant<NullLiteral, NumberLiteral, TextLiteral, DateLiteral, BooleanLiteral, ColumnName, RowPlace,
               Call, Operation, Comparison, LikeTest, BetweenTest, InTest, NullTest, ExistsTest, Subquery>
      node;
  int height = 1;  ///< levels of nodes, this one included
};

/// Where a table of another database is, as written: a path, perhaps with ";pwd=" and a password behind it,
/// or a connect text such as "Excel 8.0;DATABASE=…". Nothing for the connection's own database.
struct TableName {
  std::optional<std::string> database;
  TextSpan databaseSpan;
  std::string table;
  TextSpan span;
};

struct TableSource;

enum class JoinKind { kInner, kLeft, kRight };

struct NamedTable {
  TableName name;
  std::string alias;  ///< empty if it has none
};

struct DerivedTable {
  std::unique_ptr<Query> query;
  std::string alias;
};

struct Join {
  JoinKind kind = JoinKind::kInner;
  std::vector<TableSource> operands;  ///< left, right
  std::optional<Expression> on;       ///< always there as parsed; rewriting may leave an inner join without
};

struct TableSource {
  TextSpan span;
  std::variant<NamedTable, DerivedTable, Join> node;
};

struct SelectItem {
  TextSpan span;
  bool star = false;
  std::string starTable;  ///< of `t.*`
  std::optional<Expression> expression;
  std::string alias;
};

struct Top {
  std::string count;
  bool percent = false;
  TextSpan span;
};

struct OrderItem {
  Expression expression;
  bool descending = false;
};

struct Select {
  TextSpan span;
  bool distinct = false;
  bool distinctRow =
      false;  ///< DISTINCTROW: one row for each combination of rows of the tables that are shown
  std::optional<Top> top;
  std::vector<SelectItem> items;
  std::vector<TableSource> from;
  std::optional<Expression> where;
  std::vector<Expression> groupBy;
  std::optional<Expression> having;
};

/// One or more SELECTs joined by UNION, and the order of the whole.
struct Query {
  TextSpan span;
  std::vector<Select> members;
  std::vector<bool> unionAll;  ///< one fewer than the members
  std::vector<OrderItem> orderBy;
};

struct SelectStatement {
  Query query;
  std::optional<TableName> into;
};

struct TargetColumn {
  std::string name;
  TextSpan span;
};

struct InsertStatement {
  TableName target;
  std::vector<TargetColumn> columns;
  std::unique_ptr<Query> query;    ///< INSERT … SELECT
  std::vector<Expression> values;  ///< INSERT … VALUES
};

struct Assignment {
  ColumnName column;
  TextSpan span;
  Expression value;
};

struct UpdateStatement {
  TableSource source;
  std::vector<Assignment> assignments;
  std::optional<Expression> where;
};

struct DeleteStatement {
  std::string target;  ///< the table named between DELETE and FROM; empty if none is
  TextSpan targetSpan;
  TableSource source;
  std::optional<Expression> where;
};

struct ColumnDefinition {
  std::string name;
  TextSpan span;
  std::string type;  ///< SQLite's declaration: "TEXT(50)", "INTEGER", …
  bool counter = false;
  bool notNull = false;
  bool unique = false;
  bool primaryKey = false;
};

struct KeyColumn {
  std::string name;
  bool descending = false;
};

struct TableConstraint {
  bool primaryKey = false;  ///< else unique
  std::vector<std::string> columns;
};

struct CreateTableStatement {
  TableName target;
  std::vector<ColumnDefinition> columns;
  std::vector<TableConstraint> constraints;
};

struct CreateIndexStatement {
  std::string index;
  TableName target;
  bool unique = false;
  std::vector<KeyColumn> columns;
};

struct AlterTableStatement {
  TableName target;
  std::optional<ColumnDefinition> added;
  std::string dropped;  ///< the column of DROP COLUMN
};

struct DropStatement {
  bool index = false;
  std::string indexName;
  TableName target;
};

using Statement =
    std::variant<SelectStatement, InsertStatement, UpdateStatement, DeleteStatement, CreateTableStatement,
                 CreateIndexStatement, AlterTableStatement, DropStatement>;

}  // namespace velmar::jet

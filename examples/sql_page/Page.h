#pragma once

#include <iosfwd>
#include <string>
#include <vector>

/// A Markdown page about statements. A block marked sql holds statements, each but the last ended by a
/// semicolon at the end of a line, and the block marked text behind it what comes of them. A row of a table
/// that ends with two cells of code holds an expression and its value.
class Page {
 public:
  struct Example {
    int line = 0;  ///< of the page, from 1
    bool isExpression = false;
    std::vector<std::string> statements;  ///< or the one expression
    std::string result;
    bool hasResult = false;
  };

  explicit Page(std::istream& text);

  const std::vector<Example>& Examples() const { return examples_; }

 private:
  void ReadBlock(std::istream& text, const std::string& language);
  void ReadRow(const std::string& row);

  std::vector<Example> examples_;
  int line_ = 0;
};

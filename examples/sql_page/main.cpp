#include <fstream>
#include <iostream>

#include "Page.h"
#include "SampleDatabases.h"

int main(int argc, char** argv) {
  std::ifstream text(argc == 2 ? argv[1] : "");
  if (!text) {
    std::cerr << "Usage: sql_page PAGE.md\n";
    return 2;
  }
  const Page page(text);
  SampleDatabases databases;
  int right = 0;
  int wrong = 0;
  for (const Page::Example& example : page.Examples()) {
    std::string result;
    for (const std::string& statement : example.statements) {
      result += example.isExpression ? databases.Value(statement) : databases.Run(statement);
    }
    // A block without a result prepares the next ones, and must not fail.
    const bool good =
        example.hasResult ? result == example.result : result.find("error ") == std::string::npos;
    ++(good ? right : wrong);
    if (!good) {
      std::cerr << argv[1] << ":" << example.line << ": the page says\n"
                << example.result << "\nand there comes\n"
                << result << "\n";
    }
  }
  std::cout << right << " examples hold, " << wrong << " do not\n";
  return wrong == 0 && right > 0 ? 0 : 1;
}

#include <iostream>
#include <string>
#include <vector>

#include "sample/command/CommandLine.h"

int main(int count, char** words) {
  return velmar::sample::CommandLine(std::cout, std::cerr)
      .Run(std::vector<std::string>(words + 1, words + count));
}

#include "qt/toolkit/TestApplication.h"

int main(int count, char** words) {
  return velmar::testing::RunQtTests(count, words);
}

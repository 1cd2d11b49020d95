#include <iostream>

#include "tools/ofs_check.h"

int main(int argc, char** argv) {
  return runOfsCheck(argc, argv, std::cout, std::cerr);
}

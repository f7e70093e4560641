/// Writes the names of the gauges' parts and click areas: gauge_names FILE
#include <cstdio>
#include <fstream>

#include "resources/names/gauge_names.h"

int main(int count, char** arguments) {
  if (count != 2) {
    std::fprintf(stderr, "usage: gauge_names FILE\n");
    return 2;
  }
  std::ofstream file(arguments[1], std::ios::binary);
  file << tarnvale::names::names_file();
  file.close();
  if (file) return 0;
  std::fprintf(stderr, "gauge_names: cannot write %s\n", arguments[1]);
  return 1;
}

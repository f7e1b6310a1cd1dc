// Writes the TypeScript types of the view vocabulary to the given file.

#include <cstdio>
#include <fstream>

#include "shells/web/view_types.h"

int main(int count, char** arguments) {
  if (count != 2) {
    std::fputs("usage: view_types <file to write>\n", stderr);
    return 2;
  }
  std::ofstream file(arguments[1], std::ios::binary);
  file << tb::viewTypes();
  file.close();
  if (file) return 0;
  std::fprintf(stderr, "view_types: %s could not be written\n", arguments[1]);
  return 1;
}

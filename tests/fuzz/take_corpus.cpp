// Gives every file of a folder to the harness that this is linked with.
#include <cstdio>
#include <filesystem>
#include <vector>

#include "host/files/read_file.h"
#include "tests/fuzz/harness.h"

int main(int count, char** arguments) {
  int taken = 0;
  for (int i = 1; i < count; ++i)
    for (const auto& entry : std::filesystem::directory_iterator(arguments[i])) {
      const std::string text = host::read_file(entry.path(), host::mebibyte);
      // Of its very size, so that a step past the end is seen.
      const std::vector<std::uint8_t> bytes(text.begin(), text.end());
      LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
      ++taken;
    }
  std::printf("%d inputs taken\n", taken);
  return taken > 0 ? 0 : 1;
}

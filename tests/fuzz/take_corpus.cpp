// Gives every file of a folder to the harness that this is linked with; with --damaged also whatever is left
// of it when it is cut off anywhere or one byte is wrong.
#include <cstdio>
#include <filesystem>
#include <string_view>
#include <vector>

#include "host/files/read_file.h"
#include "tests/fuzz/harness.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

int taken = 0;

// Of its very size, so that a step past the end is seen.
void take(const Bytes& bytes) {
  LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
  ++taken;
}

void damage(const Bytes& whole) {
  constexpr std::size_t headers = 0x240;  // behind them zeros are mostly room that nothing fills
  for (std::size_t at = 0; at < whole.size(); ++at) {
    if (at >= headers && whole[at] == 0) continue;
    if (at < headers) take({whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(at)});
    for (const std::uint8_t value : {0, 0x7F, 0xFF}) {
      Bytes damaged = whole;
      damaged[at] = value;
      take(damaged);
    }
  }
}

}  // namespace

int main(int count, char** arguments) {
  const bool damaged = count > 2 && std::string_view(arguments[2]) == "--damaged";
  for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) {
    const std::string text = host::read_file(entry.path(), host::mebibyte);
    const Bytes bytes(text.begin(), text.end());
    take(bytes);
    if (damaged) damage(bytes);
  }
  std::printf("%d inputs taken\n", taken);
  return taken > 0 ? 0 : 1;
}

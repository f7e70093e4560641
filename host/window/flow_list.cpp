#include "host/window/flow_list.h"

#include <algorithm>

#include "host/files/read_file.h"
#include "host/panel/text.h"

namespace host {
namespace {

std::string first_sentence(const std::filesystem::path& flow) {
  constexpr std::size_t enough = 200;
  const std::string text = fault_of_file(flow, mebibyte).empty() ? read_file(flow, mebibyte) : "";
  std::string words;
  for (const std::string_view line : split(text, '\n')) {
    if (words.size() >= enough || !line.starts_with("--")) break;
    words += (words.empty() ? "" : " ") + std::string(trimmed(line.substr(2)));
  }
  return words.substr(0, words.find_first_of(".:;"));
}

}  // namespace

std::vector<OfferedFlow> flows_in(const std::filesystem::path& folder) {
  std::vector<OfferedFlow> flows;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(folder, error))
    if (entry.path().extension() == ".lua")
      flows.push_back({entry.path(), first_sentence(entry.path())});
  std::ranges::sort(flows, {}, &OfferedFlow::file);
  return flows;
}

}  // namespace host

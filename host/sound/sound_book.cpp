#include "host/sound/sound_book.h"

#include <fstream>
#include <iterator>

namespace host {
namespace {

namespace fs = std::filesystem;

std::string name_of_file(const fs::path& file) {
  const std::string stem = file.stem().string();
  return stem.substr(stem.find('_') + 1);
}

std::string content_of(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace

SoundBook::SoundBook(const fs::path& folder) {
  std::error_code error;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder, error))
    if (entry.path().extension() == ".wav")
      pages_.push_back({name_of_file(entry.path()), content_of(entry.path())});
}

std::string SoundBook::name_of(std::span<const std::byte> samples) const {
  const std::string wanted(reinterpret_cast<const char*>(samples.data()), samples.size());
  const auto [known, fresh] = known_.try_emplace(wanted, "?");
  if (!fresh) return known->second;
  for (const Page& page : pages_)
    if (page.bytes.find(wanted) != std::string::npos) return known->second = page.name;
  return known->second;
}

}  // namespace host

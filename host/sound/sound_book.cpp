#include "host/sound/sound_book.h"

#include <string_view>

#include "host/files/read_file.h"
#include "host/sound/wav_facts.h"

namespace host {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t longest_header = 256;  // bytes before the samples

std::string name_of_file(const fs::path& file) {
  const std::string stem = file.stem().string();
  return stem.substr(stem.find('_') + 1);
}

// A file that cannot be read is never heard either.
std::string content_of(const fs::path& file) {
  try {
    return read_file(file, largest_sound);
  } catch (const FileFault&) {
    return {};
  }
}

}  // namespace

SoundBook::SoundBook(const fs::path& folder) {
  std::error_code error;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder, error))
    if (entry.path().extension() == ".wav")
      pages_.push_back({name_of_file(entry.path()), content_of(entry.path())});
}

std::string SoundBook::name_of(std::span<const std::byte> samples) const {
  const std::string_view wanted(reinterpret_cast<const char*>(samples.data()), samples.size());
  // Whoever plays a file plays all of it: the samples are its end.
  for (const Page& page : pages_)
    if (page.bytes.size() <= wanted.size() + longest_header && page.bytes.ends_with(wanted))
      return page.name;
  const auto [known, fresh] = known_.try_emplace(std::string(wanted), "?");
  if (!fresh) return known->second;
  for (const Page& page : pages_)
    if (page.bytes.find(wanted) != std::string::npos) return known->second = page.name;
  return known->second;
}

}  // namespace host

#include "host/loader/resource_section.h"

#include <cstring>

#include "interface/panel_interface.h"

namespace host {
namespace {

std::uint32_t directory_length(Bytes bytes) {
  const auto header = read<PanelResourceHeader>(bytes, 0);
  if (!header || std::memcmp(header->magic, PANEL_RESOURCE_MAGIC, sizeof header->magic) != 0)
    throw ResourceError("holds no bitmap directory");
  if (header->version != PANEL_RESOURCE_VERSION)
    throw ResourceError("has a bitmap directory of unknown version " + std::to_string(header->version));
  if (!slice(bytes, sizeof *header, std::uint64_t{header->count} * sizeof(PanelResourceEntry)))
    throw ResourceError("has a bitmap directory that is cut short");
  return header->count;
}

std::string name_in(const PanelResourceEntry& entry) {
  return {entry.name, strnlen(entry.name, sizeof entry.name)};
}

std::string title_of(const PanelResourceEntry& entry) {
  if (entry.id != PANEL_RESOURCE_NAMED) return "bitmap " + std::to_string(entry.id);
  return "bitmap \"" + name_in(entry) + "\"";
}

}  // namespace

ResourceSection::ResourceSection(Bytes bytes) {
  const std::uint32_t count = directory_length(bytes);
  for (std::uint32_t i = 0; i < count; ++i)
    add(bytes, sizeof(PanelResourceHeader) + std::uint64_t{i} * sizeof(PanelResourceEntry));
}

void ResourceSection::add(Bytes bytes, std::uint64_t place) {
  const auto entry = *read<PanelResourceEntry>(bytes, place);
  try {
    const auto packed = slice(bytes, entry.offset, entry.size);
    if (!packed) throw DibError("it lies past the end");
    const Dib dib = parse_dib(*packed);
    if (entry.id == PANEL_RESOURCE_NAMED) {
      if (!named_.emplace(name_in(entry), dib).second) throw DibError("the name is taken");
    } else if (!numbered_.emplace(entry.id, dib).second) {
      throw DibError("the number is taken");
    }
  } catch (const DibError& error) {
    notes_.push_back(title_of(entry) + " is damaged: " + error.what());
  }
}

const Dib* ResourceSection::find(std::uint32_t id) const {
  const auto found = numbered_.find(id);
  return found == numbered_.end() ? nullptr : &found->second;
}

const Dib* ResourceSection::find(std::string_view name) const {
  const auto found = named_.find(name);
  return found == named_.end() ? nullptr : &found->second;
}

}  // namespace host

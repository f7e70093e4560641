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

std::string name_of(const ListedBitmap& bitmap) {
  if (bitmap.id != PANEL_RESOURCE_NAMED) return "bitmap " + std::to_string(bitmap.id);
  return "bitmap \"" + bitmap.name + "\"";
}

}  // namespace

std::vector<ListedBitmap> listed_bitmaps(Bytes section) {
  std::vector<ListedBitmap> listed(directory_length(section));
  std::uint64_t place = sizeof(PanelResourceHeader);
  for (ListedBitmap& bitmap : listed) {
    const auto entry = *read<PanelResourceEntry>(section, place);
    const std::string name(entry.name, strnlen(entry.name, sizeof entry.name));
    bitmap = {entry.id, name, slice(section, entry.offset, entry.size)};
    place += sizeof entry;
  }
  return listed;
}

ResourceSection::ResourceSection(const std::vector<ListedBitmap>& listed) {
  for (const ListedBitmap& bitmap : listed) add(bitmap);
}

void ResourceSection::add(const ListedBitmap& bitmap) {
  try {
    if (!bitmap.bytes) throw DibError("it lies past the end");
    const Dib dib = parse_dib(*bitmap.bytes);
    if (bitmap.id == PANEL_RESOURCE_NAMED) {
      if (!named_.emplace(bitmap.name, dib).second) throw DibError("the name is taken");
    } else if (!numbered_.emplace(bitmap.id, dib).second) {
      throw DibError("the number is taken");
    }
  } catch (const DibError& error) {
    notes_.push_back(name_of(bitmap) + " is damaged: " + error.what());
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

#include "host/pages/checklist.h"

#include <cmath>

#include "host/panel/condition.h"
#include "host/panel/panel_config.h"
#include "tests/fuzz/harness.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  try {
    const auto lists = host::parse_checklists(fuzz::text_of(data, size), "checklists.txt");
    fuzz::must(lists.size() <= host::most_checklists);
    for (const host::Checklist& list : lists) {
      fuzz::must(!list.title.empty() && list.items.size() <= host::most_items);
      for (const host::ChecklistItem& item : list.items)
        for (const host::Comparison& comparison : item.done)
          fuzz::must(!host::holds(comparison, std::nan("")));
    }
  } catch (const host::ConfigError& error) {
    fuzz::must(std::string_view(error.what()).starts_with("checklists.txt:"));
    fuzz::must(std::string_view(error.what()).size() < 300);
  }
  return 0;
}

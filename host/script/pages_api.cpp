#include <algorithm>
#include <stdexcept>

#include "host/pages/checklist_progress.h"
#include "host/panel/nearest.h"
#include "host/script/flow_api.h"

namespace host {
namespace {

const Checklist& list_of(const FlowSession& session, const std::string& title) {
  const auto& lists = session.surroundings().checklists;
  const auto found = std::ranges::find(lists, title, &Checklist::title);
  if (found != lists.end()) return *found;
  std::vector<std::string_view> titles;
  for (const Checklist& list : lists) titles.push_back(list.title);
  throw std::runtime_error("there is no checklist '" + title + "'" + did_you_mean(title, titles));
}

void give_checklist(LuaCall& call, FlowSession& session) {
  const Cockpit& cockpit = session.cockpit();
  call.begin_list();
  for (const ChecklistItem& item : list_of(session, call.text(1, "title")).items) {
    const CockpitGauge* gauge = cockpit.find(item.gauge);
    const WindowConfig* window = gauge ? window_for(cockpit, *gauge) : nullptr;
    call.begin_entry();
    call.field("what", std::string_view(item.what));
    call.field("wanted", std::string_view(item.wanted));
    call.field("gauge", std::string_view(item.gauge));
    call.field("control", std::string_view(item.control));
    call.field("window", window ? window->ident : 0.0);
    call.field("done", holds(item.done, cockpit) ? 1.0 : 0.0);
    call.end_entry();
  }
}

// The names of requests in flows.
constexpr std::array<std::string_view, 4> request_names{"push_back", "taxi", "take_off", "landing"};

void give_answer(LuaCall& call, FlowSession& session) {
  const std::string name = call.text(1, "request");
  const auto found = std::ranges::find(request_names, name);
  if (found == request_names.end())
    throw std::invalid_argument("argument 1 (request) must be push_back, taxi, take_off or landing");
  const RequestRow& row = request_table()[static_cast<std::size_t>(found - request_names.begin())];
  call.give(std::string_view(ask(session.cockpit().aircraft(), row.request).answer));
}

}  // namespace

void bind_pages(LuaRunner& runner, FlowSession& session) {
  runner.bind("checklist", [&](LuaCall& call) { give_checklist(call, session); });
  runner.bind("radio", [&](LuaCall& call) { give_answer(call, session); });
}

}  // namespace host

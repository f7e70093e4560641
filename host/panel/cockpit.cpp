#include "host/panel/cockpit.h"

#include <algorithm>

#include "host/panel/text.h"

namespace host {

CockpitGauge::CockpitGauge(const GaugeHeader& gauge, PanelSize background,
                           const GaugeNames& gauge_names, const GaugeWords& gauge_words)
    : run(gauge), areas(gauge.mouse_areas), size(background), names(gauge_names), words(gauge_words) {
  for (std::vector<std::size_t>& control : names.areas_of_one_control()) areas.join(std::move(control));
}

Cockpit::Cockpit(GaugeModule& module, PanelConfig config, double rate)
    : module_(module),
      names_(read_names(module)),
      words_(read_words(module, names_)),
      config_(std::move(config)),
      panels_(config_),
      rate_(rate) {
  for (const WindowConfig& window : config_.windows) place_gauges(window);
  set_service_target(this);
  module_.connect(panel_services());
}

void Cockpit::begin_with_start_page() {
  if (panels_.begin_with_start_page()) aircraft_.hand_over();
}

Cockpit::~Cockpit() {
  for (const auto& gauge : gauges_)
    if (gauge->started) gauge->run.end();
  set_service_target(nullptr);
}

void Cockpit::place_gauges(const WindowConfig& window) {
  CockpitWindow placed{&window, {}};
  for (const Placement& placement : window.gauges) {
    CockpitGauge& gauge = gauge_for(placement);
    const bool own_size = placement.width == 0;
    placed.gauges.push_back({&gauge,
                             {placement.x, placement.y, own_size ? gauge.size.width : placement.width,
                              own_size ? gauge.size.height : placement.height}});
  }
  windows_.push_back(std::move(placed));
}

CockpitGauge& Cockpit::gauge_for(const Placement& placement) {
  const std::string module_name = module_.file().stem().string();
  if (!same_name(placement.module, module_name))
    throw ConfigError(at_line(config_.file, placement.line,
                              "the module is " + module_name + ", not " + placement.module));
  const GaugeHeader* header = module_.find(placement.gauge);
  if (!header)
    throw ConfigError(
        at_line(config_.file, placement.line, module_name + " has no gauge '" + placement.gauge + "'"));
  if (CockpitGauge* known = find(header->name)) return *known;
  const PanelSize size = gauge_size(*header, module_.bitmaps());
  if (size.width < 1 || size.height < 1)
    throw ConfigError(at_line(config_.file, placement.line,
                              std::string(header->name) + " has no background picture"));
  CockpitGauge& gauge = *gauges_.emplace_back(
      std::make_unique<CockpitGauge>(*header, size, names_.of(*header), words_.of(*header)));
  by_name_[lower(header->name)] = &gauge;
  gauge.run.set_frame_seconds(1.0 / rate_);
  return gauge;
}

CockpitGauge* Cockpit::find(std::string_view name) const {
  const auto found = by_name_.find(lower(name));
  return found == by_name_.end() ? nullptr : found->second;
}

bool Cockpit::panel_lights_on() const { return aircraft_.token(token::panel_lights) != 0; }

bool Cockpit::is_shown(const CockpitGauge& gauge) const {
  for (std::size_t i = 0; i < windows_.size(); ++i)
    if (panels_.is_open(i) &&
        std::ranges::any_of(windows_[i].gauges, [&](auto& placed) { return placed.gauge == &gauge; }))
      return true;
  return false;
}

const CockpitWindow* Cockpit::window_of(const CockpitGauge& gauge) const {
  const auto found = std::ranges::find_if(windows_, [&](const CockpitWindow& window) {
    return std::ranges::any_of(window.gauges, [&](auto& placed) { return placed.gauge == &gauge; });
  });
  return found == windows_.end() ? nullptr : &*found;
}

void Cockpit::key_event(std::uint32_t event, std::uint32_t value) {
  aircraft_.key_event(event, value);
  if (on_event) on_event({seconds(), event, value});
}

void Cockpit::frame() {
  ++frames_;
  aircraft_.advance(1.0 / rate_);
  for (std::size_t i = 0; i < windows_.size(); ++i)
    if (panels_.is_open(i))
      for (const PlacedGauge& placed : windows_[i].gauges) run(*placed.gauge);
}

void Cockpit::run(CockpitGauge& gauge) {
  if (gauge.frame == frames_) return;
  gauge.frame = frames_;
  if (!gauge.started) gauge.run.start(module_.handle());
  gauge.started = true;
  gauge.run.frame(tokens_);
  gauge.moving = gauge.run.changed();
  gauge.changes += gauge.moving;
}

}  // namespace host

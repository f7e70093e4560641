#include <cstdio>

#include "host/pages/sheet.h"

namespace host {
namespace {

constexpr double row_height = 25;
constexpr double rates_per_hour[] = {0, 1, 4, 12, 60};

std::string rate_words(double per_hour) {
  if (per_hour == 0) return "none";
  char text[32];
  std::snprintf(text, sizeof text, "%.4g", per_hour);
  return text;
}

void draw_system(Sheet& sheet, const FailureRow& row, bool failed, double y) {
  const SheetColors& colors = sheet.colors();
  sheet.box(Sheet::margin, y + 6, 12, 12, 6, failed ? colors.accent : colors.face);
  sheet.text(std::string(row.words), Sheet::margin + 24, y + 3, 18, failed ? colors.accent : colors.ink,
             failed);
  sheet.text_right(failed ? "failed – repair" : "fail", Sheet::right(), y + 4, 16, colors.soft);
  sheet.spot(0, y, Sheet::width, row_height, page_click::SetFailed{row.key, !failed});
}

void draw_rates(Sheet& sheet, double now, double y) {
  sheet.heading("By chance, systems an hour", y);
  double x = Sheet::margin;
  for (const double rate : rates_per_hour) {
    sheet.button(rate_words(rate), x, y + 32, 70, rate == now, page_click::SetFailureRate{rate});
    x += 78;
  }
}

}  // namespace

DrawnPage draw_failures(const PageView& view) {
  Sheet sheet(PageKind::failures, view);
  const AircraftModel& aircraft = view.cockpit.aircraft();
  double y = Sheet::top;
  int failed = 0;
  for (const FailureRow& row : AircraftModel::failures()) {
    const bool is_failed = aircraft.failed(row.key);
    failed += is_failed;
    draw_system(sheet, row, is_failed, y);
    y += row_height;
  }
  sheet.button("Repair everything", Sheet::margin, y + 8, 150, failed > 0, page_click::RepairAll{});
  draw_rates(sheet, aircraft.failure_rate(), y + 48);
  return sheet.finish();
}

}  // namespace host

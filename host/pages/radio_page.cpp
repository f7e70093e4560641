#include "host/pages/sheet.h"

namespace host {
namespace {

constexpr double row_height = 30;

// Frequencies are set on the pedestal: a click on a station shows where.
double draw_stations(Sheet& sheet, const AircraftModel& aircraft, double y) {
  const RadioStationRow* heard = heard_station(aircraft);
  const SheetColors& colors = sheet.colors();
  for (const RadioStationRow& row : radio_stations()) {
    const bool here = heard == &row, waiting = aircraft.com().standby_khz == row.khz;
    sheet.text(std::string(row.name), Sheet::margin, y, 19, here ? colors.done : colors.ink, here);
    if (here || waiting)
      sheet.text_right(here ? "heard" : "in waiting", Sheet::right() - 92, y + 1, 16, colors.soft);
    sheet.text_right(frequency_words(row.khz), Sheet::right(), y, 19, here ? colors.done : colors.ink,
                     true);
    sheet.spot(0, y - 4, Sheet::width, row_height, page_click::PointAt{"Comm", "", {}});
    y += row_height;
  }
  return y;
}

double draw_radio(Sheet& sheet, const AircraftModel& aircraft, double y) {
  const SheetColors& colors = sheet.colors();
  const RadioStationRow* heard = heard_station(aircraft);
  sheet.text(frequency_words(aircraft.com().active_khz), Sheet::margin, y, 34,
             aircraft.com_powered() ? colors.accent : colors.soft, true);
  const std::string who = !aircraft.com_powered() ? "The radio has no power"
                          : heard                 ? std::string(heard->name)
                                                  : "Nobody is heard";
  sheet.text(who, Sheet::margin + 124, y, 19, colors.ink, true);
  sheet.text("in waiting " + frequency_words(aircraft.com().standby_khz), Sheet::margin + 124, y + 20,
             16, colors.soft);
  return y + 52;
}

double draw_requests(Sheet& sheet, double y) {
  sheet.heading("Say", y);
  y += 32;
  double x = Sheet::margin;
  int number = 0;
  for (const RequestRow& row : request_table()) {
    sheet.button(std::to_string(++number) + "  " + std::string(row.words), x, y, 188, false,
                 page_click::AskFor{row.request});
    x = x > Sheet::margin ? Sheet::margin : x + 196;
    if (number % 2 == 0) y += 32;
  }
  return y + 4;
}

// The newest below, as many as there is room for.
void draw_talk(Sheet& sheet, const PageView& view, double y) {
  const SheetColors& colors = sheet.colors();
  const AircraftModel& aircraft = view.cockpit.aircraft();
  const double wide = Sheet::right() - Sheet::margin;
  const RadioStationRow* heard = heard_station(aircraft);
  if (heard && heard->station == RadioStation::information) {
    sheet.heading("On the air", y);
    y = sheet.paragraph(information(aircraft), Sheet::margin, y + 32, wide, 19, colors.ink) + 12;
  }
  if (view.choices.talk.empty()) {
    sheet.paragraph(
        "Frequencies are set on the pedestal's radio: a click on a station shows where. Alt with "
        "a number speaks, too.",
        Sheet::margin, y + 4, wide, 15, colors.soft);
    return;
  }
  sheet.heading("Said and heard", y);
  y += 32;
  bool crew = true;
  for (const std::string& words : view.choices.talk) {
    y = sheet.paragraph(words, Sheet::margin + (crew ? 0 : 14), y, wide - 14, 17,
                        crew ? colors.soft : colors.ink);
    if (!crew) y += 8;
    crew = !crew;
  }
}

}  // namespace

DrawnPage draw_radio_page(const PageView& view) {
  Sheet sheet(PageKind::radio, view);
  const AircraftModel& aircraft = view.cockpit.aircraft();
  double y = draw_radio(sheet, aircraft, Sheet::top + 2);
  sheet.heading("Stations", y);
  y = draw_stations(sheet, aircraft, y + 32);
  y = draw_requests(sheet, y + 8);
  draw_talk(sheet, view, y + 8);
  return sheet.finish();
}

}  // namespace host

#include "host/gauge/gauge_run.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <set>
#include <string>

#include "tests/gauge/made_gauge.h"

namespace host {
namespace {

/// Tokens read their own number; failures are a set.
struct Tokens : TokenSource {
  double token(std::uint32_t number) const override { return number; }
  bool failed(std::uint32_t key) const override { return failures.contains(key); }
  bool any_failed() const override { return !failures.empty(); }
  std::set<std::uint32_t> failures;
};

std::string calls;     // what ran, in order
double value_now = 0;  // what `current` returns

template <char Name>
double call(Element*) {
  calls += Name;
  return Name - 'a' + 1;
}
constexpr ValueRoutine a = call<'a'>, b = call<'b'>;

double current(Element*) { return value_now; }
double hide_next(Element* element) {
  element->next[0]->image_flags |= IMAGE_HIDE_CHAIN;
  return 0;
}
double hide_first(Element* element) {
  element->gauge->element_list[0]->next[0]->image_flags |= IMAGE_HIDE_CHAIN;
  return 0;
}
double hide_own_picture(Element* element) {
  element->image_flags |= IMAGE_HIDE_PICTURE;
  return 7;
}
std::string written;
double write_text(Element* element) {
  std::strcpy(element->string.text, written.c_str());
  return 0;
}

void service(const GaugeHeader*, u32 id, uintptr_t data) {
  calls.append("<").append(std::to_string(id));
  if (data != 0) calls.append(":").append(std::to_string(data));
  calls.append(">");
}

class GaugeRunTest : public testing::Test {
 protected:
  void SetUp() override { calls.clear(); }

  /// Which elements are evaluated and drawn: "e" only evaluated, "d" drawn too, "-" neither.
  static std::string shown(const GaugeRun& run) {
    std::string text;
    for (const ElementState& state : run.now()) text += state.drawn ? 'd' : state.evaluated ? 'e' : '-';
    return text;
  }

  MadeGauge gauge_{1};
  Tokens tokens_;
};

TEST_F(GaugeRunTest, CallsComeInOrder) {
  gauge_.header.service = service;
  gauge_.icon(2, {0, 0}, 2, a);
  Element& slider = gauge_.add(ELEMENT_SLIDER, 3, {0, 0});
  slider.slider.x_value = b;
  slider.slider.y_value = call<'c'>;
  Element& sprite = gauge_.add(ELEMENT_SPRITE, 4, {0, 0});
  sprite.sprite.x.value = call<'c'>;
  sprite.sprite.y.value = a;
  sprite.sprite.rotation.value = b;
  GaugeRun run(gauge_.header);
  run.start(42);
  run.frame(tokens_);
  run.end();
  EXPECT_EQ(calls, "<3:42><14><6>abccab<7><10><12>");
  EXPECT_EQ(run.now()[3].values, (std::array<double, 3>{3, 1, 2}));
}

TEST_F(GaugeRunTest, SourcesAreFilledAndStandInForRoutines) {
  Element& moving = gauge_.add(ELEMENT_MOVING_IMAGE, 2, {0, 0});
  moving.moving_image.x.source.token = 30;
  moving.moving_image.y.source.value = 5;  // no token: the host leaves it alone
  Element& string = gauge_.add(ELEMENT_STRING, -1, {0, 0});
  string.string.source[1].token = 40;
  GaugeRun run(gauge_.header);
  run.frame(tokens_);
  EXPECT_EQ(run.now()[1].values, (std::array<double, 3>{30, 5, 0}));
  EXPECT_EQ(string.string.source[1].value, 40);
}

TEST_F(GaugeRunTest, HideBits) {
  Element& first = gauge_.icon(2, {0, 0}, 2, a);
  Element& second = gauge_.icon(3, {0, 0}, 2, b);
  GaugeRun run(gauge_.header);
  const std::tuple<u32, u32, const char*, const char*> cases[] = {{0, 0, "ddd", "ab"},
                                                                  {IMAGE_HIDE_PICTURE, 0, "ded", "ab"},
                                                                  {0, IMAGE_HIDE_CHAIN, "dd-", "a"},
                                                                  {IMAGE_HIDE_CHAIN, 0, "d--", ""},
                                                                  {3, 7, "ddd", "ab"}};
  for (const auto& [first_flags, second_flags, seen, called] : cases) {
    first.image_flags = first_flags;
    second.image_flags = second_flags;
    calls.clear();
    run.frame(tokens_);
    EXPECT_EQ(shown(run), seen);
    EXPECT_EQ(calls, called);
  }
}

TEST_F(GaugeRunTest, HidingCountsInTheFrameInWhichItHappens) {
  gauge_.icon(2, {0, 0}, 2, hide_own_picture);
  gauge_.icon(3, {0, 0}, 2, hide_next);
  gauge_.icon(4, {0, 0}, 2, a);
  GaugeRun run(gauge_.header);
  run.frame(tokens_);
  EXPECT_EQ(shown(run), "ded-");
  EXPECT_EQ(run.now()[1].values[0], 7);
  EXPECT_EQ(calls, "");

  MadeGauge upwards(1);
  upwards.icon(2, {0, 0}, 2, a);
  upwards.icon(3, {0, 0}, 2, hide_first);
  GaugeRun other(upwards.header);
  other.frame(tokens_);
  EXPECT_EQ(shown(other), "dee");
}

TEST_F(GaugeRunTest, LaterShownCopyCovers) {
  gauge_.icon(2, {5, 5}, 2, a);
  gauge_.icon(3, {5, 5}, 2, b);
  Element& lit = gauge_.icon(2, {5, 5}, 2, a);  // the lit set
  gauge_.icon(3, {5, 5}, 2, b);
  GaugeRun run(gauge_.header);
  run.frame(tokens_);
  EXPECT_EQ(shown(run), "d--dd");
  EXPECT_EQ(calls, "ab");
  lit.image_flags = IMAGE_HIDE_CHAIN;
  run.frame(tokens_);
  EXPECT_EQ(shown(run), "ddd--");
  lit.image_flags = IMAGE_HIDE_PICTURE;  // shown as far as covering goes
  run.frame(tokens_);
  EXPECT_EQ(shown(run), "d--ed");
  EXPECT_EQ(calls, "ababab");
}

TEST_F(GaugeRunTest, OnlyTheSameThingCovers) {
  const struct {
    const char* what;
    void (*change)(Element&);
    bool covers;
  } cases[] = {
      {"flags", [](Element& e) { e.image_flags = 7; }, true},
      {"a token that the routine does not need", [](Element& e) { e.icon.source.token = 9; }, true},
      {"place", [](Element& e) { e.position.y = 14; }, false},
      {"bitmap", [](Element& e) { e.resource_id = 9; }, false},
      {"routine", [](Element& e) { e.icon.value = b; }, false},
      {"kind", [](Element& e) { e.kind = ELEMENT_STATIC_IMAGE; }, false},
  };
  for (const auto& each : cases) {
    MadeGauge gauge(1);
    gauge.icon(2, {5, 5}, 2, a);
    each.change(gauge.icon(2, {5, 5}, 2, a));
    GaugeRun run(gauge.header);
    run.frame(tokens_);
    EXPECT_EQ(shown(run), each.covers ? "d-d" : "ddd") << each.what;
  }
}

TEST_F(GaugeRunTest, WithoutRoutinesTheSourceTellsCopiesApart) {
  for (const u32 token : {10, 11, 10, 10}) gauge_.icon(2, {0, 0}, 2).icon.source.token = token;
  GaugeRun run(gauge_.header);
  run.frame(tokens_);
  EXPECT_EQ(shown(run), "d-d-d");
}

TEST_F(GaugeRunTest, FailuresChangeWhatIsShown) {
  const FailureEntry table[] = {
      {20, FAILURE_HIDE, 0}, {7, FAILURE_FREEZE, 0}, {8, FAILURE_ZERO, 0}, {9, 77, 0}, {0, 0, 0}};
  gauge_.icon(2, {0, 0}, 9, current).failures = table;
  GaugeRun run(gauge_.header);
  const std::tuple<std::set<std::uint32_t>, double, double, bool> cases[] = {
      {{}, 4, 4, true},  {{7}, 5, 4, true},      {{21}, 6, 6, true},
      {{8}, 5, 0, true}, {{7, 20}, 3, 3, false}, {{9}, 2, 2, true}};
  for (const auto& [failures, value, seen, drawn] : cases) {
    tokens_.failures = failures;
    value_now = value;
    run.frame(tokens_);
    EXPECT_EQ(run.now()[1].values[0], seen) << "value " << value;
    EXPECT_EQ(run.now()[1].drawn, drawn) << "value " << value;
  }
}

TEST_F(GaugeRunTest, FrozenValuePassesBetweenTheCopies) {
  const FailureEntry table[] = {{7, FAILURE_FREEZE, 0}, {0, 0, 0}};
  gauge_.icon(2, {0, 0}, 9, current).failures = table;
  Element& lit = gauge_.icon(2, {0, 0}, 9, current);
  lit.failures = table;
  lit.image_flags = IMAGE_HIDE_CHAIN;
  GaugeRun run(gauge_.header);
  value_now = 4;
  run.frame(tokens_);
  tokens_.failures = {7};
  lit.image_flags = 0;
  value_now = 5;
  run.frame(tokens_);
  EXPECT_TRUE(run.now()[2].drawn);
  EXPECT_EQ(run.now()[2].values[0], 4);
  lit.image_flags = IMAGE_HIDE_CHAIN;
  run.frame(tokens_);
  EXPECT_EQ(run.now()[1].values[0], 4) << "and back";
}

TEST_F(GaugeRunTest, TextIsReadWithinItsBounds) {
  char text[9] = "";
  Element& string = gauge_.add(ELEMENT_STRING, -1, {0, 0});
  string.string = {{}, {}, write_text, 0, 0, 0, 0, 0, 5, "", text};
  const FailureEntry table[] = {{8, FAILURE_ZERO, 0}, {0, 0, 0}};
  string.failures = table;
  GaugeRun run(gauge_.header);
  written = "xxxxxxxx";
  run.frame(tokens_);
  EXPECT_EQ(run.now()[1].text, "xxxxx");
  written = "a\n\x80z";
  run.frame(tokens_);
  EXPECT_EQ(run.now()[1].text, "a??z");
  EXPECT_EQ(run.before()[1].text, "xxxxx");
  tokens_.failures = {8};
  run.frame(tokens_);
  EXPECT_EQ(run.now()[1].text, "0");
}

TEST_F(GaugeRunTest, SpeedLimitHoldsNeedlesBack) {
  const NonlinearityPoint table[] = {{{0, 9}, 0}, {{9, 0}, 100}};
  gauge_.needle(2, {5, 5}, {0, 0}, table).needle.rate_limit = 1;
  gauge_.needle(3, {5, 5}, {0, 0}).needle.rate_limit = 0.5;
  gauge_.at(1).needle.value = gauge_.at(2).needle.value = current;
  GaugeRun run(gauge_.header);
  run.set_frame_seconds(0.1);
  const auto frame = [&](double value) {
    value_now = value;
    run.frame(tokens_);
    return std::pair{*run.now()[1].reached, *run.now()[2].reached};
  };
  EXPECT_EQ(frame(50), std::pair(50.0, 50.0));  // the first frame finds the needle there
  EXPECT_EQ(frame(75), std::pair(60.0, 68.0));  // 10 of 100, 18 of 360 degrees
  EXPECT_EQ(frame(75), std::pair(70.0, 75.0));
  frame(75);
  EXPECT_EQ(frame(355), std::pair(85.0, 57.0));  // 80 degrees back, not 280 forward
  EXPECT_EQ(run.now()[1].values[0], 355);
  const double nowhere = std::numeric_limits<double>::quiet_NaN();
  EXPECT_TRUE(std::isnan(frame(nowhere).first));
  EXPECT_EQ(frame(20), std::pair(20.0, 20.0));
}

}  // namespace
}  // namespace host

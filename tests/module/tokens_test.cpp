/// Gauges and aircraft mean the same by a token and by an event.
#include <gtest/gtest.h>

#include <set>

#include "host/simulation/systems/failures.h"
#include "host/simulation/table.h"
#include "tests/module/walk.h"
#include "tests/rig/token_list.h"

extern "C" const LinkageRecord Linkage;

namespace {

using namespace host::simulation;

using rig::all_events, rig::all_tokens, rig::Listed;

TEST(Tokens, HaveTheNamesAndUnitsOfTheAircraft) {
  for (const Listed& token : all_tokens) {
    const TokenRow* row = find_token(token.number);
    ASSERT_NE(row, nullptr) << token.name << ' ' << token.number;
    EXPECT_EQ(row->row.name, token.name);
    EXPECT_EQ(row->row.unit, token.unit) << token.name;
  }
  for (const Listed& event : all_events) {
    const EventRow* row = find_event(event.number);
    ASSERT_NE(row, nullptr) << event.name << ' ' << event.number;
    EXPECT_EQ(row->row.name, event.name);
  }
}

TEST(Tokens, WhatAGaugeReadsTheAircraftHasAndWhatItSendsTheAircraftTakes) {
  for (const u32 token : walk::result().tokens) EXPECT_NE(find_token(token), nullptr) << token;
  for (const u32 event : walk::result().events) EXPECT_NE(find_event(event), nullptr) << event;
}

/// Each stands in the list for a gauge that uses it.
TEST(Tokens, AreAllUsed) {
  for (const Listed& token : all_tokens) {
    EXPECT_TRUE(walk::result().tokens.contains(token.number)) << token.name;
  }
  for (const Listed& event : all_events) {
    EXPECT_TRUE(walk::result().events.contains(event.number)) << event.name;
  }
}

/// The keys of the instruments are those that the host can fail.
TEST(Tokens, EveryFailureOfAnInstrumentIsSeenOnOne) {
  std::set<u32> instruments, host_keys;
  for (const GaugeHeader* gauge : Linkage.gauges) {
    if (gauge == nullptr) break;
    for (const Element* e : rig::chain_of(*gauge)) {
      for (const FailureEntry* f = e->failures; f != nullptr && f->key != 0; ++f)
        instruments.insert(f->key);
    }
  }
  constexpr u32 first_unseen = 101;
  for (const host::FailureRow& row : failure_table()) {
    if (row.key < first_unseen) host_keys.insert(row.key);
  }
  EXPECT_EQ(instruments, host_keys);
}

}  // namespace

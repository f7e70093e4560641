#include "host/script/lua_runner.h"

#include <gtest/gtest.h>

#include "tests/rig/refusal.h"
#include "tests/rig/rows.h"
#include "tests/rig/temp_folder.h"

namespace {

using namespace host;

// What a run of the text ends with: "" or the error's message.
std::string outcome(LuaRunner& runner, const std::string& text) {
  return refusal<FlowError>([&] { runner.run(text, "flows/test.lua"); });
}

class Flow : public testing::Test {
 protected:
  Flow() {
    runner.bind("refuse", [](LuaCall& call) { throw std::runtime_error(call.text(1, "reason")); });
    runner.bind("number", [](LuaCall& call) { call.give(call.number(1, "value") * 2); });
    runner.bind("ask", [](LuaCall& call) { call.give(call.ask(1, "question")); });
    runner.bind("spot", [](LuaCall& call) {
      if (call.is_table(1)) call.unpack(1, 3);
      call.give(std::string_view(call.text(1, "gauge") + std::to_string(call.whole(2, "x")) + "," +
                                 std::to_string(call.whole(3, "y")) + call.text_or(4, "more", "")));
    });
  }

  LuaRunner runner;
};

TEST_F(Flow, FailuresNameFileAndLine) {
  for (const Row& row : rows_of("script/failures.txt", 2))
    EXPECT_EQ(outcome(runner, row[0]), "flows/test.lua" + row[1]) << row[0];
  EXPECT_EQ(outcome(runner, "\x1bLua"), "flows/test.lua: attempt to load a binary chunk (mode is 't')");
}

TEST_F(Flow, DeepRecursionIsAnErrorLikeAnyOther) {
  const std::string message = outcome(runner, "local function f() return 1 + f() end\nf()");
  EXPECT_EQ(message.rfind("flows/test.lua:1: stack overflow", 0), 0u) << message;
}

TEST_F(Flow, HasNoWayOutOfItsRoom) {
  for (const char* name : {"os", "io", "package", "debug", "dofile", "loadfile", "load", "pcall",
                           "xpcall", "coroutine", "collectgarbage"})
    EXPECT_EQ(outcome(runner, std::string("if ") + name + " then error('open') end"), "") << name;
}

TEST_F(Flow, HasTextsTablesAndMathematics) {
  EXPECT_EQ(outcome(runner,
                    "local t = {3, 1, 2}\ntable.sort(t)\n"
                    "local u = setmetatable({}, {__index = t})\nif u[3] ~= 3 then error('?') end\n"
                    "if table.concat(t) .. string.format('%02d', math.floor(7.9)) ~= '12307' then "
                    "error('!') end"),
            "");
}

TEST_F(Flow, GivesAndTakesValues) {
  EXPECT_EQ(outcome(runner, "if number(21) ~= 42 then error('!') end"), "");
  EXPECT_EQ(
      outcome(runner, "if not ask(function() return 1 end) or ask(function() end) then error('!') end"),
      "");
}

TEST_F(Flow, TakesANamedControlForItsParts) {
  EXPECT_EQ(
      outcome(runner,
              "local c = {'Ctr', 4, 5}\n"
              "if spot(c) ~= 'Ctr4,5' or spot(c, '!') ~= 'Ctr4,5!' or spot('Ctr', 4, 5) ~= 'Ctr4,5' "
              "then error(spot(c, '!')) end"),
      "");
}

TEST_F(Flow, RunsAgainAfterAFailure) {
  EXPECT_NE(outcome(runner, "refuse('first')"), "");
  EXPECT_EQ(outcome(runner, "return 1"), "");
  EXPECT_EQ(outcome(runner, "refuse('third')"), "flows/test.lua:1: third");
}

TEST_F(Flow, ErrorsOfLuaItselfEndWhatTheHostHolds) {
  const auto held = std::make_shared<int>();
  runner.bind("list", [held](LuaCall& call) {
    const auto kept = held;
    call.begin_list();
    for (;;) call.append(std::string(1 << 20, 'x'));
  });
  const long before = held.use_count();
  EXPECT_EQ(outcome(runner, "list()"), "flows/test.lua: out of memory");
  EXPECT_EQ(held.use_count(), before);
}

TEST_F(Flow, EndsWhenThatIsWanted) {
  runner.end_wanted = [] { return true; };
  EXPECT_EQ(outcome(runner, "\nwhile true do end"), "flows/test.lua:2: interrupted");
}

TEST_F(Flow, IsAliveWhileTimeMovesOn) {
  runner.bind("wait", [this](LuaCall&) { runner.alive(); });
  EXPECT_EQ(outcome(runner, "for i = 1, 300 do for k = 1, 100000 do end wait() end"), "")
      << "a long flow that waits is no endless loop";
}

TEST_F(Flow, FlysTheSameEveryTime) {
  double first = 0, second = 0;
  for (double* drawn : {&first, &second}) {
    LuaRunner fresh;
    fresh.bind("keep", [drawn](LuaCall& call) { *drawn = call.number(1, "value"); });
    EXPECT_EQ(outcome(fresh, "keep(math.random())"), "");
  }
  EXPECT_EQ(first, second);
}

TEST(FlowFile, UsesFilesBesideItAndNoOthers) {
  const TempFolder folder;
  folder.write("secret.lua", "return 1");
  folder.write("flows/twice.lua",
               "count = (count or 0) + 1\nreturn {double = function(n) return 2 * n end}");
  folder.write("flows/lib/nothing.lua", "return nil");
  folder.write("flows/lib/broken.lua", "local x =\n= 2");
  folder.write("flows/lib/strict.lua", "return function(n)\n  return n + 1\nend");
  folder.write("flows/a.lua", "return require('b')");
  folder.write("flows/b.lua", "return require('a')");
  const std::pair<const char*, const char*> cases[] = {
      // %s stands for the folder
      {"local a, b = require('twice'), require('twice')\n"
       "if a ~= b or count ~= 1 or a.double(4) ~= 8 then error('!') end",
       ""},
      {"if require('lib.nothing') ~= true then error('!') end", ""},
      {"require('no')", "%s/flow.lua:1: there is no file for 'no' beside the flow"},
      {"require('../secret')", "%s/flow.lua:1: there is no file for '../secret' beside the flow"},
      {"require('..secret')", "%s/flow.lua:1: there is no file for '..secret' beside the flow"},
      {"require('lib')", "%s/flow.lua:1: there is no file for 'lib' beside the flow"},
      {"require()", "%s/flow.lua:1: argument 1 (module) must be a text"},
      {"\nrequire('lib.broken')",
       "%s/lib/broken.lua:2: unexpected symbol near '=' (called from %s/flow.lua:2)"},
      {"\n\nrequire('lib.strict')('x' == 'y')",
       "%s/lib/strict.lua:2: attempt to perform arithmetic on a boolean value (local 'n') (called from "
       "%s/flow.lua:3)"},
      {"require('a')", "%s/b.lua:1: 'a' requires itself (called from %s/flow.lua:1)"},
      {"error('flow9:1: far', 0)", "%s/flow.lua:1: flow9:1: far"},
  };
  for (const auto& [flow, expected] : cases) {
    std::string message = expected;
    for (std::size_t at; (at = message.find("%s")) != std::string::npos;)
      message.replace(at, 2, folder / "flows");
    const std::filesystem::path file = folder.write("flows/flow.lua", flow);
    EXPECT_EQ(refusal<FlowError>([&] { LuaRunner().run(file); }), message) << flow;
  }
}

TEST_F(Flow, FromMemoryHasNoFilesBesideIt) {
  EXPECT_EQ(outcome(runner, "require('test')"),
            "flows/test.lua:1: there is no file for 'test' beside the flow");
}

TEST(FlowFile, ThatCannotBeReadIsNamed) {
  for (const std::filesystem::path file : {"no/such/flow.lua", "/"}) {
    const std::string said = refusal<FlowError>([&] { LuaRunner().run(file); });
    EXPECT_TRUE(said.starts_with(file.string() + ": cannot be read: ")) << said;
  }
}

}  // namespace

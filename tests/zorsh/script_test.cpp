// Expectations that do not hold must fail, and say where and why.

#include <zor/tools/zorsh/script.h>

#include <gtest/gtest.h>

#include <sstream>

namespace zor::console {
namespace {

struct Outcome {
    std::string output;
    std::string failures;
    int failed = 0;
    int compared = 0;
};

Outcome play(const std::string& text, ScriptOptions options = {})
{
    Session session(headlessStage());
    std::istringstream input(text);
    std::ostringstream output;
    std::ostringstream failures;
    Script script(session, "s", options, output, failures);
    script.feedAll(input);
    return {output.str(), failures.str(), script.failures(), script.expectations()};
}

TEST(Script, AFailureNamesLineExpectationAndOutput)
{
    const struct {
        std::string_view what;
        std::string script;
        std::string failure;
    } rows[]{
        {"another value", "calc 2\n\n# a comment\n= 3\n", "s:4: calc 2: expected 3 got 2\n"},
        {"something instead of nothing", "calc 2\n=\n", "s:2: calc 2: expected nothing got 2\n"},
        {"nothing instead of something", "usermode on\n= 3\n", "s:2: usermode on: expected 3 got nothing\n"},
        {"more than expected", "help quit\n= quit\n",
         "s:2: help quit: expected no further line got ends the session, or this file\n"},
        {"less than expected", "calc 2\n= 2\n= 2\n", "s:3: calc 2: expected 2 got nothing\n"},
        {"another error", "get a.b\n= error 438\n",
         "s:2: get a.b: expected error 438 got error 424 object required: a\n"},
        {"an error number cut short", "get a.b\n= error 42\n",
         "s:2: get a.b: expected error 42 got error 424 object required: a\n"},
        {"an error text cut short", "get a.b\n= error 424 object\n",
         "s:2: get a.b: expected error 424 object got error 424 object required: a\n"},
        {"an error nobody named", "calc 1\nget a.b # why\n",
         "s:2: get a.b: expected no error got error 424 object required: a\n"},
        {"a refusal nobody named", "new ctx_ZorTextBox a\nput a.EnableControl False\ndo a.txt_TextBox focus\n",
         "s:3: do a.txt_TextBox focus: expected no refusal got refused disabled\n"},
        {"an expectation without a command", "= 1\n", "s:1: expected a command in front of this line got none\n"},
        {"an unfinished last command", "calc 2\n= 3", "s:2: calc 2: expected 3 got 2\n"},
    };
    for (const auto& [what, script, failure] : rows) {
        const Outcome outcome = play(script);
        EXPECT_EQ(outcome.failures, failure) << what;
        EXPECT_EQ(outcome.failed, 1) << what;
    }
}

TEST(Script, WhatHoldsIsSilent)
{
    for (const std::string script :
         {"calc 2\n= 2\n", "calc 2\n=2 # two\n", "usermode on\n=\n", "get a.b\n= error 424\n",
          "get a.b\n= error 424 object required\n", "get a.b\n= error 424 object required: a\n",
          "\xEF\xBB\xBF"
          "calc 2\r\n= 2\r\n",
          "new ctx_ZorTextBox a\nput a.DeviceTag \"°  x\"\nget a.DeviceTag\n= \"\\u{B0}  x\"\n",
          "new ctx_ZorTextBox a\ncall a.s_ChangeBackColor 0xABCDEF\nget a.Surface.BackColor\n= #abcdef # a "
          "colour\n"}) {
        const Outcome outcome = play(script);
        EXPECT_EQ(outcome.failures, "") << script;
        EXPECT_EQ(outcome.compared, 1) << script;
        EXPECT_EQ(outcome.output, "") << script;
    }
    EXPECT_EQ(play("# nothing\n").compared, 0);
}

TEST(Script, BlanksInsideStringsCount)
{
    EXPECT_EQ(play("new ctx_ZorTextBox a\nput a.DeviceTag \"a  b\"\nget a.DeviceTag\n= \"a b\"\n").failed, 1);
}

TEST(Script, OutputThatNobodyExpectsIsPrinted)
{
    EXPECT_EQ(play("calc 1\ncalc 2\n= 2\ncalc 3\n").output, "1\n3\n");
    EXPECT_EQ(play("calc 1\ncalc 2\n= 2\ncalc 3\n", {true, false}).output, "1\n2\n3\n");
    EXPECT_EQ(play("get a.b\n", {true, true}).failed, 0);
}

TEST(Script, QuitEndsTheScriptAndMayBeExpectedToPrintNothing)
{
    const Outcome outcome = play("quit\n=\ncalc 1\n= 2\n");
    EXPECT_EQ(outcome.failures, "");
    EXPECT_EQ(outcome.compared, 1);
}

TEST(Session, HelpAndCompletionComeFromTheTables)
{
    Session session(headlessStage());
    for (const char* command : {"new ctx_ZorTextBox level", "describe ctx_ZorTextBox", "help"})
        static_cast<void>(session.run(command));
    for (const OutputLine& usage : session.run("help")) {
        const std::string name = usage.text.substr(0, usage.text.find(' '));
        const auto lines = session.run("help " + name);
        ASSERT_EQ(lines.size(), 2U) << name;
        EXPECT_EQ(lines[0].text, usage.text);
    }
    EXPECT_EQ(session.completions("clo"), std::vector<std::string>{"clone"});
    EXPECT_EQ(session.completions("lev"), std::vector<std::string>{"level."});
    EXPECT_EQ(session.completions("level.MinV"), std::vector<std::string>{"level.MinValue"});
    EXPECT_EQ(session.completions("nobody."), std::vector<std::string>{});
}

TEST(Session, ManyEventsAreKeptToAMillion)
{
    Log log;
    for (int i = 0; i < 1'000'010; ++i)
        log.add("x");
    const std::string taken = log.take();
    EXPECT_TRUE(taken.ends_with("x ..."));
    EXPECT_EQ(taken.size(), 2'000'000U - 1 + 4);
    EXPECT_EQ(log.take(), "-");
}

} // namespace
} // namespace zor::console

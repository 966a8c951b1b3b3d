#include "tests/property/RandomUser.h"
#include "tests/support/Samples.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

namespace zqbchwcx::testing {
namespace {

/// The number in an environment variable, or another one without it.
std::int64_t FromEnvironment(const char* name, std::int64_t otherwise)
{
    const char* text = std::getenv(name);
    return text != nullptr ? std::strtoll(text, nullptr, 10) : otherwise;
}

constexpr std::int64_t EventsPerSession = 20000;

std::string ToTheEnd(Editor& editor, bool (reference::History::*step)())
{
    while ((editor.history.get()->*step)()) {
    }
    return editor.Text();
}

/// One editor and one user. Returns the number of events; stops at the first thing that is wrong.
std::int64_t UseAnEditor(const ViewVariant& variant, const char* example, std::uint32_t seed, std::int64_t events)
{
    SCOPED_TRACE(std::string(example) + ", seed " + std::to_string(seed));
    std::mt19937 random(seed);
    auto data = reference::ExampleStation(example);
    data.readOnly = false;
    Editor editor(std::move(data), variant);
    const std::string first = editor.Text();
    std::int64_t changes = 0;
    const EventConnection counting = editor.history->Changed.Connect([&] { ++changes; });
    RandomUser user(editor, random);
    // A short run looks at the picture more often.
    const std::int64_t stepsBetweenPictures = events < EventsPerSession ? 3 : 150;
    for (std::int64_t step = 0; user.Events() < events; ++step) {
        const std::string action = user.DoSomething();
        const std::string wrong = editor.WhatIsWrong() + editor.WhatIsWrongInRows();
        if (!wrong.empty()) {
            ADD_FAILURE() << "after step " << step << ", " << action << ":\n" << wrong;
            return user.Events();
        }
        if (step % stepsBetweenPictures == 0) {
            const std::string difference = editor.DifferenceFromAFreshPicture() + editor.DifferenceFromAFreshTable();
            EXPECT_EQ(difference, "") << "after step " << step << ", " << action;
            if (!difference.empty()) return user.Events();
        }
        editor.ForgetLines();
    }
    EXPECT_GT(changes, events / 50) << "a user who changes next to nothing";
    const std::string last = ToTheEnd(editor, &reference::History::Redo);
    EXPECT_EQ(ToTheEnd(editor, &reference::History::Undo), first);
    EXPECT_EQ(editor.DifferenceFromAFreshPicture() + editor.DifferenceFromAFreshTable(), "")
        << "after undoing everything";
    EXPECT_EQ(ToTheEnd(editor, &reference::History::Redo), last);
    EXPECT_EQ(editor.WhatIsWrong(), "");
    return user.Events();
}

class RandomEditing : public ::testing::TestWithParam<ViewVariant> {};
INSTANTIATE_TEST_SUITE_P(Every, RandomEditing, ::testing::ValuesIn(ViewVariants), ::testing::PrintToStringParamName());

TEST_P(RandomEditing, KeepsTheRulesTheHistoryAndThePicture)
{
    const auto seed = static_cast<std::uint32_t>(FromEnvironment("QUILLON_SEED", std::random_device()()));
    const std::int64_t wanted = FromEnvironment("QUILLON_EVENTS", 1'000'000);
    std::cout << "QUILLON_SEED=" << seed << " QUILLON_EVENTS=" << wanted << std::endl;
    RecordProperty("seed", std::to_string(seed));

    const auto& examples = GetParam().examples;
    const std::int64_t eventsPerEditor = wanted < EventsPerSession ? wanted / 4 : EventsPerSession;
    std::int64_t events = 0;
    for (std::uint32_t session = 0; events < wanted && !HasFailure(); ++session)
        events += UseAnEditor(GetParam(), examples[session % examples.size()], seed + session, eventsPerEditor);
    std::cout << events << " events" << std::endl;
}

} // namespace
} // namespace zqbchwcx::testing

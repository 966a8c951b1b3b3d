#include "ContractTest.h"

#include <gtest/gtest.h>

#include <array>

namespace zqbchwcx::testing {
namespace {

/// Places of the run from its first one: "a", free, a spanning module, "b".
VxHWModulesPtr SampleBlock(const ContractHost& host)
{
    const std::int32_t first = host.firstPlace;
    InsertNamed(host, first, "a");
    const std::int32_t span = Insert(host, host.spanningModule(), PlacePosition(host, first + 2))->Count();
    InsertNamed(host, first + 2 + span, "b");
    const VxHWModulesPtr block = host.factory->CreateModules();
    for (std::int32_t place = first; place <= first + 2 + span; ++place) block->Add(ModuleOf(host, place), true);
    return block;
}

void ExpectSameModules(const VxHWModules& expected, const VxHWModules& modules, const std::string& textAttribute)
{
    ASSERT_EQ(modules.Count(), expected.Count());
    for (std::int32_t i = 0; i < modules.Count(); ++i) {
        EXPECT_EQ(modules.Item(i)->OrderNumber(), expected.Item(i)->OrderNumber());
        EXPECT_EQ(modules.Item(i)->IndexInParent(), expected.Item(i)->IndexInParent());
        EXPECT_EQ(modules.Item(i)->GetAttribute(textAttribute), expected.Item(i)->GetAttribute(textAttribute));
    }
}

void ConfigTextCarriesModulesAndShape(const ContractHost& host)
{
    const VxHWModulesPtr block = SampleBlock(host);
    const std::string before = Content(*host.station);
    const VxHWModulesPtr read = host.station->ModulesFromConfigText(block->ConfigText(), nullptr);
    ExpectSameModules(*block, *read, host.textAttribute);
    EXPECT_EQ(Content(*host.station), before) << "reading places nothing";
    EXPECT_EQ(host.station->ModulesFromConfigText(host.factory->CreateModules()->ConfigText(), nullptr)->Count(), 0);
}

void DamagedConfigTextGivesNoModules(const ContractHost& host)
{
    const std::string text = SampleBlock(host)->ConfigText();
    const std::string before = Content(*host.station);
    // Cut off within its first three quarters it lacks modules at least, whatever the text looks like.
    for (std::size_t length = 1; length < text.size() * 3 / 4; ++length) {
        try {
            const VxHWModulesPtr modules =
                host.station->ModulesFromConfigText(std::string_view(text).substr(0, length), nullptr);
            EXPECT_EQ(modules->Count(), 0) << "cut off after " << length << " characters";
        } catch (const VxError& error) {
            EXPECT_FALSE(error.description.empty());
        }
    }
    EXPECT_EQ(Content(*host.station), before);
}

void ExchangeObjectCarriesModules(const ContractHost& host)
{
    if (!host.exchangeObject) GTEST_SKIP() << "the host has no exchange object";
    const VxHWModulesPtr block = SampleBlock(host);
    const ExchangeDataPtr written = host.exchangeObject();
    written->StartEmpty();
    host.station->WriteModulesToExchange(block, written);
    const ExchangeDataPtr received = host.exchangeObject();
    EXPECT_EQ(received->FormatId(), written->FormatId());
    received->LoadData(written->Data());
    EXPECT_EQ(received->Data(), written->Data());
    ExpectSameModules(*block, *host.station->ModulesFromConfigText(block->ConfigText(), received), host.textAttribute);
}

void ClipboardCarriesModules(const ContractHost& host)
{
    if (!host.exchangeObject) GTEST_SKIP() << "the host has no exchange object";
    EXPECT_EQ(host.station->ClipboardModules()->Count(), 0);
    const VxHWModulesPtr block = SampleBlock(host);
    const ExchangeDataPtr exchange = host.exchangeObject();
    exchange->StartEmpty();
    host.station->WriteModulesToExchange(block, exchange);
    exchange->PutOnClipboard();
    ExpectSameModules(*block, *host.station->ClipboardModules(), host.textAttribute);
}

} // namespace

std::span<const ContractTest> ExchangeContractTests()
{
    static constexpr std::array tests = {
        ContractTest{"ConfigTextCarriesModulesAndShape", ConfigTextCarriesModulesAndShape},
        ContractTest{"DamagedConfigTextGivesNoModules", DamagedConfigTextGivesNoModules},
        ContractTest{"ExchangeObjectCarriesModules", ExchangeObjectCarriesModules},
        ContractTest{"ClipboardCarriesModules", ClipboardCarriesModules},
    };
    return tests;
}

} // namespace zqbchwcx::testing

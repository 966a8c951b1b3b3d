#include "zqbchwcx/foundation/VxError.h"
#include "zqbchwcx/foundation/mdl_VarConst.h"
#include "zqbchwcx/reference/services/ErrorLog.h"
#include "zqbchwcx/reference/services/HostObjects.h"
#include "zqbchwcx/reference/services/LiveInstances.h"
#include "zqbchwcx/reference/services/MemoryStore.h"
#include "zqbchwcx/reference/services/Settings.h"
#include "zqbchwcx/reference/services/WaitingApplication.h"

#include <gmock/gmock.h>

#include <vector>

namespace zqbchwcx::reference {
namespace {

using namespace ::testing;

class MockActions : public UserActions {
public:
    MOCK_METHOD(void, BeginUserAction, (std::string_view displayText), (override));
    MOCK_METHOD(void, EndUserAction, (), (override));
};

TEST(ErrorLog, PassesNestedActionsToWhoeverListensNow)
{
    ErrorLog log;
    log.BeginUserAction("nobody listens");
    log.EndUserAction();
    const auto first = std::make_shared<StrictMock<MockActions>>();
    log.Actions(first);
    const InSequence inSequence;
    EXPECT_CALL(*first, BeginUserAction("Paste"));
    EXPECT_CALL(*first, BeginUserAction("Delete"));
    EXPECT_CALL(*first, EndUserAction()).Times(2);
    EXPECT_CALL(*first, BeginUserAction("Cut"));
    log.BeginUserAction("Paste");
    log.BeginUserAction("Delete");
    EXPECT_TRUE(log.IsInUserAction());
    log.EndUserAction();
    log.EndUserAction();
    EXPECT_THROW(log.EndUserAction(), VxError);

    log.BeginUserAction("Cut");
    const auto second = std::make_shared<StrictMock<MockActions>>();
    log.Actions(second);
    EXPECT_FALSE(log.IsInUserAction());
    EXPECT_THROW(log.EndUserAction(), VxError) << "the other document's action is not this one's";
}

TEST(ErrorLog, KeepsTheNewestErrorsAndTellsOfEach)
{
    ErrorLog log;
    std::size_t told = 0;
    const auto connection = log.EntryAdded.Connect([&](const ErrorEntry&) { ++told; });
    for (std::size_t i = 0; i < ErrorLog::MostEntries + 5; ++i)
        log.LogError(static_cast<std::int32_t>(i), "d", "zqbchwcx.mdl_Main.G_HWPicDir", "help", 7);
    EXPECT_EQ(told, ErrorLog::MostEntries + 5);
    ASSERT_EQ(log.Entries().size(), ErrorLog::MostEntries);
    EXPECT_EQ(log.Entries().front().number, 5);
    EXPECT_EQ(log.Entries().back().helpContext, 7);
}

TEST(Settings, TakesTheFirstStoreThatHoldsTheValue)
{
    const auto user = std::make_shared<MemoryStore>();
    const auto desktop = std::make_shared<MemoryStore>();
    desktop->Store("key", "width", "10");
    Settings settings({user, desktop});
    EXPECT_EQ(settings.Read("key", "width", "4"), "10");
    EXPECT_EQ(settings.Read("key", "height", "4"), "4");
    user->Store("key", "width", "");
    EXPECT_EQ(settings.Read("key", "width", "4"), "") << "an empty value is a value";
}

TEST(LiveInstances, CountsWhatLives)
{
    LiveInstances instances;
    const auto first = instances.Register(1, "VxHWSelectionHandler");
    instances.Register(1, "VxHWSelectionHandler");
    const auto other = instances.Register(1, "HWCArrow");
    EXPECT_THAT(instances.CountByClass(), ElementsAre(Pair("HWCArrow", 1), Pair("VxHWSelectionHandler", 2)));
    EXPECT_THROW(instances.Unregister(1, "HWCArrow", first), VxError);
    EXPECT_THROW(instances.Unregister(2, "HWCArrow", other), VxError);
    instances.Unregister(1, "VxHWSelectionHandler", first);
    EXPECT_THROW(instances.Unregister(1, "VxHWSelectionHandler", first), VxError);
    EXPECT_EQ(instances.Count(), 2U);
}

TEST(WaitingApplication, ShowsTheCursorFromTheFirstWaitToTheLast)
{
    std::vector<bool> shown;
    WaitingApplication application([&](bool show) { shown.push_back(show); });
    for (const std::int32_t code : {0, -1, 1, 1, 0, 2, -1}) application.DoWaitCursor(code);
    EXPECT_EQ(application.OpenWaits(), 1);
    application.DoWaitCursor(-1);
    application.DoWaitCursor(-1);
    EXPECT_THAT(shown, ElementsAre(true, true, false)) << "a restore shows again what something else took away";
}

TEST(HostObjects, FindTheApplicationByItsClass)
{
    const auto application = std::make_shared<WaitingApplication>([](bool) {});
    const ObjectLookupPtr lookup = HostObjects(application, {}).CreateObjectLookup();
    EXPECT_EQ(lookup->Status(G_ApplicationClassId), 0);
    EXPECT_EQ(lookup->Object(G_ApplicationClassId), application);
    EXPECT_NE(lookup->Status("{00000000-0000-0000-0000-000000000000}"), 0);
    EXPECT_NE(HostObjects(nullptr, {}).CreateObjectLookup()->Status(G_ApplicationClassId), 0);
}

} // namespace
} // namespace zqbchwcx::reference

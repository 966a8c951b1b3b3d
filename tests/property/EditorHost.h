#pragma once

#include "tests/support/MemoryClipboard.h"
#include "tests/support/services/FakeHost.h"
#include "zqbchwcx/platform/PictureBox.h"
#include "zqbchwcx/reference/model/contract/ModelFactory.h"
#include "zqbchwcx/reference/model/contract/TypeExchange.h"
#include "zqbchwcx/reference/services/UserActions.h"

namespace zqbchwcx::testing {

/// A host of the reference model: its exchange data and collections are the model's, its user actions the history's.
class EditorHost : public FakeHost {
public:
    EditorHost(const CallLogPtr& log, const reference::ModelContextPtr& context)
        : FakeHost(log), modelClipboard(std::make_shared<MemoryClipboard>(log)), mFactory(context)
    {
    }

    void BeginUserAction(std::string_view displayText) override
    {
        FakeHost::BeginUserAction(displayText);
        if (const auto listening = actions.lock()) listening->BeginUserAction(displayText);
    }
    void EndUserAction() override
    {
        if (const auto listening = actions.lock()) listening->EndUserAction();
        FakeHost::EndUserAction();
    }
    ExchangeDataPtr CreateExchangeData() override
    {
        Call("ExchangeData.Create");
        return std::make_shared<reference::TypeExchange>(FakeExchangeData::Format, modelClipboard);
    }
    VxHWRackPlacesPtr CreateRackPlaces() override { return mFactory.CreateRackPlaces(); }
    VxHWModulesPtr CreateModules() override { return mFactory.CreateModules(); }
    VxHWModulePtr CreateModule() override { return mFactory.CreateModule(); }

    std::weak_ptr<reference::UserActions> actions;
    std::shared_ptr<MemoryClipboard> modelClipboard;

private:
    reference::ModelFactory mFactory;
};

/// What a drag carries: a format that was only announced is asked of the drag's source when a target wants its data.
class DragData : public FakeDataObject, public std::enable_shared_from_this<DragData> {
public:
    DragData(CallLogPtr log, PictureBoxEvents& source) : FakeDataObject(std::move(log)), moSource(source) {}

    ByteArray GetData(std::int16_t nFormat) const override
    {
        const auto found = formats.find(nFormat);
        if (found != formats.end() && found->second.empty())
            moSource.OLESetData(std::const_pointer_cast<DragData>(shared_from_this()), nFormat);
        return FakeDataObject::GetData(nFormat);
    }

private:
    PictureBoxEvents& moSource;
};

} // namespace zqbchwcx::testing

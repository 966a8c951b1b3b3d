#pragma once

#include "tests/support/MemoryClipboard.h"
#include "tests/support/model/WatchedModel.h"
#include "tests/support/services/FakeDataObject.h"
#include "zqbchwcx/foundation/model/VxHWModelFactory.h"
#include "zqbchwcx/platform/HostServices.h"
#include "zqbchwcx/reference/model/contract/ModelFactory.h"
#include "zqbchwcx/reference/services/UserActions.h"

namespace zqbchwcx::testing {

/// All services of a host of the reference model in one object: what the library asks of them is recorded, what they
/// answer is set.
class FakeHost : public SettingsReader,
                 public TextManager,
                 public TextModule,
                 public ErrorService,
                 public InstanceTracker,
                 public HostApplication,
                 public ObjectLookup,
                 public ObjectFactory,
                 public OptionService,
                 public ControllerInfo,
                 public VxHWModelFactory,
                 public Logged,
                 public std::enable_shared_from_this<FakeHost> {
public:
    FakeHost(CallLogPtr log, reference::ModelContextPtr oContext)
        : Logged(std::move(log)), context(std::move(oContext)), mFactory(context)
    {
    }

    std::string Read(std::string_view keyPath, std::string_view name, std::string_view defaultValue) override
    {
        Call("SettingsReader.Read");
        const auto found = settings.find({std::string(keyPath), std::string(name)});
        return found == settings.end() ? std::string(defaultValue) : found->second;
    }

    TextModulePtr Open(std::string_view moduleName) override
    {
        Note("Open " + std::string(moduleName));
        ++openTexts;
        return shared_from_this();
    }
    void Release(std::string_view moduleName) override
    {
        --openTexts;
        moLog->NoteEnd("Release " + std::string(moduleName));
    }
    std::string Text(std::int32_t lId) override
    {
        const auto found = texts.find(lId);
        return Answer("TextModule.Text", found == texts.end() ? "T" + std::to_string(lId) : found->second);
    }
    ImagePtr Picture(std::string_view name) override
    {
        Call("TextModule.Picture");
        const auto found = pictures.find(std::string(name));
        if (found == pictures.end()) throw VxError(vxErrorInvalidArgument, "There is no picture " + std::string(name));
        return found->second;
    }
    std::intptr_t hInstance() const override { return Answer("TextModule.hInstance", std::intptr_t{77}); }

    void BeginUserAction(std::string_view displayText) override
    {
        Note("BeginUserAction " + std::string(displayText));
        ++openActions;
        if (const auto listening = actions.lock()) listening->BeginUserAction(displayText);
    }
    void EndUserAction() override
    {
        if (const auto listening = actions.lock()) listening->EndUserAction();
        --openActions;
        moLog->NoteEnd("EndUserAction");
    }
    void LogError(std::int32_t lNumber, std::string_view description, std::string_view source,
                  std::string_view helpFile, std::int32_t lHelpContext) override
    {
        Note("LogError " + std::string(source));
        reports.emplace_back(lNumber, std::string(description), std::string(source), std::string(helpFile),
                             lHelpContext);
    }

    std::int32_t Register(std::int32_t lCategory, std::string_view className) override
    {
        Note("Register " + std::string(className));
        live.emplace(++mlLastId, std::pair(lCategory, std::string(className)));
        return mlLastId;
    }
    void Unregister(std::int32_t lCategory, std::string_view className, std::int32_t lInstanceId) override
    {
        const auto found = live.find(lInstanceId);
        if (found == live.end() || found->second != std::pair(lCategory, std::string(className)))
            throw VxError(vxErrorInvalidArgument, "Not registered: " + std::string(className));
        live.erase(found);
        moLog->NoteEnd("Unregister " + std::string(className));
    }

    void DoWaitCursor(std::int32_t lCode) override
    {
        waitBalance += lCode;
        moLog->NoteEnd("DoWaitCursor " + std::to_string(lCode));
    }
    std::int32_t Status(std::string_view /*classId*/) override
    {
        return Answer("ObjectLookup.Status", isRunning ? 0 : 1);
    }
    HostApplicationPtr Object(std::string_view /*classId*/) override
    {
        return Answer("ObjectLookup.Object", shared_from_this());
    }
    ObjectLookupPtr CreateObjectLookup() override { return Answer("ObjectLookup.Create", shared_from_this()); }
    ExchangeDataPtr CreateExchangeData() override
    {
        return Answer("ExchangeData.Create", std::make_shared<WatchedExchange>(moLog, clipboard));
    }
    OptionServicePtr CreateOptionService() override { return Answer("OptionService.Create", shared_from_this()); }
    ControllerInfoPtr CreateControllerInfo() override { return Answer("ControllerInfo.Create", shared_from_this()); }
    std::vector<ControllerComponent> Components() const override
    {
        Call("ControllerInfo.Components");
        return components;
    }
    std::string Read(std::string_view parameter) override
    {
        Call("OptionService.Read");
        const auto found = options.find(parameter);
        return found == options.end() ? std::string() : found->second;
    }
    void Write(std::string_view parameter, std::string_view value) override
    {
        Call("OptionService.Write");
        options.insert_or_assign(std::string(parameter), std::string(value));
    }

    VxHWRackPlacesPtr CreateRackPlaces() override
    {
        return Answer("CreateRackPlaces", Watch(moLog, mFactory.CreateRackPlaces()));
    }
    VxHWModulesPtr CreateModules() override { return Answer("CreateModules", Watch(moLog, mFactory.CreateModules())); }
    VxHWModulePtr CreateModule() override { return Answer("CreateModule", Watch(moLog, mFactory.CreateModule())); }

    /// The sources of the errors reported since it was last asked.
    std::vector<std::string> TakeReports()
    {
        std::vector<std::string> sources;
        for (const auto& report : std::exchange(reports, {})) sources.push_back(report.source);
        return sources;
    }

    reference::ModelContextPtr context;
    std::map<std::pair<std::string, std::string>, std::string> settings; ///< by key path and name
    std::map<std::string, std::string, std::less<>> options;
    std::vector<ControllerComponent> components; ///< of the controller
    std::map<std::int32_t, std::string> texts;   ///< a number without a text gives "T" and the number
    std::map<std::string, ImagePtr> pictures;
    std::int32_t openTexts = 0;
    std::vector<VxError> reports;
    std::int32_t openActions = 0;
    /// Category and class name by instance id; an unregistration that fits no registration throws.
    std::map<std::int32_t, std::pair<std::int32_t, std::string>> live;
    bool isRunning = true; ///< the host application
    std::int32_t waitBalance = 0;
    std::weak_ptr<reference::UserActions> actions; ///< what listens to the actions
    std::shared_ptr<MemoryClipboard> clipboard = std::make_shared<MemoryClipboard>(moLog);

private:
    reference::ModelFactory mFactory;
    std::int32_t mlLastId = 0;
};

} // namespace zqbchwcx::testing

#include "tests/support/model/WatchedModel.h"

#include "zqbchwcx/reference/model/contract/Module.h"

namespace zqbchwcx::testing {
namespace {

template <class Interface>
class Watched : public Interface, public Logged {
public:
    Watched(CallLogPtr log, ObjectPtr<Interface> inner) : Logged(std::move(log)), moInner(std::move(inner)) {}

protected:
    template <class Object>
    ObjectPtr<Object> AnswerWatched(std::string_view call, const ObjectPtr<Object>& oObject) const
    {
        return Answer(call, Watch(moLog, oObject));
    }

    ObjectPtr<Interface> moInner;
};

class WatchedRacks : public Watched<VxHWRacks> {
public:
    using Watched::Watched;

    VxHWRackPtr Item(std::int32_t l) const override { return AnswerWatched("Racks.Item", moInner->Item(l)); }
    std::int32_t Count() const override { return Answer("Racks.Count", moInner->Count()); }
    VxHWRackPtr Element(std::int32_t l) const override { return AnswerWatched("Racks.Element", moInner->Element(l)); }
};

class WatchedRack : public Watched<VxHWRack> {
public:
    using Watched::Watched;

    std::int32_t Number() const override { return Answer("Rack.Number", moInner->Number()); }
    std::int32_t State() const override { return Answer("Rack.State", moInner->State()); }
    VxHWRackPlacesPtr Places() const override { return AnswerWatched("Rack.Places", moInner->Places()); }
};

class WatchedPlaces : public Watched<VxHWRackPlaces> {
public:
    using Watched::Watched;

    VxHWRackPlacePtr Item(std::int32_t l) const override { return AnswerWatched("Places.Item", moInner->Item(l)); }
    std::int32_t Count() const override { return Answer("Places.Count", moInner->Count()); }
    void Add(const VxHWRackPlacePtr& oPlace) override { Call("Places.Add"), moInner->Add(oPlace); }
    void Remove(std::string_view key) override { Call("Places.Remove"), moInner->Remove(key); }
    void Clear() override { Call("Places.Clear"), moInner->Clear(); }
    bool Contains(const VxHWRackPlacePtr& oPlace) const override
    {
        return Answer("Places.Contains", moInner->Contains(oPlace));
    }
    VxHWRackPlacePtr Element(std::int32_t l) const override
    {
        return AnswerWatched("Places.Element", moInner->Element(l));
    }
};

class WatchedPlace : public Watched<VxHWRackPlace> {
public:
    using Watched::Watched;

    std::int32_t Number() const override { return Answer("Place.Number", moInner->Number()); }
    std::string Key() const override { return Answer("Place.Key", moInner->Key()); }
    std::int32_t Usability() const override { return Answer("Place.Usability", moInner->Usability()); }
    VxHWModulePtr Module() const override { return AnswerWatched("Place.Module", moInner->Module()); }
    VxHWRackPtr Rack() const override { return AnswerWatched("Place.Rack", moInner->Rack()); }
};

class WatchedModules : public Watched<VxHWModules> {
public:
    using Watched::Watched;

    VxHWModulePtr Item(std::int32_t l) const override { return AnswerWatched("Modules.Item", moInner->Item(l)); }
    std::int32_t Count() const override { return Answer("Modules.Count", moInner->Count()); }
    void Add(const VxHWModulePtr& oModule, bool bFlag) override
    {
        Call("Modules.Add");
        if (!bFlag) throw VxError(vxErrorInvalidArgument, "Modules are always added with True");
        moInner->Add(oModule, bFlag);
    }
    void Clear() override { Call("Modules.Clear"), moInner->Clear(); }
    std::string ConfigText() const override { return Answer("Modules.ConfigText", moInner->ConfigText()); }
    bool Contains(const VxHWModulePtr& oModule) const override
    {
        return Answer("Modules.Contains", moInner->Contains(oModule));
    }
};

/// The model knows its own modules by their class.
class WatchedModule : public reference::Module, public Logged {
public:
    WatchedModule(CallLogPtr log, const reference::Module& module) : Module(module), Logged(std::move(log)) {}

    bool IsEmpty() const override { return Answer("Module.IsEmpty", Module::IsEmpty()); }
    std::string OrderNumber() const override { return Answer("Module.OrderNumber", Module::OrderNumber()); }
    std::string DetailText() const override { return Answer("Module.DetailText", Module::DetailText()); }
    std::string Name() const override { return Answer("Module.Name", Module::Name()); }
    std::string PictureName() const override { return Answer("Module.PictureName", Module::PictureName()); }
    std::int32_t PlaceCount() const override { return Answer("Module.PlaceCount", Module::PlaceCount()); }
    std::int32_t SubModuleCount() const override { return Answer("Module.SubModuleCount", Module::SubModuleCount()); }
    std::int32_t IndexInParent() const override { return Answer("Module.IndexInParent", Module::IndexInParent()); }
    VxHWModulePtr ParentModule() const override
    {
        return Answer("Module.ParentModule", Watch(moLog, Module::ParentModule()));
    }
    VxHWModulesPtr SubModules() const override
    {
        return Answer("Module.SubModules", Watch(moLog, Module::SubModules()));
    }
    bool HasParamDialog() const override { return Answer("Module.HasParamDialog", Module::HasParamDialog()); }
    std::string InputAddressText() const override { return Answer("Module.InputAddress", Module::InputAddressText()); }
    std::string OutputAddressText() const override
    {
        return Answer("Module.OutputAddress", Module::OutputAddressText());
    }
    std::string BasicAddressText() const override { return Answer("Module.BasicAddress", Module::BasicAddressText()); }
    std::string GetAttribute(std::string_view name) const override
    {
        return Answer("Module.GetAttribute", Module::GetAttribute(name));
    }
    bool HasAttribute(std::string_view name) const override
    {
        return Answer("Module.HasAttribute", Module::HasAttribute(name));
    }
};

template <class Watcher, class Interface>
ObjectPtr<Interface> WatchBy(const CallLogPtr& log, const ObjectPtr<Interface>& oObject)
{
    if (!oObject || dynamic_cast<const Watcher*>(oObject.get()) != nullptr) return oObject;
    return std::make_shared<Watcher>(log, oObject);
}

/// The texts of the elements with a space between them.
template <class Collection, class Text>
std::string Joined(const CallLogPtr& log, const ObjectPtr<Collection>& oCollection, Text text)
{
    const FaultPoints::Pause pause(log->faults);
    std::string joined;
    for (const auto& oElement : oCollection) joined += (joined.empty() ? "" : " ") + text(oElement);
    return joined;
}

} // namespace

VxHWRacksPtr Watch(const CallLogPtr& log, const VxHWRacksPtr& oRacks)
{
    return WatchBy<WatchedRacks>(log, oRacks);
}

VxHWRackPtr Watch(const CallLogPtr& log, const VxHWRackPtr& oRack)
{
    return WatchBy<WatchedRack>(log, oRack);
}

VxHWRackPlacesPtr Watch(const CallLogPtr& log, const VxHWRackPlacesPtr& oPlaces)
{
    return WatchBy<WatchedPlaces>(log, oPlaces);
}

VxHWRackPlacePtr Watch(const CallLogPtr& log, const VxHWRackPlacePtr& oPlace)
{
    return WatchBy<WatchedPlace>(log, oPlace);
}

VxHWModulesPtr Watch(const CallLogPtr& log, const VxHWModulesPtr& oModules)
{
    return WatchBy<WatchedModules>(log, oModules);
}

VxHWModulePtr Watch(const CallLogPtr& log, const VxHWModulePtr& oModule)
{
    if (!oModule || dynamic_cast<const WatchedModule*>(oModule.get()) != nullptr) return oModule;
    return std::make_shared<WatchedModule>(log, reference::Module::Of(oModule));
}

std::string KeyOf(const CallLogPtr& log, const VxHWRackPlacePtr& oPlace)
{
    const FaultPoints::Pause pause(log->faults);
    return oPlace->Key();
}

std::string KeysOf(const CallLogPtr& log, const VxHWRackPlacesPtr& oPlaces)
{
    return Joined(log, oPlaces, [](const VxHWRackPlacePtr& oPlace) { return oPlace->Key(); });
}

std::string NameOf(const CallLogPtr& log, const VxHWModulePtr& oModule)
{
    const FaultPoints::Pause pause(log->faults);
    return oModule->IsEmpty() ? std::string("-") : oModule->OrderNumber();
}

std::string NamesOf(const CallLogPtr& log, const VxHWModulesPtr& oModules)
{
    return Joined(log, oModules, [&](const VxHWModulePtr& oModule) { return NameOf(log, oModule); });
}

} // namespace zqbchwcx::testing

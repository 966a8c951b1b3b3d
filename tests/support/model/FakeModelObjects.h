#pragma once

#include "tests/support/services/CallLog.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWModules.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/foundation/model/VxHWRacks.h"

#include <algorithm>

// The objects that a `FakeStation` is made of. A test sets and reads their fields; the library calls the rest, and
// each of its calls is a fault point.

namespace zqbchwcx::testing {

/// What all collections have in common. An index outside of a collection is an error.
template <class Interface, class Member>
class FakeCollection : public Interface, public Logged {
public:
    using Logged::Logged;

    std::int32_t Count() const override
    {
        return Answer("Collection.Count", static_cast<std::int32_t>(members.size()));
    }

    std::vector<std::shared_ptr<Member>> members;

protected:
    std::shared_ptr<Member> At(std::int32_t lIndex) const
    {
        Call("Collection.Item");
        if (lIndex < 0 || lIndex >= static_cast<std::int32_t>(members.size()))
            throw VxError(vxErrorSubscript, "There is nothing at the index " + std::to_string(lIndex));
        const auto& member = members[static_cast<std::size_t>(lIndex)];
        return moLog->faults.TakeNothing() ? nullptr : member;
    }
    template <class Object>
    void Append(const std::shared_ptr<Object>& oObject)
    {
        Call("Collection.Add");
        members.push_back(std::dynamic_pointer_cast<Member>(oObject));
    }
    template <class Object>
    bool Has(const std::shared_ptr<Object>& oObject) const
    {
        return Answer("Collection.Contains", std::find(members.begin(), members.end(), oObject) != members.end());
    }
    void Drop() { Call("Collection.Clear"), members.clear(); }
};

class FakeModules;

/// A module whose every property a test sets; without an order number it is the empty module.
class FakeModule : public VxHWModule, public Logged {
public:
    explicit FakeModule(CallLogPtr log);

    bool IsEmpty() const override { return Answer("Module.IsEmpty", orderNumber.empty()); }
    std::string OrderNumber() const override { return Answer("Module.OrderNumber", orderNumber); }
    std::string PictureName() const override { return Answer("Module.PictureName", pictureName); }
    std::int32_t PlaceCount() const override { return Answer("Module.PlaceCount", placeCount); }
    std::int32_t SubModuleCount() const override { return Answer("Module.SubModuleCount", subModuleCount); }
    std::int32_t IndexInParent() const override { return Answer("Module.IndexInParent", indexInParent); }
    VxHWModulePtr ParentModule() const override { return Answer("Module.ParentModule", parent); }
    VxHWModulesPtr SubModules() const override;
    bool HasParamDialog() const override { return Answer("Module.HasParamDialog", hasParamDialog); }

    // The library leaves these to the host.
    std::string DetailText() const override { return {}; }
    std::string Name() const override { return {}; }
    std::string InputAddressText() const override { return {}; }
    std::string OutputAddressText() const override { return {}; }
    std::string BasicAddressText() const override { return {}; }
    std::string GetAttribute(std::string_view /*attribute*/) const override { return {}; }
    bool HasAttribute(std::string_view /*attribute*/) const override { return false; }

    std::string orderNumber;
    std::string pictureName;
    std::int32_t placeCount = 0;
    std::int32_t subModuleCount = 0;
    std::int32_t indexInParent = 0;
    std::shared_ptr<FakeModule> parent;
    std::shared_ptr<FakeModules> subModules;
    bool hasParamDialog = false;
};
using FakeModulePtr = std::shared_ptr<FakeModule>;

class FakeModules : public FakeCollection<VxHWModules, FakeModule> {
public:
    using FakeCollection::FakeCollection;

    VxHWModulePtr Item(std::int32_t lIndex) const override { return At(lIndex); }
    void Add(const VxHWModulePtr& oModule, bool bFlag) override
    {
        if (!bFlag) throw VxError(vxErrorInvalidArgument, "Modules are always added with True");
        Append(oModule);
    }
    void Clear() override { Drop(); }
    /// One line per module; see `FakeConfigText.h`.
    std::string ConfigText() const override;
    bool Contains(const VxHWModulePtr& oModule) const override { return Has(oModule); }
};

inline const FakeModule& AsFake(const VxHWModulePtr& oModule)
{
    return dynamic_cast<const FakeModule&>(*oModule);
}

class FakeRackPlace : public VxHWRackPlace, public Logged {
public:
    FakeRackPlace(CallLogPtr log, std::weak_ptr<VxHWRack> rack, std::int32_t lRack, std::int32_t lNumber)
        : Logged(std::move(log)), key(std::to_string(lRack) + "/" + std::to_string(lNumber)), number(lNumber),
          moRack(std::move(rack))
    {
    }

    std::int32_t Number() const override { return Answer("Place.Number", number); }
    std::string Key() const override { return Answer("Place.Key", key); }
    std::int32_t Usability() const override { return Answer("Place.Usability", usability); }
    VxHWModulePtr Module() const override { return Answer("Place.Module", module); }
    VxHWRackPtr Rack() const override { return Answer("Place.Rack", moRack.lock()); }

    void Empty() { module = std::make_shared<FakeModule>(moLog); }

    FakeModulePtr module = std::make_shared<FakeModule>(moLog);
    std::string key;
    std::int32_t number;
    std::int32_t usability = 1;

private:
    std::weak_ptr<VxHWRack> moRack;
};
using FakeRackPlacePtr = std::shared_ptr<FakeRackPlace>;

inline std::string KeyOfPlace(const VxHWRackPlacePtr& oPlace)
{
    // A fake's key without a call that could fail.
    const auto* fake = dynamic_cast<const FakeRackPlace*>(oPlace.get());
    return fake != nullptr ? fake->key : oPlace->Key();
}

class FakeRackPlaces : public FakeCollection<VxHWRackPlaces, FakeRackPlace> {
public:
    using FakeCollection::FakeCollection;

    VxHWRackPlacePtr Item(std::int32_t lIndex) const override { return At(lIndex - 1); }
    void Add(const VxHWRackPlacePtr& oPlace) override { Append(oPlace); }
    void Remove(std::string_view key) override
    {
        Call("Places.Remove");
        if (std::erase_if(members, [&](const auto& place) { return place->key == key; }) == 0)
            throw VxError(vxErrorSubscript, "There is no place " + std::string(key));
    }
    void Clear() override { Drop(); }
    bool Contains(const VxHWRackPlacePtr& oPlace) const override { return Has(oPlace); }
    VxHWRackPlacePtr Element(std::int32_t lIndex) const override { return At(lIndex); }

    /// The keys in order, as in "0/1 0/2".
    std::string Keys() const
    {
        std::string keys;
        for (const auto& place : members) keys += (keys.empty() ? "" : " ") + place->key;
        return keys;
    }
};

inline FakeRackPlaces& AsFake(const VxHWRackPlacesPtr& oPlaces)
{
    return dynamic_cast<FakeRackPlaces&>(*oPlaces);
}

class FakeRack : public VxHWRack, public Logged {
public:
    FakeRack(CallLogPtr log, std::int32_t lNumber) : Logged(std::move(log)), number(lNumber) {}

    std::int32_t Number() const override { return Answer("Rack.Number", number); }
    std::int32_t State() const override { return Answer("Rack.State", state); }
    VxHWRackPlacesPtr Places() const override { return Answer("Rack.Places", places); }

    std::int32_t number;
    std::int32_t state = 1;
    std::shared_ptr<FakeRackPlaces> places = std::make_shared<FakeRackPlaces>(moLog);
};
using FakeRackPtr = std::shared_ptr<FakeRack>;

class FakeRacks : public FakeCollection<VxHWRacks, FakeRack> {
public:
    using FakeCollection::FakeCollection;

    VxHWRackPtr Item(std::int32_t lRackNumber) const override { return At(lRackNumber); }
    VxHWRackPtr Element(std::int32_t lIndex) const override { return At(lIndex); }
};

} // namespace zqbchwcx::testing

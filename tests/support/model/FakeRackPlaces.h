#pragma once

#include "foundation/model/VxHWRackPlaces.h"
#include "tests/support/model/FakeRackPlace.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace zqbchwcx::testing {

class FakeRackPlaces : public VxHWRackPlaces {
public:
    explicit FakeRackPlaces(CallLogPtr log) : moLog(std::move(log)) {}

    VxHWRackPlacePtr Item(std::int32_t lIndex) const override { return At("Item", lIndex - 1); }
    std::int32_t Count() const override
    {
        moLog->Call("VxHWRackPlaces.Count");
        return static_cast<std::int32_t>(places.size());
    }
    void Add(const VxHWRackPlacePtr& oPlace) override
    {
        moLog->Call("VxHWRackPlaces.Add");
        places.push_back(std::dynamic_pointer_cast<FakeRackPlace>(oPlace));
    }
    void Remove(std::string_view key) override
    {
        moLog->Call("VxHWRackPlaces.Remove");
        const auto found = std::find_if(places.begin(), places.end(), [&](const auto& p) { return p->key == key; });
        if (found == places.end()) throw VxError(vxErrorSubscript, "There is no place " + std::string(key));
        places.erase(found);
    }
    void Clear() override
    {
        moLog->Call("VxHWRackPlaces.Clear");
        places.clear();
    }
    bool Contains(const VxHWRackPlacePtr& oPlace) const override
    {
        moLog->Call("VxHWRackPlaces.Contains");
        return std::find(places.begin(), places.end(), oPlace) != places.end();
    }
    VxHWRackPlacePtr Element(std::int32_t lIndex) const override { return At("Element", lIndex); }

    /// The keys in order, as in "0/1 0/2".
    std::string Keys() const
    {
        std::string keys;
        for (const auto& place : places) keys += (keys.empty() ? "" : " ") + place->key;
        return keys;
    }

    std::vector<FakeRackPlacePtr> places;

private:
    VxHWRackPlacePtr At(const char* operation, std::int32_t lIndex) const
    {
        moLog->Call(std::string("VxHWRackPlaces.") + operation);
        if (lIndex < 0 || lIndex >= static_cast<std::int32_t>(places.size()))
            throw VxError(vxErrorSubscript, "There is no place with the index " + std::to_string(lIndex));
        return places[static_cast<std::size_t>(lIndex)];
    }

    CallLogPtr moLog;
};

} // namespace zqbchwcx::testing

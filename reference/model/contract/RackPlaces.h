#pragma once

#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace zqbchwcx::reference {

/// A free-standing collection of places, told apart by their `Key`.
class RackPlaces : public VxHWRackPlaces {
public:
    VxHWRackPlacePtr Item(std::int32_t lIndex) const override;
    std::int32_t Count() const override { return static_cast<std::int32_t>(mcolPlaces.size()); }
    void Add(const VxHWRackPlacePtr& oPlace) override;
    void Remove(std::string_view key) override;
    void Clear() override;
    bool Contains(const VxHWRackPlacePtr& oPlace) const override;
    VxHWRackPlacePtr Element(std::int32_t lIndex) const override { return Item(lIndex + 1); }

private:
    std::vector<VxHWRackPlacePtr> mcolPlaces;
    std::unordered_map<std::string, int> mcolCountByKey; ///< keys that are in the collection, and how often
};

} // namespace zqbchwcx::reference

#pragma once

#include "foundation/model/VxHWRacks.h"
#include "tests/support/model/FakeRack.h"

#include <utility>
#include <vector>

namespace zqbchwcx::testing {

class FakeRacks : public VxHWRacks {
public:
    explicit FakeRacks(CallLogPtr log) : moLog(std::move(log)) {}

    VxHWRackPtr Item(std::int32_t lRackNumber) const override { return At("Item", lRackNumber); }
    std::int32_t Count() const override
    {
        moLog->Call("VxHWRacks.Count");
        return static_cast<std::int32_t>(racks.size());
    }
    VxHWRackPtr Element(std::int32_t lIndex) const override { return At("Element", lIndex); }

    std::vector<FakeRackPtr> racks;

private:
    VxHWRackPtr At(const char* operation, std::int32_t lIndex) const
    {
        moLog->Call(std::string("VxHWRacks.") + operation);
        if (lIndex < 0 || lIndex >= static_cast<std::int32_t>(racks.size()))
            throw VxError(vxErrorSubscript, "There is no rack " + std::to_string(lIndex));
        return racks[static_cast<std::size_t>(lIndex)];
    }

    CallLogPtr moLog;
};

} // namespace zqbchwcx::testing

#pragma once

#include "foundation/model/VxHWRack.h"
#include "tests/support/model/FakeRackPlaces.h"

#include <memory>
#include <utility>

namespace zqbchwcx::testing {

class FakeRack : public VxHWRack {
public:
    FakeRack(CallLogPtr log, std::int32_t lNumber)
        : number(lNumber), places(std::make_shared<FakeRackPlaces>(log)), moLog(std::move(log))
    {
    }

    std::int32_t Number() const override
    {
        moLog->Call("VxHWRack.Number");
        return number;
    }
    std::int32_t State() const override
    {
        moLog->Call("VxHWRack.State");
        return state;
    }
    VxHWRackPlacesPtr Places() const override
    {
        moLog->Call("VxHWRack.Places");
        return places;
    }

    std::int32_t number;
    std::int32_t state = 1;
    std::shared_ptr<FakeRackPlaces> places;

private:
    CallLogPtr moLog;
};
using FakeRackPtr = std::shared_ptr<FakeRack>;

} // namespace zqbchwcx::testing

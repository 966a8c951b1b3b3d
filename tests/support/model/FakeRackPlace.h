#pragma once

#include "foundation/model/VxHWRack.h"
#include "foundation/model/VxHWRackPlace.h"
#include "tests/support/model/FakeModule.h"

#include <memory>
#include <utility>

namespace zqbchwcx::testing {

class FakeRackPlace : public VxHWRackPlace {
public:
    FakeRackPlace(CallLogPtr log, std::weak_ptr<VxHWRack> rack, std::int32_t lRack, std::int32_t lNumber)
        : module(std::make_shared<FakeModule>(log)), key(std::to_string(lRack) + "/" + std::to_string(lNumber)),
          number(lNumber), moLog(std::move(log)), moRack(std::move(rack))
    {
    }

    std::int32_t Number() const override
    {
        moLog->Call("VxHWRackPlace.Number");
        return number;
    }
    std::string Key() const override
    {
        moLog->Call("VxHWRackPlace.Key");
        return key;
    }
    std::int32_t Usability() const override
    {
        moLog->Call("VxHWRackPlace.Usability");
        return usability;
    }
    VxHWModulePtr Module() const override
    {
        moLog->Call("VxHWRackPlace.Module");
        return module;
    }
    VxHWRackPtr Rack() const override
    {
        moLog->Call("VxHWRackPlace.Rack");
        return moRack.lock();
    }

    void Empty() { module = std::make_shared<FakeModule>(moLog); }

    FakeModulePtr module;
    std::string key;
    std::int32_t number;
    std::int32_t usability = 1;

private:
    CallLogPtr moLog;
    std::weak_ptr<VxHWRack> moRack;
};
using FakeRackPlacePtr = std::shared_ptr<FakeRackPlace>;

inline std::string KeyOfPlace(const VxHWRackPlacePtr& oPlace)
{
    return dynamic_cast<const FakeRackPlace&>(*oPlace).key;
}

} // namespace zqbchwcx::testing

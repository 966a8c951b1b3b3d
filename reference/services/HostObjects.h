#pragma once

#include "zqbchwcx/platform/HostServices.h"
#include "zqbchwcx/reference/services/MemoryStore.h"
#include "zqbchwcx/reference/services/Options.h"

#include <functional>
#include <memory>
#include <utility>

namespace zqbchwcx::reference {

/// Makes the helper objects of a host with one application object and one kind of exchange data.
class HostObjects : public ObjectFactory {
public:
    /// The application may be null: then none is running. Without a store, options last as long as the program;
    /// without `makeControllerInfo`, nothing is known about the controller.
    HostObjects(HostApplicationPtr application, std::function<ExchangeDataPtr()> makeExchangeData,
                std::shared_ptr<KeyValueStore> options = std::make_shared<MemoryStore>(),
                std::function<ControllerInfoPtr()> makeControllerInfo = nullptr)
        : moApplication(std::move(application)), mMakeExchangeData(std::move(makeExchangeData)),
          moOptions(std::move(options)), mMakeControllerInfo(std::move(makeControllerInfo))
    {
    }

    ObjectLookupPtr CreateObjectLookup() override;
    ExchangeDataPtr CreateExchangeData() override { return mMakeExchangeData(); }
    OptionServicePtr CreateOptionService() override { return std::make_shared<Options>(moOptions); }
    ControllerInfoPtr CreateControllerInfo() override { return mMakeControllerInfo ? mMakeControllerInfo() : nullptr; }

private:
    HostApplicationPtr moApplication;
    std::function<ExchangeDataPtr()> mMakeExchangeData;
    std::shared_ptr<KeyValueStore> moOptions;
    std::function<ControllerInfoPtr()> mMakeControllerInfo;
};

} // namespace zqbchwcx::reference

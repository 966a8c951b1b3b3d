#pragma once

#include "zqbchwcx/platform/HostServices.h"

#include <functional>
#include <memory>
#include <utility>

namespace zqbchwcx::reference {

/// Makes the helper objects of a host with one application object and one kind of exchange data.
class HostObjects : public ObjectFactory {
public:
    /// The application may be null: then none is running.
    HostObjects(HostApplicationPtr application, std::function<ExchangeDataPtr()> makeExchangeData)
        : moApplication(std::move(application)), mMakeExchangeData(std::move(makeExchangeData))
    {
    }

    ObjectLookupPtr CreateObjectLookup() override;
    ExchangeDataPtr CreateExchangeData() override { return mMakeExchangeData(); }

private:
    HostApplicationPtr moApplication;
    std::function<ExchangeDataPtr()> mMakeExchangeData;
};

} // namespace zqbchwcx::reference

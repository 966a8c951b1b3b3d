#pragma once

#include "tests/support/services/FakeExchangeData.h"
#include "tests/support/services/FakeObjectLookup.h"

namespace zqbchwcx::testing {

class FakeObjectFactory : public ObjectFactory {
public:
    explicit FakeObjectFactory(CallLogPtr log)
        : application(std::make_shared<FakeApplication>(log)), clipboard(std::make_shared<FakeClipboard>()),
          moLog(std::move(log))
    {
    }

    ObjectLookupPtr CreateObjectLookup() override
    {
        moLog->Call("ObjectLookup.Create");
        return std::make_shared<FakeObjectLookup>(moLog, application);
    }
    ExchangeDataPtr CreateExchangeData() override
    {
        moLog->Call("ExchangeData.Create");
        return std::make_shared<FakeExchangeData>(moLog, clipboard);
    }

    /// Null while the host application is not running.
    std::shared_ptr<FakeApplication> application;
    std::shared_ptr<FakeClipboard> clipboard;

private:
    CallLogPtr moLog;
};

} // namespace zqbchwcx::testing

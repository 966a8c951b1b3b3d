#pragma once

#include "reference/model/contract/TypeExchange.h"
#include "tests/support/services/FakeObjectFactory.h"

#include <memory>
#include <utility>

namespace zqbchwcx::testing {

/// Makes the reference model's exchange data.
class ExchangeObjects : public FakeObjectFactory {
public:
    ExchangeObjects(const CallLogPtr& log, reference::ClipboardPtr oClipboard)
        : FakeObjectFactory(log), moLog(log), moClipboard(std::move(oClipboard))
    {
    }

    ExchangeDataPtr CreateExchangeData() override
    {
        moLog->Call("ExchangeData.Create");
        return std::make_shared<reference::TypeExchange>(FakeExchangeData::Format, moClipboard);
    }

private:
    CallLogPtr moLog;
    reference::ClipboardPtr moClipboard;
};

} // namespace zqbchwcx::testing

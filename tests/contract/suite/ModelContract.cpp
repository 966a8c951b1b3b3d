#include "ContractTest.h"

#include <gtest/gtest.h>

namespace zqbchwcx::testing {
namespace {

class ContractCase : public ::testing::Test {
public:
    ContractCase(ContractTest test, ContractHostFactory factory) : moTest(test), mFactory(std::move(factory)) {}

    void TestBody() override
    {
        const ContractHost host = mFactory(moTest.readOnly);
        ASSERT_TRUE(host.station && host.factory && host.singleModule && host.spanningModule);
        ASSERT_GE(host.lastPlace - host.firstPlace, 7) << "the run of places is too short for the tests";
        moTest.body(host);
    }

private:
    ContractTest moTest;
    ContractHostFactory mFactory;
};

} // namespace

void RegisterModelContract(const std::string& hostName, const ContractHostFactory& factory)
{
    for (const auto& group : {ObjectContractTests(), EditingContractTests(), ExchangeContractTests()})
        for (const ContractTest& test : group)
            ::testing::RegisterTest(hostName.c_str(), test.name, nullptr, nullptr, __FILE__, __LINE__,
                                    [test, factory]() -> ::testing::Test* { return new ContractCase(test, factory); });
}

} // namespace zqbchwcx::testing

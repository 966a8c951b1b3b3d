#pragma once

#include "ModelContract.h"

#include <span>

namespace zqbchwcx::testing {

/// One rule of the contract and the test of it.
struct ContractTest {
    const char* name;
    bool readOnly; ///< which kind of station it wants
    void (*body)(const ContractHost& host);
};

std::span<const ContractTest> ObjectContractTests();
std::span<const ContractTest> EditingContractTests();
std::span<const ContractTest> SpanningContractTests();
std::span<const ContractTest> ExchangeContractTests();

} // namespace zqbchwcx::testing

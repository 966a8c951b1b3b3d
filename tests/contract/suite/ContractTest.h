#pragma once

#include "ContractSteps.h"

#include <span>

namespace zqbchwcx::testing {

/// One rule of the contract and the test of it.
struct ContractTest {
    const char* name;
    void (*body)(const ContractHost& host);
    bool readOnly = false; ///< which kind of station it wants
};

std::span<const ContractTest> ObjectContractTests();
std::span<const ContractTest> EditingContractTests();
std::span<const ContractTest> ExchangeContractTests();

} // namespace zqbchwcx::testing

#pragma once

#include "zqbchwcx/foundation/model/VxHWCompareService.h"
#include "zqbchwcx/foundation/model/VxHWModelFactory.h"
#include "zqbchwcx/foundation/model/VxHWStation.h"

#include <cstdint>
#include <functional>
#include <string>

namespace zqbchwcx::testing {

/// What a host shows to the contract tests: a new station for each test, and modules to play with.
///
/// The run of places must be active, empty and at least 8 long, and every place of it must take the sample modules.
struct ContractHost {
    VxHWStationPtr station; ///< as it was asked for; null: the host has none that is
    std::shared_ptr<VxHWModelFactory> factory;

    std::int32_t rack = 0;       ///< where the run of places is
    std::int32_t firstPlace = 0; ///< of the run
    std::int32_t lastPlace = 0;

    std::function<VxHWModulePtr()> singleModule;     ///< makes a module that fills one place
    std::function<VxHWModulePtr()> spanningModule;   ///< makes one that fills 2 or 3 places
    std::function<VxHWModulePtr()> moduleWithSlots;  ///< makes one with sub-module slots; empty: the host has none
    std::function<ExchangeDataPtr()> exchangeObject; ///< makes an empty one; empty: the host has none
    /// Takes the reason that the user was told for the last refusal; empty when there was none since. Empty: the host
    /// tells no reasons.
    std::function<std::string()> takeReason;
    /// Compares `station` with another one that is what `station` was at the call; empty: the host compares nothing.
    std::function<std::shared_ptr<VxHWCompareService>()> compareWithItself;
    std::string textAttribute = "COMMENT"; ///< one that every sample module has and that takes any text
};

/// Which station a test wants.
enum class ContractStation {
    Editable, ///< offline and free to be changed
    ReadOnly, ///< offline
    Online,   ///< and not to be changed; a host that changes stations while they run has none
};

/// Makes what one test needs; called anew for each.
using ContractHostFactory = std::function<ContractHost(ContractStation)>;

/// Adds a test for every rule of the model contract to the test program, named "<host name>.<rule>". A host's test
/// program links `zqbchwcx_contract_tests`, includes this header and calls it before `RUN_ALL_TESTS`, or while its
/// globals are made:
///
///     const bool registered = [] {
///         zqbchwcx::testing::RegisterModelContract("MyModel", MyHost);
///         return true;
///     }();
///
/// The tests reach the model through its abstract classes only.
void RegisterModelContract(const std::string& hostName, const ContractHostFactory& factory);

} // namespace zqbchwcx::testing

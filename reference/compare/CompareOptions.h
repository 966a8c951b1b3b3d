#pragma once

namespace zqbchwcx::reference {

/// What a comparison leaves out. What is left out counts as equal.
struct CompareOptions {
    bool ignoreNames = false; ///< of modules and of the stations
    bool ignoreComments = false;
    bool ignoreAddresses = false;
    bool ignoreParameters = false;
    bool ignoreSubModules = false; ///< which ones there are, and all that they hold
    bool ignoreUsability = false;  ///< of places, and which racks are present
    bool ignoreLock = false;       ///< that a station may not be changed
};

} // namespace zqbchwcx::reference

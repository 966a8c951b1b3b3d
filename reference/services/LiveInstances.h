#pragma once

#include "zqbchwcx/platform/HostServices.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace zqbchwcx::reference {

/// Counts the objects of the library that live, so that a host can tell what it has not let go of.
class LiveInstances : public InstanceTracker {
public:
    std::int32_t Register(std::int32_t lCategory, std::string_view className) override;
    /// Throws VxError when no such object is registered.
    void Unregister(std::int32_t lCategory, std::string_view className, std::int32_t lInstanceId) override;

    std::size_t Count() const { return mcolInstances.size(); }
    /// Living objects by class name.
    std::map<std::string, std::size_t> CountByClass() const;

private:
    std::int32_t mlLastId = 0;
    std::map<std::int32_t, std::pair<std::int32_t, std::string>> mcolInstances; ///< category and class by id
};

} // namespace zqbchwcx::reference

#include "zqbchwcx/reference/services/LiveInstances.h"

#include "zqbchwcx/foundation/VxError.h"

namespace zqbchwcx::reference {

std::int32_t LiveInstances::Register(std::int32_t lCategory, std::string_view className)
{
    mcolInstances.emplace(++mlLastId, std::pair(lCategory, std::string(className)));
    return mlLastId;
}

void LiveInstances::Unregister(std::int32_t lCategory, std::string_view className, std::int32_t lInstanceId)
{
    const auto found = mcolInstances.find(lInstanceId);
    if (found == mcolInstances.end() || found->second != std::pair(lCategory, std::string(className)))
        throw VxError(vxErrorInvalidArgument, "There is no instance " + std::to_string(lInstanceId) + " of " +
                                                  std::string(className) + " in category " + std::to_string(lCategory));
    mcolInstances.erase(found);
}

std::map<std::string, std::size_t> LiveInstances::CountByClass() const
{
    std::map<std::string, std::size_t> counts;
    for (const auto& [id, instance] : mcolInstances) ++counts[instance.second];
    return counts;
}

} // namespace zqbchwcx::reference

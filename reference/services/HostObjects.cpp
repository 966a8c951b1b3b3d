#include "zqbchwcx/reference/services/HostObjects.h"

#include "zqbchwcx/foundation/mdl_VarConst.h"

#include <string_view>

namespace zqbchwcx::reference {
namespace {

/// Knows the host application and nothing else.
class ApplicationLookup : public ObjectLookup {
public:
    explicit ApplicationLookup(HostApplicationPtr application) : moApplication(std::move(application)) {}

    std::int32_t Status(std::string_view classId) override
    {
        constexpr std::int32_t available = 0;
        constexpr std::int32_t notRunning = 1;
        return moApplication && classId == G_ApplicationClassId ? available : notRunning;
    }

    HostApplicationPtr Object(std::string_view classId) override
    {
        return classId == G_ApplicationClassId ? moApplication : nullptr;
    }

private:
    HostApplicationPtr moApplication;
};

} // namespace

ObjectLookupPtr HostObjects::CreateObjectLookup()
{
    return std::make_shared<ApplicationLookup>(moApplication);
}

} // namespace zqbchwcx::reference

#include "tests/support/services/TestServices.h"

#include <utility>

namespace zqbchwcx::testing {

TestServices::TestServices(CallLogPtr oLog, std::shared_ptr<Toolkit> oToolkit)
    : log(std::move(oLog)), settings(std::make_shared<FakeSettingsReader>(log)),
      texts(std::make_shared<FakeTextManager>(log)), errors(std::make_shared<FakeErrorService>(log)),
      instances(std::make_shared<FakeInstanceTracker>(log)), objects(std::make_shared<FakeObjectFactory>(log)),
      model(std::make_shared<FakeModelFactory>(log))
{
    if (!oToolkit) {
        moMinimal = std::make_shared<MinimalToolkit>(log);
        oToolkit = moMinimal;
    }
    G_InstallServiceRoot([root = ServiceRoot{std::move(oToolkit), settings, texts, errors, instances, objects, model,
                                             "C:\\Library"}] { return root; });
}

TestServices::~TestServices()
{
    G_InstallServiceRoot(nullptr);
}

} // namespace zqbchwcx::testing

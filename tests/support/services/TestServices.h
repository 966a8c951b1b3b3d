#pragma once

#include "foundation/ServiceRoot.h"
#include "tests/support/model/FakeModelFactory.h"
#include "tests/support/services/FakeErrorService.h"
#include "tests/support/services/FakeInstanceTracker.h"
#include "tests/support/services/FakeObjectFactory.h"
#include "tests/support/services/FakeSettingsReader.h"
#include "tests/support/services/FakeTextManager.h"
#include "tests/support/services/MinimalToolkit.h"

#include <memory>

namespace zqbchwcx::testing {

/// Recording host services, installed as the library's service root for as long as the object lives. Create it before
/// any object of the library, and let it outlive them.
class TestServices {
public:
    /// Without a toolkit of the caller (made with the same log) there is the minimal one.
    explicit TestServices(CallLogPtr oLog = std::make_shared<CallLog>(), std::shared_ptr<Toolkit> oToolkit = nullptr);
    ~TestServices();
    TestServices(const TestServices&) = delete;
    TestServices& operator=(const TestServices&) = delete;

    /// The minimal toolkit; null when the caller gave one.
    MinimalToolkit* Minimal() const { return moMinimal.get(); }
    FaultPoints& Faults() const { return log->faults; }
    std::vector<std::string>& Lines() const { return log->lines; }

    CallLogPtr log;
    std::shared_ptr<FakeSettingsReader> settings;
    std::shared_ptr<FakeTextManager> texts;
    std::shared_ptr<FakeErrorService> errors;
    std::shared_ptr<FakeInstanceTracker> instances;
    std::shared_ptr<FakeObjectFactory> objects;
    std::shared_ptr<FakeModelFactory> model;

private:
    std::shared_ptr<MinimalToolkit> moMinimal;
};

} // namespace zqbchwcx::testing

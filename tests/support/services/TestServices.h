#pragma once

#include "tests/support/model/SampleModel.h"
#include "tests/support/services/FakeHost.h"
#include "tests/support/toolkit/RecordingToolkit.h"
#include "zqbchwcx/foundation/ServiceRoot.h"

namespace zqbchwcx::testing {

/// A recording host, installed as the library's service root for as long as the object lives. Create it before any
/// object of the library, and let it outlive them.
class TestServices {
public:
    /// With a toolkit of the caller, that one is installed instead of the recording one.
    explicit TestServices(const reference::ModelContextPtr& context = SampleContext(),
                          const std::shared_ptr<Toolkit>& oToolkit = nullptr)
        : host(std::make_shared<FakeHost>(log, context))
    {
        ServiceRoot services{oToolkit ? oToolkit : toolkit, host, host, host, host, host, host, "C:\\Library"};
        G_InstallServiceRoot([services] { return services; });
    }
    ~TestServices() { G_InstallServiceRoot(nullptr); }
    TestServices(const TestServices&) = delete;
    TestServices& operator=(const TestServices&) = delete;

    FaultPoints& Faults() const { return log->faults; }
    std::vector<std::string>& Lines() const { return log->lines; }

    CallLogPtr log = std::make_shared<CallLog>();
    std::shared_ptr<RecordingToolkit> toolkit = std::make_shared<RecordingToolkit>(log);
    std::shared_ptr<FakeHost> host;
};

} // namespace zqbchwcx::testing

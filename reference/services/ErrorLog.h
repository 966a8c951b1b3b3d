#pragma once

#include "zqbchwcx/foundation/Event.h"
#include "zqbchwcx/platform/HostServices.h"
#include "zqbchwcx/reference/services/UserActions.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <string_view>

namespace zqbchwcx::reference {

struct ErrorEntry {
    std::int32_t number = 0;
    std::string description;
    std::string source; ///< library, module and procedure, joined by points
    std::string helpFile;
    std::int32_t helpContext = 0;
};

/// Keeps what is reported, and passes user actions on.
class ErrorLog : public ErrorService {
public:
    /// The newest entries are kept; an error that repeats without end must not fill the memory.
    static constexpr std::size_t MostEntries = 1000;

    /// Who is told of user actions from now on; weak, null for nobody. An action that is open then is forgotten.
    void Actions(std::weak_ptr<UserActions> actions);

    void BeginUserAction(std::string_view displayText) override;
    /// Throws VxError when no action is open.
    void EndUserAction() override;
    bool IsInUserAction() const { return mnOpenActions > 0; }

    void LogError(std::int32_t lNumber, std::string_view description, std::string_view source,
                  std::string_view helpFile, std::int32_t lHelpContext) override;
    const std::deque<ErrorEntry>& Entries() const { return mcolEntries; }
    void Clear() { mcolEntries.clear(); }

    Event<const ErrorEntry&> EntryAdded;

private:
    std::weak_ptr<UserActions> moActions;
    std::size_t mnOpenActions = 0;
    std::deque<ErrorEntry> mcolEntries;
};

} // namespace zqbchwcx::reference

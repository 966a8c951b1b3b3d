#include "zqbchwcx/reference/services/ErrorLog.h"

#include "zqbchwcx/foundation/VxError.h"

#include <utility>

namespace zqbchwcx::reference {

void ErrorLog::Actions(std::weak_ptr<UserActions> actions)
{
    moActions = std::move(actions);
    mnOpenActions = 0;
}

void ErrorLog::BeginUserAction(std::string_view displayText)
{
    if (const auto actions = moActions.lock()) actions->BeginUserAction(displayText);
    ++mnOpenActions;
}

void ErrorLog::EndUserAction()
{
    if (mnOpenActions == 0) throw VxError(vxErrorInvalidArgument, "No user action is open that could end");
    --mnOpenActions;
    if (const auto actions = moActions.lock()) actions->EndUserAction();
}

void ErrorLog::LogError(std::int32_t lNumber, std::string_view description, std::string_view source,
                        std::string_view helpFile, std::int32_t lHelpContext)
{
    const ErrorEntry entry{lNumber, std::string(description), std::string(source), std::string(helpFile), lHelpContext};
    mcolEntries.push_back(entry);
    if (mcolEntries.size() > MostEntries) mcolEntries.pop_front();
    EntryAdded.Raise(entry);
}

} // namespace zqbchwcx::reference

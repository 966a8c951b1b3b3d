#include "zqbchwcx/foundation/Brackets.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/ServiceRoot.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/mdl_Main.h"

#include <utility>

namespace zqbchwcx {

WaitCursor::WaitCursor() noexcept
{
    G_DoWaitCursor(1);
}

WaitCursor::~WaitCursor()
{
    G_DoWaitCursor(-1);
}

UserAction::UserAction(std::string_view displayText, std::string_view className, std::string_view procedureName)
    : msClassName(className), msProcedureName(procedureName)
{
    G_ServiceRoot().errorService->BeginUserAction(displayText);
}

UserAction::~UserAction()
{
    G_Trap(msClassName, msProcedureName, [] { G_ServiceRoot().errorService->EndUserAction(); });
}

DrawingOff::DrawingOff(VxHWStationPtr oStation, std::string_view className, std::string_view procedureName)
    : moStation(std::move(oStation)), msClassName(className), msProcedureName(procedureName)
{
    G_Require(moStation, "The station")->IsDrawable(false);
}

DrawingOff::~DrawingOff()
{
    G_Trap(msClassName, msProcedureName, [&] { moStation->IsDrawable(true); });
}

} // namespace zqbchwcx

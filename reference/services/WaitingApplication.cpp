#include "zqbchwcx/reference/services/WaitingApplication.h"

namespace zqbchwcx::reference {

void WaitingApplication::DoWaitCursor(std::int32_t lCode)
{
    constexpr std::int32_t begin = 1;
    constexpr std::int32_t restore = 0;
    constexpr std::int32_t end = -1;
    if (lCode == begin && ++mlOpenWaits == 1) mShowWaitCursor(true);
    if (lCode == restore && mlOpenWaits > 0) mShowWaitCursor(true);
    if (lCode == end && mlOpenWaits > 0 && --mlOpenWaits == 0) mShowWaitCursor(false);
}

} // namespace zqbchwcx::reference

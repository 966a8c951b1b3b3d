#include "zqbchwcx/views/shared/CompareTexts.h"

#include "zqbchwcx/foundation/model/Enumerations.h"

namespace zqbchwcx::CompareTexts {

std::int32_t ResultText(std::int32_t lResult, std::int32_t lCompareType)
{
    const bool bKnownType = lCompareType >= 0 && lCompareType <= 2;
    switch (lResult) {
    case vxCompareEqual:
        return 6107;
    case vxComparePotentiallyEqual:
        return 6119;
    case vxCompareNoModule:
        if (!bKnownType) return 0;
        return lCompareType == 2 ? 6110 : 6109;
    case vxCompareOnlyOther:
        if (!bKnownType) return 0;
        return lCompareType == 0 ? 6110 : 6111;
    case vxCompareModuleDiffers:
    case vxCompareModuleDiffers2:
        return 6108;
    case vxCompareParametersDiffer:
    case vxCompareParametersDiffer2:
        return 6112;
    default:
        return 0;
    }
}

std::string_view ResultPicture(std::int32_t lResult)
{
    switch (lResult) {
    case vxCompareEqual:
        return "IDB_COMP_EQUAL";
    case vxComparePotentiallyEqual:
        return "IDB_COMP_POTEQUAL";
    case vxCompareNoModule:
    case vxCompareOnlyOther:
        return "IDB_COMP_NOMODULE";
    case vxCompareModuleDiffers:
    case vxCompareModuleDiffers2:
        return "IDB_COMP_MODULEDIFF";
    case vxCompareParametersDiffer:
    case vxCompareParametersDiffer2:
        return "IDB_COMP_PARAMDIFF";
    default:
        return {};
    }
}

} // namespace zqbchwcx::CompareTexts

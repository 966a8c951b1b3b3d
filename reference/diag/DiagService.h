#pragma once

#include "zqbchwcx/foundation/model/VxHWDiagService.h"
#include "zqbchwcx/reference/diag/PlantFinding.h"

#include <memory>
#include <vector>

namespace zqbchwcx::reference {

/// The diagnostics of a station as its plant tells them. A module that spans several places answers for all of them;
/// empty places, and racks that are not present, have nothing to tell. While the plant is not known, every module is
/// not accessible, so that nothing looks sound that may not be.
class DiagService : public VxHWDiagService {
public:
    DiagService(std::shared_ptr<const Plant> oPlant, std::shared_ptr<const Catalogue> oCatalogue);

    void Station(const VxHWStationPtr& oStation) override { moStation = oStation; }
    /// The state word's own, or for a controller without one that of the station.
    std::int32_t CpuState(const VxHWRackPlacePtr& oPlace) const override;
    /// Of the module or of one of its sub-modules.
    std::int32_t HasFailure(const VxHWRackPlacePtr& oPlace) const override;
    /// A module with a faulty sub-module reports a fault (category 2).
    bool HasDiagState(const VxHWRackPlacePtr& oPlace, std::int32_t lCategory) const override;
    bool HasDiagnosticInfo(const VxHWRackPlacePtr& oPlace, const VxHWModulePtr& oSubModule) const override;

    /// What there is to tell: about the sub-module, or when that is null about the module and all its sub-modules.
    std::vector<PlantFinding> Findings(const VxHWRackPlacePtr& oPlace, const VxHWModulePtr& oSubModule) const;
    /// Of the station's controller.
    std::vector<ComponentVersion> ComponentVersions() const { return moPlant->ComponentVersions(); }

private:
    std::shared_ptr<const Plant> moPlant;
    std::shared_ptr<const Catalogue> moCatalogue;
    VxHWStationPtr moStation;
};

} // namespace zqbchwcx::reference

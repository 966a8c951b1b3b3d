#pragma once

#include "app/window/StationView.h"
#include "zqbchwcx/managers/VxHWDiagManager.h"
#include "zqbchwcx/reference/diag/Plant.h"

#include <memory>

namespace quillon_ed {

class PlantSession;
class RackBadges;

/// A station in diagnostics mode. What the plant tells is drawn where it has changed.
class DiagnosticsView : public StationView {
    Q_OBJECT

public:
    /// The document and the session, whose plant fits it, outlive the view.
    DiagnosticsView(Document& document, PlantSession& session, QWidget* parent);
    ~DiagnosticsView() override;

    /// Reads the state of the plant anew and draws everything.
    void Refresh();
    void GoTo(zqbchwcx::reference::PlaceRef place);

private:
    void TakeChange(const zqbchwcx::reference::PlantChange& change);
    void RefreshPlaces(const std::vector<zqbchwcx::reference::PlantItem>& items);
    void RefreshAll();

    PlantSession& moSession;
    std::unique_ptr<zqbchwcx::VxHWDiagManager> moManager;
    std::shared_ptr<zqbchwcx::IVxHWControl> moPanel;
    std::unique_ptr<RackBadges> moBadges; ///< for a central station
    zqbchwcx::EventConnection moChanged;
};

} // namespace quillon_ed

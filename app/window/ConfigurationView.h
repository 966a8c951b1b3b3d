#pragma once

#include "app/window/StationView.h"
#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/managers/VxHWConfigManager.h"

#include <memory>

namespace quillon_ed {

class CellMessage;

/// A station in configuration mode.
class ConfigurationView : public StationView {
    Q_OBJECT

public:
    /// The document outlives the view.
    ConfigurationView(Document& document, QWidget* parent);
    ~ConfigurationView() override;

    zqbchwcx::VxHWConfigManager& Manager() { return *moManager; }
    const zqbchwcx::IVxHWDragDropControllerPtr& DragDropController() const { return moDragDropController; }
    /// During a drag, whose focus follows the mouse, the view from before the drag.
    zqbchwcx::reference::ViewState View() const override;

protected:
    /// Tells why keys and drags do nothing: a key would have changed a station that may not be changed, or a drag is
    /// over a place that does not take it.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class DragWatch;

    void WatchDrags();
    void TellDropTarget(bool bMove);
    void TellRefusedEdit(const QString& value, const QRect& cellOnScreen);

    std::unique_ptr<zqbchwcx::VxHWConfigManager> moManager;
    zqbchwcx::IVxHWDragDropControllerPtr moDragDropController;
    std::shared_ptr<DragWatch> moDragWatch;
    std::int32_t mlDropTold = zqbchwcx::vxNoPosition; ///< the position of a drag that was told of last
    CellMessage* moCellMessage;
    QString msRefusal; ///< why the model refused the last change
    zqbchwcx::EventConnection moRefused;
};

} // namespace quillon_ed

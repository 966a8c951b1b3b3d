#pragma once

#include "zqbchwcx/qt/OverviewWidget.h"

#include <memory>

namespace zqbchwcx {
class VxHWRackOverview;
}

namespace zqbchwcx::qt {

/// The overview of a central station. It needs 235 x 392 logical pixels.
class RackOverviewWidget : public OverviewWidget {
    Q_OBJECT
public:
    explicit RackOverviewWidget(QWidget* parent = nullptr);
    ~RackOverviewWidget() override;

    /// The view in the widget. It may be kept longer than the widget, but then draws nothing any more.
    std::shared_ptr<VxHWRackOverview> Control() const { return moView; }

private:
    void RetranslateUi() override;

    std::shared_ptr<VxHWRackOverview> moView;
};

} // namespace zqbchwcx::qt

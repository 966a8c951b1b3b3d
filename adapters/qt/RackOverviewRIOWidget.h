#pragma once

#include "zqbchwcx/qt/OverviewWidget.h"

#include <memory>

namespace zqbchwcx {
class VxHWRackOverviewRIO;
}

namespace zqbchwcx::qt {

/// The overview of a distributed station. It needs 230 x 414 logical pixels, and shows four rows of places; with more
/// rows it scrolls.
class RackOverviewRIOWidget : public OverviewWidget {
    Q_OBJECT
public:
    explicit RackOverviewRIOWidget(QWidget* parent = nullptr);
    ~RackOverviewRIOWidget() override;

    /// The view in the widget. It may be kept longer than the widget, but then draws nothing any more.
    std::shared_ptr<VxHWRackOverviewRIO> Control() const { return moView; }

private:
    void RetranslateUi() override;

    std::shared_ptr<VxHWRackOverviewRIO> moView;
};

} // namespace zqbchwcx::qt

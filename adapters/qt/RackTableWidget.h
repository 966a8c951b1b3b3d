#pragma once

#include "zqbchwcx/qt/TableWidget.h"

#include <memory>

namespace zqbchwcx {
class VxHWRackTable;
}

namespace zqbchwcx::qt {

/// The table of a central station. It is 206 logical pixels high and at least 384 wide.
class RackTableWidget : public TableWidget {
    Q_OBJECT
public:
    explicit RackTableWidget(QWidget* parent = nullptr);
    ~RackTableWidget() override;

    /// The view in the widget. It may be kept longer than the widget, but then shows nothing any more.
    std::shared_ptr<VxHWRackTable> Control() const { return moView; }

private:
    void RetranslateUi() override;

    std::shared_ptr<VxHWRackTable> moView;
};

} // namespace zqbchwcx::qt

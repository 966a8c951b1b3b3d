#pragma once

#include "zqbchwcx/qt/TableWidget.h"

#include <memory>

namespace zqbchwcx {
class VxHWRackTableRIO;
}

namespace zqbchwcx::qt {

/// The table of a distributed station. It is at least 384 x 200 logical pixels, and scrolls where it has more rows than
/// room.
class RackTableRIOWidget : public TableWidget {
    Q_OBJECT
public:
    explicit RackTableRIOWidget(QWidget* parent = nullptr);
    ~RackTableRIOWidget() override;

    /// The view in the widget. It may be kept longer than the widget, but then shows nothing any more.
    std::shared_ptr<VxHWRackTableRIO> Control() const { return moView; }

private:
    void RetranslateUi() override;

    std::shared_ptr<VxHWRackTableRIO> moView;
};

} // namespace zqbchwcx::qt

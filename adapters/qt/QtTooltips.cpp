#include "zqbchwcx/qt/QtTooltips.h"

#include "zqbchwcx/foundation/VxError.h"
#include "zqbchwcx/qt/PlainText.h"
#include "zqbchwcx/qt/WindowHandle.h"

#include <QHelpEvent>
#include <QPointer>
#include <QToolTip>

namespace zqbchwcx::qt {
namespace {

class Connection : public QObject, public TooltipConnection {
public:
    Connection(QWidget& widget, TooltipCallback& callback) : mWidget(&widget), mCallback(callback)
    {
        widget.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::ToolTip || watched != mWidget) return false;
        const auto& help = static_cast<const QHelpEvent&>(*event);
        const Tooltip tooltip = mCallback.GetTooltip({help.pos().x(), help.pos().y()});
        if (tooltip.text.empty()) {
            QToolTip::hideText();
            event->ignore();
        } else {
            const Rect& area = tooltip.area;
            QToolTip::showText(help.globalPos(), ToolTipText(QString::fromStdString(tooltip.text)), mWidget,
                               QRect(area.left, area.top, area.width(), area.height()));
        }
        return true;
    }

private:
    QPointer<QWidget> mWidget;
    TooltipCallback& mCallback;
};

} // namespace

TooltipConnectionPtr QtTooltips::Connect(std::intptr_t hWnd, TooltipCallback& callback)
{
    QWidget* widget = WidgetOf(hWnd);
    if (widget == nullptr) throw VxError(vxErrorNothing, "There is no window to show tooltips on");
    return std::make_unique<Connection>(*widget, callback);
}

} // namespace zqbchwcx::qt

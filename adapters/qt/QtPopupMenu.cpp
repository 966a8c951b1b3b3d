#include "zqbchwcx/qt/QtPopupMenu.h"

#include "zqbchwcx/foundation/VxError.h"
#include "zqbchwcx/qt/PlainText.h"

#include <QCursor>

#include <algorithm>

namespace zqbchwcx::qt {

QtPopupMenu::QtPopupMenu(QWidget& parent, const QString& name) : mMenu(new QMenu(&parent))
{
    mMenu->setObjectName(name);
}

QtPopupMenu::~QtPopupMenu()
{
    delete mMenu.data();
}

std::int32_t QtPopupMenu::Add(std::string_view name, std::string_view caption)
{
    if (!mMenu) throw VxError(vxErrorNothing, "The menu's window has ended");
    QAction* item = caption == "-" ? mMenu->addSeparator() : mMenu->addAction(ToQString(caption));
    item->setObjectName(ToQString(name));
    mcolItems.push_back(item);
    return static_cast<std::int32_t>(mcolItems.size()) - 1;
}

void QtPopupMenu::Caption(std::int32_t lItem, std::string_view caption)
{
    Item(lItem).setText(ToQString(caption));
}

bool QtPopupMenu::Enabled(std::int32_t lItem) const
{
    return Item(lItem).isEnabled();
}

void QtPopupMenu::Enabled(std::int32_t lItem, bool bEnabled)
{
    Item(lItem).setEnabled(bEnabled);
}

void QtPopupMenu::Show(std::optional<Point> at, std::optional<std::int32_t> lDefaultItem)
{
    if (!mMenu) return;
    mMenu->setDefaultAction(lDefaultItem ? &Item(*lDefaultItem) : nullptr);
    const QPoint corner = at ? mMenu->parentWidget()->mapToGlobal(QPoint(at->x, at->y)) : QCursor::pos();
    // What happens while it is open, and a command, may end everything, this menu included.
    const auto onClick = mOnClick;
    const auto items = mcolItems;
    const QAction* chosen = mMenu->exec(corner);
    const auto found = std::find(items.begin(), items.end(), chosen);
    if (chosen != nullptr && found != items.end() && onClick) onClick(static_cast<std::int32_t>(found - items.begin()));
}

QAction& QtPopupMenu::Item(std::int32_t lItem) const
{
    if (!mMenu || lItem < 0 || static_cast<std::size_t>(lItem) >= mcolItems.size())
        throw VxError(vxErrorSubscript, "The menu has no item " + std::to_string(lItem));
    return *mcolItems[static_cast<std::size_t>(lItem)];
}

} // namespace zqbchwcx::qt

#include "zqbchwcx/qt/AccessibleOverview.h"

#include "zqbchwcx/qt/ControlWidget.h"
#include "zqbchwcx/qt/PictureBoxWidget.h"
#include "zqbchwcx/qt/PlainText.h"
#include "zqbchwcx/qt/PositionText.h"
#include "zqbchwcx/views/overview/OverviewItems.h"

#include <QAccessibleWidget>
#include <QEvent>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace zqbchwcx::qt {
namespace {

using Positions = std::vector<std::int32_t>;

constexpr qsizetype LongestDetails = 400;
const QString Comma = QStringLiteral(", ");

/// What lies within something, as screen readers count it.
class ItemChildren {
public:
    ItemChildren() = default;
    ItemChildren(AccessibleOverview& overview, Positions positions)
        : mpOverview(&overview), mPositions(std::move(positions))
    {
    }

    int Count() const { return static_cast<int>(mPositions.size()); }
    QAccessibleInterface* At(int index) const
    {
        return index < 0 || index >= Count() ? nullptr
                                             : mpOverview->ItemAt(mPositions[static_cast<std::size_t>(index)]);
    }
    int IndexOf(std::int32_t lPosition) const
    {
        const auto found = std::find(mPositions.begin(), mPositions.end(), lPosition);
        return found == mPositions.end() ? -1 : static_cast<int>(found - mPositions.begin());
    }
    /// At a point of the screen; gaps lie on the places beside them.
    QAccessibleInterface* At(QPoint onScreen) const
    {
        QAccessibleInterface* found = nullptr;
        for (const std::int32_t lPosition : mPositions) {
            if (found != nullptr && G_PositionInfo(lPosition).eType != vxPositionGap) continue;
            QAccessibleInterface* child = mpOverview->ItemAt(lPosition);
            if (child->rect().contains(onScreen)) found = child;
        }
        return found;
    }

private:
    AccessibleOverview* mpOverview = nullptr;
    Positions mPositions;
};

/// The window of the whole view; the picture may lie in another one within it.
const QWidget& ControlOf(const PictureBoxWidget& box)
{
    const QWidget* control = box.parentWidget();
    while (const auto* outer = qobject_cast<const ControlWidget*>(control->parentWidget())) control = outer;
    return *control;
}

Positions RacksOf(const AccessibleOverview& overview)
{
    const auto items = overview.Items();
    return items ? items->Racks() : Positions();
}

/// A rack with its gaps and places, or one of these.
class AccessibleItem : public QAccessibleInterface {
public:
    AccessibleItem(AccessibleOverview& overview, std::int32_t lPosition) : mOverview(overview), mlPosition(lPosition) {}

    std::int32_t PositionShown() const { return mlPosition; }

    bool isValid() const override { return Item().what.position.eType != vxPositionNone; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return mOverview.Box().window()->windowHandle(); }
    QAccessibleInterface* parent() const override
    {
        if (!IsRack()) return mOverview.ItemAt(G_RackPosition(Position().lRack));
        return QAccessible::queryAccessibleInterface(&mOverview.Box());
    }
    int childCount() const override { return Children().Count(); }
    QAccessibleInterface* child(int index) const override { return Children().At(index); }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        const auto* item = dynamic_cast<const AccessibleItem*>(child);
        return item == nullptr ? -1 : Children().IndexOf(item->mlPosition);
    }
    QAccessibleInterface* childAt(int x, int y) const override { return Children().At(QPoint(x, y)); }
    QAccessibleInterface* focusChild() const override { return IsRack() ? mOverview.FocusedItem() : nullptr; }

    QAccessible::Role role() const override { return IsRack() ? QAccessible::List : QAccessible::ListItem; }
    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Name) return PositionTextsInRack(Item().what).join(Comma);
        const auto items = mOverview.Items();
        if (kind != QAccessible::Description || !items) return {};
        QString lines = ToQString(items->DetailsAt(mlPosition)).remove(u'\r');
        return PlainText(lines.replace(u'\n', Comma), LongestDetails);
    }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
    QRect rect() const override
    {
        const Rect rect = Item().rect;
        const QWidget& control = ControlOf(mOverview.Box());
        return {control.mapToGlobal(QPoint(rect.left, rect.top)), QSize(rect.width(), rect.height())};
    }
    QAccessible::State state() const override
    {
        const OverviewItem item = Item();
        QAccessible::State state;
        const PictureBoxWidget& box = mOverview.Box();
        state.invalid = item.what.position.eType == vxPositionNone;
        state.invisible = !box.isVisible();
        const QRect onScreen = rect();
        state.offscreen =
            !box.visibleRegion().intersects(QRect(box.mapFromGlobal(onScreen.topLeft()), onScreen.size()));
        state.focusable = true;
        state.focused = item.bFocused && box.hasFocus();
        state.multiSelectable = IsRack();
        state.selectable = item.what.position.eType == vxPositionPlace;
        state.selected = item.bSelected;
        return state;
    }

private:
    PositionInfo Position() const { return G_PositionInfo(mlPosition); }
    bool IsRack() const { return Position().eType == vxPositionRack; }
    OverviewItem Item() const
    {
        const auto items = mOverview.Items();
        return items ? items->At(mlPosition) : OverviewItem();
    }
    ItemChildren Children() const
    {
        const auto items = mOverview.Items();
        return IsRack() && items ? ItemChildren(mOverview, items->InRack(Position().lRack)) : ItemChildren();
    }

    AccessibleOverview& mOverview;
    std::int32_t mlPosition;
};

/// The window that shows the picture.
class AccessiblePicture : public QAccessibleWidget {
public:
    explicit AccessiblePicture(AccessibleOverview& overview)
        : QAccessibleWidget(&overview.Box(), QAccessible::Grouping), mOverview(&overview)
    {
    }

    int childCount() const override { return Racks().Count(); }
    QAccessibleInterface* child(int index) const override { return Racks().At(index); }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        const auto* item = dynamic_cast<const AccessibleItem*>(child);
        return item == nullptr ? -1 : Racks().IndexOf(item->PositionShown());
    }
    QAccessibleInterface* childAt(int x, int y) const override { return Racks().At(QPoint(x, y)); }
    QAccessibleInterface* focusChild() const override { return mOverview ? mOverview->FocusedItem() : nullptr; }

private:
    ItemChildren Racks() const { return mOverview ? ItemChildren(*mOverview, RacksOf(*mOverview)) : ItemChildren(); }

    QPointer<AccessibleOverview> mOverview;
};

/// The window of a view, without what only decorates it: frames, arrows and other pictures that take no input.
class AccessibleControl : public QAccessibleWidget {
public:
    explicit AccessibleControl(QWidget& control) : QAccessibleWidget(&control, QAccessible::Client) {}

    int childCount() const override { return static_cast<int>(Children().size()); }
    QAccessibleInterface* child(int index) const override
    {
        return QAccessible::queryAccessibleInterface(Children().value(index));
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        return static_cast<int>(Children().indexOf(qobject_cast<QWidget*>(child->object())));
    }
    QAccessibleInterface* childAt(int x, int y) const override
    {
        for (QWidget* child : Children())
            if (child->isVisible() && child->rect().contains(child->mapFromGlobal(QPoint(x, y))))
                return QAccessible::queryAccessibleInterface(child);
        return nullptr;
    }

private:
    QList<QWidget*> Children() const
    {
        auto children = widget()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        children.removeIf([](const QWidget* child) {
            return child->isWindow() || child->testAttribute(Qt::WA_TransparentForMouseEvents);
        });
        return children;
    }
};

QAccessibleInterface* MakeInterface(const QString& /*className*/, QObject* object)
{
    if (const auto* box = qobject_cast<PictureBoxWidget*>(object)) {
        auto* overview = box->findChild<AccessibleOverview*>(QString(), Qt::FindDirectChildrenOnly);
        return overview == nullptr ? nullptr : new AccessiblePicture(*overview);
    }
    auto* control = qobject_cast<ControlWidget*>(object);
    return control == nullptr ? nullptr : new AccessibleControl(*control);
}

void Send(QAccessibleInterface* about, QAccessible::Event kind)
{
    QAccessibleEvent event(about, kind);
    QAccessible::updateAccessibility(&event);
}

} // namespace

AccessibleOverview::AccessibleOverview(PictureBoxWidget& box, std::weak_ptr<const OverviewItems> items)
    : QObject(&box), mBox(box), mItems(std::move(items)), mlFocus(vxNoPosition)
{
    // Once for all overviews; what is no view's window gets none of these.
    [[maybe_unused]] static const bool bInstalled = (QAccessible::installFactory(MakeInterface), true);
    box.installEventFilter(this);
    // A screen reader that asked earlier, while the view was being made, was given a window without places.
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(QAccessible::queryAccessibleInterface(&box)));
}

AccessibleOverview::~AccessibleOverview()
{
    for (const auto& [lPosition, id] : mIds) QAccessible::deleteAccessibleInterface(id);
}

QAccessibleInterface* AccessibleOverview::ItemAt(std::int32_t lPosition)
{
    const auto known = mIds.find(lPosition);
    if (known != mIds.end()) return QAccessible::accessibleInterface(known->second);
    auto* item = new AccessibleItem(*this, lPosition);
    mIds[lPosition] = QAccessible::registerAccessibleInterface(item);
    mNames[lPosition] = item->text(QAccessible::Name);
    return item;
}

QAccessibleInterface* AccessibleOverview::FocusedItem()
{
    const auto items = Items();
    if (!items || !mBox.hasFocus()) return nullptr;
    const std::int32_t lFocus = items->FocusPosition();
    return items->At(lFocus).bFocused ? ItemAt(lFocus) : nullptr;
}

bool AccessibleOverview::eventFilter(QObject* /*watched*/, QEvent* event)
{
    // The window says itself that it has the keyboard; where in it that is comes after.
    if (event->type() == QEvent::FocusIn) {
        mlFocus = vxNoPosition;
        Changed();
    }
    return false;
}

void AccessibleOverview::Changed()
{
    if (!QAccessible::isActive() || std::exchange(mbTellPosted, true)) return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            mbTellPosted = false;
            Tell();
        },
        Qt::QueuedConnection);
}

void AccessibleOverview::Tell()
{
    const auto items = Items();
    if (!items) return;
    auto racks = items->Racks();
    if (std::exchange(mRacks, racks) != racks)
        Send(QAccessible::queryAccessibleInterface(&mBox), QAccessible::ObjectReorder);
    TellNames();
    TellSelection(*items);
    QAccessibleInterface* focused = FocusedItem();
    const std::int32_t lFocus = focused == nullptr ? vxNoPosition : items->FocusPosition();
    if (std::exchange(mlFocus, lFocus) != lFocus && focused != nullptr) Send(focused, QAccessible::Focus);
}

void AccessibleOverview::TellNames()
{
    for (auto& [lPosition, told] : mNames) {
        QAccessibleInterface* item = ItemAt(lPosition);
        const QString name = item->text(QAccessible::Name);
        if (std::exchange(told, name) != name) Send(item, QAccessible::NameChanged);
    }
}

void AccessibleOverview::TellSelection(const OverviewItems& items)
{
    std::set<std::int32_t> selected;
    for (const std::int32_t lRack : mRacks)
        for (const std::int32_t lPosition : items.InRack(G_PositionInfo(lRack).lRack))
            if (items.IsSelected(lPosition)) selected.insert(lPosition);
    const auto before = std::exchange(mSelected, selected);
    for (const std::int32_t lPosition : before)
        if (!selected.contains(lPosition)) Send(ItemAt(lPosition), QAccessible::SelectionRemove);
    for (const std::int32_t lPosition : selected)
        if (!before.contains(lPosition)) Send(ItemAt(lPosition), QAccessible::SelectionAdd);
}

} // namespace zqbchwcx::qt

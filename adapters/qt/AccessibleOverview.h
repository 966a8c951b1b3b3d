#pragma once

#include <QObject>

#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <vector>

class QAccessibleInterface;

namespace zqbchwcx {
class OverviewItems;
}

namespace zqbchwcx::qt {

class PictureBoxWidget;

/// Lets screen readers see the racks, gaps and places of an overview, which are one picture in one window to everybody
/// else, and tells them when the focus, the selection or what is shown changes.
class AccessibleOverview : public QObject {
    Q_OBJECT
public:
    /// Belongs to the picture box, and is made before anybody asks what the box is. The items may end before it.
    AccessibleOverview(PictureBoxWidget& box, std::weak_ptr<const OverviewItems> items);
    ~AccessibleOverview() override;

    /// Something may have changed: what did is told as soon as the program waits.
    void Changed();

    // For the interfaces that screen readers are given.
    PictureBoxWidget& Box() const { return mBox; }
    /// Null when the view has ended.
    std::shared_ptr<const OverviewItems> Items() const { return mItems.lock(); }
    /// The rack, gap or place; it ends with this object.
    QAccessibleInterface* ItemAt(std::int32_t lPosition);
    /// What has the keyboard; null when that is elsewhere.
    QAccessibleInterface* FocusedItem();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Tell();
    void TellNames();
    void TellSelection(const OverviewItems& items);

    PictureBoxWidget& mBox;
    std::weak_ptr<const OverviewItems> mItems;
    std::map<std::int32_t, unsigned int> mIds; ///< of the interfaces that were given
    bool mbTellPosted = false;

    // What screen readers know.
    std::vector<std::int32_t> mRacks;
    std::set<std::int32_t> mSelected;
    std::map<std::int32_t, QString> mNames;
    std::int32_t mlFocus;
};

} // namespace zqbchwcx::qt

#pragma once

#include <QObject>

#include <cstdint>
#include <map>
#include <memory>

class QLabel;
class QWidget;

namespace zqbchwcx {
class OverviewControl;
}

namespace quillon_ed {

class PlantSession;

/// How many modules of a rack are not sound, at the number of the rack in the overview.
class RackBadges : public QObject {
    Q_OBJECT

public:
    /// The widget is the overview's; it and the session outlive the badges.
    RackBadges(std::shared_ptr<const zqbchwcx::OverviewControl> overview, QWidget& widget, const PlantSession& session);
    ~RackBadges() override;

    void Update();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLabel& BadgeOf(std::int32_t lRack);

    std::shared_ptr<const zqbchwcx::OverviewControl> moOverview;
    QWidget& moWidget;
    const PlantSession& moSession;
    std::map<std::int32_t, std::unique_ptr<QLabel>> mcolBadges;
};

} // namespace quillon_ed

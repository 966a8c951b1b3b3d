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

    /// The racks whose count has changed.
    void Update();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Badge {
        std::unique_ptr<QLabel> label;
        std::int32_t lShown = -1; ///< none yet
    };

    /// All of them, where their racks are now.
    void Arrange();
    void Show(std::int32_t lRack, QLabel& label, std::int32_t lFaulty) const;

    std::shared_ptr<const zqbchwcx::OverviewControl> moOverview;
    QWidget& moWidget;
    const PlantSession& moSession;
    std::map<std::int32_t, Badge> mcolBadges; ///< by the number of the rack
};

} // namespace quillon_ed

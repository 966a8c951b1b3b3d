#include "app/window/RackBadges.h"

#include "app/plant/PlantSession.h"
#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/foundation/mdl_Main.h"
#include "zqbchwcx/views/overview/OverviewControl.h"

#include <QEvent>
#include <QLabel>

#include <algorithm>
#include <utility>

namespace quillon_ed {

using namespace zqbchwcx;

namespace {

constexpr int Height = 15;
constexpr int HalfNumber = 7; ///< of the width of a rack's number

} // namespace

RackBadges::RackBadges(std::shared_ptr<const OverviewControl> overview, QWidget& widget, const PlantSession& session)
    : moOverview(std::move(overview)), moWidget(widget), moSession(session)
{
    moWidget.installEventFilter(this);
    Update();
}

RackBadges::~RackBadges() = default;

bool RackBadges::eventFilter(QObject* watched, QEvent* event)
{
    // The picture keeps to the lower edge, and the words follow the language.
    if (event->type() == QEvent::Resize || event->type() == QEvent::LanguageChange)
        QMetaObject::invokeMethod(this, &RackBadges::Update, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

void RackBadges::Update()
{
    for (const std::int32_t lPosition : moOverview->Items().Racks()) {
        const std::int32_t lRack = G_PositionInfo(lPosition).lRack;
        const std::int32_t lFaulty = moSession.Faults().FaultyModules(lRack);
        QLabel& badge = BadgeOf(lRack);
        badge.setVisible(lFaulty > 0);
        if (lFaulty == 0) continue;
        badge.setText(QString::number(lFaulty));
        badge.setToolTip(tr("%n module(s) of rack %1 not in order", nullptr, lFaulty).arg(lRack));
        badge.setAccessibleName(badge.toolTip());
        // The item begins at the number.
        const Rect rack = moOverview->Items().At(lPosition).rect;
        const int width = std::max(badge.sizeHint().width(), Height);
        badge.setGeometry(std::max(rack.left - HalfNumber - width, 0), rack.top, width, Height);
    }
}

QLabel& RackBadges::BadgeOf(std::int32_t lRack)
{
    auto& badge = mcolBadges[lRack];
    if (!badge) {
        badge = std::make_unique<QLabel>(&moWidget);
        badge->setObjectName(QStringLiteral("rackBadge"));
        badge->setAlignment(Qt::AlignCenter);
        badge->setStyleSheet(QStringLiteral(
            "QLabel#rackBadge { color: white; background: #a4262c; border-radius: 7px; padding: 0 3px; }"));
    }
    return *badge;
}

} // namespace quillon_ed

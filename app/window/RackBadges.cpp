#include "app/window/RackBadges.h"

#include "app/plant/PlantSession.h"
#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/foundation/mdl_Main.h"
#include "zqbchwcx/views/overview/OverviewControl.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace quillon_ed {

using namespace zqbchwcx;

namespace {

constexpr int Height = 15;
constexpr int Inset = 3;      ///< beside the number
constexpr int HalfNumber = 7; ///< of the width of a rack's number

/// A number on a round ground. A style sheet would cost more than all the rest of a change.
class BadgeLabel : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0xa4, 0x26, 0x2c));
        painter.drawRoundedRect(rect(), Height / 2.0, Height / 2.0);
        painter.setPen(Qt::white);
        painter.drawText(rect(), Qt::AlignCenter, text());
    }
};

} // namespace

RackBadges::RackBadges(std::shared_ptr<const OverviewControl> overview, QWidget& widget, const PlantSession& session)
    : moOverview(std::move(overview)), moWidget(widget), moSession(session)
{
    moWidget.installEventFilter(this);
    Arrange();
}

RackBadges::~RackBadges() = default;

bool RackBadges::eventFilter(QObject* watched, QEvent* event)
{
    // The picture keeps to the lower edge, and the words follow the language.
    if (event->type() == QEvent::Resize || event->type() == QEvent::LanguageChange)
        QMetaObject::invokeMethod(this, &RackBadges::Arrange, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

void RackBadges::Arrange()
{
    for (const std::int32_t lPosition : moOverview->Items().Racks()) {
        Badge& badge = mcolBadges[G_PositionInfo(lPosition).lRack];
        if (!badge.label) {
            badge.label = std::make_unique<BadgeLabel>(&moWidget);
            badge.label->setObjectName(QStringLiteral("rackBadge"));
            badge.label->setContentsMargins(Inset, 0, Inset, 0);
        }
        badge.lShown = -1;
    }
    Update();
}

void RackBadges::Update()
{
    for (auto& [lRack, badge] : mcolBadges) {
        const std::int32_t lFaulty = moSession.Faults().FaultyModules(lRack);
        if (std::exchange(badge.lShown, lFaulty) != lFaulty) Show(lRack, *badge.label, lFaulty);
    }
}

void RackBadges::Show(std::int32_t lRack, QLabel& label, std::int32_t lFaulty) const
{
    label.setVisible(lFaulty > 0);
    if (lFaulty == 0) return;
    label.setText(QString::number(lFaulty));
    label.setToolTip(tr("%n module(s) of rack %1 not in order", nullptr, lFaulty).arg(lRack));
    label.setAccessibleName(label.toolTip());
    // The item begins at the number.
    const Rect rack = moOverview->Items().At(G_RackPosition(lRack)).rect;
    const int width = std::max(label.sizeHint().width(), Height);
    label.setGeometry(std::max(rack.left - HalfNumber - width, 0), rack.top, width, Height);
}

} // namespace quillon_ed

#include "zqbchwcx/qt/GridHeader.h"

#include "zqbchwcx/qt/GridModel.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace zqbchwcx::qt {

GridHeader::GridHeader(const GridDelegate& delegate, QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent), mDelegate(delegate)
{
    setSectionsMovable(true);
    setFirstSectionMovable(true);
    setSectionsClickable(false);
    setHighlightSections(false);
    setSectionResizeMode(QHeaderView::Interactive);
    setMinimumSectionSize(SmallestWidth);
    setContextMenuPolicy(Qt::PreventContextMenu);
    viewport()->setMouseTracking(true);
    connect(this, &QHeaderView::sectionResized, this,
            [this](int logicalIndex, int /*oldSize*/, int newSize) { Resized(logicalIndex, newSize); });
    connect(this, &QHeaderView::sectionMoved, this, [this] {
        mbChanged = mbChanged || mbByUser;
        Fit();
    });
}

void GridHeader::Fit()
{
    if (model() == nullptr || count() == 0 || std::exchange(mbFitting, true)) return;
    const auto& content = static_cast<const GridModel*>(model())->Content();
    std::vector<std::int32_t> wanted;
    for (int visual = 0; visual < count(); ++visual) wanted.push_back(content.Column(logicalIndex(visual) + 1).lWidth);
    const auto widths = FittedWidths(wanted, viewport()->width(), SmallestWidth);
    for (int visual = 0; visual < count(); ++visual)
        resizeSection(logicalIndex(visual), widths[static_cast<std::size_t>(visual)]);
    mbFitting = false;
}

std::vector<std::int32_t> GridHeader::Order() const
{
    std::vector<std::int32_t> order;
    for (int visual = 0; visual < count(); ++visual) order.push_back(logicalIndex(visual) + 1);
    return order;
}

void GridHeader::Order(const std::vector<std::int32_t>& order)
{
    const auto before = Order();
    if (!std::is_permutation(order.begin(), order.end(), before.begin(), before.end())) return;
    for (int visual = 0; visual < count(); ++visual)
        moveSection(visualIndex(order[static_cast<std::size_t>(visual)] - 1), visual);
}

std::pair<int, int> GridHeader::Extent(std::int32_t lColumn) const
{
    return {sectionViewportPosition(lColumn - 1), sectionSize(lColumn - 1)};
}

void GridHeader::Resized(int logicalIndex, int newSize)
{
    if (mbFitting || !mbByUser) return;
    // No wider than the others leave room for: nothing is ever out of sight.
    const int last = this->logicalIndex(count() - 1);
    int room = viewport()->width();
    for (int other = 0; other < count(); ++other)
        if (other != logicalIndex && other != last) room -= sectionSize(other);
    const int size = std::clamp(newSize, SmallestWidth, std::max(room - SmallestWidth, SmallestWidth));
    mbChanged = true;
    emit userResized(logicalIndex + 1, size);
    // What is taken from the last column is meant to be taken.
    if (last != logicalIndex && room - size < LastColumnClaim) emit userResized(last + 1, room - size);
    Fit();
}

void GridHeader::Hover(int logicalIndex)
{
    if (std::exchange(mHovered, logicalIndex) != logicalIndex) viewport()->update();
}

void GridHeader::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const
{
    const auto& content = static_cast<const GridModel*>(model())->Content();
    mDelegate.PaintHeader(*painter, rect, content.Column(logicalIndex + 1), logicalIndex == mHovered);
}

void GridHeader::paintEvent(QPaintEvent* event)
{
    if (count() > 0) return QHeaderView::paintEvent(event);
    QPainter painter(viewport());
    mDelegate.PaintHeader(painter, viewport()->rect(), {}, false);
}

void GridHeader::mousePressEvent(QMouseEvent* event)
{
    mbByUser = true;
    QHeaderView::mousePressEvent(event);
}

void GridHeader::mouseReleaseEvent(QMouseEvent* event)
{
    QHeaderView::mouseReleaseEvent(event);
    mbByUser = false;
    if (std::exchange(mbChanged, false)) emit userChanged();
}

void GridHeader::mouseMoveEvent(QMouseEvent* event)
{
    QHeaderView::mouseMoveEvent(event);
    Hover(event->buttons() == Qt::NoButton ? logicalIndexAt(event->position().toPoint()) : mHovered);
}

void GridHeader::mouseDoubleClickEvent(QMouseEvent* event)
{
    mbByUser = true;
    QHeaderView::mouseDoubleClickEvent(event);
}

bool GridHeader::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::Leave) Hover(-1);
    if (event->type() == QEvent::Resize) {
        const bool bHandled = QHeaderView::viewportEvent(event);
        Fit();
        return bHandled;
    }
    return QHeaderView::viewportEvent(event);
}

} // namespace zqbchwcx::qt

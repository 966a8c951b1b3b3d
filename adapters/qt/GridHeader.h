#pragma once

#include "zqbchwcx/qt/GridDelegate.h"

#include <QHeaderView>

#include <functional>

namespace zqbchwcx::qt {

/// The header of a grid: its columns can be moved and resized. Columns count from 1.
class GridHeader : public QHeaderView {
    Q_OBJECT
public:
    /// The delegate outlives the header.
    GridHeader(const GridDelegate& delegate, QWidget* parent);

    /// Shows the columns as wide as they are wanted, as far as the room goes.
    void Fit();
    std::vector<std::int32_t> Order() const;
    void Order(const std::vector<std::int32_t>& order);
    /// Left edge and width of a column, logical pixels.
    std::pair<int, int> Extent(std::int32_t lColumn) const;

    static constexpr int SmallestWidth = 16;

signals:
    /// The user made the column that wide.
    void userResized(std::int32_t lColumn, std::int32_t lWidth);
    /// The user is done with a change of widths or of the order.
    void userChanged();

protected:
    void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    void Resized(int logicalIndex, int newSize);
    void Hover(int logicalIndex);

    const GridDelegate& mDelegate;
    bool mbFitting = false;
    bool mbByUser = false; ///< the mouse works on the columns
    bool mbChanged = false;
    int mHovered = -1;
};

} // namespace zqbchwcx::qt

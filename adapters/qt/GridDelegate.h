#pragma once

#include "zqbchwcx/qt/GridColors.h"
#include "zqbchwcx/qt/GridContent.h"
#include "zqbchwcx/qt/PixelGrid.h"
#include "zqbchwcx/qt/TextLines.h"

#include <QAbstractItemDelegate>
#include <QFont>

namespace zqbchwcx::qt {

/// What is special about cells while the user works on the grid; row 0 for no such cell.
struct GridMarks {
    GridCell current;
    bool bFocus = false; ///< the keyboard is at the current cell
    GridCell hovered;
    GridCell pressed; ///< a push-button that is held down
};

/// Draws the cells and the header of a grid, crisp at every device pixel ratio.
class GridDelegate : public QAbstractItemDelegate {
    Q_OBJECT
public:
    using QAbstractItemDelegate::QAbstractItemDelegate;

    void Font(const QFont& font) { mFont = font; }
    const QFont& Font() const { return mFont; }
    GridMarks& Marks() { return mMarks; }
    GridColors& Colors() { return mColors; }
    /// The logical width of a cell that shows all of the text.
    int WidthFor(const QString& text) const;
    /// Whether the text is wider than what the cell, of that logical width, shows of it.
    bool IsCutOff(const QString& text, int cellWidth) const;

    /// The index is one of a `GridModel`.
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void PaintHeader(QPainter& painter, const QRect& rect, const GridColumn& column, bool bHovered) const;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    /// Between the edge of a cell and its text, in logical pixels.
    static constexpr int Padding = 4;

private:
    class Painting;

    /// What is remembered while painting.
    mutable GridColors mColors;
    mutable TextLines mTexts;
    QFont mFont;
    GridMarks mMarks;
};

} // namespace zqbchwcx::qt

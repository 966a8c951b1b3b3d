#pragma once

#include "zqbchwcx/controllers/interfaces/IVxHWControl.h"
#include "zqbchwcx/foundation/Event.h"

#include <QWidget>

#include <memory>
#include <vector>

class QLabel;
class QScrollArea;
class QScrollBar;

namespace quillon_ed {

class Document;

/// The overview of a station with the table beside it, whatever the mode. A manager connects both. A central station
/// that is larger than these has no table; whoever shows it puts something else in its place.
class StationViews : public QWidget {
    Q_OBJECT

public:
    /// The document outlives the views.
    StationViews(Document& document, QWidget* parent);

    const std::shared_ptr<zqbchwcx::IVxHWControl>& Overview() const { return moOverview; }
    /// A view that shows nothing where there is no table.
    const std::shared_ptr<zqbchwcx::IVxHWControl>& Table() const { return moTable; }
    QWidget* OverviewWidget() const { return moOverviewWidget; }
    bool HasTable() const { return mbHasTable; }
    /// Lays the views out, with `instead` where there is no table, and `below` beneath what is beside the overview
    /// (either may be null). Once, when they are connected.
    void LayOut(QWidget* instead, QWidget* below);
    void FocusOverview();
    /// How many pixels more the views need to be seen side by side as a whole; 0 for none.
    int LackingWidth() const;
    /// How far each bar is scrolled, for other views of the same station.
    std::vector<int> Scrolled() const;
    void ScrollTo(const std::vector<int>& values);

protected:
    void changeEvent(QEvent* event) override;

signals:
    /// The model did not take what was typed into the cell.
    void editRefused(const QString& value, const QRect& cellOnScreen);

private:
    QWidget* MakeLeftSide();
    QWidget* MakeTable();
    template <class Widget>
    QWidget* UseOverview(Widget* widget);
    template <class Widget>
    QWidget* UseTable(Widget* widget);
    /// Where the table scrolls, the overview's arrow goes with its rows.
    void CoupleRows();
    void TellPartShown();
    std::vector<QScrollBar*> Bars() const;

    Document& moDocument;
    const bool mbHasTable;
    std::shared_ptr<zqbchwcx::IVxHWControl> moOverview;
    std::shared_ptr<zqbchwcx::IVxHWControl> moTable;
    QWidget* moOverviewWidget = nullptr;
    QWidget* moLeft = nullptr;
    QWidget* moTableWidget = nullptr;
    QScrollArea* moScroll = nullptr; ///< where there is a table
    QLabel* moPartShown = nullptr;   ///< below a picture that is not whole
    std::vector<zqbchwcx::EventConnection> mcolConnections;
};

} // namespace quillon_ed

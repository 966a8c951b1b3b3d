#pragma once

#include "tests/qt/EventRecorder.h"
#include "zqbchwcx/qt/ControlWidget.h"
#include "zqbchwcx/qt/GridWidget.h"
#include "zqbchwcx/qt/QtToolkit.h"
#include "zqbchwcx/qt/QtUserControl.h"
#include "zqbchwcx/qt/TabStripWidget.h"

namespace zqbchwcx::testing {

/// Keeps every event of a grid and of a tab strip as a line. The mouse merely moving leaves none.
class GridRecorder : public GridEvents, public TabStripEvents {
public:
    bool OnStartEditing(GridCell cell) noexcept override { return Note("start " + At(cell)), !bRefuses; }
    void OnEndEditing(GridCell cell) noexcept override { Note("end " + At(cell)); }
    bool OnKeyDown(std::int16_t nKeyCode, std::int16_t nShift) noexcept override
    {
        Note("key " + std::to_string(nKeyCode) + " " + std::to_string(nShift));
        return nKeyCode == nConsumed;
    }
    void OnKeyUp(std::int16_t /*nKeyCode*/, std::int16_t /*nShift*/) noexcept override {}
    bool OnCharacters(std::string_view text) noexcept override { return Note("text " + std::string(text)), true; }
    void OnMouseDown(const GridMouse& mouse) noexcept override
    {
        Note("down " + At(mouse));
        if (onDown) onDown(mouse);
    }
    void OnMouseUp(const GridMouse& mouse) noexcept override { Note("up " + At(mouse)); }
    void OnMouseMoveOver(const GridMouse& /*mouse*/) noexcept override {}
    void OnMouseDblClk(const GridMouse& mouse) noexcept override { Note("double " + At(mouse)); }
    void OnClickedButton(GridCell cell) noexcept override { Note("button " + At(cell)); }
    std::string OnDisplayTooltip(GridCell cell) noexcept override { return cell.lRow == 1 ? "<i>state</i>" : ""; }
    void OnTopRowChanged() noexcept override { Note("top"); }
    void OnColumnsChanged() noexcept override { Note("columns"); }
    void OnResetColumns() noexcept override { Note("reset"); }
    void OLEStartDrag(const DataObjectPtr&, std::int32_t&) noexcept override { Note("drag"); }
    void OLESetData(const DataObjectPtr&, std::int16_t) noexcept override {}
    void OLEDragOver(const DataObjectPtr&, std::int32_t& lEffect, const GridMouse& mouse,
                     std::int16_t n) noexcept override
    {
        Note("over " + At(mouse) + " " + std::to_string(n));
        lEffect = vxDropEffectCopy;
    }
    void OLEDragDrop(const DataObjectPtr&, std::int32_t&, const GridMouse& mouse) noexcept override
    {
        Note("drop " + At(mouse));
    }
    void OLECompleteDrag(std::int32_t& lEffect) noexcept override { Note("complete " + std::to_string(lEffect)); }

    void TabClick(std::int32_t lTab) noexcept override { Note("click " + std::to_string(lTab)); }
    void TabHover(std::int32_t lTab) noexcept override { Note("hover " + std::to_string(lTab)); }
    void TabDragHover(std::int32_t lTab) noexcept override { Note("drag hover " + std::to_string(lTab)); }

    Lines Take() { return std::exchange(lines, {}); }

    Lines lines;
    bool bRefuses = false;       ///< to start editing
    std::int16_t nConsumed = -1; ///< the key that the grid is not to use
    std::function<void(const GridMouse&)> onDown;

private:
    static std::string At(GridCell cell) { return std::to_string(cell.lRow) + "/" + std::to_string(cell.lColumn); }
    static std::string At(const GridMouse& mouse)
    {
        return std::to_string(mouse.nButton) + " " + std::to_string(mouse.at.x) + "," + std::to_string(mouse.at.y);
    }
    void Note(std::string line) { lines.push_back(std::move(line)); }
};

/// A grid of eleven rows below a tab strip, as a table of racks has it: with cells of every kind.
class GridStage {
public:
    explicit GridStage(double points = 8.25);
    ~GridStage();
    GridStage(const GridStage&) = delete;
    GridStage& operator=(const GridStage&) = delete;

    qt::GridWidget& Window() { return *control.findChild<qt::GridWidget*>("vxgrd_Main"); }
    qt::TabStripWidget& Tabs() { return *control.findChild<qt::TabStripWidget*>("vxtab_Main"); }
    QWidget* Cells() { return Window().viewport(); }
    /// The middle of the cell in the window that holds the cells.
    QPoint Middle(GridCell cell);
    void ShowActive();
    QImage Picture(double ratio);

    qt::QtToolkit toolkit;
    GridRecorder events;
    EventRecorder siteEvents;
    QWidget window;
    qt::ControlWidget control{&window, qt::ControlWidget::Backdrop::Own};
    qt::QtUserControl site{control};
    TabStripPtr tabs;
    GridPtr grid;
};

} // namespace zqbchwcx::testing

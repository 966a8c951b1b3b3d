#include "tests/qt/GridStage.h"

#include <QApplication>

namespace zqbchwcx::testing {
namespace {

constexpr const char* Rows[11][6] = {
    {"1", "PS 307 5A", "QX4 100-1AA00", "", "", ""},
    {"2", "CPU 214", "QX4 214-2BD23", "", "", "Mixer"},
    {"3", "IM 360", "QX4 360-3AA01", "", "", ""},
    {"4", "DI 32 x DC 24 V", "QX4 321-1BL00", "0.0 - 3.7", "", "Limit switches, conveyor belt and gate"},
    {"5", "FM 450", "QX4 450-1AP01", "Sub-modules", "", "Counter & scale"},
    {"6", "AI 8", "QX4 331-7KF02", "288 - 303", "", ""},
    {"7", "DO 32 span", "QX4 322-1BL00", "", "4.0 - 7.7", ""},
    {"8", "(DO 32)", "", "", "", ""},
    {"9", "", "", "", "", ""},
    {"10", "", "", "", "", ""},
    {"11", "", "", "", "", ""},
};

void Fill(Grid& grid)
{
    constexpr const char* Captions[] = {"Place", "Module", "Order no.", "Inputs", "Outputs", "Comment"};
    constexpr std::int32_t Widths[] = {32, 78, 93, 59, 59, 0};
    for (const char* caption : Captions) grid.ColumnKey(grid.AddColumn(caption), caption);
    for (std::int32_t lColumn = 1; lColumn < 6; ++lColumn) grid.ColumnWidth(lColumn, Widths[lColumn - 1]);
    grid.AddHeaderFormat(1, {.alignment = CellAlignment::Centre});
    grid.AddCellFormat(1, {.alignment = CellAlignment::Centre});
    grid.AddCellFormat(6, {.kind = CellKind::Comment});
    grid.RowCount(11);
    for (std::int32_t lRow = 1; lRow <= 11; ++lRow)
        for (std::int32_t lColumn = 1; lColumn <= 6; ++lColumn)
            grid.CellText({lRow, lColumn}, Rows[lRow - 1][lColumn - 1]);
    grid.FormatCell({5, 4}, {.backColor = vxColorButtonFace, .kind = CellKind::PushButton});
    constexpr OleColor Span = G_Rgb(246, 244, 186);
    for (const GridCell cell : {GridCell{7, 2}, GridCell{7, 3}, GridCell{8, 2}})
        grid.FormatCell(cell, {.backColor = Span});
    constexpr OleColor Inactive = G_Rgb(192, 192, 192);
    for (const std::int32_t lRow : {10, 11})
        grid.FormatRow(lRow, {.backColor = Inactive, .textColor = G_Rgb(128, 128, 128)});
    grid.RowSelected(3, true);
    grid.RowSelected(4, true);
    grid.CurrentCell({4, 6}, true);
}

} // namespace

GridStage::GridStage(double points)
{
    window.resize(400, 226);
    control.move(8, 8);
    site.Events(&siteEvents);
    site.Font("Tahoma", points);
    control.resize(384, 206);
    tabs = toolkit.CreateTabStrip(site, "vxtab_Main", MakeRect(0, 0, 384, 206), 4);
    for (std::int32_t lTab = 0; lTab < 4; ++lTab) tabs->Caption(lTab, std::to_string(lTab) + " Rack");
    tabs->Enabled(3, false);
    grid = toolkit.CreateGrid(site, "vxgrd_Main", tabs->InnerRect());
    grid->HeaderHeight(20);
    grid->RowHeight(15);
    Fill(*grid);
    grid->Events(&events);
    tabs->Events(&events);
}

GridStage::~GridStage()
{
    grid->Events(nullptr);
    tabs->Events(nullptr);
    site.Events(nullptr);
}

QPoint GridStage::Middle(GridCell cell)
{
    const Rect rect = grid->CellRect(cell);
    return QPoint((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2) - Cells()->pos();
}

void GridStage::ShowActive()
{
    window.show();
    QApplication::setActiveWindow(&window);
    grid->SetFocus();
}

QImage GridStage::Picture(double ratio)
{
    control.OverrideRatio(ratio);
    return control.ToImage();
}

} // namespace zqbchwcx::testing

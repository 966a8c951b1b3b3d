#include "zqbchwcx/views/table/RowFill.h"

#include "zqbchwcx/foundation/mdl_VarConst.h"
#include "zqbchwcx/foundation/model/VxHWDiagService.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/views/shared/DiagTexts.h"
#include "zqbchwcx/views/table/ColumnSet.h"

namespace zqbchwcx {
namespace {

constexpr std::int32_t TextSubModules = 1016;

constexpr OleColor GroupBackground = G_Rgb(246, 244, 186);
constexpr OleColor FailureBackground = G_Rgb(255, 201, 201);
constexpr OleColor UnusableBackground = G_Rgb(192, 192, 192);
constexpr OleColor UnusableText = G_Rgb(128, 128, 128);
/// On a background that is light whatever the desktop's colours are.
constexpr OleColor TextOnLight = G_Rgb(0, 0, 0);

CellFormat Colors(OleColor backColor, OleColor textColor)
{
    CellFormat format;
    format.backColor = backColor;
    format.textColor = textColor;
    return format;
}

GridCell CellOf(const Grid& grid, std::int32_t lRow, std::string_view key)
{
    return {lRow, grid.ColumnIndex(key)};
}

void ClearRow(Grid& grid, std::int32_t lRow)
{
    const std::int32_t lNumberColumn = grid.ColumnIndex(ColumnKey::RackPlace);
    for (std::int32_t lColumn = 1; lColumn <= grid.ColumnCount(); ++lColumn)
        if (lColumn != lNumberColumn) grid.ClearCell({lRow, lColumn});
}

} // namespace

void RowFill::ReadTexts()
{
    msSubModules = mTexts->Text(TextSubModules);
}

void RowFill::Fill(Grid& grid, std::int32_t lRow, const VxHWRackPlacePtr& oPlace) const
{
    FillNumber(grid, lRow, *oPlace);
    ClearRow(grid, lRow);
    if (oPlace->Module()->IsEmpty()) return;
    if (mContext.eStyle == vxStyleHWConfig) P_FillRowHWConfig(grid, lRow, oPlace);
    else if (mContext.eStyle == vxStyleHWDiag) P_FillRowHWDiag(grid, lRow, oPlace);
}

void RowFill::FillNumber(Grid& grid, std::int32_t lRow, const VxHWRackPlace& oPlace) const
{
    const std::int32_t lUsability = oPlace.Usability();
    const bool bUsable = lUsability == vxPlaceActive;
    const OleColor textColor =
        mContext.backColor == G_ColorOnlineBackground ? TextOnLight : static_cast<OleColor>(vxColorWindowText);
    grid.FormatRow(lRow, bUsable ? Colors(mContext.backColor, textColor) : Colors(UnusableBackground, UnusableText));
    grid.CellText(CellOf(grid, lRow, ColumnKey::RackPlace),
                  lUsability == vxPlaceNotUsable ? std::string() : std::to_string(oPlace.Number()));
}

void RowFill::P_FillRowHWConfig(Grid& grid, std::int32_t lRow, const VxHWRackPlacePtr& oPlace) const
{
    const auto oModule = oPlace->Module();
    FillModule(grid, lRow, *oModule);
    if (!FillAddress(grid, CellOf(grid, lRow, ColumnKey::InputAddress), *oModule, oModule->InputAddressText()))
        grid.CellText(CellOf(grid, lRow, ColumnKey::OutputAddress), oModule->OutputAddressText());
    grid.CellText(CellOf(grid, lRow, ColumnKey::Comment), oModule->GetAttribute(ColumnKey::Comment));
}

void RowFill::P_FillRowHWDiag(Grid& grid, std::int32_t lRow, const VxHWRackPlacePtr& oPlace) const
{
    const auto oModule = oPlace->Module();
    FillModule(grid, lRow, *oModule);
    FillAddress(grid, CellOf(grid, lRow, ColumnKey::BasicAddress), *oModule, oModule->BasicAddressText());
    if (!mContext.oDiagService || mContext.oDiagService->HasFailure(oPlace) == 0) return;
    const CellFormat failure = Colors(FailureBackground, TextOnLight);
    grid.FormatRow(lRow, failure);
    // A module that spans several places has colours of its own in these.
    for (const std::string_view key : {ColumnKey::Module, ColumnKey::OrderNumber})
        grid.FormatCell(CellOf(grid, lRow, key), failure);
    grid.CellPicture(CellOf(grid, lRow, ColumnKey::Status), mTexts->Picture(DiagTexts::FailurePicture));
}

void RowFill::FillModule(Grid& grid, std::int32_t lRow, const VxHWModule& oModule) const
{
    const GridCell name = CellOf(grid, lRow, ColumnKey::Module);
    const GridCell orderNumber = CellOf(grid, lRow, ColumnKey::OrderNumber);
    const std::int32_t lIndex = oModule.IndexInParent();
    if (lIndex <= 0) {
        grid.CellText(name, oModule.Name());
        grid.CellText(orderNumber, oModule.OrderNumber());
        return;
    }
    const CellFormat group = Colors(GroupBackground, TextOnLight);
    grid.FormatCell(name, group);
    if (lIndex > 1) {
        grid.CellText(name, oModule.Name());
        return;
    }
    const auto oParent = oModule.ParentModule();
    grid.CellText(name, oParent->Name());
    grid.CellText(orderNumber, oParent->OrderNumber());
    grid.FormatCell(orderNumber, group);
}

bool RowFill::FillAddress(Grid& grid, GridCell cell, const VxHWModule& oModule, const std::string& address) const
{
    const bool bButton = oModule.SubModuleCount() >= 1;
    grid.CellText(cell, bButton ? msSubModules : address);
    if (!bButton) return false;
    CellFormat button = Colors(vxColorButtonFace, vxColorButtonText);
    button.kind = CellKind::PushButton;
    grid.FormatCell(cell, button);
    return true;
}

} // namespace zqbchwcx

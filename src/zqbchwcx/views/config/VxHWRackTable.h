#pragma once

#include "zqbchwcx/views/table/TableControl.h"

#include <cstdint>

namespace zqbchwcx {

/// The table of a central station: one tab for each rack, one row for each place of the rack that is shown.
class VxHWRackTable : public TableControl, private TabStripEvents {
public:
    static constexpr std::int32_t TabCount = 4;
    /// Logical pixels from the top of the control to the first row.
    static constexpr std::int32_t HeaderBottom = 41;

    explicit VxHWRackTable(UserControl& oControl) noexcept;
    ~VxHWRackTable() override;

    /// The rack that is shown. A put takes focus and selection along to the same places of the rack, as a press on its
    /// tab does; a rack that the station does not have is reported and changes nothing.
    std::int32_t ActiveRack() const noexcept { return mContent.ActiveRack(); }
    void ActiveRack(std::int32_t lRack) noexcept;

    // IVxHWControl
    /// Always 0: the view is for central stations only. Writes are ignored.
    VxEnumStationType StationType() const noexcept override { return vxStationTypeCentral; }
    void StationType(VxEnumStationType /*eStationType*/) noexcept override {}

private:
    // UserControlEvents
    void Resize() noexcept override;

    // TabStripEvents
    void TabClick(std::int32_t lTab) noexcept override;
    void TabHover(std::int32_t lTab) noexcept override;
    void TabDragHover(std::int32_t lTab) noexcept override;

    // TableControl
    void BeforeRefresh() override;
    void OnGridInitialized() override;
    void ShowRackOfFocus(std::int32_t lRack) override { P_ChangeRack(lRack, Selection::Leave); }
    void moHWStation_RackChange(const VxHWRackPtr& oRack) noexcept override;
    void moSelHandler_SelChange() noexcept override;
    void moSelHandler_FocusChange(std::int32_t lPreviousFocus) noexcept override;

    enum class Selection { Carry, Leave };

    void CreateTabs();
    void P_SetLanguageTexts() noexcept;
    void P_ChangeRack(std::int32_t lRack, Selection eSelection) noexcept;
    void CarrySelection(std::int32_t lRack);
    void ShowRack(std::int32_t lRack);

    TabStripPtr mvxtabMain;
    bool mbChangingRack = false;
};

} // namespace zqbchwcx

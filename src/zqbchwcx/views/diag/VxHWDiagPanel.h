#pragma once

#include "zqbchwcx/foundation/Registration.h"
#include "zqbchwcx/platform/Toolkit.h"
#include "zqbchwcx/platform/Tooltips.h"
#include "zqbchwcx/views/diag/PanelContent.h"
#include "zqbchwcx/views/diag/VersionGrid.h"
#include "zqbchwcx/views/shared/ControlBinding.h"

#include <string>

namespace zqbchwcx {

/// The panel of diagnostics mode: what there is to tell about the module that has the focus, and a button for more.
///
/// It follows the focus. What the service says about a place that keeps the focus is shown by the next `Refresh` or
/// `RefreshPlace`. It needs no station type, style or controllers. Every member reports its own errors.
class VxHWDiagPanel : public ControlBinding, private UserControlEvents, private TooltipCallback {
public:
    /// The panel fills the control, which outlives it, and makes its children with the service root's toolkit.
    explicit VxHWDiagPanel(UserControl& oControl) noexcept;
    ~VxHWDiagPanel() override;
    VxHWDiagPanel(const VxHWDiagPanel&) = delete;
    VxHWDiagPanel& operator=(const VxHWDiagPanel&) = delete;

    std::intptr_t hWnd() const noexcept;
    /// Tells about the focus anew. Without a station or a selection handler the panel is empty.
    void Refresh() noexcept override;
    /// The same if the place has the focus: for hosts that know which place changed.
    void RefreshPlace(const VxHWRackPlacePtr& oPlace) noexcept;

private:
    // UserControlEvents
    void KeyDown(std::int16_t /*nKeyCode*/, std::int16_t /*nShift*/) noexcept override {}
    void KeyUp(std::int16_t /*nKeyCode*/, std::int16_t /*nShift*/) noexcept override {}
    void Resize() noexcept override;
    void OLEDragOver(const DataObjectPtr& oData, std::int32_t& lEffect, std::int16_t nButton, std::int16_t nShift,
                     float x, float y, std::int16_t nState) noexcept override;
    // TooltipCallback
    Tooltip GetTooltip(Point at) noexcept override;
    // ControlBinding
    void OnStation() override;
    void moSelHandler_FocusChange(std::int32_t lPreviousFocus) noexcept override;

    void CreateControls(Toolkit& toolkit);
    void Caption(PanelField eField, const std::string& caption);
    void P_SetLanguageTexts() noexcept;
    void P_SetTooltips() noexcept;
    void P_SizeModuleInfo() noexcept;
    void Show(PanelContent content) noexcept;
    void ShowNewest() noexcept;
    void vxcmd_AdditionalInfo_Click() noexcept;
    void sysinf_Main_SysColorsChanged() noexcept;

    InstanceRegistration mRegistration;
    TextModuleUse mTexts;
    UserControl& mControl;
    PanelReader mReader;

    PanelPtr mvxpnlModuleInfo;
    ByPanelField<LabelPtr> mlblInfoCaption;
    ByPanelField<InfoBoxPtr> mvxinf; ///< none for the version
    VersionGrid mVersions;
    CommandButtonPtr mvxcmdAdditionalInfo;
    TooltipConnectionPtr moTooltipConnection;
    SysInfoPtr msysinfMain;
    std::string msTooltip; ///< of the button
    PanelContent mNewest;
    std::int32_t mlRuns = 0; ///< of reading or showing: an older one gives way to a newer one
    bool mbShowing = false;
};

} // namespace zqbchwcx

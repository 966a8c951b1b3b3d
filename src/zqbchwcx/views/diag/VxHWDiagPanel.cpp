#include "zqbchwcx/views/diag/VxHWDiagPanel.h"

#include "zqbchwcx/foundation/PlaceLookup.h"
#include "zqbchwcx/foundation/ServiceRoot.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/mdl_Main.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/platform/Input.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"

#include <algorithm>
#include <map>
#include <utility>

namespace zqbchwcx {
namespace {

constexpr std::string_view ClassName = "VxHWDiagPanel";

/// A value and its caption.
struct Field {
    PanelField eField;
    const char* box;
    std::int32_t lCaptionText;
    const char* designCaption; ///< seen where there are no texts
};

/// In the order in which they are read and the Tab key leads through them.
constexpr Field Fields[] = {
    {PanelField::ModuleName, "vxinf_ModuleName", 2006, "Baugruppe:"},
    {PanelField::Status, "vxinf_Status", 2007, "Status:"},
    {PanelField::Address, "vxinf_Address", 2012, "Adresse:"},
    {PanelField::ModuleWidth, "vxinf_ModuleWidth", 2008, "Baugruppenbreite:"},
    {PanelField::Place, "vxinf_Place", 2013, "Steckplatz:"},
    {PanelField::Rack, "vxinf_Rack", 2014, "Rack:"},
    {PanelField::SystemID, "vxinf_SystemID", 2016, "Systemkennung:"},
    {PanelField::Version, nullptr, 2015, "Version:"},
};

constexpr std::int32_t TextButton = 2017;
constexpr const char* DesignButton = "Diagnoseinformationen...";
constexpr std::int32_t TextButtonTooltip = 6106;
constexpr std::int32_t TextNoInfoTooltip = 6104;

/// Larger than any button: its tooltip stays wherever on it the mouse moves.
constexpr Rect WholeButton = MakeRect(0, 0, 4096, 4096);

} // namespace

VxHWDiagPanel::VxHWDiagPanel(UserControl& oControl) noexcept
    : ControlBinding(ClassName), mRegistration(ClassName), mTexts(ClassName), mControl(oControl), mReader(mContext),
      mVersions(ClassName)
{
    mContext.eStyle = vxStyleHWDiag;
    G_Trap(ClassName, "UserControl_Initialize", [&] {
        mControl.Font("Tahoma", 8.25);
        CreateControls(*G_ServiceRoot().toolkit);
        P_SetLanguageTexts();
        P_SetTooltips();
        sysinf_Main_SysColorsChanged();
        mControl.Events(this);
        Resize();
        Show({});
    });
}

VxHWDiagPanel::~VxHWDiagPanel()
{
    G_Trap(ClassName, "UserControl_Terminate", [&] { mControl.Events(nullptr); });
}

void VxHWDiagPanel::CreateControls(Toolkit& toolkit)
{
    mvxpnlModuleInfo = toolkit.CreatePanel(mControl, "vxpnl_ModuleInfo", {});
    auto& panel = *mvxpnlModuleInfo;
    for (const Field& field : Fields) {
        auto& label = mlblInfoCaption[field.eField];
        label = toolkit.CreateLabel(panel, "lbl_InfoCaption", {});
        if (field.box != nullptr) mvxinf[field.eField] = toolkit.CreateInfoBox(panel, field.box, {});
        Caption(field.eField, field.designCaption);
    }
    mVersions.Create(toolkit, panel, mTexts);
    mvxcmdAdditionalInfo = toolkit.CreateCommandButton(panel, "vxcmd_AdditionalInfo", {});
    mvxcmdAdditionalInfo->Caption(DesignButton);
    mvxcmdAdditionalInfo->OnClick([this] { vxcmd_AdditionalInfo_Click(); });
    msysinfMain = toolkit.CreateSysInfo(mControl);
    msysinfMain->OnSysColorsChanged([this] { sysinf_Main_SysColorsChanged(); });
}

void VxHWDiagPanel::P_SetLanguageTexts() noexcept
{
    G_Trap(ClassName, "P_SetLanguageTexts", [&] {
        if (!mTexts.get()) return;
        for (const Field& field : Fields) Caption(field.eField, mTexts->Text(field.lCaptionText));
        mvxcmdAdditionalInfo->Caption(mTexts->Text(TextButton));
        std::map<std::int32_t, std::string> texts;
        for (const std::int32_t lText : PanelReader::TextNumbers) texts[lText] = mTexts->Text(lText);
        mReader.Texts(std::move(texts));
    });
}

void VxHWDiagPanel::Caption(PanelField eField, const std::string& caption)
{
    mlblInfoCaption[eField]->Caption(caption);
    if (mvxinf[eField]) mvxinf[eField]->Name(caption);
}

void VxHWDiagPanel::P_SetTooltips() noexcept
{
    G_Trap(ClassName, "P_SetTooltips", [&] {
        moTooltipConnection = G_ServiceRoot().toolkit->GetTooltipService().Connect(mvxcmdAdditionalInfo->hWnd(), *this);
    });
}

std::intptr_t VxHWDiagPanel::hWnd() const noexcept
{
    return G_TrapValue(ClassName, "hWnd", std::intptr_t{0}, [&] { return mControl.hWnd(); });
}

void VxHWDiagPanel::Refresh() noexcept
{
    G_Trap(ClassName, "Refresh", [&] {
        const std::int32_t lRun = ++mlRuns;
        // What cannot be read must not leave the former module's state beside the new place.
        PanelContent content;
        G_Trap(ClassName, "Refresh", [&] { content = mReader.Read(mContext.FocusPosition()); });
        // Reading may have made the host move the focus or end the mode, which is shown already.
        if (lRun == mlRuns) Show(content);
    });
}

void VxHWDiagPanel::RefreshPlace(const VxHWRackPlacePtr& oPlace) noexcept
{
    G_Trap(ClassName, "RefreshPlace", [&] {
        const PositionInfo focus = G_PositionInfo(mContext.FocusPosition());
        const bool bPlace = focus.eType == vxPositionPlace || focus.eType == vxPositionGap;
        if (bPlace && oPlace->Number() == G_PlaceNumberAt(focus) && oPlace->Rack()->Number() == focus.lRack) Refresh();
    });
}

void VxHWDiagPanel::Show(PanelContent content) noexcept
{
    mNewest = std::move(content);
    ++mlRuns;
    if (std::exchange(mbShowing, true)) return; // what goes on shows it in its end
    std::int32_t lShown = 0;
    do {
        lShown = mlRuns;
        ShowNewest();
    } while (lShown != mlRuns);
    mbShowing = false;
}

void VxHWDiagPanel::ShowNewest() noexcept
{
    const PanelContent content = mNewest;
    // A control that fails does not keep the others from it.
    const auto show = [](auto&& part) { G_Trap(ClassName, "P_SetModuleInfo", part); };
    for (const Field& field : Fields)
        if (const auto& box = mvxinf[field.eField]) show([&] { box->Text(content.values[field.eField]); });
    mVersions.Show(content.versions);
    show([&] { G_Require(mvxcmdAdditionalInfo.get(), "The button")->Enabled(content.bHasDiagnosticInfo); });
    show([&] {
        msTooltip.clear();
        if (content.bHasModule)
            msTooltip = mTexts->Text(content.bHasDiagnosticInfo ? TextButtonTooltip : TextNoInfoTooltip);
    });
}

Tooltip VxHWDiagPanel::GetTooltip(Point /*at*/) noexcept
{
    return {msTooltip, WholeButton};
}

void VxHWDiagPanel::OnStation()
{
    if (!mContext.oStation) Show({});
}

void VxHWDiagPanel::moSelHandler_FocusChange(std::int32_t /*lPreviousFocus*/) noexcept
{
    Refresh();
}

void VxHWDiagPanel::vxcmd_AdditionalInfo_Click() noexcept
{
    G_Trap(ClassName, "vxcmd_AdditionalInfo_Click", [&] {
        const PositionInfo focus = G_PositionInfo(mContext.FocusPosition());
        if (focus.eType != vxPositionPlace) return;
        const auto oStation = mContext.Station();
        oStation->ShowModuleDiagnostics(G_PlaceByNumber(oStation, focus.lRack, focus.lNumber), nullptr);
    });
}

void VxHWDiagPanel::sysinf_Main_SysColorsChanged() noexcept
{
    G_Trap(ClassName, "sysinf_Main_SysColorsChanged", [&] {
        const OleColor ground = G_ColorDisabledBackground(); // what cannot be edited has the same ground everywhere
        mVersions.BackColor(ground);
        for (const auto& box : mvxinf) {
            if (!box) continue;
            box->BackColor(ground);
            box->Redraw();
        }
    });
}

void VxHWDiagPanel::Resize() noexcept
{
    G_Trap(ClassName, "UserControl_Resize", [&] {
        const std::int32_t lWidth = std::max(mControl.Width(), vxPanelMinimumWidth);
        const std::int32_t lHeight = std::max(mControl.Height(), vxPanelMinimumHeight);
        if (lWidth != mControl.Width() || lHeight != mControl.Height()) mControl.Size(lWidth, lHeight);
        G_Require(mvxpnlModuleInfo.get(), "The panel")
            ->Move(MakeRect(0, 0, lWidth / vxTwipsPerPixel, lHeight / vxTwipsPerPixel));
        P_SizeModuleInfo();
    });
}

void VxHWDiagPanel::P_SizeModuleInfo() noexcept
{
    G_Trap(ClassName, "P_SizeModuleInfo", [&] {
        ByPanelField<Size> captions;
        for (const Field& field : Fields) captions[field.eField] = mlblInfoCaption[field.eField]->TextSize();
        const Size panel{mvxpnlModuleInfo->Width() / vxTwipsPerPixel, mvxpnlModuleInfo->Height() / vxTwipsPerPixel};
        const PanelLayout layout = G_PanelLayout(panel, captions, mvxcmdAdditionalInfo->PreferredSize());
        for (const Field& field : Fields) {
            mlblInfoCaption[field.eField]->Move(layout.captions[field.eField]);
            if (mvxinf[field.eField]) mvxinf[field.eField]->Move(layout.values[field.eField]);
        }
        mVersions.Move(layout.values[PanelField::Version]);
        mvxcmdAdditionalInfo->Move(layout.button);
    });
}

void VxHWDiagPanel::OLEDragOver(const DataObjectPtr& /*oData*/, std::int32_t& lEffect, std::int16_t /*nButton*/,
                                std::int16_t /*nShift*/, float /*x*/, float /*y*/, std::int16_t /*nState*/) noexcept
{
    lEffect = vxDropEffectNone;
}

} // namespace zqbchwcx

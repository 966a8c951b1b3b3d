#pragma once

#include "zqbchwcx/controllers/interfaces/IVxHWMouseInputController.h"
#include "zqbchwcx/foundation/Registration.h"
#include "zqbchwcx/foundation/model/Fwd.h"
#include "zqbchwcx/platform/Toolkit.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zqbchwcx {

/// The popup list of the sub-modules of one place, with its columns under those of the table: name and addresses. It
/// closes as soon as the mouse is pressed elsewhere, or the window that had the keyboard when it opened loses it.
class frm_SubModules : private PopupFormEvents {
public:
    frm_SubModules() noexcept;
    ~frm_SubModules() override;
    frm_SubModules(const frm_SubModules&) = delete;
    frm_SubModules& operator=(const frm_SubModules&) = delete;

    /// Makes the window, hidden; it belongs to the control of the table. The toolkit outlives the form.
    void Create(Toolkit& toolkit, UserControl& oControl);

    bool IsVisible() const noexcept { return mbVisible; }
    /// Opens the form below the cell, whose rectangle is in logical pixels of the screen, or above it where the screen
    /// ends. The grid, which must outlive the form's being open, gives the columns.
    void ShowCombo(const Rect& cell, const Grid& grid, const VxHWRackPlacePtr& oPlace, std::int16_t nStyle,
                   const IVxHWMouseInputControllerPtr& oiMouseCtrl) noexcept;
    void Unload() noexcept { Form_Unload(); }
    /// Whether a press on the grid is what closed the form, or is about to; asked once for each press.
    bool TakeClosedByPress() noexcept { return std::exchange(mbClosedByPress, false) || mbVisible; }

    // The keyboard, while the form is open by it.
    /// Marks the first line.
    void StartWalking() noexcept;
    bool IsWalking() const noexcept { return mlMarkedLine > 0; }
    void Walk(std::int32_t lLines) noexcept;
    /// As a double click on the marked line.
    void OpenMarkedLine() noexcept;

private:
    /// A column of the form: from the left edge to the first pixel behind it.
    struct Column {
        std::int32_t lLeft;
        std::int32_t lRight;
    };

    // PopupFormEvents
    void MouseDown(std::int16_t nButton, std::int16_t nShift, Point at) noexcept override;
    void DblClick() noexcept override;
    void Closed() noexcept override { Form_Unload(); }

    void P_SetPosition(const Rect& cell, const Grid& grid);
    void P_DrawContent() noexcept;
    void P_DrawLine(std::int32_t lLine) noexcept;
    /// What the columns of a line show, from the name on.
    std::vector<std::string> TextsOf(std::int32_t lLine) const;
    void TellMarkedLine();
    std::int32_t P_GetMousePosition(Point at) const noexcept;
    std::int32_t PositionOfLine(std::int32_t lLine) const;
    void Open(std::int32_t lPosition) noexcept;
    void moSpy_WndProc(std::int32_t lMessage, std::intptr_t hOther) noexcept;
    void moMouseHook_MouseAction(std::int32_t lMessage, std::intptr_t hWnd) noexcept;
    void Form_Unload() noexcept;
    std::int32_t LineCount() const;

    InstanceRegistration mRegistration;
    Toolkit* mpToolkit = nullptr;
    PopupFormPtr moForm;
    bool mbVisible = false;
    VxHWRackPlacePtr moPlace;
    IVxHWMouseInputControllerPtr moiMouseCtrl;
    bool mbBasicAddress = false;
    std::vector<Column> mcolColumns; ///< name and addresses
    std::int32_t mlLineHeight = 1;
    std::optional<Point> moMouseDown;
    std::int32_t mlMarkedLine = 0;
    std::intptr_t mhGrid = 0;
    bool mbClosedByPress = false;
    WindowSpyPtr moSpy;
    MouseHookPtr moMouseHook;
};

} // namespace zqbchwcx

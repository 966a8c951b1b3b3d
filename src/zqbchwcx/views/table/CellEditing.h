#pragma once

#include "zqbchwcx/foundation/Event.h"
#include "zqbchwcx/platform/Grid.h"
#include "zqbchwcx/views/shared/ViewContext.h"
#include "zqbchwcx/views/table/TableContent.h"

#include <optional>
#include <string>
#include <string_view>

namespace zqbchwcx {

/// A value that the model did not take. The cell shows the model's value again.
struct RefusedEdit {
    VxHWRackPlacePtr oPlace;
    std::string attribute; ///< upper case
    std::string value;
    Rect cell; ///< logical pixels of the grid
    Point gridOnScreen;
};

/// Editing in place: which cells have an editor, what happens when it opens and closes, and the keys while it is open.
class CellEditing {
public:
    CellEditing(const ViewContext& context, TableContent& content) : mContext(context), mContent(content) {}

    bool IsActive() const { return mbEditing; }
    void Forget() { mbEditing = false; }

    /// Whether the cell's text can be edited at all: a comment of a module, an address of a module without sub-modules.
    bool IsCellEditable(GridCell cell) const noexcept;
    /// False refuses; else the place of the row has the focus and nothing is selected.
    bool OnStartEditing(GridCell cell) noexcept;
    void OnEndEditing(GridCell cell) noexcept;
    /// Opens the editor of the current cell, or of the first cell of its row that has one.
    void Start(std::optional<std::string_view> text);
    /// A key while the editor is open. True when it is consumed.
    bool KeyDown(std::int16_t nKeyCode, std::int16_t nShift);

    Event<const RefusedEdit&> Refused;

private:
    bool MayEdit(GridCell cell) const;
    void P_SaveModuleAttributeValue(GridCell cell) noexcept;
    void GoOn(bool bForward);
    std::optional<GridCell> NextEditable(GridCell from, bool bForward) const;

    const ViewContext& mContext;
    TableContent& mContent;
    bool mbEditing = false;
};

} // namespace zqbchwcx

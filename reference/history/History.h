#pragma once

#include "zqbchwcx/foundation/Event.h"
#include "zqbchwcx/reference/history/ViewState.h"
#include "zqbchwcx/reference/model/contract/Station.h"
#include "zqbchwcx/reference/services/UserActions.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zqbchwcx::reference {

/// What the history asks of the program around it. An empty function is left out.
struct HistoryServices {
    /// The name of a step that no user action names, such as "Move", in the user's language.
    std::function<std::string(EditKind)> editName;
    std::function<ViewState()> captureView;
    std::function<void(const ViewState&)> restoreView;
};

/// Undo and redo of every change of a station, without limit. A step holds the states before and after it, which
/// share everything that did not change.
///
/// What happens in one user action, however nested, or in one batch (`IsDrawable` False to True) is one step; a
/// change outside of both is a step of its own; what changes nothing is none. A change after an undo drops the
/// steps that could have been redone.
class History : public UserActions {
public:
    explicit History(StationPtr oStation, HistoryServices services = {});

    void BeginUserAction(std::string_view displayText) override;
    /// Ignored without an action that was begun.
    void EndUserAction() override;

    bool CanUndo() const { return MayStep() && mnDone > 0; }
    bool CanRedo() const { return MayStep() && mnDone < mcolSteps.size(); }
    /// The name of the step; empty when there is none.
    std::string UndoName() const;
    std::string RedoName() const;
    /// False, with nothing changed, when there is no such step, an action is still open, or the station may not be
    /// changed.
    bool Undo();
    bool Redo();

    /// Whether the station differs from the state at the last mark; a new history is marked.
    bool IsModified() const;
    void MarkSaved();
    /// Forgets all steps, as after another station was loaded into the same object; marks its state as saved.
    void Reset();
    /// As `Reset`, but the station counts as modified, as after a recovery.
    void ResetModified();

    /// After each change of what the members above answer.
    Event<> Changed;

private:
    struct Step {
        std::string name;
        StationData before;
        StationData after;
        ViewState viewBefore;
        ViewState viewAfter;
    };

    bool IsGroupOpen() const { return mlOpenActions > 0 || mbBatchOpen; }
    bool MayStep() const { return !IsGroupOpen() && !moStation->IsReadOnly(); }
    void OpenGroup();
    void CloseGroup();
    void OnChanging(EditKind kind);
    void OnChanged();
    void OnDrawableChange(bool bDrawable);
    ViewState CaptureView() const;
    void GoTo(const StationData& data, const ViewState& view);

    StationPtr moStation;
    HistoryServices moServices;
    std::vector<Step> mcolSteps;
    std::size_t mnDone = 0; ///< steps that are in effect; those behind can be redone
    std::optional<StationData> moSaved;

    int mlOpenActions = 0;
    bool mbBatchOpen = false;
    Step moOpen; ///< the step that is being made
    EventConnection moChanging;
    EventConnection moChanged;
    EventConnection moDrawableChange;
};

} // namespace zqbchwcx::reference

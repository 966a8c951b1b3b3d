#include "zqbchwcx/reference/history/History.h"

#include "zqbchwcx/foundation/Nothing.h"

#include <utility>

namespace zqbchwcx::reference {

History::History(StationPtr oStation, HistoryServices services)
    : moStation(std::move(oStation)), moServices(std::move(services)),
      moSaved(G_Require(moStation, "The station")->Data())
{
    moChanging = moStation->Changing.Connect([this](EditKind kind) { OnChanging(kind); });
    moChanged = moStation->Changed.Connect([this](EditKind) { OnChanged(); });
    moDrawableChange = moStation->DrawableChange.Connect([this](bool bDrawable) { OnDrawableChange(bDrawable); });
}

void History::BeginUserAction(std::string_view displayText)
{
    if (!IsGroupOpen()) OpenGroup();
    // The outermost action names the step, also when a batch was open before it.
    if (mlOpenActions == 0) moOpen.name = displayText;
    ++mlOpenActions;
}

void History::EndUserAction()
{
    if (mlOpenActions == 0) return;
    --mlOpenActions;
    if (!IsGroupOpen()) CloseGroup();
}

std::string History::UndoName() const
{
    return mnDone > 0 ? mcolSteps[mnDone - 1].name : std::string();
}

std::string History::RedoName() const
{
    return mnDone < mcolSteps.size() ? mcolSteps[mnDone].name : std::string();
}

bool History::Undo()
{
    if (!CanUndo()) return false;
    // A copy, because a handler may drop the steps.
    const Step step = mcolSteps[--mnDone];
    GoTo(step.before, step.viewBefore);
    return true;
}

bool History::Redo()
{
    if (!CanRedo()) return false;
    const Step step = mcolSteps[mnDone++];
    GoTo(step.after, step.viewAfter);
    return true;
}

bool History::IsModified() const
{
    return !moSaved || !SameStation(*moSaved, moStation->Data());
}

void History::MarkSaved()
{
    moSaved = moStation->Data();
    Changed.Raise();
}

void History::Reset()
{
    mcolSteps.clear();
    mnDone = 0;
    MarkSaved();
}

void History::ResetModified()
{
    Reset();
    moSaved.reset();
    Changed.Raise();
}

void History::OpenGroup()
{
    moOpen = Step{};
    moOpen.before = moStation->Data();
    moOpen.viewBefore = CaptureView();
}

void History::CloseGroup()
{
    Step step = std::exchange(moOpen, Step{});
    if (SameStation(step.before, moStation->Data())) return;
    step.after = moStation->Data();
    step.viewAfter = CaptureView();
    mcolSteps.resize(mnDone);
    mcolSteps.push_back(std::move(step));
    ++mnDone;
    Changed.Raise();
}

void History::OnChanging(EditKind kind)
{
    if (!IsGroupOpen()) OpenGroup();
    if (moOpen.name.empty() && moServices.editName) moOpen.name = moServices.editName(kind);
}

void History::OnChanged()
{
    if (!IsGroupOpen()) CloseGroup();
}

void History::OnDrawableChange(bool bDrawable)
{
    if (!bDrawable) {
        if (!IsGroupOpen()) OpenGroup();
        mbBatchOpen = true;
    } else if (std::exchange(mbBatchOpen, false) && !IsGroupOpen()) {
        CloseGroup();
    }
}

ViewState History::CaptureView() const
{
    return moServices.captureView ? moServices.captureView() : ViewState{};
}

void History::GoTo(const StationData& data, const ViewState& view)
{
    moStation->Restore(data);
    if (moServices.restoreView) moServices.restoreView(view);
    Changed.Raise();
}

} // namespace zqbchwcx::reference

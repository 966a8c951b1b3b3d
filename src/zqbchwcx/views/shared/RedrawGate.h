#pragma once

#include "zqbchwcx/views/shared/ViewContext.h"

#include <functional>

namespace zqbchwcx {

/// Decides for a view what is drawn now, what later and what not.
///
/// Nothing is drawn while the station's drawing is off. What a selection, a focus or a drag changes then is pending
/// until it is on again; no event tells of that, so every input and every event looks (`CatchUp`). Model events are
/// drawn only where the style lets them, for the others wait for the next `Refresh`.
class RedrawGate {
public:
    struct Drawings {
        std::function<void()> everything; ///< the view's `Refresh`
        std::function<void()> selection;  ///< what the selection has made out of date
    };

    RedrawGate(const ViewContext& context, Drawings drawings);

    void DrawOnModelEvents(bool bDraw) { mbDrawOnModelEvents = bDraw; }
    /// Nothing is pending, as for a new station.
    void Forget() { mePending = Pending::Nothing; }

    /// Whether a model event is drawn at once.
    bool DrawsModelEvents() const;
    /// The same for the change of a model event that is about to be drawn. What is pending comes first.
    bool MayDrawModelEvent();
    /// For a single drawing that a selection, a focus or the host asks for: whether it is done now. Else everything is
    /// pending.
    bool MayDrawNow();
    /// The selection is out of date: draws it now or as soon as drawing is on.
    void SelectionChanged() noexcept;
    /// Everything is out of date: as `SelectionChanged`.
    void EverythingChanged() noexcept;
    /// Draws what is pending if drawing is on again.
    void CatchUp() noexcept;

    /// While a pending selection is not drawn as a whole, a place that is drawn alone does not settle it.
    bool IsSelectionPending() const { return mePending == Pending::Selection; }
    bool IsRefreshing() const { return mnRefreshes > 0; }

    /// Surrounds a `Refresh`: model events are drawn meanwhile, and nothing is pending any more, or all of it if
    /// drawing is off.
    class RefreshBracket {
    public:
        explicit RefreshBracket(RedrawGate& gate);
        ~RefreshBracket();
        RefreshBracket(const RefreshBracket&) = delete;
        RefreshBracket& operator=(const RefreshBracket&) = delete;

    private:
        RedrawGate& mGate;
        bool mbDrawOnModelEvents;
    };

private:
    enum class Pending { Nothing, Selection, Everything };

    bool IsDrawable() const;

    const ViewContext& mContext;
    Drawings mDrawings;
    bool mbDrawOnModelEvents = true;
    int mnRefreshes = 0;
    Pending mePending = Pending::Nothing;
};

} // namespace zqbchwcx

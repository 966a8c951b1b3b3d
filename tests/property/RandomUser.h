#pragma once

#include "tests/property/Editor.h"
#include "tests/support/Samples.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/platform/Input.h"

#include <array>
#include <numeric>
#include <random>

namespace zqbchwcx::testing {

/// Somebody who does anything at all with an editor: mouse, keys, drags within and from outside, menu, clipboard,
/// catalogue, parameters, undo and redo.
class RandomUser {
public:
    RandomUser(Editor& editor, std::mt19937& random) : moEditor(editor), mRandom(random)
    {
        editor.parameters = [this](reference::ModuleData module) { return Configured(std::move(module)); };
    }

    /// Does one thing, which may be several events, and says what it was.
    std::string DoSomething()
    {
        struct Action {
            std::int32_t weight;
            const char* name;
            void (RandomUser::*run)();
        };
        static constexpr std::array Actions{
            Action{20, "click", &RandomUser::Click},
            Action{12, "press and move", &RandomUser::Press},
            Action{14, "drag", &RandomUser::DragFromHere},
            Action{6, "drag from outside", &RandomUser::DragFromOutside},
            Action{25, "key", &RandomUser::Key},
            Action{12, "row", &RandomUser::ClickRow},
            Action{8, "key in the table", &RandomUser::KeyInTable},
            Action{10, "typing", &RandomUser::TypeInCell},
            Action{6, "drag of a row", &RandomUser::DragRow},
            Action{8, "tab or scrolling", &RandomUser::TabOrScroll},
            Action{4, "sub-modules", &RandomUser::SubModules},
            Action{12, "menu", &RandomUser::Menu},
            Action{5, "catalogue", &RandomUser::TakeFromCatalogue},
            Action{3, "attribute", &RandomUser::TypeAttribute},
            Action{3, "batch", &RandomUser::ChangeInABatch},
            Action{1, "locking", &RandomUser::Lock},
            Action{8, "undo or redo", &RandomUser::UndoOrRedo},
            Action{1, "keyboard focus", &RandomUser::ChangeKeyboardFocus},
        };
        constexpr std::int32_t Total = std::accumulate(
            Actions.begin(), Actions.end(), 0, [](std::int32_t sum, const Action& a) { return sum + a.weight; });
        std::int32_t chosen = Any(0, Total - 1);
        for (const Action& action : Actions) {
            chosen -= action.weight;
            if (chosen >= 0) continue;
            (this->*action.run)();
            return action.name;
        }
        return {};
    }
    std::int64_t Events() const { return mlEvents; }

private:
    void Click()
    {
        const auto [x, y] = AnyPoint();
        const std::int16_t nButton = AnyButton();
        const std::int16_t nShift = AnyShift();
        Mouse().MouseDown(nButton, nShift, x, y);
        Mouse().MouseUp(nButton, nShift, x, y);
        if (!OneIn(10)) return;
        Mouse().DblClick();
        Mouse().MouseUp(nButton, nShift, x, y);
    }

    void Press()
    {
        // Where this begins a drag, nothing comes of the drag; beside the racks it is a rubber band.
        const auto [x, y] = OneIn(2) ? AnyPoint() : PointBesidePlaces();
        const std::int16_t nButton = AnyButton();
        Mouse().MouseDown(nButton, 0, x, y);
        for (std::int32_t moves = Any(1, 6); moves > 0; --moves) {
            const auto [x2, y2] = AnyPoint();
            Mouse().MouseMove(nButton, 0, x2, y2);
            if (OneIn(4)) TypeAttribute();
            if (OneIn(4)) Wait();
        }
        const auto [x3, y3] = AnyPoint();
        Mouse().MouseUp(nButton, AnyShift(), x3, y3);
    }

    void DragFromHere()
    {
        moEditor.Picture().onDrag = [&] {
            const auto data = moEditor.NewDrag();
            std::int32_t lEffect = vxDropEffectNone;
            Mouse().OLEStartDrag(data, lEffect);
            if (lEffect == vxDropEffectNone) return;
            moLastDrag = data;
            DragOver(data);
            if (!OneIn(8)) return;
            // Dropped elsewhere; sometimes the other program takes the modules away.
            lEffect = OneIn(2) ? vxDropEffectMove : vxDropEffectCopy;
            Mouse().OLECompleteDrag(lEffect);
        };
        const auto [x, y] = AnyPoint();
        Mouse().MouseDown(vxButtonLeft, 0, x, y);
        Mouse().MouseMove(vxButtonLeft, 0, x + 3, y);
        Mouse().MouseMove(vxButtonLeft, 0, x + 9, y + 2);
        Mouse().MouseUp(vxButtonLeft, 0, x + 9, y + 2);
        moEditor.Picture().onDrag = nullptr;
    }

    void ClickRow()
    {
        const GridCell cell = AnyCell();
        if (OneIn(8)) Grid().DoubleClick(cell);
        else Grid().Click(cell, AnyButton(), AnyShift());
        if (OneIn(2)) Grid().LetDoubleClickPass();
        if (OneIn(2)) Grid().EndEditing(OneIn(2));
    }

    void KeyInTable()
    {
        const auto nKey = OneOf<std::int16_t>({vxKeyLeft, vxKeyUp, vxKeyRight, vxKeyDown, vxKeyUp, vxKeyDown,
                                               vxKeySpace, vxKeyReturn, vxKeyEscape, vxKeyF2, vxKeyA, vxKeyHome});
        Grid().Key(nKey, OneIn(6) ? std::int16_t{vxAltMask} : AnyShift());
        Grid().EndEditing(true);
    }

    void TypeInCell()
    {
        Grid().Click(AnyCell());
        Grid().Key(vxKeyF2);
        for (std::int32_t cells = Any(1, 3); cells > 0; --cells) {
            Grid().Type(std::to_string(Any(0, 1100)));
            if (OneIn(6)) Grid().Key(vxKeyZ, vxCtrlMask), moEditor.history->Undo();
            if (OneIn(8)) TypeAttribute();
            Grid().Key(OneOf<std::int16_t>({vxKeyReturn, vxKeyTab, vxKeyEscape, vxKeyLeft}));
        }
        Grid().Focus(OneIn(2));
        Grid().EndEditing(true);
    }

    void DragRow()
    {
        const GridCell source = AnyCell();
        Grid().onDrag = [&] {
            const auto data = std::make_shared<FakeDataObject>(moEditor.log);
            std::int32_t lEffect = vxDropEffectNone;
            Grid().User().OLEStartDrag(data, lEffect);
            if (lEffect == vxDropEffectNone) return;
            for (const auto& format : std::map(data->formats)) Grid().User().OLESetData(data, format.first);
            const std::int16_t nShift = AnyShift();
            std::int16_t nState = vxDragEnter;
            GridMouse mouse;
            for (std::int32_t moves = Any(1, 6); moves > 0; --moves) {
                if (OneIn(6) && moEditor.Tabs() != nullptr) moEditor.Tabs()->DragHover(Any(0, 3));
                mouse = {vxButtonLeft, nShift, Grid().Middle(AnyCell())};
                lEffect = vxDropEffectCopyOrMove;
                Grid().User().OLEDragOver(data, lEffect, mouse, nState);
                nState = vxDragOver;
            }
            lEffect = vxDropEffectCopyOrMove;
            if (OneIn(4)) Grid().User().OLEDragOver(data, lEffect, mouse, vxDragLeave), lEffect = vxDropEffectNone;
            else Grid().User().OLEDragDrop(data, lEffect, mouse);
            Grid().User().OLECompleteDrag(lEffect);
            moEditor.toolkit->clock.Advance(20);
        };
        Grid().Press(source);
        Grid().MoveMouse(Grid().Middle(source), vxButtonLeft);
        const Point at = Grid().Middle(source);
        Grid().MoveMouse({at.x + 9, at.y}, vxButtonLeft);
        Grid().Release(source);
        Grid().onDrag = nullptr;
        // A drag that rested on a tab leaves that rack shown until the focus moves.
        moEditor.table->Refresh();
    }

    void TabOrScroll()
    {
        if (moEditor.Tabs() == nullptr) return Scroll();
        const std::int32_t lTab = Any(0, 3);
        if (OneIn(2)) moEditor.Tabs()->Hover(lTab);
        else moEditor.Tabs()->Click(lTab);
        ++mlEvents;
    }

    void Scroll()
    {
        switch (Any(1, 4)) {
        case 1:
            Keys().MouseWheel(static_cast<float>(Any(-8, 8)) / 4);
            break;
        case 2:
            moEditor.Bar()->DragTo(Any(0, moEditor.Bar()->maximum));
            break;
        case 3:
            Grid().ScrollTo(Any(1, std::max(moEditor.Grid().RowCount() - 11, 1)));
            break;
        default:
            auto& button = AnyScrollButton();
            button.MouseDown(AnyButton());
            Wait();
            button.MouseUp(vxButtonLeft);
        }
    }

    void Wait() { moEditor.toolkit->clock.Advance(Any(0, 700)); }
    ButtonEvents& AnyScrollButton() { return moEditor.Buttons().at(OneOf({"cmd_ScrollUp", "cmd_ScrollDown"}))->User(); }

    void SubModules()
    {
        for (std::int32_t lRow = Grid().TopRow(); lRow <= Grid().RowCount(); ++lRow) {
            const GridCell cell = Grid().Cell(lRow, "I-Address");
            if (Grid().Look(cell).kind != CellKind::PushButton) continue;
            Grid().Click(cell);
            if (OneIn(2)) moEditor.Form().DoubleClick({Any(-1, 60), Any(-1, 60)});
            else Grid().Key(OneOf<std::int16_t>({vxKeyDown, vxKeyEscape, vxKeyReturn}));
            return;
        }
    }

    void DragFromOutside()
    {
        if (moLastDrag) DragOver(moLastDrag);
    }

    void DragOver(const DataObjectPtr& data)
    {
        const std::int16_t nShift = AnyShift();
        std::int16_t nState = vxDragEnter;
        std::int32_t lEffect = vxDropEffectCopyOrMove;
        std::pair<float, float> at;
        for (std::int32_t moves = Any(1, 12); moves > 0; --moves) {
            at = AnyPoint();
            lEffect = vxDropEffectCopyOrMove;
            Mouse().OLEDragOver(data, lEffect, vxButtonLeft, nShift, at.first, at.second, nState);
            nState = vxDragOver;
            if (!OneIn(4) || moEditor.Buttons().empty()) continue;
            auto& button = AnyScrollButton();
            button.OLEDragOver(data, lEffect, vxButtonLeft, nShift, vxDragEnter);
            Wait();
            button.OLEDragOver(data, lEffect, vxButtonLeft, nShift, vxDragLeave);
        }
        if (OneIn(4)) {
            Mouse().OLEDragOver(data, lEffect, vxButtonLeft, nShift, at.first, at.second, vxDragLeave);
            if (OneIn(2)) moEditor.toolkit->clock.Advance(20);
            lEffect = vxDropEffectNone;
        } else {
            lEffect = vxDropEffectCopyOrMove;
            Mouse().OLEDragDrop(data, lEffect, 0, nShift, at.first, at.second);
        }
        Mouse().OLECompleteDrag(lEffect);
        moEditor.toolkit->clock.Advance(20);
    }

    void Key()
    {
        const auto nKey = OneOf<std::int16_t>({vxKeyLeft, vxKeyUp, vxKeyRight, vxKeyDown, vxKeyLeft, vxKeyRight,
                                               vxKeySpace, vxKeyDown, vxKeyDelete, vxKeyReturn});
        const std::int16_t nShift = AnyShift();
        Keys().KeyDown(nKey, nShift);
        Keys().KeyUp(nKey, nShift);
    }

    void Menu()
    {
        moEditor.Menu().choose = OneOf({"pmnu_EditModuleParams", "pmnu_Cut", "pmnu_Copy", "pmnu_Paste", "pmnu_Delete"});
        if (OneIn(2)) {
            Keys().KeyUp(vxKeyApps, 0);
        } else {
            const auto [x, y] = AnyPoint();
            Mouse().MouseDown(vxButtonRight, 0, x, y);
            Mouse().MouseUp(vxButtonRight, 0, x, y);
        }
        moEditor.Menu().choose.reset();
    }

    void TakeFromCatalogue()
    {
        const ViewVariant& variant = moEditor.Variant();
        const std::string orderNumber = OneIn(2) ? OneOf(reference::ShippedCatalogue().Types()).orderNumber
                                                 : std::string(OneOf({variant.digital, variant.wide}));
        Commands().SetSingleModuleToCurPos(moEditor.station->CreateModule(orderNumber));
    }

    /// The answer of the parameter dialog.
    std::optional<reference::ModuleData> Configured(reference::ModuleData module)
    {
        if (OneIn(3)) return std::nullopt;
        module.name = "Name " + std::to_string(Any(0, 9));
        if (module.inputAddress) module.inputAddress = Any(-1, 200);
        return module;
    }

    void TypeAttribute()
    {
        const char* name = OneOf({"COMMENT", "NAME", "I-ADDRESS", "O-ADDRESS"});
        const auto oPlace = AnyPlace();
        if (oPlace->Module()->IsEmpty()) return;
        moEditor.station->SetModuleAttribute(oPlace, name, std::to_string(Any(-5, 1100)));
    }

    void ChangeInABatch()
    {
        auto& handler = *moEditor.view->VxHWSelectionHandler();
        moEditor.station->IsDrawable(false);
        TypeAttribute();
        handler.SelPlaces()->Clear();
        handler.SelPlaces()->Add(AnyPlace());
        handler.SelChangeComplete();
        const std::int32_t lFocus = G_PlacePosition(0, 0) + Any(0, 23);
        if (moEditor.Variant().IsCentral() || RowsOf(*moEditor.view).CellOf(G_PositionInfo(lFocus)))
            handler.FocusPosition(lFocus);
        moEditor.station->IsDrawable(true);
    }

    void Lock() { moEditor.view->Locked(!moEditor.view->Locked()); }

    void UndoOrRedo()
    {
        for (std::int32_t steps = Any(1, 4); steps > 0; --steps) {
            if (OneIn(3)) moEditor.history->Redo();
            else moEditor.history->Undo();
        }
    }

    void ChangeKeyboardFocus() { moEditor.Picture().Focus(!moEditor.Picture().HasFocus()); }

    RecordingGrid& Grid() { return ++mlEvents, moEditor.Grid(); }
    /// In the table, one of the rows without a place included.
    GridCell AnyCell()
    {
        const RecordingGrid& grid = moEditor.Grid();
        const std::int32_t lTop = grid.TopRow();
        return {Any(lTop, std::min(lTop + 10, grid.RowCount())), Any(1, grid.ColumnCount())};
    }
    PictureBoxEvents& Mouse() { return ++mlEvents, moEditor.Mouse(); }
    UserControlEvents& Keys() { return ++mlEvents, moEditor.Keys(); }
    VxHWConfigManager& Commands() { return ++mlEvents, moEditor.Manager(); }

    std::int32_t Any(std::int32_t first, std::int32_t last)
    {
        return std::uniform_int_distribution<std::int32_t>(first, last)(mRandom);
    }
    bool OneIn(std::int32_t count) { return Any(1, count) == 1; }
    template <class Value>
    Value OneOf(const std::vector<Value>& values)
    {
        return values[static_cast<std::size_t>(Any(0, static_cast<std::int32_t>(values.size()) - 1))];
    }
    template <class Value>
    Value OneOf(std::initializer_list<Value> values)
    {
        return OneOf(std::vector<Value>(values));
    }
    std::int16_t AnyShift()
    {
        return OneOf<std::int16_t>({0, 0, 0, vxShiftMask, vxCtrlMask, vxCtrlMask | vxShiftMask});
    }
    std::int16_t AnyButton() { return OneIn(4) ? vxButtonRight : vxButtonLeft; }
    /// Mostly in a place or gap that is seen.
    std::pair<float, float> AnyPoint()
    {
        const auto lTop = static_cast<float>(-moEditor.Picture().Top());
        if (OneIn(12)) return {static_cast<float>(Any(-20, 260)), lTop + static_cast<float>(Any(-20, 420))};
        // Anywhere in the row of places of a rack, its number and both outer gaps included.
        const std::int32_t lRow = Any(0, 3);
        if (moEditor.Variant().IsCentral())
            return {static_cast<float>(Any(12, 226)), static_cast<float>(lRow * 92 + Any(30, 89))};
        return {static_cast<float>(Any(12, 202)), lTop + static_cast<float>(lRow * 96 + Any(10, 84))};
    }
    /// Where a rubber band may begin.
    std::pair<float, float> PointBesidePlaces()
    {
        const float x = moEditor.Variant().IsCentral() ? 234.F : 210.F;
        return {x, static_cast<float>(Any(0, 391) - moEditor.Picture().Top())};
    }

    VxHWRackPlacePtr AnyPlace()
    {
        const auto& racks = moEditor.station->Data().racks;
        const std::int32_t lRack = Any(0, static_cast<std::int32_t>(racks.size()) - 1);
        const auto places = static_cast<std::int32_t>(racks[static_cast<std::size_t>(lRack)]->places.size());
        return moEditor.station->PlaceAt({lRack, Any(1, places)});
    }

    Editor& moEditor;
    std::mt19937& mRandom;
    std::int64_t mlEvents = 0;                  ///< of mouse, keys and commands
    std::shared_ptr<FakeDataObject> moLastDrag; ///< what an earlier drag carried
};

} // namespace zqbchwcx::testing

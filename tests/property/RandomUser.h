#pragma once

#include "platform/Input.h"
#include "tests/property/Editor.h"

#include <random>

namespace zqbchwcx::testing {

/// Somebody who does anything at all with an editor: mouse, keys, drags within and from outside, menu, clipboard,
/// catalogue, parameters, undo and redo.
class RandomUser {
public:
    RandomUser(Editor& editor, std::mt19937& random) : moEditor(editor), mRandom(random) {}

    /// Does one thing, which may be several events, and says what it was.
    std::string DoSomething();
    std::int64_t Events() const { return mlEvents; }

private:
    void Click();
    void Press();
    void DragFromHere();
    void DragFromOutside();
    void DragOver(const DataObjectPtr& data);
    void Key();
    void Menu();
    void UseClipboard();
    void TakeFromCatalogue();
    void Configure();
    void TypeAttribute();
    void ChangeInABatch();
    void Lock();
    void UndoOrRedo();
    void ChangeKeyboardFocus();

    std::int32_t Any(std::int32_t first, std::int32_t last);
    bool OneIn(std::int32_t count) { return Any(1, count) == 1; }
    std::int16_t AnyShift();
    std::int16_t AnyButton() { return OneIn(4) ? vxButtonRight : vxButtonLeft; }
    /// Mostly in a place or gap of a rack.
    std::pair<float, float> AnyPoint();
    VxHWRackPlacePtr AnyPlace();
    std::string AnyOrderNumber();

    Editor& moEditor;
    std::mt19937& mRandom;
    std::int64_t mlEvents = 0;
    std::shared_ptr<FakeDataObject> moLastDrag; ///< what an earlier drag carried
};

} // namespace zqbchwcx::testing

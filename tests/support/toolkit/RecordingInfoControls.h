#pragma once

#include "tests/support/services/CallLog.h"
#include "zqbchwcx/platform/InfoControls.h"

namespace zqbchwcx::testing {

class RecordingPanel : public Panel, public Logged {
public:
    RecordingPanel(CallLogPtr log, const Rect& rect) : Logged(std::move(log)), bounds(rect) {}

    void Events(UserControlEvents* /*receiver*/) override {}
    std::intptr_t hWnd() const override { return 8; }
    std::int32_t Width() const override { return bounds.width() * vxTwipsPerPixel; }
    std::int32_t Height() const override { return bounds.height() * vxTwipsPerPixel; }
    void Size(std::int32_t /*lWidth*/, std::int32_t /*lHeight*/) override {}
    void Font(std::string_view /*family*/, double /*points*/) override {}
    void Move(const Rect& rect) override { Call("Panel.Move"), bounds = rect; }

    Rect bounds;
};

class RecordingLabel : public Label, public Logged {
public:
    RecordingLabel(CallLogPtr log, const Rect& rect) : Logged(std::move(log)), bounds(rect) {}

    void Caption(std::string_view text) override { Call("Label.Caption"), caption = text; }
    Size TextSize() const override { return {static_cast<std::int32_t>(caption.size()) * 6, 14}; }
    void Move(const Rect& rect) override { Call("Label.Move"), bounds = rect; }

    std::string caption;
    Rect bounds;
};

class RecordingInfoBox : public InfoBox, public Logged {
public:
    RecordingInfoBox(CallLogPtr log, const Rect& rect) : Logged(std::move(log)), bounds(rect) {}

    void Name(std::string_view called) override { Call("InfoBox.Name"), name = called; }
    void Text(std::string_view shown) override { Call("InfoBox.Text"), text = shown; }
    void BackColor(OleColor color) override { Call("InfoBox.BackColor"), mBackColor = color; }
    void Redraw() override { Call("InfoBox.Redraw"), seenColor = mBackColor; }
    void Move(const Rect& rect) override { Call("InfoBox.Move"), bounds = rect; }

    std::string name;
    std::string text;
    OleColor seenColor = 0;
    Rect bounds;

private:
    OleColor mBackColor = 0;
};

class RecordingCommandButton : public CommandButton, public Logged {
public:
    RecordingCommandButton(CallLogPtr log, const Rect& rect) : Logged(std::move(log)), bounds(rect) {}

    void Caption(std::string_view text) override { Call("CommandButton.Caption"), caption = text; }
    Size PreferredSize() const override { return {static_cast<std::int32_t>(caption.size()) * 6 + 20, 23}; }
    bool Enabled() const override { return mbEnabled; }
    void Enabled(bool bEnabled) override { Call("CommandButton.Enabled"), mbEnabled = bEnabled; }
    void OnClick(std::function<void()> handler) override { mOnClick = std::move(handler); }
    void Move(const Rect& rect) override { Call("CommandButton.Move"), bounds = rect; }
    std::intptr_t hWnd() const override { return 9; }

    void Click() const { mOnClick(); }

    std::string caption;
    Rect bounds;

private:
    bool mbEnabled = true;
    std::function<void()> mOnClick;
};

} // namespace zqbchwcx::testing

#pragma once

#include "tests/support/services/CallLog.h"
#include "zqbchwcx/platform/PopupMenu.h"

namespace zqbchwcx::testing {

/// A menu that is open only for the moment of its opening: then the test may look at it and choose an item.
class RecordingPopupMenu : public PopupMenu, public Logged {
public:
    struct Item {
        std::string name;
        std::string caption;
        bool enabled = true;
    };

    using Logged::Logged;

    std::int32_t Add(std::string_view name, std::string_view caption) override
    {
        Call("PopupMenu.Add");
        items.push_back({std::string(name), std::string(caption)});
        return static_cast<std::int32_t>(items.size()) - 1;
    }
    void Caption(std::int32_t l, std::string_view caption) override
    {
        Call("PopupMenu.Caption"), At(l).caption = caption;
    }
    bool Enabled(std::int32_t lItem) const override { return items.at(static_cast<std::size_t>(lItem)).enabled; }
    void Enabled(std::int32_t lItem, bool b) override { Call("PopupMenu.Enabled"), At(lItem).enabled = b; }
    void OnClick(std::function<void(std::int32_t lItem)> handler) override { mHandler = std::move(handler); }
    void Show(std::optional<Point> at, std::optional<std::int32_t> lDefaultItem) override
    {
        Call("PopupMenu.Show");
        std::string line = at ? "at " + std::to_string(at->x) + "," + std::to_string(at->y) : "at mouse";
        for (std::size_t i = 0; i < items.size(); ++i) {
            if (!items[i].enabled || items[i].caption == "-") continue;
            line += " " + items[i].name.substr(items[i].name.find('_') + 1);
            if (lDefaultItem == static_cast<std::int32_t>(i)) line += "*";
        }
        shown.push_back(line);
        for (std::size_t i = 0; i < items.size(); ++i)
            if (items[i].name == choose && items[i].enabled) mHandler(static_cast<std::int32_t>(i));
    }

    std::vector<Item> items;
    /// One line per opening: where, and the enabled items; the default one has a star.
    std::vector<std::string> shown;
    std::optional<std::string> choose; ///< the item that the user chooses whenever the menu opens

private:
    Item& At(std::int32_t lItem) { return items.at(static_cast<std::size_t>(lItem)); }

    std::function<void(std::int32_t)> mHandler;
};

} // namespace zqbchwcx::testing

#pragma once

#include "zqbchwcx/platform/PopupMenu.h"

#include <QMenu>
#include <QPointer>
#include <QWidget>

#include <vector>

namespace zqbchwcx::qt {

class QtPopupMenu : public PopupMenu {
public:
    QtPopupMenu(QWidget& parent, const QString& name);
    ~QtPopupMenu() override;
    QtPopupMenu(const QtPopupMenu&) = delete;
    QtPopupMenu& operator=(const QtPopupMenu&) = delete;

    std::int32_t Add(std::string_view name, std::string_view caption) override;
    void Caption(std::int32_t lItem, std::string_view caption) override;
    bool Enabled(std::int32_t lItem) const override;
    void Enabled(std::int32_t lItem, bool bEnabled) override;
    void OnClick(std::function<void(std::int32_t lItem)> handler) override { mOnClick = std::move(handler); }
    void Show(std::optional<Point> at, std::optional<std::int32_t> lDefaultItem) override;

private:
    QAction& Item(std::int32_t lItem) const;

    QPointer<QMenu> mMenu;
    std::vector<QAction*> mcolItems;
    std::function<void(std::int32_t)> mOnClick;
};

} // namespace zqbchwcx::qt

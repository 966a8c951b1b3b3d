#pragma once

#include "app/export/PaperItem.h"
#include "zqbchwcx/platform/UserControl.h"

#include <QFont>

#include <vector>

namespace quillon_ed {

/// A control on paper: a view lives in it and draws, but nobody can touch it. It outlives the items on it.
class PaperSite : public zqbchwcx::ChildControl, public PaperItem {
public:
    explicit PaperSite(PaperSite* site, const zqbchwcx::Rect& rect = {});

    void Add(PaperItem* item);
    void Remove(PaperItem* item);
    /// The site's own font, with a size in pixels.
    const QFont& Font() const { return mFont; }
    /// In logical pixels.
    zqbchwcx::Size Extent() const { return {mRect.width(), mRect.height()}; }

    void Paint(QPainter& painter) const override;

    void Events(zqbchwcx::UserControlEvents* receiver) override;
    std::intptr_t hWnd() const override;
    std::int32_t Width() const override;
    std::int32_t Height() const override;
    void Size(std::int32_t lWidth, std::int32_t lHeight) override;
    void Font(std::string_view family, double points) override;
    void Move(const zqbchwcx::Rect& rect) override;

private:
    zqbchwcx::Rect mRect;
    QFont mFont;
    std::vector<PaperItem*> mcolItems; ///< from the lowest to the highest
};

} // namespace quillon_ed

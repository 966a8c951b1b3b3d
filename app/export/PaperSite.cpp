#include "app/export/PaperSite.h"

#include "zqbchwcx/qt/UiFont.h"

#include <QPainter>

#include <algorithm>

namespace quillon_ed {

using zqbchwcx::vxTwipsPerPixel;

PaperSite::PaperSite(PaperSite* site, const zqbchwcx::Rect& rect) : PaperItem(site), mRect(rect) {}

void PaperSite::Add(PaperItem* item)
{
    mcolItems.push_back(item);
}

void PaperSite::Remove(PaperItem* item)
{
    std::erase(mcolItems, item);
}

void PaperSite::Paint(QPainter& painter) const
{
    painter.save();
    painter.translate(mRect.left, mRect.top);
    for (const PaperItem* item : mcolItems) item->Paint(painter);
    painter.restore();
}

void PaperSite::Events(zqbchwcx::UserControlEvents* /*receiver*/) {}

std::intptr_t PaperSite::hWnd() const
{
    return 0;
}

std::int32_t PaperSite::Width() const
{
    return mRect.width() * vxTwipsPerPixel;
}

std::int32_t PaperSite::Height() const
{
    return mRect.height() * vxTwipsPerPixel;
}

void PaperSite::Size(std::int32_t lWidth, std::int32_t lHeight)
{
    mRect.right = mRect.left + lWidth / vxTwipsPerPixel;
    mRect.bottom = mRect.top + lHeight / vxTwipsPerPixel;
}

void PaperSite::Font(std::string_view family, double points)
{
    mFont = zqbchwcx::qt::UiFont(family, points);
}

void PaperSite::Move(const zqbchwcx::Rect& rect)
{
    mRect = rect;
}

} // namespace quillon_ed

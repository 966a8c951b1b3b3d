#include "app/export/PaperItem.h"

#include "app/export/PaperSite.h"

namespace quillon_ed {

PaperItem::PaperItem(PaperSite* site) : moSite(site)
{
    if (moSite) moSite->Add(this);
}

PaperItem::~PaperItem()
{
    if (moSite) moSite->Remove(this);
}

} // namespace quillon_ed

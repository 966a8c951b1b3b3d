#pragma once

class QPainter;

namespace quillon_ed {

class PaperSite;

/// Something that lies on a sheet of paper, in logical pixels of the site that it lies on.
class PaperItem {
public:
    /// Lies above the items that came earlier; null for a sheet itself.
    explicit PaperItem(PaperSite* site);
    virtual ~PaperItem();
    PaperItem(const PaperItem&) = delete;
    PaperItem& operator=(const PaperItem&) = delete;

    virtual void Paint(QPainter& painter) const = 0;

private:
    PaperSite* moSite;
};

} // namespace quillon_ed

#pragma once

#include <QPixmap>
#include <QTreeView>

#include <functional>

namespace quillon_ed {

/// The tree of the catalogue: a type is dragged as its picture, and chosen by double-click or Enter.
class CatalogueTree : public QTreeView {
    Q_OBJECT

public:
    using DragPicture = std::function<QPixmap(const QString& orderNumber)>;

    CatalogueTree(DragPicture dragPicture, QWidget* parent);

    /// Empty for a group.
    QString CurrentOrderNumber() const;
    /// Unfolds every group, after the model has changed.
    void ShowAll();

signals:
    void chosen(const QString& orderNumber);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void startDrag(Qt::DropActions supportedActions) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    /// Where there is no room for both, the names come first.
    void ShowOrderNumbersIfWhole();

    DragPicture moDragPicture;
};

} // namespace quillon_ed

#include "zqbchwcx/qt/TableWidget.h"

#include "zqbchwcx/qt/ControlWidget.h"
#include "zqbchwcx/qt/GridWidget.h"
#include "zqbchwcx/views/table/TableControl.h"

namespace zqbchwcx::qt {

TableWidget::TableWidget(QWidget* parent, const QString& objectName, QSize smallest, QSizePolicy::Policy height)
    : ViewWidget(parent, objectName, smallest, smallest)
{
    setSizePolicy(QSizePolicy::Expanding, height);
}

void TableWidget::Connect(TableControl& view)
{
    mEditRefused = view.EditRefused.Connect([this](const RefusedEdit& edit) {
        const QRect cell(edit.gridOnScreen.x + edit.cell.left, edit.gridOnScreen.y + edit.cell.top, edit.cell.width(),
                         edit.cell.height());
        emit editRefused(QString::fromStdString(edit.value), cell);
    });
}

QImage TableWidget::RenderToImage(double scale)
{
    return Window().ToImage(size().expandedTo(minimumSizeHint()), scale);
}

void TableWidget::ArrangeForPicture()
{
    auto* grid = findChild<GridWidget*>();
    if (grid == nullptr) return;
    grid->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    grid->WidenColumns();
}

} // namespace zqbchwcx::qt

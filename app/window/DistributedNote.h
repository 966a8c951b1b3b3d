#pragma once

#include <QWidget>

class QLabel;

namespace quillon_ed {

/// Stands where a central station has its picture, and says where a distributed station is edited.
class DistributedNote : public QWidget {
    Q_OBJECT

public:
    explicit DistributedNote(QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;

private:
    void RetranslateUi();

    QLabel* moHeading;
    QLabel* moText;
};

} // namespace quillon_ed

#pragma once

#include "reference/catalogue/Catalogue.h"

#include <QWidget>

class QLabel;

namespace quillon_ed {

/// Picture and facts of one module type.
class ModuleTypeCard : public QWidget {
    Q_OBJECT

public:
    explicit ModuleTypeCard(QWidget* parent);

    /// Null shows a hint instead.
    void Show(const zqbchwcx::reference::ModuleType* type, const QPixmap& picture,
              zqbchwcx::reference::Language language);

private:
    QLabel* moPicture;
    QLabel* moName;
    QLabel* moOrderNumber;
    QLabel* moDescription;
    QLabel* moFacts;
};

} // namespace quillon_ed

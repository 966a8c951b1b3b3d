#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"

#include <QWidget>

class QLabel;

namespace quillon_ed {

/// Picture and facts of one module type.
class ModuleTypeCard : public QWidget {
    Q_OBJECT

public:
    explicit ModuleTypeCard(QWidget* parent);

    void Show(const zqbchwcx::reference::ModuleType& type, const QPixmap& picture,
              zqbchwcx::reference::Language language);
    /// In the place of a type.
    void ShowHint(const QString& text);

private:
    void ShowText(const QString& text, bool isHint);

    QLabel* moPicture;
    QLabel* moName;
    QLabel* moOrderNumber;
    QLabel* moDescription;
    QLabel* moFacts;
};

} // namespace quillon_ed

#pragma once

#include "app/catalogue/CatalogueModel.h"
#include "app/host/ModulePictures.h"
#include "zqbchwcx/reference/catalogue/Catalogue.h"

#include <QWidget>

#include <optional>

class QLabel;
class QLineEdit;
class QPushButton;

namespace quillon_ed {

class CatalogueFilter;
class CatalogueTree;
class ModuleTypeCard;

/// The catalogue of module types: a tree with search, and picture and facts of the selected type.
class CataloguePanel : public QWidget {
    Q_OBJECT

public:
    CataloguePanel(const zqbchwcx::reference::Catalogue& catalogue, ModulePictures& pictures,
                   CatalogueModel::DragData dragData, QWidget* parent);

    /// Shows the types that stations of that kind take, named in that language.
    void Show(std::int32_t stationKind, zqbchwcx::reference::Language language);
    /// Whether a type can be inserted now.
    void InsertEnabled(bool enabled);
    void FocusSearch();

signals:
    /// A type was chosen to be inserted at the current position.
    void insertRequested(const QString& orderNumber);

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void RetranslateUi();
    void Search();
    void ShowCount();
    void ShowType();
    QString Hint() const;
    void Choose();

    const zqbchwcx::reference::Catalogue& moCatalogue;
    ModulePictures& moPictures;
    std::optional<std::int32_t> mlStationKind; ///< of the types in the tree
    zqbchwcx::reference::Language meLanguage = zqbchwcx::reference::Language::English;
    CatalogueModel* moModel;
    CatalogueFilter* moFilter;
    QLineEdit* moSearch;
    QLabel* moCount;
    CatalogueTree* moTree;
    ModuleTypeCard* moCard;
    QPushButton* moInsert;
    bool mbInsertEnabled = false;
};

} // namespace quillon_ed

#pragma once

#include "app/dialogs/ModuleForm.h"
#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/model/StationData.h"

#include <QDialog>
#include <QPixmap>

class QDialogButtonBox;
class QLabel;
class QListWidget;
class QStackedWidget;

namespace quillon_ed {

/// What the dialog needs to know of the station around the module.
struct ParameterDialogContext {
    const zqbchwcx::reference::Catalogue* catalogue = nullptr;
    zqbchwcx::reference::Language language = zqbchwcx::reference::Language::English;
    QString place;   ///< where the module is, for the heading
    QPixmap picture; ///< of the module; may be null
    bool readOnly = false;
    AddressCheck addressCheck;
    /// Why the station would not take the module as edited, where the fields alone have nothing against it; empty
    /// when it would.
    std::function<QString(const zqbchwcx::reference::ModuleData&)> moduleCheck;
};

/// Edits a module and its sub-modules: name, comment, addresses and parameters. Nothing changes before it is accepted.
class ParameterDialog : public QDialog {
    Q_OBJECT

public:
    /// A type that the catalogue does not know cannot be edited; see `CanEdit`.
    ParameterDialog(const zqbchwcx::reference::ModuleData& module, const ParameterDialogContext& context,
                    QWidget* parent);

    static bool CanEdit(const zqbchwcx::reference::ModuleData& module, const zqbchwcx::reference::Catalogue& catalogue);

    /// The module as edited; ask after the dialog was accepted.
    zqbchwcx::reference::ModuleData Result() const;

private:
    QWidget* MakeHeading(const zqbchwcx::reference::ModuleType& type, const ParameterDialogContext& context);
    void AddPage(const zqbchwcx::reference::ModuleData& module, const zqbchwcx::reference::ModuleType& type,
                 const ParameterDialogContext& context, const QString& title, AddressCheck addressCheck);
    void Update();

    bool mbReadOnly;
    QListWidget* moPages;
    QStackedWidget* moStack;
    QLabel* moReason;
    QDialogButtonBox* moButtons = nullptr;
    std::function<QString(const zqbchwcx::reference::ModuleData&)> moModuleCheck;
    std::vector<ModuleForm*> mcolForms;          ///< the module's form, then those of its sub-modules
    std::vector<std::size_t> mcolSubModuleIndex; ///< which sub-module the form shows; the first form has no entry
};

} // namespace quillon_ed

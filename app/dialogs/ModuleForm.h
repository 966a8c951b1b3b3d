#pragma once

#include "app/dialogs/ValueInput.h"
#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/model/StationData.h"
#include "zqbchwcx/reference/model/rules/AddressMap.h"

#include <QLocale>
#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

class QFormLayout;
class QLineEdit;

namespace quillon_ed {

class FormField;

/// Why an address cannot be the first one of the area, in the user's language; empty when it can.
using AddressCheck =
    std::function<QString(zqbchwcx::reference::AddressArea area, std::int32_t address, std::int32_t bytes)>;

/// Name, comment, addresses and parameters of one module, made from what its type says.
class ModuleForm : public QWidget {
    Q_OBJECT

public:
    /// The type outlives the form.
    ModuleForm(const zqbchwcx::reference::ModuleType& type, const zqbchwcx::reference::ModuleData& module,
               zqbchwcx::reference::Language language, AddressCheck addressCheck, QWidget* parent);

    bool IsValid() const;
    bool HasDefaults() const;
    /// The module as the form says it; what the form does not show stays as it was. Ask only a valid form.
    zqbchwcx::reference::ModuleData Result() const;

    /// Puts every parameter back to its default; name, comment and addresses stay.
    void Reset();

signals:
    void changed();

private:
    struct ParameterLine {
        const zqbchwcx::reference::ParameterDefinition* definition;
        ValueInput input;
        FormField* field;
    };
    struct AddressLine {
        zqbchwcx::reference::AddressArea area;
        std::int32_t bytes;
        QLineEdit* edit;
        FormField* field;
    };

    void AddGeneral(QFormLayout& form, const zqbchwcx::reference::ModuleType& type);
    void AddAddress(QFormLayout& form, zqbchwcx::reference::AddressArea area, const QString& label,
                    const zqbchwcx::reference::ModuleType& type);
    void AddParameter(QFormLayout& form, const zqbchwcx::reference::ParameterDefinition& definition,
                      zqbchwcx::reference::Language language);
    QString AddressReason(const AddressLine& line) const;
    void Check();

    zqbchwcx::reference::ModuleData moModule;
    AddressCheck moAddressCheck;
    QLocale moLocale;
    QLineEdit* moName = nullptr;
    FormField* moNameField = nullptr;
    QLineEdit* moComment = nullptr;
    FormField* moCommentField = nullptr;
    std::vector<AddressLine> mcolAddresses;
    std::vector<ParameterLine> mcolParameters;
    bool mbValid = true;
    bool mbDefaults = true;
};

} // namespace quillon_ed

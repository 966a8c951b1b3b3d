#include "tests/unit/app/AppStage.h"

#include "app/dialogs/ParameterDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>

namespace quillon_ed {
namespace {

using namespace zqbchwcx::reference;

class ParameterDialogTest : public testing::AppStage {
protected:
    ParameterDialogTest()
    {
        context.catalogue = &services.Catalogue();
        module.orderNumber = "Q3-AI08-A";
        module.comment = "Well level";
        module.inputAddress = 4;
        module.parameters = {{"highLimit", 15.0}, {"limitInterrupt", true}};
    }

    void Open() { dialog = std::make_unique<ParameterDialog>(module, context, nullptr); }
    /// The input with that accessible name: the label in the window's language.
    template <class Widget = QLineEdit>
    Widget* Input(const char* label)
    {
        for (auto* widget : dialog->findChildren<Widget*>()) {
            if (widget->accessibleName() == QString::fromUtf8(label)) return widget;
        }
        return nullptr;
    }
    const char* Label(const char* key) const
    {
        const auto& all = services.Catalogue().Find(module.orderNumber)->parameters;
        return std::find_if(all.begin(), all.end(), [&](const auto& one) { return one.key == key; })->label.en.c_str();
    }
    QPushButton* Button(QDialogButtonBox::StandardButton which)
    {
        return dialog->findChild<QDialogButtonBox*>()->button(which);
    }
    bool IsOkEnabled() { return Button(QDialogButtonBox::Ok)->isEnabled(); }

    ParameterDialogContext context;
    ModuleData module;
    std::unique_ptr<ParameterDialog> dialog;
};

TEST_F(ParameterDialogTest, ChangesNothingByBeingOpenForAnyTypeOfTheCatalogue)
{
    const auto makeModule = [&](const std::string& orderNumber, std::int32_t address) {
        const ModuleType& type = *services.Catalogue().Find(orderNumber);
        ModuleData made;
        made.orderNumber = orderNumber;
        if (type.inputBytes > 0) made.inputAddress = address;
        if (type.outputBytes > 0) made.outputAddress = address;
        return made;
    };
    for (const ModuleType& type : services.Catalogue().Types()) {
        module = makeModule(type.orderNumber, 8);
        for (const std::string& orderNumber : type.subModules) module.subModules.push_back(makeModule(orderNumber, 64));
        Open();
        EXPECT_EQ(dialog->Result(), module) << type.orderNumber;
        EXPECT_TRUE(IsOkEnabled()) << type.orderNumber;
        EXPECT_FALSE(Button(QDialogButtonBox::RestoreDefaults)->isEnabled()) << type.orderNumber;
    }
}

TEST_F(ParameterDialogTest, GivesBackWhatWasTyped)
{
    Open();
    Input("Name")->setText(QStringLiteral("Levels"));
    Input("Input address")->setText(QStringLiteral("12"));
    Input(Label("highLimit"))->setText(QStringLiteral("10.5"));
    Input<QCheckBox>(Label("limitInterrupt"))->setChecked(false);
    module.name = "Levels";
    module.inputAddress = 12;
    module.parameters = {{"highLimit", 10.5}}; // the other one has its default
    EXPECT_EQ(dialog->Result(), module);
}

TEST_F(ParameterDialogTest, IsNotAcceptedWhileSomethingIsInvalidAndSaysWhereAndWhy)
{
    context.addressCheck = [](AddressArea, std::int32_t address, std::int32_t) {
        return address == 8 ? QStringLiteral("taken") : QString();
    };
    Open();
    QLineEdit* address = Input("Input address");
    for (const char* text : {"", "x", "-1", "99999999", "8"}) {
        address->setText(QString::fromLatin1(text));
        EXPECT_FALSE(IsOkEnabled()) << text;
        EXPECT_FALSE(address->accessibleDescription().isEmpty()) << text;
    }
    EXPECT_EQ(address->accessibleDescription(), QStringLiteral("taken"));
    address->setText(QStringLiteral("16"));
    EXPECT_TRUE(IsOkEnabled());
    EXPECT_TRUE(address->accessibleDescription().isEmpty());

    context.moduleCheck = [](const ModuleData& edited) {
        return edited.name == "bad" ? QStringLiteral("The station does not take it") : QString();
    };
    Open();
    Input("Name")->setText(QStringLiteral("bad"));
    EXPECT_FALSE(IsOkEnabled());
}

TEST_F(ParameterDialogTest, RestoresTheDefaultsOfParametersOnly)
{
    Open();
    Button(QDialogButtonBox::RestoreDefaults)->click();
    module.parameters.clear();
    EXPECT_EQ(dialog->Result(), module);
    EXPECT_FALSE(Button(QDialogButtonBox::RestoreDefaults)->isEnabled());
}

TEST_F(ParameterDialogTest, ShowsAnUnknownChoiceAndKeepsUnknownParameters)
{
    module.parameters["measuring"] = std::string("telepathy");
    module.parameters["fromTheFuture"] = std::int64_t{7};
    Open();
    auto* list = Input<QComboBox>(Label("measuring"));
    EXPECT_EQ(list->currentText(), QStringLiteral("telepathy"));
    EXPECT_FALSE(IsOkEnabled());
    list->setCurrentIndex(0);
    EXPECT_TRUE(IsOkEnabled());
    EXPECT_EQ(dialog->Result().parameters.at("fromTheFuture"), ParameterValue(std::int64_t{7}));
}

TEST_F(ParameterDialogTest, EditsSubModulesOnPagesOfTheirOwn)
{
    module = {};
    module.orderNumber = "Q3-CP30-C";
    for (const std::string& orderNumber : services.Catalogue().Find(module.orderNumber)->subModules)
        module.subModules.emplace_back().orderNumber = orderNumber;
    Open();
    auto* pages = dialog->findChild<QStackedWidget*>();
    ASSERT_EQ(pages->count(), static_cast<int>(module.subModules.size()) + 1);
    for (auto* edit : pages->widget(2)->findChildren<QLineEdit*>())
        if (edit->accessibleName() == QStringLiteral("Comment")) edit->setText(QStringLiteral("second"));
    module.subModules[1].comment = "second";
    EXPECT_EQ(dialog->Result(), module);
}

} // namespace
} // namespace quillon_ed

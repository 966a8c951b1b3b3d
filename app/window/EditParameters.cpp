#include "app/window/EditParameters.h"

#include "app/dialogs/ParameterDialog.h"
#include "app/host/AppServices.h"
#include "app/host/Strings.h"
#include "zqbchwcx/reference/model/contract/Station.h"
#include "zqbchwcx/reference/model/editing/EditModule.h"

namespace quillon_ed {

using namespace zqbchwcx::reference;

namespace {

constexpr double PictureScale = 1.25;

/// Against addresses that other modules use. The module's own ones are free for it.
AddressCheck MakeAddressCheck(const EditContext& context, PlaceRef place, Language language)
{
    return [context, place, language](AddressArea area, std::int32_t address, std::int32_t bytes) {
        const std::int32_t size = context.addresses.Of(area).AreaSize();
        if (std::int64_t{address} + bytes > size)
            return ParameterDialog::tr("The last address of this station is %1").arg(size - 1);
        const auto user = UserOf(area, address, bytes, context.data, context.catalogue, place);
        return user ? ParameterDialog::tr("In use by %1").arg(ToQString(PlaceText(*user), language)) : QString();
    };
}

} // namespace

std::optional<ModuleData> EditParameters(AppServices& services, const Station& station, const ModuleData& module,
                                         PlaceRef place, QWidget* parent)
{
    const Catalogue& catalogue = services.Catalogue();
    if (!ParameterDialog::CanEdit(module, catalogue)) return std::nullopt;
    const Language language = services.CurrentLanguage();
    const EditContext edit = station.EditFrom();

    ParameterDialogContext context;
    context.catalogue = &catalogue;
    context.language = language;
    context.place = ToQString(PlaceText(place), language);
    context.picture =
        services.Pictures().Picture(*catalogue.Find(module.orderNumber), PictureScale, parent->devicePixelRatioF());
    context.readOnly = station.IsReadOnly();
    context.addressCheck = MakeAddressCheck(edit, place, language);
    context.moduleCheck = [&](const ModuleData& edited) {
        const auto outcome = ReplaceModule(edit, place, edited);
        return outcome ? QString() : ToQString(outcome.Reason().text, language);
    };
    ParameterDialog dialog(module, context, parent);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return dialog.Result();
}

} // namespace quillon_ed

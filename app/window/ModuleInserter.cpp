#include "app/window/ModuleInserter.h"

#include "app/document/Document.h"
#include "app/host/AppServices.h"
#include "app/host/Strings.h"
#include "app/window/ConfigurationView.h"
#include "zqbchwcx/foundation/Brackets.h"
#include "zqbchwcx/foundation/ConfigTextCodec.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/mdl_Main.h"
#include "zqbchwcx/foundation/mdl_VarConst.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWModules.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/qt/ClipboardFormats.h"
#include "zqbchwcx/reference/model/contract/Modules.h"

#include <QCoreApplication>
#include <QMimeData>

namespace quillon_ed {

using namespace zqbchwcx;

namespace {

constexpr char ModuleName[] = "ModuleInserter";

struct InserterTexts {
    Q_DECLARE_TR_FUNCTIONS(quillon_ed::ModuleInserter)
};

/// One module of the type, with its sub-modules.
VxHWModulesPtr ModulesOfType(reference::Station& station, const std::string& orderNumber)
{
    const VxHWModulePtr module = station.CreateModule(orderNumber);
    if (module->SubModuleCount() > 0) station.CreateSubModules(module);
    auto modules = std::make_shared<reference::Modules>(station.Context());
    modules->Add(module, true);
    return modules;
}

std::int32_t FirstTargetPosition(const VxHWSelectionHandler& handler)
{
    const VxHWRackPlacesPtr selected = handler.SelPlaces();
    if (selected->Count() == 0) return handler.FocusPosition();
    const VxHWRackPlacePtr place = selected->Element(0);
    return G_PlacePosition(place->Rack()->Number(), place->Number());
}

} // namespace

QString InsertModule(AppServices& services, Document& document, ConfigurationView& view, const QString& orderNumber)
{
    reference::Station& station = *document.Station();
    const std::string type = orderNumber.toStdString();
    const std::string actionName = InserterTexts::tr("Insert").toStdString();
    const std::size_t errorsBefore = services.Errors().Entries().size();
    bool inserted = false;
    QString refusal;
    G_Trap(ModuleName, "InsertModule", [&] {
        {
            const UserAction action(actionName, ModuleName, "InsertModule");
            inserted = view.Manager().SetSingleModuleToCurPos(station.CreateModule(type));
            // The manager leaves the drawing off when it fails.
            if (!station.IsDrawable()) station.IsDrawable(true);
        }
        if (inserted) return;
        const std::int32_t position = FirstTargetPosition(*view.Handler());
        const auto objection = station.AgainstPlacing(position, ModulesOfType(station, type), false, nullptr);
        if (objection) refusal = ToQString(objection->text, services.CurrentLanguage());
    });
    if (inserted) return {};
    if (!refusal.isEmpty()) return refusal;
    return services.Errors().Entries().size() > errorsBefore
               ? InserterTexts::tr("The module was not inserted; see the messages")
               : InserterTexts::tr("The module does not fit there");
}

QMimeData* ModuleDragData(reference::Station& station, const QString& orderNumber)
{
    QMimeData* data = nullptr;
    G_Trap(ModuleName, "ModuleDragData", [&] {
        const ByteArray bytes = G_EncodeConfigText(ModulesOfType(station, orderNumber.toStdString())->ConfigText());
        data = new QMimeData;
        data->setData(qt::ClipboardMimeType(qt::ClipboardFormatNumber(G_ConfigTextFormatName)),
                      QByteArray(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())));
    });
    return data;
}

} // namespace quillon_ed

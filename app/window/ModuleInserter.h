#pragma once

#include <QString>

class QMimeData;

namespace zqbchwcx::reference {
class Station;
}

namespace quillon_ed {

class AppServices;
class Document;
class ConfigurationView;

/// Inserts a module of the type at the selected places, or at the focus, as one step of the history. Returns why it
/// could not, in the user's language; empty when it was inserted.
QString InsertModule(AppServices& services, Document& document, ConfigurationView& view, const QString& orderNumber);

/// A module of the type as the data of a drag; null, after a report, when it cannot be made.
QMimeData* ModuleDragData(zqbchwcx::reference::Station& station, const QString& orderNumber);

} // namespace quillon_ed

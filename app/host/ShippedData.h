#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/services/TextTable.h"

#include <QStringList>

namespace quillon_ed {

/// What is compiled into the program. Each throws FileError when its content is not in order.
zqbchwcx::reference::Catalogue ShippedCatalogue();
zqbchwcx::reference::TextTable ShippedTexts(zqbchwcx::reference::Language language);

/// The resources of the example stations, in the order of their names.
QStringList ShippedExamples();

/// The whole content of a resource or file. Throws FileError when it cannot be read.
QByteArray ReadWhole(const QString& fileName);

} // namespace quillon_ed

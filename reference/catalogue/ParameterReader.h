#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/json/JsonCursor.h"

namespace zqbchwcx::reference {

/// A text in every language: an object with the members "en" and "de", or one string for all.
LocalizedText ReadLocalizedText(const JsonCursor& text);

/// The definition of a parameter. A default outside the definition's own range is refused.
ParameterDefinition ReadParameterDefinition(const JsonCursor& definition);

} // namespace zqbchwcx::reference

#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"

#include <functional>
#include <memory>

namespace zqbchwcx::reference {

/// What every object of the model knows: the types that there are, and the language that people read.
struct ModelContext {
    std::shared_ptr<const Catalogue> catalogue; ///< never null
    std::function<Language()> language;         ///< asked anew for each text; English without it

    Language CurrentLanguage() const { return language ? language() : Language::English; }
};
using ModelContextPtr = std::shared_ptr<const ModelContext>;

} // namespace zqbchwcx::reference

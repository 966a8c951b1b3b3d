#pragma once

#include "zqbchwcx/foundation/Event.h"
#include "zqbchwcx/platform/HostServices.h"
#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/services/PictureProvider.h"
#include "zqbchwcx/reference/services/TextTable.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace zqbchwcx::reference {

/// The text module of the library in English and German. Modules that are open speak the new language as soon as it
/// is set; whoever keeps texts fetches them again on `LanguageChange`.
class Texts : public TextManager {
public:
    Texts(TextTable english, TextTable german, std::shared_ptr<PictureProvider> pictures);

    /// Throws VxError for a module other than the library's.
    TextModulePtr Open(std::string_view moduleName) override;
    /// Throws VxError when the module is not open.
    void Release(std::string_view moduleName) override;
    std::int32_t OpenCount() const { return mlOpenCount; }

    Language CurrentLanguage() const;
    void CurrentLanguage(Language language);
    Event<> LanguageChange;

    /// The text in the current language. Throws VxError when there is none of that number.
    std::string Text(std::int32_t lId) const;

private:
    class Module;
    struct Tables;

    std::shared_ptr<Tables> moTables;
    std::int32_t mlOpenCount = 0;
};

} // namespace zqbchwcx::reference

#include "zqbchwcx/reference/services/Texts.h"

#include "zqbchwcx/foundation/VxError.h"
#include "zqbchwcx/foundation/mdl_VarConst.h"

#include <string>
#include <utility>

namespace zqbchwcx::reference {

/// What every open module shares; it outlives the manager for as long as a module is kept.
struct Texts::Tables {
    TextTable english;
    TextTable german;
    std::shared_ptr<PictureProvider> pictures;
    Language language = Language::English;

    const std::string& Text(std::int32_t lId) const
    {
        const TextTable& table = language == Language::German ? german : english;
        const auto found = table.find(lId);
        if (found == table.end())
            throw VxError(vxErrorSubscript, "There is no " +
                                                std::string(language == Language::German ? "German" : "English") +
                                                " text " + std::to_string(lId));
        return found->second;
    }
};

class Texts::Module : public TextModule {
public:
    explicit Module(std::shared_ptr<const Tables> tables) : moTables(std::move(tables)) {}

    std::string Text(std::int32_t lId) override { return moTables->Text(lId); }

    ImagePtr Picture(std::string_view name) override
    {
        if (!moTables->pictures) throw VxError(vxErrorNothing, "There are no pictures");
        return moTables->pictures->Picture(name);
    }

    std::intptr_t hInstance() const override { return moTables->pictures ? moTables->pictures->hInstance() : 0; }

private:
    std::shared_ptr<const Tables> moTables;
};

Texts::Texts(TextTable english, TextTable german, std::shared_ptr<PictureProvider> pictures)
    : moTables(std::make_shared<Tables>(Tables{std::move(english), std::move(german), std::move(pictures)}))
{
}

TextModulePtr Texts::Open(std::string_view moduleName)
{
    if (moduleName != G_TextModuleName)
        throw VxError(vxErrorInvalidArgument, "There is no text module \"" + std::string(moduleName) + "\"");
    auto module = std::make_shared<Module>(moTables);
    ++mlOpenCount;
    return module;
}

void Texts::Release(std::string_view moduleName)
{
    if (moduleName != G_TextModuleName || mlOpenCount == 0)
        throw VxError(vxErrorInvalidArgument, "The text module \"" + std::string(moduleName) + "\" is not open");
    --mlOpenCount;
}

Language Texts::CurrentLanguage() const
{
    return moTables->language;
}

void Texts::CurrentLanguage(Language language)
{
    if (language == moTables->language) return;
    moTables->language = language;
    LanguageChange.Raise();
}

std::string Texts::Text(std::int32_t lId) const
{
    return moTables->Text(lId);
}

} // namespace zqbchwcx::reference

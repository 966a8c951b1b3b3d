#pragma once

#include <string>

namespace zqbchwcx::reference {

enum class Language { English, German };

struct LocalizedText {
    std::string en;
    std::string de;

    const std::string& In(Language language) const { return language == Language::German && !de.empty() ? de : en; }
};

} // namespace zqbchwcx::reference

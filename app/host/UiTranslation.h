#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"

#include <QTranslator>

namespace quillon_ed {

/// The translation of the window's texts and of the standard dialogs. Changing it sends every widget a
/// LanguageChange event.
class UiTranslation {
public:
    UiTranslation() = default;
    ~UiTranslation();
    UiTranslation(const UiTranslation&) = delete;
    UiTranslation& operator=(const UiTranslation&) = delete;

    void Set(zqbchwcx::reference::Language language);

private:
    QTranslator moWindow;
    QTranslator moStandard;
};

} // namespace quillon_ed

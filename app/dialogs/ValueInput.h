#pragma once

#include "app/dialogs/ParameterText.h"

#include <QLocale>

#include <functional>

class QWidget;

namespace quillon_ed {

/// The input of one parameter: its widget, and how a value gets in and out of it.
struct ValueInput {
    QWidget* widget = nullptr;
    std::function<ParsedParameter()> read;
    std::function<void(const zqbchwcx::reference::ParameterValue&)> write;
};

/// A check box, a list or a text line, whichever suits the parameter. The definition outlives the input.
ValueInput MakeValueInput(const zqbchwcx::reference::ParameterDefinition& definition,
                          zqbchwcx::reference::Language language, const QLocale& locale,
                          const std::function<void()>& changed);

} // namespace quillon_ed

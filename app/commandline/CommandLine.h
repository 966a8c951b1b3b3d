#pragma once

#include "app/export/PictureContent.h"
#include "app/host/Colors.h"
#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/commands/ModuleListText.h"

#include <optional>
#include <string>
#include <vector>

namespace quillon_ed {

using zqbchwcx::reference::Language;
using zqbchwcx::reference::ListFormat;
using zqbchwcx::reference::LocalizedText;

enum class Command { Open, Render, Check, List, Convert };

/// What the user asked for on the command line.
struct CommandLine {
    Command command = Command::Open;
    bool help = false;    ///< show the help of the command instead of running it
    bool version = false; ///< show the version instead of running the command
    /// Open, Check: any number of stations; Render, List: one; Convert: the file to read and the file to write.
    std::vector<std::string> files;
    std::string output;                       ///< Render, List: the file to write; List: empty for standard output
    PictureView view = PictureView::Overview; ///< Render
    std::optional<std::int32_t> rack;         ///< Render: the table's; none: rack 0
    double scale = 1;                         ///< Render: device pixels to a logical pixel
    std::optional<Colors> colors;             ///< Render to PNG; none: light
    std::optional<ListFormat> format;         ///< List
    std::optional<Language> language;         ///< none: the user's setting, or the desktop's language
};

/// Exit codes of the program.
enum ExitCode : int { ExitClean = 0, ExitBrokenRules = 1, ExitUsage = 2, ExitFile = 3 };

inline constexpr double MinimumScale = 0.5;
inline constexpr double MaximumScale = 8;

} // namespace quillon_ed

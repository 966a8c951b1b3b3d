#pragma once

#include "app/export/PictureContent.h"
#include "app/host/Colors.h"
#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/commands/ModuleListText.h"
#include "zqbchwcx/reference/compare/CompareOptions.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quillon_ed {

using zqbchwcx::reference::Language;
using zqbchwcx::reference::ListFormat;
using zqbchwcx::reference::LocalizedText;

enum class Command { Open, Render, Check, List, Convert, Diagnose, Simulate, Compare };

/// What the user asked for on the command line.
struct CommandLine {
    Command command = Command::Open;
    bool help = false;    ///< show the help of the command instead of running it
    bool version = false; ///< show the version instead of running the command
    /// Open, Check: any number of stations; Render, List, Diagnose, Simulate: one; Convert: the file to read and the
    /// file to write; Compare: two stations, or the one whose revision is compared.
    std::vector<std::string> files;
    std::string output;                          ///< Render, List: the file to write; List: empty for standard output
    PictureView view = PictureView::Overview;    ///< Render
    std::optional<std::int32_t> rack;            ///< Render: the table's; none: rack 0
    double scale = 1;                            ///< Render: device pixels to a logical pixel
    std::optional<Colors> colors;                ///< Render to PNG; none: light
    bool diagnostics = false;                    ///< Render: the state of the plant instead of the configuration
    std::optional<ListFormat> format;            ///< List, Diagnose; Compare: all but Csv; none: for reading
    bool details = false;                        ///< List: everything that a station holds instead of a table
    std::string source;                          ///< Diagnose, Render: where the plant's state comes from
    std::string record;                          ///< Diagnose: the recording to write; empty for none
    bool watch = false;                          ///< Diagnose: tell every change, without an end
    bool map = false;                            ///< Diagnose: only the register map
    std::string listen = "127.0.0.1:5020";       ///< Simulate: address and port
    std::string script;                          ///< Simulate: file; empty for none
    std::optional<std::uint32_t> seed;           ///< Simulate: of random faults; none: no such faults
    std::string html;                            ///< Compare: the file for the HTML report; empty for none
    std::string revision;                        ///< Compare: the revision in git; empty for none
    zqbchwcx::reference::CompareOptions ignored; ///< Compare
    std::optional<Language> language;            ///< none: the user's setting, or the desktop's language
};

/// Exit codes of the program. `Diagnose`, `Simulate` and `Compare` have a code of their own for all that keeps them
/// from working.
enum ExitCode : int {
    ExitClean = 0,
    ExitBrokenRules = 1,
    ExitFaulty = 1,
    ExitDifferent = 1,
    ExitUsage = 2,
    ExitTrouble = 2,
    ExitFile = 3,
};

inline constexpr double MinimumScale = 0.5;
inline constexpr double MaximumScale = 8;

} // namespace quillon_ed

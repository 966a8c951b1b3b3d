#include "app/commandline/ParseCommandLine.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillon_ed {
namespace {

using Arguments = std::vector<std::string>;

CommandLine Understood(const Arguments& arguments)
{
    const auto parsed = ParseCommandLine(arguments);
    if (const auto* error = std::get_if<UsageError>(&parsed)) {
        ADD_FAILURE() << error->reason.en;
        return {};
    }
    return std::get<CommandLine>(parsed);
}

std::string Refusal(const Arguments& arguments)
{
    const auto parsed = ParseCommandLine(arguments, [](const std::string& name) { return name == "plant"; });
    const auto* error = std::get_if<UsageError>(&parsed);
    return error ? error->reason.en : "accepted";
}

TEST(ParseCommandLine, FindsCommandFilesAndLanguage)
{
    struct Case {
        Arguments arguments;
        Command command;
        Arguments files;
        std::optional<Language> language;
    };
    const Case cases[] = {
        {{}, Command::Open, {}, {}},
        {{"a.json", "--lang", "de", "b.json"}, Command::Open, {"a.json", "b.json"}, Language::German},
        {{"--lang", "en", "check", "render"}, Command::Check, {"render"}, Language::English},
        {{"a.json", "check"}, Command::Open, {"a.json", "check"}, {}},
        {{"--", "render"}, Command::Open, {"render"}, {}},
        {{"check", "-", "--", "--lang"}, Command::Check, {"-", "--lang"}, {}},
        {{"convert", "--help"}, Command::Convert, {}, {}},
        {{"--version"}, Command::Open, {}, {}},
    };
    for (const auto& [arguments, command, files, language] : cases) {
        const CommandLine line = Understood(arguments);
        EXPECT_EQ(line.command, command);
        EXPECT_EQ(line.files, files);
        EXPECT_EQ(line.language, language);
        EXPECT_EQ(line.help, arguments == Arguments({"convert", "--help"}));
        EXPECT_EQ(line.version, arguments == Arguments{"--version"});
    }
}

TEST(ParseCommandLine, ReadsEverySpellingOfAnOptionWithAValue)
{
    for (const Arguments& output : {Arguments{"-o", "x.png"}, Arguments{"-ox.png"}, Arguments{"--output", "x.png"},
                                    Arguments{"--output=x.png"}}) {
        Arguments arguments{"render", "s.json", "--scale=1.5"};
        arguments.insert(arguments.end(), output.begin(), output.end());
        const CommandLine line = Understood(arguments);
        EXPECT_EQ(line.output, "x.png");
        EXPECT_EQ(line.scale, 1.5);
        EXPECT_EQ(line.files, Arguments{"s.json"});
    }
}

TEST(ParseCommandLine, ReadsTheFormatOfAList)
{
    EXPECT_EQ(Understood({"list", "s.json", "--csv"}).format, ListFormat::Csv);
    EXPECT_EQ(Understood({"list", "--json", "s.json"}).format, ListFormat::Json);
    EXPECT_EQ(Understood({"list", "--md", "--md", "s.json"}).format, ListFormat::Markdown);
}

TEST(ParseCommandLine, RefusesTheRestAndSaysWhy)
{
    const std::pair<Arguments, std::string> cases[] = {
        {{"list", "s.json", "--csv", "--md"}, "only one of --csv, --json and --md can be given"},
        {{"render", "s.json", "--sclae", "2"}, "unknown option '--sclae'; did you mean '--scale'?"},
        {{"--sideways"}, "unknown option '--sideways'"},
        {{"-x"}, "unknown option '-x'"},
        {{"--lang=de", "chekc", "s.json"}, "unknown command 'chekc'; did you mean 'check'?"},
        {{"rendr", "s.json", "-o", "x.png"}, "unknown command 'rendr'; did you mean 'render'?"},
        {{"./rendr"}, "accepted"},
        {{"rendr.json"}, "accepted"},
        {{"plant"}, "accepted"},
        {{"compere", "a.json", "b.json"}, "unknown command 'compere'; did you mean 'compare'?"},
        {{"compare", "a"}, "'compare' needs two stations, or '--git REVISION' and one"},
        {{"compare", "-", "-"}, "standard input can be only one of two stations"},
        {{"compare", "--git", "HEAD", "-"}, "standard input can be only one of two stations"},
        {{"compare", "--git=HEAD", "a", "b"},
         "with '--git' only one station is given: it is compared with its revision"},
        {{"compare", "a", "-", "--json", "--text"}, "only one of --text, --json and --md can be given"},
        {{"compare", "a", "b", "--html", "x", "--md"}, "'--html' has no other format beside it"},
        {{"compare", "a", "b", "--ignore", "name,,"},
         "'' cannot be ignored; these can: name, comment, addresses, parameters, submodules, usability, lock"},
        {{"compare", "a", "b", "--ignore", "lock,name", "--ignore=comment"}, "accepted"},
        {{"list", "a", "--details", "--csv"}, "'--details' has no other format"},
        {{"lst", "--json", "a.json"}, "unknown command 'lst'; did you mean 'list'?"},
        {{"check", "s.json", "--scale", "2"}, "'check' has no option '--scale'"},
        {{"s.json", "-o", "x"}, "the option '-o' needs a command before it"},
        {{"render", "s.json", "-o"}, "the option '-o' needs a value"},
        {{"--help=yes"}, "the option '--help' takes no value"},
        {{"--lang", "fr"}, "there is no language 'fr'; the languages are: de, en"},
        {{"render", "a", "-o", "x.png", "--view", "top"},
         "there is no view 'top'; the views are: overview, table, both"},
        {{"render", "a", "-o", "x.png", "--palette=red"},
         "there is no palette 'red'; the palettes are: light, dark, contrast"},
        {{"render", "a", "-o", "x.svg", "--palette=dark"},
         "'--palette' is for .png files: vectors are drawn for white paper"},
        {{"render", "a", "-o", "x.png", "--view=table", "--rack=-1"}, "the rack '-1' is not a number from 0"},
        {{"render", "a", "-o", "x.png", "--view=table", "--rack=1a"}, "the rack '1a' is not a number from 0"},
        {{"render", "a", "-o", "x.png", "--rack=1"}, "'--rack' is for tables: add --view table or --view both"},
        {{"render", "a", "-o", "x.png", "--rack=1", "--view=both"}, "accepted"},
        {{"check"}, "'check' needs a station file"},
        {{"convert", "a"}, "'convert' needs 2 files"},
        {{"convert", "a", "b", "c"}, "'c' is one file too many for 'convert'"},
        {{"render", "a"}, "'render' needs the file to write: -o FILE.png"},
        {{"render", "a", "-o", "b.bmp"}, "the name of the picture 'b.bmp' must end in .png, .svg or .pdf"},
        {{"convert", "a", "json"}, "the name of the new file 'json' must end in .json, .csv or .md"},
        {{"convert", "a", "b.md"}, "accepted"},
        {{"diagnose", "a"}, "'diagnose' needs a source: --source modbus-tcp://HOST:PORT"},
        {{"diagnose", "a", "--source", "x", "--watch", "--csv", "--record=r"}, "accepted"},
        {{"diagnose", "a", "--map", "--json"}, "accepted"},
        {{"diagnose", "a", "--map", "--source=x"}, "'--map' needs no source"},
        {{"diagnose", "a", "--map", "--watch"}, "'--map' does not go with '--watch' or '--record'"},
        {{"simulate", "a", "--random", "7", "--listen=localhost:0", "--script=s"}, "accepted"},
        {{"simulate", "a", "--random", "-7"}, "the seed '-7' is not a number from 0 to 4294967295"},
        {{"simulate", "a", "--source", "x"}, "'simulate' has no option '--source'"},
        {{"diagonse", "a"}, "unknown command 'diagonse'; did you mean 'diagnose'?"},
    };
    for (const auto& [arguments, reason] : cases) EXPECT_EQ(Refusal(arguments), reason);
    for (const std::string scale : {"", "two", "2x", "0", "0.4", "9", "-1", "nan", "inf"})
        EXPECT_EQ(Refusal({"render", "s.json", "-o", "x.png", "--scale", scale}),
                  "the scale '" + scale + "' is not a number from 0.5 to 8");
}

TEST(ParseCommandLine, KeepsTheCommandAndLanguageOfAnArgumentItRefuses)
{
    const auto error = std::get<UsageError>(ParseCommandLine({"list", "--lang=de", "--jsn"}));
    EXPECT_EQ(error.understood.command, Command::List);
    EXPECT_EQ(error.understood.language, Language::German);
    EXPECT_EQ(error.reason.de, "unbekannte Option '--jsn'; war '--json' gemeint?");
}

} // namespace
} // namespace quillon_ed

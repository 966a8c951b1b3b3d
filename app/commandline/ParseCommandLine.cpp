#include "app/commandline/ParseCommandLine.h"

#include "app/commandline/ClosestWord.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>
#include <initializer_list>
#include <string_view>
#include <system_error>

namespace quillon_ed {

namespace {

constexpr unsigned bit(Command command)
{
    return 1U << static_cast<unsigned>(command);
}
constexpr unsigned EveryCommand = ~0U;

struct CommandRule {
    Command command;
    std::string_view word;
    std::size_t fewestFiles;
    std::size_t mostFiles;
};

constexpr std::size_t AnyNumber = static_cast<std::size_t>(-1);
constexpr std::array CommandRules{
    CommandRule{Command::Open, "", 0, AnyNumber},       CommandRule{Command::Render, "render", 1, 1},
    CommandRule{Command::Check, "check", 1, AnyNumber}, CommandRule{Command::List, "list", 1, 1},
    CommandRule{Command::Convert, "convert", 2, 2},     CommandRule{Command::Diagnose, "diagnose", 1, 1},
    CommandRule{Command::Simulate, "simulate", 1, 1},   CommandRule{Command::Convert, "convert", 2, 2},
    CommandRule{Command::Compare, "compare", 1, 2},
};

const CommandRule& RuleOf(Command command)
{
    return *std::find_if(CommandRules.begin(), CommandRules.end(),
                         [&](const CommandRule& rule) { return rule.command == command; });
}

using Reason = std::optional<LocalizedText>;

Reason setScale(CommandLine& line, const std::string& value)
{
    double scale = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), scale);
    // Written so that "nan" is refused too.
    const bool inRange = scale >= MinimumScale && scale <= MaximumScale;
    if (error != std::errc() || end != value.data() + value.size() || !inRange)
        return LocalizedText{"the scale '" + value + "' is not a number from 0.5 to 8",
                             "der Maßstab '" + value + "' ist keine Zahl von 0.5 bis 8"};
    line.scale = scale;
    return {};
}

template <class Value, std::size_t Count>
struct NamedValues {
    LocalizedText singular;
    LocalizedText plural;
    std::array<std::pair<std::string_view, Value>, Count> values;
};

const NamedValues<PictureView, 3> Views{
    {"no view", "keine Ansicht"},
    {"views", "Ansichten"},
    {{{"overview", PictureView::Overview}, {"table", PictureView::Table}, {"both", PictureView::Both}}}};
const NamedValues<bool, 2> Modes{
    {"no mode", "keine Betriebsart"}, {"modes", "Betriebsarten"}, {{{"configuration", false}, {"diagnostics", true}}}};
const NamedValues<Colors, 3> Palettes{
    {"no palette", "keine Palette"},
    {"palettes", "Paletten"},
    {{{"light", Colors::Light}, {"dark", Colors::Dark}, {"contrast", Colors::Contrast}}}};
const NamedValues<Language, 2> Languages{{"no language", "keine Sprache"},
                                         {"languages", "Sprachen"},
                                         {{{"de", Language::German}, {"en", Language::English}}}};

/// Sets the value of that name; a name that there is not is refused with those that there are.
template <class Target, class Value, std::size_t Count>
Reason setNamed(Target& target, const std::string& name, const NamedValues<Value, Count>& named)
{
    std::string names;
    for (const auto& [known, value] : named.values) {
        if (known == name) {
            target = value;
            return {};
        }
        names.append(names.empty() ? "" : ", ").append(known);
    }
    return LocalizedText{"there is " + named.singular.en + " '" + name + "'; the " + named.plural.en + " are: " + names,
                         "es gibt " + named.singular.de + " '" + name + "'; die " + named.plural.de +
                             " sind: " + names};
}

/// A whole number that is not negative; nothing for anything else.
template <class Number>
std::optional<Number> readNumber(const std::string& value)
{
    Number number = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
    if (error != std::errc() || end != value.data() + value.size() || value.starts_with('-')) return {};
    return number;
}

Reason setSeed(CommandLine& line, const std::string& value)
{
    line.seed = readNumber<std::uint32_t>(value);
    if (!line.seed)
        return LocalizedText{"the seed '" + value + "' is not a number from 0 to 4294967295",
                             "der Startwert '" + value + "' ist keine Zahl von 0 bis 4294967295"};
    return {};
}

template <std::string CommandLine::*Member>
Reason setText(CommandLine& line, const std::string& value)
{
    line.*Member = value;
    return {};
}

template <bool CommandLine::*Member>
Reason setFlag(CommandLine& line, const std::string& /*value*/)
{
    line.*Member = true;
    return {};
}

Reason setRack(CommandLine& line, const std::string& value)
{
    line.rack = readNumber<std::int32_t>(value);
    if (!line.rack)
        return LocalizedText{"the rack '" + value + "' is not a number from 0",
                             "der Träger '" + value + "' ist keine Zahl ab 0"};
    return {};
}

Reason setFormat(CommandLine& line, ListFormat format)
{
    if (line.format && *line.format != format) {
        const std::string all = line.command == Command::Compare ? "--text, --json" : "--csv, --json";
        return LocalizedText{"only one of " + all + " and --md can be given",
                             "nur eines von " + all + " und --md kann angegeben werden"};
    }
    line.format = format;
    return {};
}

struct IgnorableRule {
    std::string_view name;
    bool zqbchwcx::reference::CompareOptions::*flag;
};

using zqbchwcx::reference::CompareOptions;
constexpr std::array Ignorable{
    IgnorableRule{"name", &CompareOptions::ignoreNames},
    IgnorableRule{"comment", &CompareOptions::ignoreComments},
    IgnorableRule{"addresses", &CompareOptions::ignoreAddresses},
    IgnorableRule{"parameters", &CompareOptions::ignoreParameters},
    IgnorableRule{"submodules", &CompareOptions::ignoreSubModules},
    IgnorableRule{"usability", &CompareOptions::ignoreUsability},
    IgnorableRule{"lock", &CompareOptions::ignoreLock},
};

Reason setIgnored(CommandLine& line, const std::string& value)
{
    std::string names;
    for (const IgnorableRule& rule : Ignorable) names.append(names.empty() ? "" : ", ").append(rule.name);
    for (std::string_view rest = value;;) {
        const std::size_t end = std::min(rest.find(','), rest.size());
        const std::string_view name = rest.substr(0, end);
        const auto rule = std::find_if(Ignorable.begin(), Ignorable.end(),
                                       [name](const IgnorableRule& each) { return each.name == name; });
        if (rule == Ignorable.end())
            return LocalizedText{"'" + std::string(name) + "' cannot be ignored; these can: " + names,
                                 "'" + std::string(name) + "' lässt sich nicht übergehen; dies lässt sich: " + names};
        line.ignored.*rule->flag = true;
        if (end == rest.size()) return {};
        rest.remove_prefix(end + 1);
    }
}

struct OptionRule {
    std::string_view name;
    char letter; ///< 0 for none
    bool takesValue;
    unsigned commands;
    Reason (*apply)(CommandLine& line, const std::string& value);
};

constexpr std::array OptionRules{
    OptionRule{"--help", 'h', false, EveryCommand, setFlag<&CommandLine::help>},
    OptionRule{"--version", 0, false, EveryCommand, setFlag<&CommandLine::version>},
    OptionRule{"--lang", 0, true, EveryCommand,
               [](CommandLine& line, const std::string& value) { return setNamed(line.language, value, Languages); }},
    OptionRule{"--output", 'o', true, bit(Command::Render) | bit(Command::List), setText<&CommandLine::output>},
    OptionRule{"--scale", 0, true, bit(Command::Render), setScale},
    OptionRule{"--view", 0, true, bit(Command::Render),
               [](CommandLine& line, const std::string& value) { return setNamed(line.view, value, Views); }},
    OptionRule{"--rack", 0, true, bit(Command::Render), setRack},
    OptionRule{"--mode", 0, true, bit(Command::Render),
               [](CommandLine& line, const std::string& value) { return setNamed(line.diagnostics, value, Modes); }},
    OptionRule{"--palette", 0, true, bit(Command::Render),
               [](CommandLine& line, const std::string& value) { return setNamed(line.colors, value, Palettes); }},
    OptionRule{"--csv", 0, false, bit(Command::List) | bit(Command::Diagnose),
               [](CommandLine& line, const std::string&) { return setFormat(line, ListFormat::Csv); }},
    OptionRule{"--json", 0, false, bit(Command::List) | bit(Command::Diagnose) | bit(Command::Compare),
               [](CommandLine& line, const std::string&) { return setFormat(line, ListFormat::Json); }},
    OptionRule{"--md", 0, false, bit(Command::List) | bit(Command::Compare),
               [](CommandLine& line, const std::string&) { return setFormat(line, ListFormat::Markdown); }},
    OptionRule{"--source", 0, true, bit(Command::Diagnose) | bit(Command::Render), setText<&CommandLine::source>},
    OptionRule{"--record", 0, true, bit(Command::Diagnose), setText<&CommandLine::record>},
    OptionRule{"--watch", 0, false, bit(Command::Diagnose), setFlag<&CommandLine::watch>},
    OptionRule{"--map", 0, false, bit(Command::Diagnose), setFlag<&CommandLine::map>},
    OptionRule{"--listen", 0, true, bit(Command::Simulate), setText<&CommandLine::listen>},
    OptionRule{"--script", 0, true, bit(Command::Simulate), setText<&CommandLine::script>},
    OptionRule{"--random", 0, true, bit(Command::Simulate), setSeed},
    OptionRule{"--text", 0, false, bit(Command::Compare),
               [](CommandLine& line, const std::string&) { return setFormat(line, ListFormat::Plain); }},
    OptionRule{"--html", 0, true, bit(Command::Compare), setText<&CommandLine::html>},
    OptionRule{"--git", 0, true, bit(Command::Compare), setText<&CommandLine::revision>},
    OptionRule{"--ignore", 0, true, bit(Command::Compare), setIgnored},
    OptionRule{"--details", 0, false, bit(Command::List), setFlag<&CommandLine::details>},
};

std::vector<std::string> optionNames(Command command)
{
    std::vector<std::string> names;
    for (const OptionRule& rule : OptionRules)
        if (rule.commands & bit(command)) names.emplace_back(rule.name);
    return names;
}

LocalizedText withHint(LocalizedText text, const std::string& meant)
{
    if (meant.empty()) return text;
    return {text.en + "; did you mean '" + meant + "'?", text.de + "; war '" + meant + "' gemeint?"};
}

bool endsInOneOf(const std::string& name, std::initializer_list<std::string_view> endings)
{
    return std::any_of(endings.begin(), endings.end(), [&](std::string_view ending) { return name.ends_with(ending); });
}

/// Reads one command line; each step returns why it cannot go on.
class Reader {
public:
    Reader(const std::vector<std::string>& arguments, const std::function<bool(const std::string&)>& isFileName)
        : mcolArguments(arguments), mIsFileName(isFileName)
    {
    }

    Reason Read()
    {
        bool optionsEnded = false;
        for (; mlNext < mcolArguments.size(); ++mlNext) {
            const std::string& argument = mcolArguments[mlNext];
            if (!optionsEnded && argument == "--") optionsEnded = true;
            else if (optionsEnded || argument.size() < 2 || argument[0] != '-') readWord(argument, !optionsEnded);
            else if (Reason reason = readOption(argument)) return reason;
        }
        if (line.help || line.version) return {};
        if (Reason mistyped = mistypedCommand()) return mistyped;
        return checkFiles();
    }

    CommandLine line;

private:
    /// The first word is the command, also after options that every command has; the others are files.
    void readWord(const std::string& word, bool mayBeCommand)
    {
        const bool isFirst = mbFirstWord;
        mbFirstWord = false;
        if (isFirst && mayBeCommand) {
            for (const CommandRule& rule : CommandRules) {
                if (rule.word.empty() || rule.word != word) continue;
                line.command = rule.command;
                return;
            }
            mbMayBeMistyped = word.find_first_of("./") == std::string::npos && !mIsFileName(word);
        }
        line.files.push_back(word);
    }

    /// "--name value", "--name=value", "-o value", "-ovalue".
    Reason readOption(const std::string& argument)
    {
        const bool isLong = argument[1] == '-';
        const std::size_t nameLength = isLong ? std::min(argument.find('='), argument.size()) : 2;
        const std::string name = argument.substr(0, nameLength);
        const auto rule = std::find_if(OptionRules.begin(), OptionRules.end(), [&](const OptionRule& candidate) {
            return isLong ? candidate.name == name : candidate.letter != 0 && candidate.letter == name[1];
        });
        if (rule == OptionRules.end())
            return withHint({"unknown option '" + name + "'", "unbekannte Option '" + name + "'"},
                            ClosestWord(name, optionNames(line.command)));
        if (!(rule->commands & bit(line.command))) return refuseForCommand(name);

        const bool hasValue = nameLength < argument.size();
        if (!rule->takesValue) {
            if (hasValue)
                return LocalizedText{"the option '" + name + "' takes no value",
                                     "die Option '" + name + "' hat keinen Wert"};
            return rule->apply(line, {});
        }
        if (hasValue) return rule->apply(line, argument.substr(nameLength + (isLong ? 1 : 0)));
        if (mlNext + 1 >= mcolArguments.size())
            return LocalizedText{"the option '" + name + "' needs a value",
                                 "die Option '" + name + "' braucht einen Wert"};
        return rule->apply(line, mcolArguments[++mlNext]);
    }

    Reason refuseForCommand(const std::string& name) const
    {
        const std::string word = CommandWord(line.command);
        if (Reason mistyped = mistypedCommand()) return mistyped;
        if (word.empty())
            return LocalizedText{"the option '" + name + "' needs a command before it",
                                 "vor der Option '" + name + "' fehlt ein Befehl"};
        return LocalizedText{"'" + word + "' has no option '" + name + "'",
                             "'" + word + "' hat keine Option '" + name + "'"};
    }

    Reason checkFiles() const
    {
        const CommandRule& rule = RuleOf(line.command);
        const std::string word(rule.word);
        if (line.files.size() < rule.fewestFiles) {
            const std::string need = std::to_string(rule.fewestFiles);
            return rule.fewestFiles == 1 ? LocalizedText{"'" + word + "' needs a station file",
                                                         "'" + word + "' braucht eine Stationsdatei"}
                                         : LocalizedText{"'" + word + "' needs " + need + " files",
                                                         "'" + word + "' braucht " + need + " Dateien"};
        }
        if (line.files.size() > rule.mostFiles) {
            const std::string& extra = line.files[rule.mostFiles];
            return LocalizedText{"'" + extra + "' is one file too many for '" + word + "'",
                                 "'" + extra + "' ist eine Datei zu viel für '" + word + "'"};
        }
        if (line.command == Command::Compare) return checkComparison();
        if (line.details && line.format)
            return LocalizedText{"'--details' has no other format", "'--details' hat keine andere Form"};
        if (line.command == Command::Render && line.output.empty())
            return LocalizedText{"'render' needs the file to write: -o FILE.png",
                                 "'render' braucht die Datei, die geschrieben wird: -o DATEI.png"};
        if (line.command == Command::Render && !endsInOneOf(line.output, {".png", ".svg", ".pdf"}))
            return LocalizedText{"the name of the picture '" + line.output + "' must end in .png, .svg or .pdf",
                                 "der Name des Bilds '" + line.output + "' muss auf .png, .svg oder .pdf enden"};
        if (line.rack && line.view == PictureView::Overview)
            return LocalizedText{"'--rack' is for tables: add --view table or --view both",
                                 "'--rack' ist für Tabellen: --view table oder --view both angeben"};
        if (line.colors && !line.output.ends_with(".png"))
            return LocalizedText{"'--palette' is for .png files: vectors are drawn for white paper",
                                 "'--palette' ist für .png-Dateien: Vektoren werden für weißes Papier gezeichnet"};
        if (line.command == Command::Convert && !endsInOneOf(line.files[1], {".json", ".csv", ".md"}))
            return LocalizedText{"the name of the new file '" + line.files[1] + "' must end in .json, .csv or .md",
                                 "der Name der neuen Datei '" + line.files[1] +
                                     "' muss auf .json, .csv oder .md enden"};
        if (line.command == Command::Render && line.diagnostics == line.source.empty())
            return LocalizedText{"'--mode diagnostics' and '--source' need each other",
                                 "'--mode diagnostics' und '--source' brauchen einander"};
        if (line.command == Command::Diagnose && line.map == !line.source.empty())
            return line.map ? LocalizedText{"'--map' needs no source", "'--map' braucht keine Quelle"}
                            : LocalizedText{"'diagnose' needs a source: --source modbus-tcp://HOST:PORT",
                                            "'diagnose' braucht eine Quelle: --source modbus-tcp://HOST:PORT"};
        if (line.map && (line.watch || !line.record.empty()))
            return LocalizedText{"'--map' does not go with '--watch' or '--record'",
                                 "'--map' geht nicht mit '--watch' oder '--record'"};
        return {};
    }

    Reason checkComparison() const
    {
        const bool bRevision = !line.revision.empty();
        if (bRevision && line.files.size() > 1)
            return LocalizedText{"with '--git' only one station is given: it is compared with its revision",
                                 "mit '--git' wird nur eine Station angegeben: sie wird mit ihrer Revision verglichen"};
        if (!bRevision && line.files.size() < 2)
            return LocalizedText{"'compare' needs two stations, or '--git REVISION' and one",
                                 "'compare' braucht zwei Stationen, oder '--git REVISION' und eine"};
        if (line.files.front() == "-" && (bRevision || line.files.back() == "-"))
            return LocalizedText{"standard input can be only one of two stations",
                                 "die Standardeingabe kann nur eine von zwei Stationen sein"};
        if (!line.html.empty() && line.format)
            return LocalizedText{"'--html' has no other format beside it", "neben '--html' gibt es keine andere Form"};
        return {};
    }

    Reason mistypedCommand() const
    {
        if (!mbMayBeMistyped) return {};
        std::vector<std::string> words;
        for (const CommandRule& rule : CommandRules)
            if (!rule.word.empty()) words.emplace_back(rule.word);
        const std::string& first = line.files[0];
        return withHint({"unknown command '" + first + "'", "unbekannter Befehl '" + first + "'"},
                        NearestWord(first, words));
    }

    const std::vector<std::string>& mcolArguments;
    const std::function<bool(const std::string&)>& mIsFileName;
    std::size_t mlNext = 0;
    bool mbFirstWord = true;
    /// The first word is no command, but stands where one would and names nothing else.
    bool mbMayBeMistyped = false;
};

} // namespace

bool IsFileName(const std::string& name)
{
    std::error_code ignored;
    return std::filesystem::exists(name, ignored);
}

std::variant<CommandLine, UsageError> ParseCommandLine(const std::vector<std::string>& arguments,
                                                       const std::function<bool(const std::string& name)>& isFileName)
{
    Reader reader(arguments, isFileName);
    if (Reason reason = reader.Read()) return UsageError{std::move(*reason), std::move(reader.line)};
    return std::move(reader.line);
}

std::string CommandWord(Command command)
{
    return std::string(RuleOf(command).word);
}

} // namespace quillon_ed

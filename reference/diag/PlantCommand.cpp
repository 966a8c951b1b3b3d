#include "zqbchwcx/reference/diag/PlantCommand.h"

#include "zqbchwcx/reference/json/FileError.h"
#include "zqbchwcx/reference/json/NamedValue.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <string>
#include <utility>

namespace zqbchwcx::reference {
namespace {

using Reason = std::optional<LocalizedText>;
using Words = std::vector<std::string_view>;

constexpr double LongestWaitSeconds = 7 * 24 * 3600;
constexpr double MillisecondsPerSecond = 1000;

constexpr std::array OperatingStateNames{
    NamedValue<OperatingState>{"run", OperatingState::Run},
    NamedValue<OperatingState>{"stop", OperatingState::Stop},
    NamedValue<OperatingState>{"hold", OperatingState::Hold},
};

struct NamedCondition {
    std::string_view name;
    bool takesFault;
    StateWord state;
};
constexpr std::array Conditions{
    NamedCondition{"ok", false, {}},
    NamedCondition{"fail", true, {.isFaulty = true}},
    NamedCondition{"report", true, {.reportsFault = true}},
    NamedCondition{"lost", false, {.isInaccessible = true}},
    NamedCondition{"missing", false, {.isPresent = false}},
};

std::string Quoted(std::string_view text)
{
    return "'" + std::string(text) + "'";
}

Words SplitWords(std::string_view text)
{
    Words words;
    constexpr std::string_view blanks = " \t\r";
    for (std::size_t begin = text.find_first_not_of(blanks); begin != std::string_view::npos;) {
        const std::size_t end = std::min(text.find_first_of(blanks, begin), text.size());
        words.push_back(text.substr(begin, end - begin));
        begin = text.find_first_not_of(blanks, end);
    }
    return words;
}

template <class Number>
bool ReadNumber(std::string_view text, Number& number)
{
    const auto [rest, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && rest == text.data() + text.size();
}

/// "0/4", "0/4.1".
std::optional<PlantItem> ReadItem(std::string_view text)
{
    PlantItem item;
    const std::size_t slash = text.find('/');
    if (slash == std::string_view::npos) return {};
    const std::size_t point = std::min(text.find('.', slash), text.size());
    const bool hasSlot = point < text.size();
    const std::string_view place = text.substr(slash + 1, point - slash - 1);
    if (!ReadNumber(text.substr(0, slash), item.place.rack) || !ReadNumber(place, item.place.place) ||
        (hasSlot && (!ReadNumber(text.substr(point + 1), item.subModule) || item.subModule == 0)))
        return {};
    return item;
}

/// "channel N" and "code N", in any order.
Reason ReadFault(const Words& words, std::size_t next, StateWord& state)
{
    for (; next < words.size(); next += 2) {
        const bool isChannel = words[next] == "channel";
        if (!isChannel && words[next] != "code")
            return LocalizedText{Quoted(words[next]) + " is neither channel nor code",
                                 Quoted(words[next]) + " ist weder channel noch code"};
        const std::uint8_t largest = isChannel ? LargestChannel : LargestFaultCode;
        std::uint8_t& number = isChannel ? state.channel : state.faultCode;
        if (next + 1 == words.size() || !ReadNumber(words[next + 1], number) || number < 1 || number > largest) {
            const std::string range = std::to_string(largest);
            return LocalizedText{Quoted(words[next]) + " needs a number from 1 to " + range,
                                 Quoted(words[next]) + " braucht eine Zahl von 1 bis " + range};
        }
    }
    return {};
}

Reason ReadPlace(const Words& words, const RegisterMap& map, PlantCommand& command)
{
    const auto item = ReadItem(words[1]);
    const auto address = item ? map.RegisterOf(*item) : std::nullopt;
    if (!address)
        return LocalizedText{"the station has no place " + Quoted(words[1]),
                             "die Station hat keinen Platz " + Quoted(words[1])};
    const auto condition = std::find_if(Conditions.begin(), Conditions.end(),
                                        [&](const NamedCondition& known) { return known.name == words[2]; });
    if (condition == Conditions.end())
        return LocalizedText{Quoted(words[2]) + " is none of ok, fail, report, lost, missing",
                             Quoted(words[2]) + " ist keines von ok, fail, report, lost, missing"};
    if (!condition->takesFault && words.size() > 3)
        return LocalizedText{"nothing follows " + Quoted(words[2]), "nach " + Quoted(words[2]) + " folgt nichts"};
    StateWord state = condition->state;
    if (Reason reason = ReadFault(words, 3, state)) return reason;
    command = {{*address, EncodeStateWord(state)}};
    return {};
}

Reason ReadWords(const Words& words, const RegisterMap& map, PlantCommand& command)
{
    if (words.size() >= 3 && words[0] == "place") return ReadPlace(words, map, command);
    if (words.size() == 2 && words[0] == "cpu")
        for (const auto& [name, state] : OperatingStateNames)
            if (name == words[1]) {
                command = {{MapHead::ControllerState, static_cast<std::uint16_t>(state)}};
                return {};
            }
    if (words.size() == 2 && words[0] == "all" && words[1] == "ok") {
        for (std::size_t address = MapHead::FirstItem; address < map.RegisterCount(); ++address)
            command.push_back({address, 0});
        return {};
    }
    return LocalizedText{"must be 'place R/P ok|fail|report|lost|missing', 'cpu run|stop|hold' or 'all ok'",
                         "muss 'place R/P ok|fail|report|lost|missing', 'cpu run|stop|hold' oder 'all ok' sein"};
}

/// "+2.5s".
std::optional<std::chrono::milliseconds> ReadWait(std::string_view word)
{
    double seconds = 0;
    if (word.size() < 3 || !word.ends_with('s') || !ReadNumber(word.substr(1, word.size() - 2), seconds)) return {};
    if (!(seconds >= 0 && seconds <= LongestWaitSeconds)) return {};
    return std::chrono::milliseconds(std::llround(seconds * MillisecondsPerSecond));
}

/// Reads the lines of a script one after the other.
class ScriptReader {
public:
    ScriptReader(std::string_view fileName, const RegisterMap& map) : msFileName(fileName), moMap(map) {}

    void ReadLine(std::string_view line)
    {
        ++mlNumber;
        Words words = SplitWords(line.substr(0, line.find('#')));
        if (words.empty()) return;
        if (moScript.repeats) Refuse({"nothing follows 'repeat'", "nach 'repeat' folgt nichts"});
        if (words[0].starts_with('+')) {
            const auto wait = ReadWait(words[0]);
            if (!wait)
                Refuse({Quoted(words[0]) + " is no time such as '+2.5s', of a week at most",
                        Quoted(words[0]) + " ist keine Zeit wie '+2.5s', höchstens eine Woche"});
            mTime += *wait;
            words.erase(words.begin());
        }
        if (words.size() == 1 && words[0] == "repeat") {
            if (mTime.count() == 0) Refuse({"a script that repeats needs times", "eine Wiederholung braucht Zeiten"});
            moScript.repeats = true;
            moScript.length = mTime;
            return;
        }
        ScriptStep step{mTime, {}};
        if (const Reason reason = ReadWords(words, moMap, step.command)) Refuse(*reason);
        moScript.steps.push_back(std::move(step));
    }

    Script Finish()
    {
        if (!moScript.repeats) moScript.length = mTime;
        return std::move(moScript);
    }

private:
    [[noreturn]] void Refuse(const LocalizedText& reason) const
    {
        throw FileError(msFileName + ":" + std::to_string(mlNumber), "", reason.en, reason.de);
    }

    std::string msFileName;
    const RegisterMap& moMap;
    Script moScript;
    std::size_t mlNumber = 0;
    std::chrono::milliseconds mTime{0};
};

} // namespace

std::variant<PlantCommand, LocalizedText> ParsePlantCommand(std::string_view text, const RegisterMap& map)
{
    PlantCommand command;
    if (Reason reason = ReadWords(SplitWords(text), map, command)) return std::move(*reason);
    return command;
}

Script ParseScript(std::string_view text, std::string_view fileName, const RegisterMap& map)
{
    ScriptReader reader(fileName, map);
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        reader.ReadLine(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return reader.Finish();
}

} // namespace zqbchwcx::reference

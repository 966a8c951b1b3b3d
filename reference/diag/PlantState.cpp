#include "zqbchwcx/reference/diag/PlantState.h"

#include <array>

namespace zqbchwcx::reference {
namespace {

LocalizedText KindText(ConnectionKind kind)
{
    switch (kind) {
    case ConnectionKind::Closed:
        return {"not connected", "nicht verbunden"};
    case ConnectionKind::Connecting:
        return {"connecting", "Verbindung wird aufgebaut"};
    case ConnectionKind::Connected:
        return {"connected", "verbunden"};
    case ConnectionKind::NotReachable:
        return {"not reachable", "nicht erreichbar"};
    case ConnectionKind::WrongAnswer:
        return {"wrong answers", "falsche Antworten"};
    case ConnectionKind::OtherStation:
        break;
    }
    return {"belongs to another station", "gehört zu einer anderen Station"};
}

} // namespace

LocalizedText ConnectionText(const Connection& connection)
{
    LocalizedText text = KindText(connection.kind);
    if (connection.kind == ConnectionKind::Closed) return text;
    const std::string since = TimeText(connection.since);
    text.en += " since " + since;
    text.de += " seit " + since;
    if (connection.reason.en.empty()) return text;
    return {text.en + ": " + connection.reason.en, text.de + ": " + connection.reason.In(Language::German)};
}

LocalizedText ComponentText(std::uint16_t kind)
{
    static const std::array<LocalizedText, 4> texts{{{"Hardware", "Hardware"},
                                                     {"Firmware", "Firmware"},
                                                     {"Boot loader", "Urlader"},
                                                     {"User program", "Anwenderprogramm"}}};
    if (kind >= 1 && kind <= texts.size()) return texts[kind - 1U];
    return {"Component " + std::to_string(kind), "Komponente " + std::to_string(kind)};
}

} // namespace zqbchwcx::reference

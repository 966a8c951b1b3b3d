#include "zqbchwcx/reference/files/SystemFailure.h"

#include <algorithm>
#include <array>

namespace zqbchwcx::reference {
namespace {

/// The system words its reasons in its own language, which need not be the one that was chosen.
struct KnownReason {
    std::errc code;
    const char* en;
    const char* de;
};
constexpr std::array KnownReasons{
    KnownReason{std::errc::no_such_file_or_directory, "No such file or directory", "Datei oder Ordner fehlt"},
    KnownReason{std::errc::permission_denied, "Permission denied", "keine Berechtigung"},
    KnownReason{std::errc::operation_not_permitted, "Operation not permitted", "nicht erlaubt"},
    KnownReason{std::errc::read_only_file_system, "Read-only file system", "der Datenträger ist schreibgeschützt"},
    KnownReason{std::errc::no_space_on_device, "No space left on device", "auf dem Datenträger ist kein Platz mehr"},
    KnownReason{std::errc::file_too_large, "File too large", "die Datei wird zu groß"},
    KnownReason{std::errc::io_error, "Input/output error", "Ein- oder Ausgabefehler"},
    KnownReason{std::errc::is_a_directory, "Is a directory", "ist ein Ordner"},
    KnownReason{std::errc::not_a_directory, "Not a directory", "ist kein Ordner"},
    KnownReason{std::errc::filename_too_long, "File name too long", "der Dateiname ist zu lang"},
    KnownReason{std::errc::too_many_symbolic_link_levels, "Too many levels of symbolic links",
                "zu viele verkettete Verknüpfungen"},
    KnownReason{std::errc::too_many_files_open, "Too many open files", "zu viele offene Dateien"},
    KnownReason{std::errc::device_or_resource_busy, "Device or resource busy", "in Benutzung"},
};

LocalizedText ReasonOf(const std::error_code& code)
{
    const auto known = std::find_if(KnownReasons.begin(), KnownReasons.end(),
                                    [&](const KnownReason& reason) { return code == reason.code; });
    if (known == KnownReasons.end()) return {code.message(), code.message()};
    return {known->en, known->de};
}

} // namespace

FileError SystemFailure(const std::string& fileName, const LocalizedText& step, const std::system_error& error,
                        const LocalizedText& consequence)
{
    const LocalizedText reason = ReasonOf(error.code());
    return {fileName, "", step.en + ": " + reason.en + consequence.en, step.de + ": " + reason.de + consequence.de};
}

} // namespace zqbchwcx::reference

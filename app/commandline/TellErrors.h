#pragma once

#include "app/commandline/CommandLine.h"
#include "app/commandline/Complain.h"

#include "zqbchwcx/reference/json/FileError.h"

#include <exception>
#include <new>
#include <ostream>

namespace quillon_ed {

/// Runs a command and returns its exit code. An error ends it and is told as "quillon-ed: FILE: POINTER: reason".
template <class Body>
int TellErrors(std::ostream& err, zqbchwcx::reference::Language language, Body&& body)
{
    try {
        return body();
    } catch (const zqbchwcx::reference::FileError& error) {
        Complain(err, error.Message(language));
        return ExitFile;
    } catch (const std::bad_alloc&) {
        const LocalizedText reason{"there is not enough memory", "der Speicher reicht nicht"};
        Complain(err, reason.In(language));
        return ExitFile;
    } catch (const std::exception& error) {
        Complain(err, error.what());
        return ExitFile;
    }
}

} // namespace quillon_ed

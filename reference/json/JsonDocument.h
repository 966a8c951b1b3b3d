#pragma once

#include <nlohmann/json.hpp>

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace zqbchwcx::reference {

/// What hostile input may cost at most.
struct JsonLimits {
    std::size_t bytes = std::size_t{64} << 20;
    std::size_t depth = 32;         ///< nested objects and arrays
    std::size_t values = 1'000'000; ///< that the document holds at one time
};

/// A JSON text that has been read, and the name under which errors in it are told.
struct JsonDocument {
    std::string fileName;
    nlohmann::json root;
};

/// Takes the elements of an array while the text is still being read, so that a long one is never held whole: an
/// element is in the document while it is taken, and null from then on.
struct ElementTaker {
    std::string_view array; ///< the root object's member
    std::function<void(const JsonDocument& document, const nlohmann::json& element)> take;
};

/// Reads exactly one JSON value. Throws FileError for text that is not JSON (with line and column), for a member that
/// stands twice in an object (with its pointer), and for text that goes beyond the limits.
JsonDocument ParseStrictJson(std::string_view text, std::string_view fileName, const JsonLimits& limits = {},
                             const ElementTaker& taker = {});

} // namespace zqbchwcx::reference

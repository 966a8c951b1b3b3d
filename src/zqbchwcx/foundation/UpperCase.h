#pragma once

#include <string>
#include <string_view>

namespace zqbchwcx {

/// The text, UTF-8, with its letters as capitals, one for one: Latin with its accents, Greek and Cyrillic, which are
/// the letters that names of pictures are made of. Whatever has no single capital ("ß"), and what is no UTF-8, stays.
std::string G_UpperCase(std::string_view text);

} // namespace zqbchwcx

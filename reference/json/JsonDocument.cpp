#include "zqbchwcx/reference/json/JsonDocument.h"

#include "zqbchwcx/reference/json/FileError.h"
#include "zqbchwcx/reference/json/JsonPointer.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace zqbchwcx::reference {
namespace {

constexpr std::size_t LongestReason = 300;

/// The parser's message without its class prefix. It quotes the input, which need not be text at all.
LocalizedText ReadableReason(std::string reason)
{
    if (const auto prefixEnd = reason.find("] "); reason.starts_with('[') && prefixEnd != std::string::npos)
        reason.erase(0, prefixEnd + 2);
    if (reason.size() > LongestReason) reason.resize(LongestReason);
    for (char& character : reason)
        if (character < ' ' || character > '~') character = '?';
    // Only where it is told in German: what the parser expected there is told by the parser alone.
    const std::string at = "at line ";
    const auto line = reason.find(at);
    const auto column = reason.find(", column ", line);
    const auto end = reason.find(':', column);
    if (end == std::string::npos) return {reason, "ist kein gültiges JSON: " + reason};
    const auto columnNumber = column + std::string_view(", column ").size();
    return {reason, "ist kein gültiges JSON: Zeile " + reason.substr(line + at.size(), column - line - at.size()) +
                        ", Spalte " + reason.substr(columnNumber, end - columnNumber)};
}

/// Builds the document from the parser's events. Unlike the parser's own builder it refuses repeated members, and
/// knows at every moment where it is.
class DocumentBuilder : public nlohmann::json_sax<nlohmann::json> {
public:
    DocumentBuilder(JsonDocument& document, const JsonLimits& limits, const ElementTaker& taker, std::size_t bytes)
        : moDocument(document), moLimits(limits), moTaker(taker),
          moReserve(new char[std::min(bytes, limits.values) * ReservePerValue])
    {
    }

    bool null() override { return Add(nullptr); }
    bool boolean(bool value) override { return Add(value); }
    bool number_integer(number_integer_t value) override { return Add(value); }
    bool number_unsigned(number_unsigned_t value) override { return Add(value); }
    bool number_float(number_float_t value, const string_t& /*text*/) override { return Add(value); }
    bool string(string_t& value) override { return Add(std::move(value)); }
    bool binary(binary_t& /*value*/) override
    {
        return Refuse({"binary data is no JSON", "Binärdaten sind kein JSON"});
    }

    bool start_object(std::size_t /*size*/) override { return Open(nlohmann::json::object()); }
    bool end_object() override { return Close(); }
    bool start_array(std::size_t /*size*/) override { return Open(nlohmann::json::array()); }
    bool end_array() override { return Close(); }

    bool key(string_t& name) override
    {
        const bool isRepeated = mcolOpen.back()->contains(name);
        msKey = std::move(name);
        if (isRepeated)
            throw FileError(moDocument.fileName, Pointer() + PointerToken(msKey), "the member stands twice",
                            "das Element steht doppelt da");
        return true;
    }

    bool parse_error(std::size_t /*position*/, const std::string& /*token*/,
                     const nlohmann::json::exception& error) override
    {
        return Refuse(ReadableReason(error.what()));
    }

private:
    static constexpr std::size_t ReservePerValue = 64;
    /// How many objects and arrays are open around an element of an array of the root.
    static constexpr std::size_t ElementDepth = 2;

    template <class Value>
    nlohmann::json* Insert(Value&& value)
    {
        if (mcolOpen.size() == ElementDepth) mnValuesOutside = mnValues;
        if (++mnValues > moLimits.values) {
            const std::string limit = std::to_string(moLimits.values);
            Refuse({"holds more than " + limit + " values, the limit",
                    "enthält mehr als " + limit + " Werte, die Obergrenze"});
        }
        if (mcolOpen.empty()) return &(moDocument.root = std::forward<Value>(value));
        nlohmann::json& parent = *mcolOpen.back();
        if (parent.is_array()) return &parent.emplace_back(std::forward<Value>(value));
        return &(parent[msKey] = std::forward<Value>(value));
    }

    template <class Value>
    bool Add(Value&& value)
    {
        Take(*Insert(std::forward<Value>(value)));
        return true;
    }

    bool Open(nlohmann::json value)
    {
        if (mcolOpen.size() >= moLimits.depth)
            return Refuse(
                {"objects and arrays are nested deeper than " + std::to_string(moLimits.depth) + " levels",
                 "Objekte und Listen sind tiefer als " + std::to_string(moLimits.depth) + " Ebenen geschachtelt"});
        mcolOpen.push_back(Insert(std::move(value)));
        return true;
    }

    bool Close()
    {
        nlohmann::json& closed = *mcolOpen.back();
        mcolOpen.pop_back();
        Take(closed);
        return true;
    }

    void Take(nlohmann::json& element)
    {
        if (!moTaker.take || mcolOpen.size() != ElementDepth || !mcolOpen.back()->is_array()) return;
        const nlohmann::json& root = moDocument.root;
        const auto array = root.is_object() ? root.find(moTaker.array) : root.end();
        if (array == root.end() || &*array != mcolOpen.back()) return;
        moTaker.take(moDocument, element);
        element = nullptr;
        mnValues = mnValuesOutside + 1;
    }

    std::string Pointer() const
    {
        return mcolOpen.empty() ? std::string() : FindPointer(moDocument.root, *mcolOpen.back());
    }

    bool Refuse(const LocalizedText& reason) const
    {
        throw FileError(moDocument.fileName, Pointer(), reason.en, reason.de);
    }

    JsonDocument& moDocument;
    const JsonLimits& moLimits;
    const ElementTaker& moTaker;
    /// Taking a document apart needs memory, too. When none is left while it is read, this goes first.
    std::unique_ptr<char[]> moReserve;
    std::vector<nlohmann::json*> mcolOpen;
    std::string msKey;
    std::size_t mnValues = 0;
    std::size_t mnValuesOutside = 0; ///< the same without the element of the array of the root that is being read
};

} // namespace

JsonDocument ParseStrictJson(std::string_view text, std::string_view fileName, const JsonLimits& limits,
                             const ElementTaker& taker)
{
    JsonDocument document{std::string(fileName), nullptr};
    if (text.size() > limits.bytes)
        throw FileError(document.fileName, "",
                        "the text has " + std::to_string(text.size()) + " bytes; " + std::to_string(limits.bytes) +
                            " are the most that is read",
                        "der Text hat " + std::to_string(text.size()) + " Bytes; höchstens " +
                            std::to_string(limits.bytes) + " werden gelesen");
    DocumentBuilder builder(document, limits, taker, text.size());
    nlohmann::json::sax_parse(text, &builder);
    return document;
}

} // namespace zqbchwcx::reference

// Any text through any operation with any options, patterns and templates of the user's included:
// no crash, no hang, and never a text that is not well-formed.
#include "engine/Operations.h"
#include "engine/Statistics.h"
#include "text/Utf.h"

#include <cstdlib>

using namespace nerlo;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    // operation, option, NUL-ended pattern, NUL-ended template, text
    if (size < 2) {
        return 0;
    }
    const auto operation = static_cast<std::int32_t>(data[0] % 40);
    const auto option = static_cast<std::int64_t>(data[1] % 16) - 2;
    std::string_view rest(reinterpret_cast<const char *>(data) + 2, size - 2);
    const auto part = [&rest] {
        const std::string_view bytes = rest.substr(0, rest.find('\0'));
        rest.remove_prefix(bytes.size() + (bytes.size() < rest.size() ? 1 : 0));
        return text::utf8ToUtf16(bytes).text;
    };
    const std::u16string pattern = part();
    const std::u16string replacement = part();
    const text::Utf16Result decoded = text::utf8ToUtf16(rest);

    storage::PropertyDictionary settings;
    for (const engine::OptionField &field : engine::optionFields()) {
        if (field.key.ends_with("Option") || field.key.ends_with("Separator")) {
            settings.set(field.key, option);
        }
    }
    settings.set("udChangeQuotesAll", (data[1] & 16) != 0);
    settings.set("udRemoveHTMLTagsJS", (data[1] & 32) != 0);
    settings.set("udInsertYourPatternTextField", pattern);
    settings.set("udSortCustomSeparator", pattern);
    settings.set("udChangeReturnsCustom1", replacement);
    settings.set("udChangeProperty1ChangeTextField", pattern);
    settings.set("udChangeProperty1ToTextField", replacement);
    settings.set(
        "sFindAndReplaceItemsProfile",
        storage::PropertyArray{storage::PropertyDictionary{
            {"checkbox", true}, {"find", pattern}, {"replace", u"{delete}" + replacement}}});
    engine::CleaningOptions options;
    options.setAllBools(settings);

    const std::u16string cleaned =
        engine::runOperation(operation, decoded.text, {options, "en_US"});
    engine::countAll(cleaned, "en_US");
    if (text::utf8ToUtf16(text::utf16ToUtf8(cleaned)).invalidAt) {
        std::abort();
    }
    return 0;
}

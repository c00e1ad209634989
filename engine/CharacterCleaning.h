// Characters that nobody sees or meant, out of copied text, class by class.
//
// Texts are UTF-16. Pure, any thread, never fails, takes time in proportion to the text.
#pragma once

#include "engine/CleaningOptions.h"
#include "text/UnitScan.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace nerlo::engine {

struct CharacterClass {
    std::string_view name; // "soft-hyphens", for listings
    // What nobody wants to keep is cleaned unless its switch says to keep it; what is a matter of
    // taste is cleaned when its switch says so. So the operation is of use with all switches off.
    bool CleaningOptions::*otherwise;
    bool usual;
    text::UnitSet units; // a text without any of them comes back as it is
    // Adds the number of places that changed to `count`.
    std::u16string (*clean)(std::u16string text, std::size_t &count);

    bool isOn(const CleaningOptions &options) const { return options.*otherwise != usual; }
    // As clean(), and without a pass over texts that have none of the units.
    std::u16string cleaned(std::u16string text) const;
};

// In the order in which they are cleaned; each sees the result of those before it.
std::span<const CharacterClass> characterClasses();

// All classes that are on. A second run changes nothing.
std::u16string cleanCharacters(std::u16string text, const CleaningOptions &options);
// The same, but for the marks of Markdown.
std::u16string cleanCharactersAlone(std::u16string text, const CleaningOptions &options);

} // namespace nerlo::engine

#include "shell/KeySequences.h"

#include <array>
#include <utility>

namespace nerlo::shell {

namespace {

constexpr char16_t firstFunctionKey = 0xf704; // F1, as menus write it
constexpr char16_t lastFunctionKey = 0xf716;  // F19

// Glyphs of the keys without a letter.
constexpr std::array<std::pair<char16_t, Qt::Key>, 17> glyphs{{
    {u'\u21a9', Qt::Key_Return},
    {u'\u21e5', Qt::Key_Tab},
    {u'\u232b', Qt::Key_Backspace},
    {u'\u238b', Qt::Key_Escape},
    {u'\u2327', Qt::Key_Clear},
    {u'\u2305', Qt::Key_Enter},
    {u'\u2196', Qt::Key_Home},
    {u'\u21de', Qt::Key_PageUp},
    {u'\u2326', Qt::Key_Delete},
    {u'\u2198', Qt::Key_End},
    {u'\u21df', Qt::Key_PageDown},
    {u'\u2190', Qt::Key_Left},
    {u'\u2192', Qt::Key_Right},
    {u'\u2193', Qt::Key_Down},
    {u'\u2191', Qt::Key_Up},
    {u' ', Qt::Key_Space},
    {u'\u2013', Qt::Key_Minus},
}};

int keyOf(char16_t unit) {
    if (unit >= firstFunctionKey && unit <= lastFunctionKey) {
        return Qt::Key_F1 + (unit - firstFunctionKey);
    }
    for (const auto &[glyph, key] : glyphs) {
        if (glyph == unit) {
            return key;
        }
    }
    return QChar(unit).toUpper().unicode();
}

} // namespace

QKeySequence keySequence(const shortcuts::nrShortcut &shortcut,
                         const shortcuts::ShortcutTexts &texts) {
    const std::u16string equivalent = shortcut.keyCodeStringForKeyEquivalent(texts);
    if (equivalent.size() != 1) {
        return {};
    }
    int keys = keyOf(equivalent.front());
    // The toolkit's names: its Control is our Command, its Meta our Control.
    const std::pair<std::uint64_t, int> modifiers[] = {
        {shortcuts::commandModifier, Qt::CTRL},
        {shortcuts::controlModifier, Qt::META},
        {shortcuts::optionModifier, Qt::ALT},
        {shortcuts::shiftModifier, Qt::SHIFT},
    };
    for (const auto &[ours, toolkits] : modifiers) {
        if (shortcut.modifierFlags() & ours) {
            keys |= toolkits;
        }
    }
    return QKeySequence(keys);
}

} // namespace nerlo::shell

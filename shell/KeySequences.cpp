#include "shell/KeySequences.h"

#include "platform/VirtualKeys.h"

#include <string_view>
#include <utility>

namespace nerlo::shell {

namespace {

// The key that a menu shows: by its name, for the glyphs of shortcuts mean nothing to the toolkit.
int keyOf(const shortcuts::nrShortcut &shortcut, char16_t equivalent) {
    const auto *key = platform::findVirtualKey(shortcut.keyCode());
    std::u16string_view name;
    if (key) {
        name = key->name.empty() ? key->text : key->name;
    }
    constexpr std::u16string_view keypad = u"Keypad ";
    if (name.starts_with(keypad)) {
        name.remove_prefix(keypad.size());
    }
    if (name.empty()) {
        return QChar(equivalent).toUpper().unicode();
    }
    return QKeySequence(QStringView(name).toString(), QKeySequence::PortableText)[0].key();
}

} // namespace

QKeySequence keySequence(const shortcuts::nrShortcut &shortcut,
                         const shortcuts::ShortcutTexts &texts) {
    const std::u16string equivalent = shortcut.keyCodeStringForKeyEquivalent(texts);
    if (equivalent.size() != 1) {
        return {};
    }
    int keys = keyOf(shortcut, equivalent.front());
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

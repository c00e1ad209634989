#include "platform/qt/QtKeys.h"

#include "platform/SystemHotKeys.h" // the masks of the modifiers
#include "platform/VirtualKeys.h"

#include <QKeySequence>

#include <string>
#include <string_view>
#include <utility>

namespace nerlo::platform {

namespace {

// 0 for none.
int keyNamed(std::u16string_view name) {
    constexpr std::u16string_view keypad = u"Keypad ";
    const bool onKeypad = name.starts_with(keypad);
    if (onKeypad) {
        name.remove_prefix(keypad.size());
    }
    const QKeySequence named(QStringView(name).toString(), QKeySequence::PortableText);
    if (named.isEmpty()) {
        return 0;
    }
    const int key = named[0].key();
    return onKeypad ? key | static_cast<int>(Qt::KeypadModifier) : key;
}

int keyByLayout(std::uint64_t keyCode, const KeyboardLayout &layout) {
    const std::u16string text = layout.textOfKey(keyCode);
    return text.size() == 1 ? QChar(text.front()).toUpper().unicode() : 0;
}

} // namespace

int qtKeyOf(std::uint64_t keyCode, std::uint32_t modifiers, const KeyboardLayout &layout) {
    const auto *row = findVirtualKey(keyCode);
    const auto name = !row ? std::u16string_view() : row->name.empty() ? row->text : row->name;
    int key = name.empty() ? keyByLayout(keyCode, layout) : keyNamed(name);
    if (key == 0) {
        return 0;
    }
    // Its Control is our Command, its Meta our Control.
    const std::pair<std::uint32_t, int> rows[] = {{hotKeyCommand, Qt::CTRL},
                                                  {hotKeyControl, Qt::META},
                                                  {hotKeyOption, Qt::ALT},
                                                  {hotKeyShift, Qt::SHIFT}};
    for (const auto &[ours, toolkits] : rows) {
        if ((modifiers & ours) != 0) {
            key |= toolkits;
        }
    }
    return key;
}

} // namespace nerlo::platform

#include "shortcuts/view/KeyEvents.h"

#include "platform/KeyboardLayout.h"
#include "platform/VirtualKeys.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include <QKeyEvent>
#include <QKeySequence>

namespace nerlo::shortcuts {

namespace {

constexpr std::uint64_t unknownKey = 0xffff;

struct ModifierKey {
    std::uint64_t left;
    std::uint64_t right;
    std::uint64_t flag;
    Qt::KeyboardModifier modifier;
};
constexpr ModifierKey modifierKeys[] = {
    {55, 54, commandModifier, Qt::ControlModifier},
    {56, 60, shiftModifier, Qt::ShiftModifier},
    {58, 61, optionModifier, Qt::AltModifier},
    {59, 62, controlModifier, Qt::MetaModifier},
};

// For events that do not come from a keyboard but from an input method or a program.
std::optional<std::uint16_t> keyByMeaning(int key, const platform::KeyboardLayout &layout) {
    const struct {
        int key;
        const char *symbol;
    } named[] = {
        {Qt::Key_Escape, "Escape"},   {Qt::Key_Backspace, "BackSpace"},
        {Qt::Key_Delete, "Delete"},   {Qt::Key_Return, "Return"},
        {Qt::Key_Tab, "Tab"},         {Qt::Key_Space, "space"},
        {Qt::Key_Shift, "Shift_L"},   {Qt::Key_Control, "Control_L"},
        {Qt::Key_Alt, "Alt_L"},       {Qt::Key_Meta, "Super_L"},
        {Qt::Key_Super_L, "Super_L"}, {Qt::Key_Super_R, "Super_R"},
        {Qt::Key_Left, "Left"},       {Qt::Key_Right, "Right"},
        {Qt::Key_Up, "Up"},           {Qt::Key_Down, "Down"},
        {Qt::Key_Home, "Home"},       {Qt::Key_End, "End"},
        {Qt::Key_PageUp, "Prior"},    {Qt::Key_PageDown, "Next"},
    };
    const auto *row = std::ranges::find(named, key, [](const auto &entry) { return entry.key; });
    return layout.keyOfSymbol(row != std::end(named) ? std::string(row->symbol)
                                                     : QKeySequence(key).toString().toStdString());
}

} // namespace

bool isModifierKey(std::uint64_t virtualKey) {
    return std::ranges::any_of(modifierKeys, [&](const ModifierKey &key) {
        return virtualKey == key.left || virtualKey == key.right;
    });
}

KeyEvent keyEventOf(const QKeyEvent &event, const platform::KeyboardLayout &layout) {
    const auto scanCode = event.nativeScanCode();
    const auto code =
        scanCode != 0 ? platform::virtualKeyOfX11Key(scanCode) : keyByMeaning(event.key(), layout);
    KeyEvent result{code.value_or(unknownKey), 0};
    for (const auto &key : modifierKeys) {
        bool held = event.modifiers().testFlag(key.modifier);
        // For the modifier key itself, some systems tell the state before the press and some the
        // state after it.
        if (result.keyCode == key.left || result.keyCode == key.right) {
            held = event.type() != QEvent::KeyRelease;
        }
        if (held) {
            result.modifierFlags |= key.flag;
        }
    }
    return result;
}

} // namespace nerlo::shortcuts

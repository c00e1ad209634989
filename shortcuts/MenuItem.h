// The items of a menu, as far as a shortcut may collide with them.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace nerlo::shortcuts {

struct MenuItem {
    std::u16string title;
    std::u16string keyEquivalent; // an upper-case letter implies Shift; empty for none
    std::uint64_t modifierMask = 0;
    std::vector<MenuItem> submenu;
};

// The application's main menu as it is now.
using MainMenu = std::function<std::vector<MenuItem>()>;

} // namespace nerlo::shortcuts

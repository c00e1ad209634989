// Where the statistics popup stands, as arithmetic.
//
// Coordinates grow to the right and upwards, from the bottom left of the main screen, in the
// toolkit's device-independent pixels. Any thread.
#pragma once

#include <cstdint>

namespace nerlo::shell {

struct ScreenPoint {
    double x = 0;
    double y = 0;
    bool operator==(const ScreenPoint &) const = default;
};

struct ScreenRect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    bool operator==(const ScreenRect &) const = default;
};

// All zero where there is no screen.
struct MainScreen {
    ScreenRect frame;
    ScreenRect visible;      // without the panels
    double barThickness = 0; // of the panel at the top
};

// The place in the list of popup positions that stands for the pointer.
constexpr std::int64_t atPointerPosition = 5;

// The popup's bottom left corner. `position` is the place in the list of popup positions; any other
// number is the first one.
ScreenPoint popupOrigin(std::int64_t position, const MainScreen &screen, double width,
                        double height, ScreenPoint pointer);

} // namespace nerlo::shell

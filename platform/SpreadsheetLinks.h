// The spreadsheets whose copies carry a live link to the cells, which a clean would cut: how their
// windows and link formats look here, and the identifiers that they stand for.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace nerlo::platform {

struct SpreadsheetLink {
    std::string_view identifier; // of the application; compared without regard to letter case
    std::string_view type;       // of its link data
};

// What only cells of Calc are offered as.
inline constexpr std::string_view cellsType = "org.libreoffice.Cells";

// The pairs for which an exception can be made.
std::span<const SpreadsheetLink> spreadsheetLinks();

// The identifier of the spreadsheet that a window of the X11 class (or instance) or Wayland app id
// `windowName` belongs to; empty for any other window.
std::string_view spreadsheetOfWindow(std::string_view windowName);

// Whether one of the offered formats carries the link data `type`.
bool offersLink(const std::vector<std::string> &formats, std::string_view type);

} // namespace nerlo::platform

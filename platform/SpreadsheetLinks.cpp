#include "platform/SpreadsheetLinks.h"

#include "text/Ascii.h"

#include <algorithm>
#include <array>

namespace nerlo::platform {

namespace {

// A window of Calc opens under a name of the whole suite, and some compositors never tell the later
// one: there a format that only cells have stands for the link, which a text has too.
constexpr std::array<SpreadsheetLink, 3> links{{
    {"com.microsoft.Excel", "com.microsoft.Link"},
    {"org.libreoffice.Calc", "org.libreoffice.Link"},
    {"org.libreoffice", cellsType},
}};

struct Name {
    std::string_view here;
    std::string_view standsFor;
};

// Wine gives a window the name of its program file, as class, instance or both.
constexpr std::array<Name, 5> windows{{
    {"excel.exe", links[0].identifier},
    {"libreoffice-calc", links[1].identifier},
    {"soffice-calc", links[1].identifier},
    {"libreoffice-startcenter", links[2].identifier},
    {"soffice", links[2].identifier},
}};

// Wine passes formats registered by Windows programs on by name.
constexpr std::array<Name, 5> formatNames{{
    {"Link", links[0].type},
    {"Link Source", links[0].type},
    {"ObjectLink", links[0].type},
    {R"(application/x-openoffice-link;windows_formatname="Link")", links[1].type},
    {R"(application/x-openoffice-sylk;windows_formatname="Sylk")", links[2].type},
}};

} // namespace

std::span<const SpreadsheetLink> spreadsheetLinks() {
    return links;
}

std::string_view spreadsheetOfWindow(std::string_view windowName) {
    for (const auto &window : windows) {
        if (text::equalIgnoringAsciiCase(window.here, windowName)) {
            return window.standsFor;
        }
    }
    return {};
}

bool offersLink(const std::vector<std::string> &formats, std::string_view type) {
    return std::ranges::any_of(formats, [&](const std::string &format) {
        return format == type || std::ranges::any_of(formatNames, [&](const Name &name) {
                   return name.standsFor == type && text::equalIgnoringAsciiCase(name.here, format);
               });
    });
}

} // namespace nerlo::platform

// Our own list of what services add to addresses to follow those who open them.
#pragma once

#include <span>
#include <string_view>

namespace nerlo::engine {

// Hosts are written in lower case, with blanks between them. "example.org" stands for itself and
// what is below it, "example.*" for that name under any country or other top level, and no host at
// all for every host.
struct TrackingParameter {
    std::u16string_view name; // in lower case; with "*" at its end whatever begins so
    std::u16string_view hosts;
    std::string_view service; // who uses it
};

// A page that does nothing but send its visitors on to the address in one of its parameters.
struct RedirectingPage {
    std::u16string_view hosts;
    std::u16string_view path; // what the path begins with
    std::u16string_view name; // of the parameter
    std::string_view service;
};

std::span<const TrackingParameter> trackingParameters();
std::span<const RedirectingPage> redirectingPages();

// Whether `name` follows people on `host`; both in lower case.
bool isTrackingParameter(std::u16string_view name, std::u16string_view host);

// Whether `host` (in lower case) is one of these.
bool isOneOfHosts(std::u16string_view host, std::u16string_view hosts);

} // namespace nerlo::engine

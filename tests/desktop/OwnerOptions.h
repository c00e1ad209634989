// x11-owner and wayland-owner [OPTION...] FORMAT=VALUE...: programs that own the clipboard and
// offer several formats; VALUE is a text, @FILE, or *N for N letters, and has no "=" in it. For the
// tests they can also misbehave:
//
//   --hang             never answer
//   --refuse           deliver no format
//   --stall-after N    deliver N bytes, and then nothing more
//   --die-after N      deliver N bytes, and die
//   --endless          deliver for ever
//   --mute             never answer for a picture (image/...)
//   --slow N           take so many milliseconds for each picture, and do nothing else meanwhile
//   --more-formats N   offer so many formats more, which are never delivered
//
// They print "owned" when they own the clipboard, "send FORMAT" for each request, and "replaced"
// when they lost the clipboard, which ends them.
#pragma once

#include "tests/TemporaryFolder.h"

#include <chrono>
#include <limits>
#include <map>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace nerlo::test {

struct OwnerOptions {
    std::map<std::string, std::string> data; // values by format
    std::set<std::string> flags;
    std::size_t deliver = std::numeric_limits<std::size_t>::max(); // bytes, and then
    bool dies = false;
    int moreFormats = 0;
    unsigned slow = 0; // milliseconds

    OwnerOptions(int argc, char **argv) {
        const std::vector<std::string> arguments(argv + 1, argv + argc);
        for (std::size_t i = 0; i < arguments.size(); ++i) {
            const std::string &option = arguments[i];
            if (option == "--more-formats") {
                moreFormats = std::stoi(arguments.at(++i));
            } else if (option == "--slow") {
                slow = static_cast<unsigned>(std::stoul(arguments.at(++i)));
            } else if (option == "--stall-after" || option == "--die-after") {
                deliver = std::stoul(arguments.at(++i));
                dies = option == "--die-after";
            } else if (option.starts_with("--")) {
                flags.insert(option);
            } else {
                const auto equals = option.rfind('=');
                data[option.substr(0, equals)] = valueOf(option.substr(equals + 1));
            }
        }
    }
    bool has(const std::string &flag) const { return flags.contains(flag); }
    // Before an answer; false for none at all.
    bool mayAnswer(const std::string &format) const {
        const bool picture = format.starts_with("image/");
        if (picture) {
            std::this_thread::sleep_for(std::chrono::milliseconds(slow));
        }
        return !has("--hang") && !(picture && has("--mute"));
    }

  private:
    static std::string valueOf(const std::string &value) {
        if (value.starts_with('@')) {
            return bytesOf(value.substr(1));
        }
        return value.starts_with('*') ? std::string(std::stoul(value.substr(1)), 'x') : value;
    }
};

} // namespace nerlo::test

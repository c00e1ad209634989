#include "platform/linux/DesktopHotKeys.h"

#include "platform/linux/CommandOutput.h"
#include "storage/EnvironmentVariable.h"
#include "text/Ascii.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <fstream>
#include <iterator>
#include <mutex>
#include <optional>
#include <utility>

namespace nerlo::platform {

namespace {

// More than any desktop has. A broken file may hold more, which is ignored.
constexpr std::size_t mostHotKeys = 4096;
constexpr std::size_t mostCustomBindings = 64;
constexpr auto longestReading = std::chrono::seconds(2);
constexpr std::size_t largestFile = std::size_t{1} << 20;

std::optional<std::uint32_t> modifierOf(std::string_view name) {
    const struct {
        std::string_view name;
        std::uint32_t flag;
    } rows[] = {
        {"primary", hotKeyCommand}, {"control", hotKeyCommand}, {"ctrl", hotKeyCommand},
        {"ctl", hotKeyCommand},     {"shift", hotKeyShift},     {"shft", hotKeyShift},
        {"alt", hotKeyOption},      {"mod1", hotKeyOption},     {"super", hotKeyControl},
        {"mod4", hotKeyControl},    {"meta", hotKeyControl}, // Qt's name of the Super key
    };
    const std::string wanted = text::asciiLower(std::string(name));
    const auto *row = std::ranges::find(rows, wanted, &std::decay_t<decltype(rows[0])>::name);
    return row == std::end(rows) ? std::nullopt : std::optional(row->flag);
}

// The xkb name of a key that Qt names otherwise, or the name itself.
std::string symbolOfQtName(std::string_view name) {
    const struct {
        std::string_view qt;
        const char *xkb;
    } rows[] = {
        {"esc", "Escape"},    {"ins", "Insert"},     {"del", "Delete"},     {"pgup", "Prior"},
        {"pgdown", "Next"},   {"backtab", "Tab"},    {"enter", "KP_Enter"}, {",", "comma"},
        {".", "period"},      {"/", "slash"},        {"\\", "backslash"},   {";", "semicolon"},
        {"'", "apostrophe"},  {"`", "grave"},        {"-", "minus"},        {"=", "equal"},
        {"[", "bracketleft"}, {"]", "bracketright"}, {"+", "plus"},         {"<", "less"},
        {"#", "numbersign"},
    };
    const std::string wanted = text::asciiLower(std::string(name));
    const auto *row = std::ranges::find(rows, wanted, &std::decay_t<decltype(rows[0])>::qt);
    return row == std::end(rows) ? std::string(name) : std::string(row->xkb);
}

// Keys are still names here. The keyboard layout tells which key has a name, but only on the main
// thread.
struct NamedHotKey {
    std::string symbol;
    std::uint32_t modifiers = 0;
};

class Collector {
  public:
    // "<Super><Shift>v"; anything else is dropped.
    void addAccelerator(std::string_view text) {
        std::uint32_t modifiers = 0;
        while (!text.empty() && text.front() == '<') {
            const auto end = text.find('>');
            const auto modifier = modifierOf(text.substr(1, end == text.npos ? 0 : end - 1));
            if (!modifier) {
                return;
            }
            modifiers |= *modifier;
            text.remove_prefix(end + 1);
        }
        // The window manager's name for the key above Tab, which differs between layouts.
        add(text == "Above_Tab" ? std::string("grave") : std::string(text), modifiers);
    }

    // "Meta+Shift+V", "Ctrl++".
    void addQtSequence(std::string_view text) {
        std::uint32_t modifiers = 0;
        for (;;) {
            const auto plus = text.find('+');
            if (plus == text.npos || plus == 0 || plus + 1 == text.size()) {
                break;
            }
            const auto modifier = modifierOf(text.substr(0, plus));
            if (!modifier) {
                return;
            }
            modifiers |= *modifier;
            text.remove_prefix(plus + 1);
        }
        add(symbolOfQtName(text), modifiers);
    }

    std::vector<NamedHotKey> take() { return std::move(hotKeys_); }

  private:
    void add(std::string symbol, std::uint32_t modifiers) {
        if (!symbol.empty() && symbol.size() <= 64 && hotKeys_.size() < mostHotKeys) {
            hotKeys_.push_back({std::move(symbol), modifiers});
        }
    }

    std::vector<NamedHotKey> hotKeys_;
};

template <class Function>
void forEachLine(std::string_view text, Function function) {
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size());
        function(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

// The texts between single quotes; none of those that matter holds an escaped one.
template <class Function>
void forEachQuoted(std::string_view text, Function function) {
    for (;;) {
        const auto begin = text.find('\'');
        const auto end = begin == text.npos ? begin : text.find('\'', begin + 1);
        if (end == text.npos) {
            return;
        }
        function(text.substr(begin + 1, end - begin - 1));
        text.remove_prefix(end + 1);
    }
}

// Lines such as "org.gnome.shell.keybindings toggle-overview ['<Super>s']". One process lists them
// all; the user's own bindings, whose schema has a path for each, take one more for each.
void collectGnome(const DesktopSources &sources, Collector &collector) {
    const auto end = std::chrono::steady_clock::now() + longestReading;
    const std::string mediaKeys = "org.gnome.settings-daemon.plugins.media-keys";
    const std::array schemas{std::string("org.gnome.desktop.wm.keybindings "),
                             std::string("org.gnome.mutter.keybindings "),
                             std::string("org.gnome.mutter.wayland.keybindings "),
                             std::string("org.gnome.shell.keybindings "), mediaKeys + ' '};
    const std::string paths = mediaKeys + " custom-keybindings ";
    std::vector<std::string> custom;
    forEachLine(sources.output({"gsettings", "list-recursively"}), [&](std::string_view line) {
        const bool ofPaths = line.starts_with(paths);
        if (std::ranges::none_of(schemas, [&](auto &name) { return line.starts_with(name); })) {
            return;
        }
        forEachQuoted(line, [&](std::string_view text) {
            if (!ofPaths) {
                collector.addAccelerator(text);
            } else if (text.starts_with('/') && custom.size() < mostCustomBindings) {
                custom.emplace_back(text);
            }
        });
    });
    for (const auto &path : custom) {
        if (std::chrono::steady_clock::now() > end) {
            return;
        }
        forEachQuoted(sources.output({"gsettings", "get", mediaKeys + ".custom-keybinding:" + path,
                                      "binding"}),
                      [&](std::string_view text) { collector.addAccelerator(text); });
    }
}

// Lines such as "/xfwm4/custom/<Alt>Tab cycle_windows_key". "default" is the template from which
// "custom" is made. It counts until something is custom, separately for the commands and for the
// window manager.
void collectXfce(const DesktopSources &sources, Collector &collector) {
    const std::string list =
        sources.output({"xfconf-query", "-c", "xfce4-keyboard-shortcuts", "-l", "-v"});
    for (const std::string owner : {"/commands/", "/xfwm4/"}) {
        const bool custom = list.find(owner + "custom/") != list.npos;
        const std::string folder = owner + (custom ? "custom/" : "default/");
        forEachLine(list, [&](std::string_view line) {
            if (line.starts_with(folder)) {
                line.remove_prefix(folder.size());
                collector.addAccelerator(line.substr(0, line.find_first_of(" \t")));
            }
        });
    }
}

// Lines such as "Window Close=Alt+F4\tMeta+Q,Alt+F4,Close Window": the present keys, those of the
// first start, the name. A comma that is a key has a backslash before it.
void collectKde(const DesktopSources &sources, Collector &collector) {
    const std::string file = sources.configuration("kglobalshortcutsrc");
    const std::string ourHeading = "[" + sources.ours + "]";
    bool ours = false;
    forEachLine(file, [&](std::string_view line) {
        ours = line.starts_with('[') ? line == ourHeading : ours;
        if (ours) {
            return;
        }
        const auto equals = line.find('=');
        if (equals == line.npos || line.starts_with("_k_friendly_name")) {
            return;
        }
        std::string sequence;
        const auto finish = [&] {
            if (sequence != "none") {
                collector.addQtSequence(sequence);
            }
            sequence.clear();
        };
        const auto value = line.substr(equals + 1);
        for (std::size_t at = 0; at < value.size() && value[at] != ','; ++at) {
            if (value[at] != '\\' || at + 1 == value.size()) {
                sequence += value[at];
            } else if (value[++at] == 't') {
                finish();
            } else {
                sequence += value[at];
            }
        }
        finish();
    });
}

struct Desktop {
    std::string_view name; // in $XDG_CURRENT_DESKTOP, in small letters
    void (*collect)(const DesktopSources &, Collector &);
};

constexpr std::array desktops{
    Desktop{"gnome", collectGnome},
    Desktop{"unity", collectGnome},
    Desktop{"xfce", collectXfce},
    Desktop{"kde", collectKde},
};

std::vector<NamedHotKey> readHotKeys(const DesktopSources &sources) {
    Collector collector;
    const std::string names = ":" + text::asciiLower(sources.currentDesktop) + ":";
    for (const auto &desktop : desktops) {
        if (names.find(":" + std::string(desktop.name) + ":") != names.npos) {
            desktop.collect(sources, collector);
            break;
        }
    }
    return collector.take();
}

class DesktopHotKeys final : public SystemHotKeys {
  public:
    DesktopHotKeys(const KeyboardLayout &layout, WorkerQueue &workers, DesktopSources sources)
        : layout_(layout)
        , workers_(workers)
        , shared_(std::make_shared<Shared>(std::move(sources))) {}

    void refresh() override {
        if (shared_->reading.exchange(true)) {
            return;
        }
        workers_.post([shared = shared_] {
            auto hotKeys = readHotKeys(shared->sources);
            const std::lock_guard lock(shared->mutex);
            shared->hotKeys = std::move(hotKeys);
            shared->reading = false;
        });
    }

    std::vector<SystemHotKey> symbolicHotKeys() override {
        const std::lock_guard lock(shared_->mutex);
        std::vector<SystemHotKey> result;
        for (const auto &[symbol, modifiers] : shared_->hotKeys) {
            if (const auto key = layout_.keyOfSymbol(symbol)) {
                const SystemHotKey hotKey{*key, modifiers};
                if (std::ranges::find(result, hotKey) == result.end()) {
                    result.push_back(hotKey);
                }
            }
        }
        return result;
    }

  private:
    // Owned together with the worker, which may outlive this object.
    struct Shared {
        explicit Shared(DesktopSources from)
            : sources(std::move(from)) {}
        const DesktopSources sources;
        std::mutex mutex;
        std::vector<NamedHotKey> hotKeys;
        std::atomic<bool> reading = false;
    };

    const KeyboardLayout &layout_;
    WorkerQueue &workers_;
    std::shared_ptr<Shared> shared_;
};

std::string environment(const char *name) {
    return std::string(storage::environmentVariable(name));
}

} // namespace

DesktopSources DesktopSources::system(std::string applicationId) {
    return {environment("XDG_CURRENT_DESKTOP"),
            [](const std::string &name) {
                const std::string home = environment("XDG_CONFIG_HOME");
                std::ifstream file((home.empty() ? environment("HOME") + "/.config" : home) + "/" +
                                       name,
                                   std::ios::binary);
                std::string text(largestFile, '\0');
                file.read(text.data(), static_cast<std::streamsize>(text.size()));
                text.resize(static_cast<std::size_t>(file.gcount()));
                return text;
            },
            [](const std::vector<std::string> &command) { return outputOfCommand(command); },
            std::move(applicationId)};
}

std::unique_ptr<SystemHotKeys> createDesktopHotKeys(const KeyboardLayout &layout,
                                                    WorkerQueue &workers, DesktopSources sources) {
    return std::make_unique<DesktopHotKeys>(layout, workers, std::move(sources));
}

} // namespace nerlo::platform

#include "platform/linux/DesktopHotKeys.h"

#include "platform/Alive.h"
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
constexpr std::size_t longestOwner = 160; // bytes

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
    std::string owner;
    bool operator==(const NamedHotKey &) const = default;
};

// "KWin, Close Window", or what there is of it.
std::string ownerOf(std::string_view program, std::string_view what) {
    const char *const between = program.empty() || what.empty() ? "" : ", ";
    std::string owner = std::string(program) + between + std::string(what);
    return owner.size() > longestOwner ? std::string() : owner;
}

// "toggle-overview" as "toggle overview".
std::string asWords(std::string_view name) {
    std::string words(name);
    std::ranges::replace_if(
        words, [](char c) { return c == '-' || c == '_'; }, ' ');
    return words;
}

class Collector {
  public:
    // "<Super><Shift>v"; anything else is dropped.
    void addAccelerator(std::string_view text, const std::string &owner) {
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
        add(text == "Above_Tab" ? std::string("grave") : std::string(text), modifiers, owner);
    }

    // "Meta+Shift+V", "Ctrl++".
    void addQtSequence(std::string_view text, const std::string &owner) {
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
        add(symbolOfQtName(text), modifiers, owner);
    }

    std::size_t size() const { return hotKeys_.size(); }
    // Those from this place on belong to the program that is named after them.
    void nameProgram(std::size_t from, std::string_view program) {
        for (; from < hotKeys_.size(); ++from) {
            hotKeys_[from].owner = ownerOf(program, hotKeys_[from].owner);
        }
    }

    std::vector<NamedHotKey> take() { return std::move(hotKeys_); }

  private:
    void add(std::string symbol, std::uint32_t modifiers, const std::string &owner) {
        if (!symbol.empty() && symbol.size() <= 64 && hotKeys_.size() < mostHotKeys) {
            hotKeys_.push_back({std::move(symbol), modifiers, owner});
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

// What stands behind this beginning of a line, up to the next blank.
std::string_view wordBehind(std::string_view line, std::string_view beginning) {
    line.remove_prefix(beginning.size());
    return line.substr(0, line.find(' '));
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
        const auto schema =
            std::ranges::find_if(schemas, [&](auto &name) { return line.starts_with(name); });
        if (schema == schemas.end()) {
            return;
        }
        const bool ofPaths = line.starts_with(paths);
        const auto owner = ownerOf("GNOME", asWords(wordBehind(line, *schema)));
        forEachQuoted(line, [&](std::string_view text) {
            if (!ofPaths) {
                collector.addAccelerator(text, owner);
            } else if (text.starts_with('/') && custom.size() < mostCustomBindings) {
                custom.emplace_back(text);
            }
        });
    });
    const std::string customSchema = mediaKeys + ".custom-keybinding";
    for (const auto &path : custom) {
        if (std::chrono::steady_clock::now() > end) {
            return;
        }
        const auto first = collector.size();
        std::string name;
        forEachLine(sources.output({"gsettings", "list-recursively", customSchema + ':' + path}),
                    [&](std::string_view line) {
                        const bool binding = line.starts_with(customSchema + " binding ");
                        const bool names = line.starts_with(customSchema + " name ");
                        forEachQuoted(line, [&](std::string_view text) {
                            if (binding) {
                                collector.addAccelerator(text, {});
                            } else if (names) {
                                name = text;
                            }
                        });
                    });
        collector.nameProgram(first, ownerOf("GNOME", name));
    }
}

// A command line as it stands, the window manager's "cycle_windows_key" as "cycle windows".
std::string xfceCommand(std::string_view command) {
    constexpr std::string_view ending = "_key";
    if (!command.ends_with(ending)) {
        return std::string(command);
    }
    command.remove_suffix(ending.size());
    return asWords(command);
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
                const auto blank = std::min(line.find_first_of(" \t"), line.size());
                const auto what = std::min(line.find_first_not_of(" \t", blank), line.size());
                collector.addAccelerator(line.substr(0, blank),
                                         ownerOf("Xfce", xfceCommand(line.substr(what))));
            }
        });
    }
}

// The fields of a line of KDE's list, each of one or more texts: in it "\\t" parts keys, and a
// comma that is a key has a backslash before it.
std::array<std::vector<std::string>, 3> kdeFields(std::string_view value) {
    std::array<std::vector<std::string>, 3> fields;
    std::size_t field = 0;
    std::string text;
    const auto finish = [&] { fields.at(field).push_back(std::exchange(text, {})); };
    for (std::size_t at = 0; at < value.size(); ++at) {
        if (value[at] == ',' && field + 1 < fields.size()) {
            finish();
            ++field;
        } else if (value[at] != '\\' || at + 1 == value.size()) {
            text += value[at];
        } else if (value[++at] == 't') {
            finish();
        } else {
            text += value[at];
        }
    }
    finish();
    return fields;
}

// Lines such as "Window Close=Alt+F4\tMeta+Q,Alt+F4,Close Window": the present keys, those of the
// first start, the name. The program's name stands on a line somewhere among its keys.
void collectKde(const DesktopSources &sources, Collector &collector) {
    const std::string file = sources.configuration("kglobalshortcutsrc");
    const std::string ourHeading = "[" + sources.ours + "]";
    bool ours = false;
    std::size_t first = 0;
    std::string program;
    const auto endGroup = [&] {
        collector.nameProgram(first, std::exchange(program, {}));
        first = collector.size();
    };
    forEachLine(file, [&](std::string_view line) {
        const auto equals = line.find('=');
        if (line.starts_with('[')) {
            endGroup();
            ours = line == ourHeading;
        } else if (equals != line.npos && line.starts_with("_k_friendly_name")) {
            program = line.substr(equals + 1);
        } else if (equals != line.npos && !ours) {
            const auto fields = kdeFields(line.substr(equals + 1));
            for (const std::string &sequence : fields[0]) {
                if (sequence != "none") {
                    collector.addQtSequence(sequence,
                                            fields[2].empty() ? std::string() : fields[2].front());
                }
            }
        }
    });
    endGroup();
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
    DesktopHotKeys(const KeyboardLayout &layout, WorkerQueue &workers, MainQueue &mainQueue,
                   DesktopSources sources)
        : layout_(layout)
        , workers_(workers)
        , mainQueue_(mainQueue)
        , shared_(std::make_shared<Shared>(std::move(sources))) {}

    void refresh() override {
        if (shared_->reading.exchange(true)) {
            return;
        }
        auto tell = alive_.guardOn(mainQueue_, [this] {
            if (changed_) {
                changed_();
            }
        });
        workers_.post([shared = shared_, tell = std::move(tell)] {
            auto hotKeys = readHotKeys(shared->sources);
            const std::lock_guard lock(shared->mutex);
            if (hotKeys != shared->hotKeys) {
                tell();
            }
            shared->hotKeys = std::move(hotKeys);
            shared->reading = false;
        });
    }

    void setChangedHandler(std::function<void()> changed) override {
        changed_ = std::move(changed);
    }

    std::vector<SystemHotKey> symbolicHotKeys() override {
        const std::lock_guard lock(shared_->mutex);
        std::vector<SystemHotKey> result;
        for (const auto &[symbol, modifiers, owner] : shared_->hotKeys) {
            if (const auto key = layout_.keyOfSymbol(symbol)) {
                const SystemHotKey hotKey{*key, modifiers, owner};
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
    MainQueue &mainQueue_;
    std::shared_ptr<Shared> shared_;
    std::function<void()> changed_;
    Alive alive_;
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
                                                    WorkerQueue &workers, MainQueue &mainQueue,
                                                    DesktopSources sources) {
    return std::make_unique<DesktopHotKeys>(layout, workers, mainQueue, std::move(sources));
}

} // namespace nerlo::platform

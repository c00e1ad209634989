#include "settings/LinkRulesFile.h"

#include "storage/SafeFile.h"
#include "text/Utf.h"

#include <nlohmann/json.hpp>

#include <mutex>
#include <optional>
#include <stdexcept>
#include <utility>
#include <vector>

namespace nerlo::settings {

namespace {

using engine::LinkProvider;
using nlohmann::json;

constexpr std::size_t largestFile = 8 << 20; // bytes
constexpr int deepest = 6;                   // of a value in others; the rules themselves take 4
constexpr std::size_t longestPattern = 8192; // bytes
constexpr std::size_t mostPatterns = 50'000;

struct BadRules : std::runtime_error {
    using std::runtime_error::runtime_error;
};

std::string inQuotes(std::string_view text) {
    return '"' + std::string(text.substr(0, 80)) + '"';
}

class ProviderReader {
  public:
    std::vector<LinkProvider> readAll(const json &document) {
        const auto *const providers = member(document, "providers");
        if (!providers || !providers->is_object()) {
            throw BadRules("no object \"providers\"");
        }
        std::vector<LinkProvider> result;
        for (const auto &[name, value] : providers->items()) {
            name_ = name;
            result.push_back(read(value));
        }
        return result;
    }

  private:
    static const json *member(const json &object, const char *name) {
        const auto found = object.is_object() ? object.find(name) : object.end();
        return found == object.end() ? nullptr : &*found;
    }

    LinkProvider read(const json &value) {
        const json *const url = member(value, "urlPattern");
        if (!url) {
            refuse("no \"urlPattern\"");
        }
        LinkProvider provider;
        provider.name = text::utf8ToUtf16(name_).text;
        provider.urlPattern = pattern(*url);
        if (const json *const complete = member(value, "completeProvider")) {
            if (!complete->is_boolean()) {
                refuse("\"completeProvider\" is neither true nor false");
            }
            provider.completeProvider = complete->get<bool>();
        }
        provider.rules = patterns(value, "rules");
        provider.referralMarketing = patterns(value, "referralMarketing");
        provider.rawRules = patterns(value, "rawRules");
        provider.exceptions = patterns(value, "exceptions");
        provider.redirections = patterns(value, "redirections");
        return provider;
    }

    LinkProvider::Patterns patterns(const json &value, const char *name) {
        const json *const list = member(value, name);
        if (list && !list->is_array()) {
            refuse(inQuotes(name) + " is no list");
        }
        LinkProvider::Patterns result;
        for (const json &each : list ? *list : json::array()) {
            result.push_back(pattern(each));
        }
        return result;
    }

    std::u16string pattern(const json &value) {
        const auto *const bytes = value.get_ptr<const std::string *>();
        if (!bytes || bytes->empty() || bytes->size() > longestPattern) {
            refuse("a pattern is empty, too long or no text");
        }
        if (++patterns_ > mostPatterns) {
            throw BadRules("more than " + std::to_string(mostPatterns) + " patterns");
        }
        return text::utf8ToUtf16(*bytes).text;
    }

    [[noreturn]] void refuse(const std::string &what) const {
        throw BadRules("provider " + inQuotes(name_) + ": " + what);
    }

    std::string name_;
    std::size_t patterns_ = 0;
};

json parse(std::string_view bytes) {
    try {
        return json::parse(bytes, [](int depth, json::parse_event_t, json &) {
            if (depth > deepest) {
                throw BadRules("values are nested too deeply");
            }
            return true;
        });
    } catch (const json::parse_error &error) {
        throw BadRules("invalid JSON at byte " + std::to_string(error.byte));
    } catch (const json::exception &) {
        throw BadRules("a number is out of range");
    }
}

// What was read last.
struct LastFile {
    std::mutex mutex;
    std::string path;
    std::optional<storage::FileStamp> stamp;
    ParsedLinkRules parsed;
};

LastFile &lastFile() {
    static LastFile last;
    return last;
}

ParsedLinkRules readFile(const std::string &path) {
    LastFile &last = lastFile();
    const std::lock_guard lock(last.mutex);
    const auto stamp = storage::settledStampOf(path);
    if (stamp && stamp == last.stamp && path == last.path) {
        return last.parsed;
    }
    const storage::FileContent content = storage::readFile(path, largestFile);
    switch (content.state) {
    case storage::FileContent::State::Missing:
        return {nullptr, path + ": no such file"};
    case storage::FileContent::State::Failed:
        return {nullptr, content.error};
    case storage::FileContent::State::Read:
        break;
    }
    last.parsed = parseLinkRules(content.bytes);
    if (!last.parsed.error.empty()) {
        last.parsed.error.insert(0, path + ": no usable rules for addresses: ");
    }
    last.path = path;
    last.stamp = stamp;
    return last.parsed;
}

} // namespace

ParsedLinkRules parseLinkRules(std::string_view bytes) {
    try {
        auto rules = std::make_shared<engine::LinkRules>(ProviderReader().readAll(parse(bytes)));
        if (const auto bad = rules->badPattern()) {
            throw BadRules(
                "provider " + inQuotes(text::utf16ToUtf8(bad->provider)) +
                ": a pattern has an error: " + inQuotes(text::utf16ToUtf8(bad->pattern)));
        }
        return {std::move(rules), {}};
    } catch (const BadRules &bad) {
        return {nullptr, bad.what()};
    }
}

ParsedLinkRules readLinkRules(const std::u16string &path) {
    return path.empty() ? ParsedLinkRules() : readFile(text::utf16ToUtf8(path));
}

} // namespace nerlo::settings

#include "storage/PropertyList.h"

#include "storage/Overloaded.h"
#include "storage/PropertyListCheck.h"
#include "storage/SafeFile.h"
#include "text/Utf.h"

#include <plist/plist.h>

#include <algorithm>
#include <chrono>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <locale.h>
#include <memory>

namespace nerlo::storage {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view binaryMagic = "bplist00";
constexpr std::string_view uidKey = "CF$UID";

struct FreeNode {
    void operator()(void *node) const { plist_free(node); }
};
using Node = std::unique_ptr<void, FreeNode>;

struct FreeBytes {
    void operator()(char *bytes) const { std::free(bytes); }
};
using Bytes = std::unique_ptr<char, FreeBytes>;

// libplist reads and writes real numbers by the locale of the thread, with a decimal comma where
// the locale has one. So the C locale is set around each call.
class PlainLocale {
  public:
    PlainLocale()
        : before_(uselocale(plain())) {}
    ~PlainLocale() { uselocale(before_); }
    PlainLocale(const PlainLocale &) = delete;
    PlainLocale &operator=(const PlainLocale &) = delete;

  private:
    static locale_t plain() {
        static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
        return locale;
    }
    locale_t before_;
};

std::string xmlOf(plist_t node) {
    char *bytes = nullptr;
    std::uint32_t size = 0;
    plist_to_xml(node, &bytes, &size);
    const Bytes owned(bytes);
    return bytes ? std::string(bytes, size) : std::string();
}

Node nodeOfXml(const std::string &xml) {
    plist_t node = nullptr;
    plist_from_xml(xml.data(), static_cast<std::uint32_t>(xml.size()), &node);
    return Node(node);
}

// Some values are handed to libplist as XML: it has no function that tells -1 from 2^64 - 1, and
// its functions for dates end in 2069.
std::string elementText(plist_t node, const std::string &name) {
    const std::string xml = xmlOf(node);
    const auto start = xml.find("<" + name + ">");
    const auto end = xml.find("</" + name + ">");
    if (start == std::string::npos || end == std::string::npos) {
        return {};
    }
    const auto text = start + name.size() + 2;
    return xml.substr(text, end - text);
}

Node nodeOfElement(const std::string &name, const std::string &text) {
    return nodeOfXml("<plist version=\"1.0\"><" + name + ">" + text + "</" + name + "></plist>");
}

using Seconds = std::chrono::sys_time<std::chrono::seconds>;
constexpr Seconds dateOrigin = std::chrono::sys_days(std::chrono::year(2001) / 1 / 1);

double secondsOfDate(const std::string &text) {
    int y = 0;
    unsigned mo = 0, d = 0, h = 0, mi = 0, s = 0;
    if (std::sscanf(text.c_str(), "%d-%u-%uT%u:%u:%uZ", &y, &mo, &d, &h, &mi, &s) != 6) {
        return 0;
    }
    using namespace std::chrono;
    const sys_days day = year(y) / month(mo) / 1;
    const auto time =
        day + days(static_cast<int>(d) - 1) + hours(h) + minutes(mi) + seconds(static_cast<int>(s));
    return static_cast<double>((time - dateOrigin).count());
}

std::string textOfDate(double seconds) {
    using namespace std::chrono;
    const double whole =
        std::isfinite(seconds) ? std::floor(std::clamp(seconds, firstDate, lastDate)) : 0;
    const auto time = dateOrigin + std::chrono::seconds(static_cast<std::int64_t>(whole));
    const auto day = floor<days>(time);
    const year_month_day date(day);
    const hh_mm_ss clock(time - day);
    char text[64];
    std::snprintf(text, sizeof text, "%04d-%02u-%02uT%02d:%02d:%02dZ",
                  static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                  static_cast<unsigned>(date.day()), static_cast<int>(clock.hours().count()),
                  static_cast<int>(clock.minutes().count()),
                  static_cast<int>(clock.seconds().count()));
    return text;
}

PropertyValue integerOf(plist_t node) {
    std::uint64_t value = 0;
    plist_get_uint_val(node, &value);
    if (value > std::uint64_t{std::numeric_limits<std::int64_t>::max()} &&
        !elementText(node, "integer").starts_with('-')) {
        return value;
    }
    return static_cast<std::int64_t>(value);
}

PropertyValue valueOf(plist_t node);

PropertyValue arrayOf(plist_t node) {
    PropertyArray array;
    array.reserve(plist_array_get_size(node));
    plist_array_iter next = nullptr;
    plist_array_new_iter(node, &next);
    const Bytes owned(static_cast<char *>(next));
    for (;;) {
        plist_t item = nullptr;
        plist_array_next_item(node, next, &item);
        if (!item) {
            return array;
        }
        array.push_back(valueOf(item));
    }
}

PropertyValue dictionaryOf(plist_t node) {
    PropertyDictionary::Entries entries;
    entries.reserve(plist_dict_get_size(node));
    plist_dict_iter next = nullptr;
    plist_dict_new_iter(node, &next);
    const Bytes owned(static_cast<char *>(next));
    for (;;) {
        plist_t item = nullptr;
        char *key = nullptr;
        plist_dict_next_item(node, next, &key, &item);
        const Bytes ownedKey(key);
        if (!item) {
            break;
        }
        entries.emplace_back(key ? key : "", valueOf(item));
    }
    if (entries.size() == 1 && entries.front().first == uidKey) {
        const auto *index = entries.front().second.as<std::int64_t>();
        if (index && *index >= 0 && *index <= std::numeric_limits<std::uint32_t>::max()) {
            return PropertyUid{static_cast<std::uint64_t>(*index)};
        }
    }
    return PropertyDictionary(std::move(entries));
}

PropertyValue valueOf(plist_t node) {
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
        std::uint8_t value = 0;
        plist_get_bool_val(node, &value);
        return value != 0;
    }
    case PLIST_UINT:
        return integerOf(node);
    case PLIST_REAL: {
        double value = 0;
        plist_get_real_val(node, &value);
        return value;
    }
    case PLIST_DATE:
        return PropertyDate{secondsOfDate(elementText(node, "date"))};
    case PLIST_UID: {
        std::uint64_t value = 0;
        plist_get_uid_val(node, &value);
        return PropertyUid{value};
    }
    case PLIST_DATA: {
        char *bytes = nullptr;
        std::uint64_t size = 0;
        plist_get_data_val(node, &bytes, &size);
        const Bytes owned(bytes);
        PropertyData data(bytes ? size : 0);
        if (!data.empty()) {
            std::memcpy(data.data(), bytes, data.size());
        }
        return data;
    }
    case PLIST_ARRAY:
        return arrayOf(node);
    case PLIST_DICT:
        return dictionaryOf(node);
    default: {
        char *bytes = nullptr;
        plist_get_string_val(node, &bytes);
        const Bytes owned(bytes);
        return text::utf8ToUtf16(bytes ? bytes : "").text;
    }
    }
}

std::string withoutZeroBytes(std::string bytes) {
    for (auto nul = bytes.find('\0'); nul != std::string::npos; nul = bytes.find('\0', nul)) {
        bytes.replace(nul, 1, "\xEF\xBF\xBD");
    }
    return bytes;
}

plist_t newNode(const PropertyValue &value) {
    return std::visit(
        Overloaded{
            [](bool v) { return plist_new_bool(v); },
            [](std::int64_t v) {
                return v >= 0 ? plist_new_uint(static_cast<std::uint64_t>(v))
                              : nodeOfElement("integer", std::to_string(v)).release();
            },
            [](std::uint64_t v) { return nodeOfElement("integer", std::to_string(v)).release(); },
            [](double v) { return plist_new_real(v); },
            [](const std::u16string &v) {
                return plist_new_string(withoutZeroBytes(text::utf16ToUtf8(v)).c_str());
            },
            [](const PropertyData &v) {
                return plist_new_data(reinterpret_cast<const char *>(v.data()), v.size());
            },
            [](const PropertyDate &v) {
                return nodeOfElement("date", textOfDate(v.seconds)).release();
            },
            [](const PropertyUid &v) { return plist_new_uid(v.index & 0xFFFFFFFFu); },
            [](const PropertyArray &v) {
                const plist_t node = plist_new_array();
                for (const PropertyValue &item : v) {
                    plist_array_append_item(node, newNode(item));
                }
                return node;
            },
            [](const PropertyDictionary &v) {
                const plist_t node = plist_new_dict();
                for (const auto &[key, item] : v) {
                    plist_dict_set_item(node, withoutZeroBytes(key).c_str(), newNode(item));
                }
                return node;
            }},
        value.variant());
}

bool xmlCanHold(const PropertyValue &value) {
    if (const auto *text = value.as<std::u16string>()) {
        return std::ranges::none_of(
            *text, [](char16_t unit) { return unit < u' ' && unit != u'\t' && unit != u'\n'; });
    }
    if (const auto *array = value.as<PropertyArray>()) {
        return std::ranges::all_of(*array, xmlCanHold);
    }
    if (const auto *dictionary = value.as<PropertyDictionary>()) {
        return std::ranges::all_of(*dictionary,
                                   [](const auto &entry) { return xmlCanHold(entry.second); });
    }
    return true;
}

std::string whatIsWrong(std::string_view bytes) {
    const bool binary = bytes.starts_with("bplist");
    if (bytes.starts_with(byteOrderMark)) {
        bytes.remove_prefix(byteOrderMark.size());
    }
    if (bytes.empty()) {
        return "the property list is empty";
    }
    if (bytes.size() > PropertyListLimits::bytes) {
        return "the property list is larger than 64 MiB";
    }
    if (binary && !bytes.starts_with(binaryMagic)) {
        return "a binary property list of an unknown version";
    }
    std::string error = binary ? whatIsWrongWithBinary(bytes) : whatIsWrongWithXml(bytes);
    return error.empty() ? error : "not a valid property list: " + error;
}

} // namespace

ParsedPropertyList parsePropertyList(std::string_view bytes) {
    if (std::string error = whatIsWrong(bytes); !error.empty()) {
        return {std::nullopt, std::move(error)};
    }
    if (bytes.starts_with(byteOrderMark)) {
        bytes.remove_prefix(byteOrderMark.size());
    }
    const PlainLocale locale;
    const auto size = static_cast<std::uint32_t>(bytes.size());
    plist_t root = nullptr;
    if (bytes.starts_with(binaryMagic)) {
        plist_from_bin(bytes.data(), size, &root);
    } else {
        plist_from_xml(bytes.data(), size, &root);
    }
    const Node owned(root);
    if (!root) {
        return {std::nullopt, "not a valid property list"};
    }
    return {valueOf(root), {}};
}

std::string writeXml(const PropertyValue &value) {
    const PlainLocale locale;
    const Node node(newNode(value));
    return xmlOf(node.get());
}

std::string writeBinary(const PropertyValue &value) {
    const PlainLocale locale;
    const Node node(newNode(value));
    char *bytes = nullptr;
    std::uint32_t size = 0;
    plist_to_bin(node.get(), &bytes, &size);
    const Bytes owned(bytes);
    return bytes ? std::string(bytes, size) : std::string();
}

std::string writePropertyList(const PropertyValue &value) {
    return xmlCanHold(value) ? writeXml(value) : writeBinary(value);
}

std::string replaceWithPropertyList(const std::string &path, const PropertyValue &value,
                                    FileCalls &calls) {
    const std::string bytes = writePropertyList(value);
    const std::string error = whatIsWrong(bytes);
    return error.empty() ? replaceFile(path, bytes, calls)
                         : path + " is not written, it could not be read back: " + error;
}

} // namespace nerlo::storage

// The table of settings keys: everything that has a name in a profile or in the settings store.
//
// The engine's own table gives the options and the profile's write order; the keys that only
// settings know stand at their places among them, and the hot keys come from the operations.
#pragma once

#include "storage/PropertyValue.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace nerlo::settings {

enum class SettingKind {
    Switch,   // stored as the integer 0 or 1
    Text,     // string
    Index,    // integer, the place in an option list
    List,     // array of rules
    Boolean,  // stored as a boolean
    Integer,  // stored as an integer
    TextList, // array of strings
    HotKey,   // archived shortcut
};

enum class SettingScope {
    Profile, // in each profile's dictionary
    Store,   // in the settings store
};

struct SettingsKey {
    std::string key;
    SettingKind kind;
    SettingScope scope;
    std::string_view group;
    std::string meaning; // one English line
    // What a first start writes; none where the key is then absent, or where the value depends on
    // the user's language (the quote styles).
    std::optional<storage::PropertyValue> firstStart;
};

// The hot keys that no operation has: one cleans the clipboard with all that is on, one lets the
// user choose what is done to it.
inline constexpr std::string_view cleanHotKey = "sClearFormatingFromClipboard";
inline constexpr std::string_view chooseHotKey = "sChooseForClipboard";
struct CommandHotKey {
    std::string_view key;
    std::string_view name;    // for the command line
    std::string_view meaning; // one English line
};
inline constexpr CommandHotKey commandHotKeys[] = {
    {cleanHotKey, "clean", "clean the clipboard"},
    {chooseHotKey, "choose", "choose what is done to the clipboard's text"},
};

// In the store: the place of the selected profile.
inline constexpr const char *selectedProfileKey = "udSelectedProfileItem";
// In the store: the shortcut that selects the profile of a name, under this and the name in UTF-8.
inline constexpr std::string_view profileHotKeyPrefix = "selectProfile:";
std::string profileHotKey(std::u16string_view name);
// In the store: which profile cleans which copy.
inline constexpr const char *copyTableKey = "copyTable";

// Profile keys in the order in which a profile is written, then the keys of the store. Made once;
// any thread.
std::span<const SettingsKey> settingsKeys();
// The former part of settingsKeys().
std::span<const SettingsKey> profileKeys();

// Null when there is none. A name may stand in both scopes ("sFindReplaceBool" is a profile's
// switch and, in the store, a hot key): without a scope, the profile's row is meant.
const SettingsKey *findKey(std::string_view key);
const SettingsKey *findKey(std::string_view key, SettingScope scope);

// The profile "default" of a first start: only the keys with a value, in the order of writing. The
// quote styles follow `language`, a code such as "de" or "pt-BR".
storage::PropertyDictionary firstStartProfile(std::string_view language);

struct ParsedSetting {
    std::optional<storage::PropertyValue> value;
    std::string error; // English; empty when there is a value
};

// A value from a command line, by the key's kind: on/off, yes/no, true/false or 1/0 for a switch,
// decimal digits for a number, anything that is UTF-8 for a text, texts between commas for a list
// of texts. Lists of rules and hot keys have no such form.
ParsedSetting parseSetting(const SettingsKey &key, std::string_view text);

// "switch", "text" and so on, for listings.
std::string_view nameOfKind(SettingKind kind);

} // namespace nerlo::settings

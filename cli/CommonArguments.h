// Arguments that several commands share.
#pragma once

#include "engine/Operations.h"
#include "settings/SettingsPaths.h"
#include "storage/PropertyValue.h"

#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
} // namespace CLI

namespace nerlo::cli {

// An option, or without dashes the arguments, that may be given several times.
CLI::Option *addTexts(CLI::App &command, const std::string &name, std::vector<std::string> &texts,
                      const std::string &description);

// FILE...: standard input when none is named; "-" also means it.
void addFiles(CLI::App &command, std::vector<std::string> &files);

// What help texts say about --locale.
inline constexpr const char *localeHelp = "Without --locale, the user's locale holds (LC_ALL, else "
                                          "LC_CTYPE, else LANG), and en_US where\n"
                                          "that is C or POSIX.\n";

// --locale LOCALE. Afterwards `locale` is an ICU locale id, the user's unless one was given.
void addLocale(CLI::App &command, std::string &locale);

// --options FILE, --profile NAME|INDEX and --set KEY=VALUE.
struct OptionArguments {
    std::string file;    // empty when not given
    std::string profile; // empty when not given
    std::vector<std::string> settings;
};

void addOptions(CLI::App &command, OptionArguments &arguments);

// The ready profile with this id. Throws Failure when there is none, in words that name it as a
// profile of any kind.
storage::PropertyDictionary readyProfile(const std::string &id);

// The place of the selected profile in a list of `count`. Throws Failure when the settings cannot
// be read: with a profile that nobody chose, a text would be cleaned in a way that nobody asked
// for.
int selectedProfile(const settings::SettingsPaths &paths, std::size_t count);

// The operation with this name or index, null for an empty one. Throws Failure when there is none.
const engine::Operation *operationOf(const std::string &nameOrIndex);

// The settings that hold when nothing on the command line says otherwise.
storage::PropertyDictionary defaultOptions();

// What the arguments ask for: the file, else the named profile, else the selected one, else the
// defaults, each with the single settings put over it. Throws Failure: unusableArguments for a key
// that is no settings key, a value that does not suit its key and an unknown profile, ioFailed for
// a file that cannot be read.
storage::PropertyDictionary chosenOptions(const OptionArguments &arguments);

// The same for a clean, with all that it needs: the full pipeline, or that one operation unless
// null. Also throws Failure, unusableArguments, for a pattern that does not compile.
engine::CleaningOptions cleaningOptions(const OptionArguments &arguments,
                                        const engine::Operation *operation);

} // namespace nerlo::cli

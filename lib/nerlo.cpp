// The C interface. Everything between `guarded` and the engine is C++; nothing thrown there gets
// out.
#include "lib/nerlo.h"

#include "engine/Operations.h"
#include "engine/Statistics.h"
#include "lib/OutputBytes.h"
#include "settings/JsonOptions.h"
#include "settings/JsonText.h"
#include "settings/Listings.h"
#include "settings/PreparedOptions.h"
#include "settings/ReadyProfiles.h"
#include "settings/TraceJson.h"
#include "settings/UserLanguages.h"
#include "settings/UserLocale.h"
#include "storage/PropertyList.h"
#include "text/Utf.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <new>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using namespace nerlo;
using lib::OutputBytes;
using storage::PropertyDictionary;

// Of a fixed size, so that there is room for it when there is none for anything else.
constexpr std::size_t longestMessage = 1000;
thread_local std::array<char, longestMessage + 1> lastError{};

void setError(std::string_view message) noexcept {
    std::size_t size = std::min(message.size(), longestMessage);
    while (size < message.size() && size > 0 && (message[size] & 0xC0) == 0x80) {
        --size; // no half of a character
    }
    std::copy_n(message.data(), size, lastError.data());
    lastError[size] = '\0';
}

// What a function of the interface cannot do.
struct Failure : std::runtime_error {
    Failure(nerlo_status why, const std::string &message)
        : std::runtime_error(message)
        , status(why) {}

    nerlo_status status;
};

nerlo_status failed(nerlo_status status, const char *message) noexcept {
    setError(message);
    return status;
}

template <class Body>
nerlo_status guarded(const Body &body) noexcept {
    try {
        setError({});
        body();
        return NERLO_OK;
    } catch (const Failure &failure) {
        return failed(failure.status, failure.what());
    } catch (const settings::OptionsError &error) {
        const bool unreadable = error.kind == settings::OptionsError::Kind::unreadable;
        return failed(unreadable ? NERLO_UNREADABLE : NERLO_BAD_OPTIONS, error.what());
    } catch (const std::bad_alloc &) {
        return failed(NERLO_OUT_OF_MEMORY, "out of memory");
    } catch (const std::length_error &) { // more than there could ever be memory for
        return failed(NERLO_OUT_OF_MEMORY, "out of memory");
    } catch (const std::exception &exception) {
        return failed(NERLO_FAILED, exception.what());
    } catch (...) {
        return failed(NERLO_FAILED, "unknown error");
    }
}

void require(bool holds, const char *what) {
    if (!holds) {
        throw Failure(NERLO_BAD_ARGUMENT, what);
    }
}

[[noreturn]] void refuse(const std::string &message) {
    throw settings::OptionsError(message);
}

std::string_view viewOf(const char *bytes, size_t size) {
    require(bytes || size == 0, "a text is NULL");
    return {bytes, size};
}

std::u16string decoded(std::string_view bytes) {
    text::Utf16Result result = text::utf8ToUtf16(bytes);
    if (result.invalidAt) {
        throw Failure(NERLO_BAD_TEXT, "invalid UTF-8 at byte " + std::to_string(*result.invalidAt));
    }
    return std::move(result.text);
}

std::string localeOf(const char *name) {
    if (!name) {
        return settings::userLocale();
    }
    std::optional<std::string> id = settings::localeId(name);
    if (!id) {
        refuse("unusable locale " + settings::jsonOfName(name));
    }
    return std::move(*id);
}

PropertyDictionary profileOf(const char *id) {
    if (!id) {
        return {};
    }
    const settings::ReadyProfile *ready = settings::findReadyProfile(std::string_view(id));
    if (!ready) {
        refuse("no ready profile " + settings::jsonOfName(id));
    }
    return settings::readyRecord(*ready, text::utf8ToUtf16(id).text);
}

PropertyDictionary optionsOf(std::string_view bytes) {
    const std::size_t first = bytes.find_first_not_of(" \t\r\n");
    if (first != std::string_view::npos && bytes[first] == '{') {
        return settings::parseOptions(bytes);
    }
    storage::ParsedPropertyList parsed = storage::parsePropertyList(bytes);
    if (!parsed.value) {
        refuse("the options are neither a JSON object nor a property list: " + parsed.error);
    }
    auto *const dictionary = parsed.value->as<PropertyDictionary>();
    if (!dictionary) {
        refuse("the property list is not a dictionary of settings keys");
    }
    return std::move(*dictionary);
}

const engine::Operation *operationOf(const char *nameOrIndex) {
    if (!nameOrIndex) {
        return nullptr;
    }
    const engine::Operation *operation = engine::findOperation(std::string_view(nameOrIndex));
    if (!operation) {
        refuse("unknown operation " + settings::jsonOfName(nameOrIndex));
    }
    return operation;
}

// Made at the first call that has the memory.
template <std::string (*make)()>
const char *listing() noexcept {
    try {
        static const std::string json = make();
        return json.c_str();
    } catch (...) {
        return nullptr;
    }
}

std::string keys() {
    return settings::keysJson(settings::firstStartProfile(settings::userLanguages().front()));
}

} // namespace

struct nerlo_cleaner {
    const engine::Operation *operation; // null for all that is on
    std::string locale;
    engine::CleaningOptions options;
    std::vector<const engine::Operation *> steps; // those that are on: short texts are many
};

namespace {

nerlo_cleaner cleanerOf(const char *profile, std::string_view options, const char *operation,
                        const char *locale) {
    require(profile || operation || options.data(),
            "there is neither a profile nor options nor an operation");
    const engine::Operation *const row = operationOf(operation);
    PropertyDictionary settings = profileOf(profile);
    if (options.data()) {
        for (const auto &[key, value] : optionsOf(options)) {
            settings.set(key, value);
        }
    }
    engine::CleaningOptions prepared = settings::preparedOptions(settings, row);
    auto steps = engine::operationsSwitchedOn(prepared);
    return {row, localeOf(locale), std::move(prepared), std::move(steps)};
}

class Context {
  public:
    explicit Context(const nerlo_cleaner &cleaner)
        : cleaner_(cleaner)
        , context_{.options = cleaner.options, .locale = cleaner.locale, .report = &report_} {}

    std::u16string clean(std::u16string text) {
        if (const engine::Operation *const operation = cleaner_.operation) {
            text = engine::runOperation(operation->index, std::move(text), context_);
        } else if (cleaner_.options.udProtectStructure) {
            text = engine::runPipeline(std::move(text), context_);
        } else {
            text = engine::runSteps(std::move(text), cleaner_.steps, context_, engine::cachedPiece);
        }
        checkReport();
        return text;
    }

    std::string explain(const std::u16string &text) {
        constexpr std::size_t places = settings::explainedPlaces;
        const engine::Operation *const operation = cleaner_.operation;
        const engine::Trace trace = operation
                                        ? engine::traceOperation(*operation, text, context_, places)
                                        : engine::tracePipeline(text, context_, places);
        checkReport();
        return settings::explainJson(text, trace);
    }

  private:
    void checkReport() const {
        if (!report_.empty()) {
            throw Failure(NERLO_GIVEN_UP, messageOf(report_));
        }
    }

    const nerlo_cleaner &cleaner_;
    engine::CleaningReport report_;
    engine::CleaningContext context_;
};

constexpr std::size_t largestPiece = 64 * 1024;

void handOver(std::u16string_view text, nerlo_sink sink, void *data) {
    std::string piece(std::min(largestPiece, 3 * text.size() + 4), '\0');
    while (!text.empty()) {
        const std::size_t size = text::encodeUtf8(text, piece);
        if (sink(data, piece.data(), size) != 0) {
            throw Failure(NERLO_STOPPED, "the sink asked to stop");
        }
    }
}

struct Texts {
    const char *bytes;
    const size_t *ends;
    size_t count;
};

struct CleanTexts {
    char **bytes;
    size_t *ends;
    size_t *failed; // may be null
};

using AppendClean = void (*)(OutputBytes &to, Context &context, std::string_view text);

void appendClean(OutputBytes &to, Context &context, std::string_view text) {
    to.append(context.clean(decoded(text)));
}

void appendCleanUtf16(OutputBytes &to, Context &context, std::string_view text) {
    constexpr std::size_t unit = sizeof(char16_t);
    require(text.size() % unit == 0, "a text in UTF-16 ends at an odd byte");
    std::u16string units(text.size() / unit, u'\0');
    std::memcpy(units.data(), text.data(), text.size());
    units = context.clean(std::move(units));
    to.append(std::string_view(reinterpret_cast<const char *>(units.data()), unit * units.size()));
}

nerlo_status cleanMany(const nerlo_cleaner *cleaner, const Texts &texts, const CleanTexts &clean,
                       AppendClean append) noexcept {
    std::size_t ignored = 0;
    std::size_t &current = clean.failed ? *clean.failed : ignored;
    current = texts.count;
    return guarded([&] {
        require(clean.bytes, "there is no place for the clean texts");
        *clean.bytes = nullptr;
        require(cleaner, "the cleaner is NULL");
        if (texts.count > 0) {
            require(texts.ends && clean.ends, "there are no places of the texts' ends");
            require(std::is_sorted(texts.ends, texts.ends + texts.count),
                    "the texts' ends are not in order");
        }
        const std::string_view all =
            viewOf(texts.bytes, texts.count == 0 ? 0 : texts.ends[texts.count - 1]);
        Context context(*cleaner);
        OutputBytes bytes;
        bytes.reserve(all.size());
        std::size_t begin = 0;
        for (current = 0; current < texts.count; ++current) {
            const std::size_t end = texts.ends[current]; // the place may be that of the clean end
            append(bytes, context, all.substr(begin, end - begin));
            clean.ends[current] = bytes.size();
            begin = end;
        }
        *clean.bytes = bytes.release();
    });
}

} // namespace

const char *nerlo_version(void) {
    return NERLO_VERSION;
}

const char *nerlo_last_error(void) {
    return lastError.data();
}

void nerlo_free(void *memory) {
    std::free(memory);
}

nerlo_status nerlo_cleaner_new(const char *profile, const char *options, size_t options_size,
                               const char *operation, const char *locale, nerlo_cleaner **cleaner) {
    return guarded([&] {
        require(cleaner, "there is no place for the cleaner");
        *cleaner = nullptr;
        *cleaner =
            new nerlo_cleaner(cleanerOf(profile, viewOf(options, options_size), operation, locale));
    });
}

void nerlo_cleaner_free(nerlo_cleaner *cleaner) {
    delete cleaner;
}

nerlo_status nerlo_clean(const nerlo_cleaner *cleaner, const char *text, size_t size, char **clean,
                         size_t *clean_size) {
    return guarded([&] {
        require(clean && clean_size, "there is no place for the clean text");
        *clean = nullptr;
        require(cleaner, "the cleaner is NULL");
        OutputBytes bytes;
        bytes.reserve(size);
        bytes.append(Context(*cleaner).clean(decoded(viewOf(text, size))));
        *clean_size = bytes.size();
        *clean = bytes.release();
    });
}

nerlo_status nerlo_clean_to(const nerlo_cleaner *cleaner, const char *text, size_t size,
                            nerlo_sink sink, void *data) {
    return guarded([&] {
        require(cleaner && sink, "the cleaner or the sink is NULL");
        handOver(Context(*cleaner).clean(decoded(viewOf(text, size))), sink, data);
    });
}

nerlo_status nerlo_clean_many(const nerlo_cleaner *cleaner, const char *texts, const size_t *ends,
                              size_t count, char **clean, size_t *clean_ends, size_t *failed) {
    return cleanMany(cleaner, {texts, ends, count}, {clean, clean_ends, failed}, appendClean);
}

nerlo_status nerlo_clean_many_utf16(const nerlo_cleaner *cleaner, const void *texts,
                                    const size_t *ends, size_t count, void **clean,
                                    size_t *clean_ends, size_t *failed) {
    char *bytes = nullptr;
    const nerlo_status status =
        cleanMany(cleaner, {static_cast<const char *>(texts), ends, count},
                  {clean ? &bytes : nullptr, clean_ends, failed}, appendCleanUtf16);
    if (clean) {
        *clean = bytes;
    }
    return status;
}

nerlo_status nerlo_explain(const nerlo_cleaner *cleaner, const char *text, size_t size, char **json,
                           size_t *json_size) {
    return guarded([&] {
        require(json && json_size, "there is no place for the answer");
        *json = nullptr;
        require(cleaner, "the cleaner is NULL");
        OutputBytes bytes;
        bytes.append(Context(*cleaner).explain(decoded(viewOf(text, size))));
        *json_size = bytes.size();
        *json = bytes.release();
    });
}

nerlo_status nerlo_count(const char *text, size_t size, const char *locale, nerlo_counts *counts) {
    return guarded([&] {
        require(counts, "there is no place for the counts");
        const std::u16string content = decoded(viewOf(text, size));
        const engine::TextStatistics found = engine::countAll(content, localeOf(locale));
        *counts = {found.characters, found.spaces, found.words, found.paragraphs};
    });
}

const char *nerlo_operations(void) {
    return listing<settings::operationsJson>();
}

const char *nerlo_keys(void) {
    return listing<keys>();
}

const char *nerlo_profiles(void) {
    return listing<settings::readyProfilesJson>();
}

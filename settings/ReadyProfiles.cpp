#include "settings/ReadyProfiles.h"

#include "settings/OptionLists.h"
#include "text/Utf.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <variant>

namespace nerlo::settings {

namespace {

constexpr std::array<ReadyProfile, 7> profiles{{
    {"gentle", "sReadyGentle", "spaces and broken lines; code, tables and lists stay"},
    {"pdf", "sReadyPdf", "text out of a PDF: lines and hyphenated words joined"},
    {"mail", "sReadyMail", "a mail: reply marks out, lines joined"},
    {"web", "sReadyWeb", "a web page: spaces and empty lines tidied, lists and code stay"},
    {"terminal", "sReadyTerminal", "text out of a terminal: its wrapping and frames undone"},
    {"assistant", "sReadyAssistant", "an assistant's answer: plain quotes, dashes and dots"},
    {"code", "sReadyCode", "plain text and nothing else; code stays as it is"},
}};

// Sets of profiles: the bit of each is its place above.
enum Sets : unsigned {
    gentle = 1U << 0,
    pdf = 1U << 1,
    mail = 1U << 2,
    web = 1U << 3,
    terminal = 1U << 4,
    assistant = 1U << 5,
    code = 1U << 6,
    all = (1U << 7) - 1,
};

// What differs from "all off". To switch a new option on, add its row here.
struct Value {
    std::string_view key;
    std::variant<int, std::u16string_view> value;
    unsigned profiles;
};
constexpr Value values[] = {
    // The popup, as at a first start.
    {"udStatistics", 1, all},
    {"udStatisticsDelaySwitcher", 1, all},
    {"udStatisticsValue", 3, all},
    {"udStatisticsDefaultPosition", static_cast<int>(popupPositionCount) - 1, all},

    {"udProtectStructure", 1, gentle | mail | web | terminal | assistant | code},
    {"udRepairEncoding", 1, gentle | pdf | mail | web},
    {"udUnwrapTerminal", 1, terminal},
    {"udCleanCharacters", 1, pdf | mail | web | terminal | assistant},
    {"udCleanCharactersPlainMarks", 1, assistant},
    {"udRejoinWords", 1, pdf},
    {"udRejoinWordsPages", 1, pdf},
    {"udCleanLinks", 1, mail | web},

    {"udChangeMultipleSpacesToSingleSpace", 1, gentle | pdf | mail | web},
    {"udRemoveSpaceBeforeAfterReturn", 1, gentle | pdf | mail | web},
    {"udRemoveSpacesBeforeAndAfterText", 1, gentle | pdf | mail | web},
    {"udRemoveHyphens", 1, pdf},
    {"udChangeWrongInsertedReturnsTo", 1, gentle | pdf | mail},
    {"udChangeWrongInsertedReturnsOption", 1, gentle | pdf | mail}, // a space
    {"udRemoveReplyQuotes", 1, mail},
};

} // namespace

std::span<const ReadyProfile> readyProfiles() {
    return profiles;
}

const ReadyProfile *findReadyProfile(std::string_view id) {
    const auto *row = std::ranges::find(profiles, id, &ReadyProfile::id);
    return row == profiles.end() ? nullptr : row;
}

const ReadyProfile *findReadyProfile(std::u16string_view id) {
    return findReadyProfile(text::utf16ToUtf8(id));
}

ProfileRecord readyRecord(const ReadyProfile &ready, std::u16string name) {
    const auto set = 1U << (&ready - profiles.data());
    ProfileRecord record{{"profileName", std::move(name)}};
    for (const Value &row : values) {
        if (row.profiles & set) {
            std::visit([&](auto value) { record.set(row.key, value); }, row.value);
        }
    }
    return record;
}

} // namespace nerlo::settings

// `nerlo batch --field`: cleans texts in JSON records and leaves every other byte as it was.
#pragma once

#include "cli/Answers.h"
#include "cli/FieldPaths.h"
#include "engine/Operations.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace nerlo::cli {

enum class OnError : std::uint8_t { fail, pass, drop };

class FieldFilter {
  public:
    struct Settings {
        std::vector<std::string> fields; // at least one
        engine::CleaningOptions options;
        const engine::Operation *operation = nullptr; // null for the full pipeline
        std::string locale;                           // an ICU locale id
        OnError onError = OnError::fail;
        std::string counts; // the member for the counts; empty for none
    };

    // Throws Failure for fields that make no sense.
    explicit FieldFilter(Settings settings);

    // Any thread; never throws. Only the last line may lack its line break. A record whose texts
    // are clean, and a blank line, come back byte for byte. With OnError::fail the first bad line
    // ends the work.
    Answers filter(std::string_view lines) const;

  private:
    class Record;

    void clean(std::string_view line, Record &record, Answers &answers) const;
    bool addLine(std::string_view line, Record &record, Answers &answers) const;

    const Settings settings_;
    const FieldNode fields_;
};

} // namespace nerlo::cli

// A clean of a text without end.
#pragma once

#include "engine/Operations.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace nerlo::engine {

// Whether all of these look no further than a word or a line, with these options. Where structure
// is protected the whole text has to be known.
bool canStream(std::span<const Operation *const> steps, const CleaningOptions &options);

// Is given a text in pieces and hands on at once what no further piece can change. All that was
// handed on, one behind the other, is what runSteps() makes of the whole text. Memory does not grow
// with the text, but with the longest word where letters change their case, and with the longest
// run of white space where the text is trimmed. One thread at a time.
class StreamCleaner {
  public:
    // canStream() holds for the steps. They and what the context refers to outlive the object.
    StreamCleaner(std::span<const Operation *const> steps, const CleaningContext &context);
    ~StreamCleaner();
    StreamCleaner(const StreamCleaner &) = delete;
    StreamCleaner &operator=(const StreamCleaner &) = delete;

    // The next bytes of the text, UTF-8 that may be cut within a character. Appends UTF-8 to `to`.
    // At a sequence that is not well-formed the text ends: what comes before it has its effect,
    // nothing behind it has.
    void feed(std::string_view bytes, std::string &to);
    // The text ends here; appends the rest. Not to be called for a text that ended at a bad
    // sequence, of which the rest is not known.
    void finish(std::string &to);

    // Where the first sequence begins that is not well-formed, in bytes from the beginning. An
    // incomplete one at the end is known after finish().
    std::optional<std::size_t> invalidAt() const;

  private:
    class Stages;
    template <class Text>
    class StagesOn;
    std::unique_ptr<Stages> stages_;
};

} // namespace nerlo::engine

// Lines of `nerlo batch` in, as many lines out. They are JSON in UTF-8.
#pragma once

#include "engine/CleaningOptions.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace nerlo::cli {

struct Answer {
    std::string line;    // ends with a line break
    bool failed = false; // the line tells of an error
};

struct Answers {
    std::string lines;
    std::size_t count = 0; // of the requests' lines
    std::size_t failed = 0;
    std::size_t firstFailed = 0; // counted from 1
};

class BatchAnswers {
  public:
    // `defaults` and `locale`, an ICU locale id, serve the requests that bring none of their own.
    BatchAnswers(engine::CleaningOptions defaults, std::string locale);

    // `request` comes without its line break and may be any bytes. Any thread; never throws.
    Answer answer(std::string_view request) const;
    // The same for several lines, of which only the last may lack its line break. Blank ones get no
    // answer, but count.
    Answers answerAll(std::string_view requests) const;

  private:
    std::string resultOf(std::string_view request, std::string &id) const;

    engine::CleaningOptions defaults_;
    std::string locale_;
};

} // namespace nerlo::cli

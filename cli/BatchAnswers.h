// Lines of `nerlo batch` in, as many lines out. They are JSON in UTF-8.
#pragma once

#include "cli/Answers.h"
#include "engine/CleaningOptions.h"

#include <string>
#include <string_view>

namespace nerlo::cli {

class BatchAnswers {
  public:
    // `defaults` and `locale`, an ICU locale id, serve the requests that bring none of their own.
    BatchAnswers(engine::CleaningOptions defaults, std::string locale);

    // One line for each, which may be any bytes; only the last may lack its line break. Blank ones
    // get no answer, but count. Any thread; never throws.
    Answers answer(std::string_view requests) const;

  private:
    std::string resultOf(std::string_view line, std::string &id) const;
    void addAnswer(std::string_view line, Answers &answers) const;

    engine::CleaningOptions defaults_;
    std::string locale_;
};

} // namespace nerlo::cli

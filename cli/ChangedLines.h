// Which lines of a file were changed since a commit, as `git diff` tells.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace nerlo::cli {

class ChangedLines {
  public:
    // Asks about the present folder's repository. `ref` names a commit: throws Failure,
    // unusableArguments, if it names none or git cannot be run.
    explicit ChangedLines(const std::string &ref);

    // Reads what the file has now against what it had then; all lines of a file that git does not
    // know are changed. `file` may have any name. Throws Failure when git cannot tell.
    void read(const std::string &file);
    // Whether one of the lines is changed; counted from 1 by line feeds, both included.
    bool hold(std::size_t first, std::size_t last) const;

  private:
    std::string commit_;
    std::vector<std::pair<std::size_t, std::size_t>> ranges_; // in order, both ends included
};

} // namespace nerlo::cli

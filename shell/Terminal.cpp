#include "shell/Terminal.h"

#include <iostream>

namespace nerlo::shell {

int complain(const std::string &what, int status) {
    std::cerr << "nerlo-pro: " << what << std::endl;
    return status;
}

} // namespace nerlo::shell

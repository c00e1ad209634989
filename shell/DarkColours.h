// What the toolkit draws too dark to be seen where a desktop has dark colours. Main thread only.
#pragma once

namespace nerlo::shell {

// Once, before there are windows; it goes on for as long as the program runs. Hints in empty fields
// and greyed texts become lighter, and boxes to tick get a line round them.
void keepDarkColoursReadable();

} // namespace nerlo::shell

// Which window system the toolkit's windows live on.
#pragma once

namespace nerlo::platform {

// Before the application object is made. If $QT_QPA_PLATFORM is set, it decides.
void chooseQtWindowSystem();

// Once it is made: whether its windows have ids of X11, and places that the program gives them.
bool qtIsOnX11();

} // namespace nerlo::platform

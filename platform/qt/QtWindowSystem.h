// Which window system the toolkit's windows live on.
#pragma once

namespace nerlo::platform {

// Before the application object is made. Whoever sets $QT_QPA_PLATFORM decides.
void chooseQtWindowSystem();

// Once it is made: whether its windows have ids of X11, and places that the program gives them.
bool qtIsOnX11();

} // namespace nerlo::platform

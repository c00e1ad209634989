// The requests and events of the keyboard extension.
#pragma once

// A field in this header is called "explicit".
#ifdef __clang__
#pragma clang diagnostic ignored "-Wkeyword-macro"
#endif
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit

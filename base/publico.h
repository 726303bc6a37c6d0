// SPDX-License-Identifier: MIT
// TABLA_API: marks what programs outside the library use. The shared libraries hide everything else, so
// that an inner name is free to change. Mark whole classes, also interfaces that only hosts implement: an
// object that crosses a library's border must be of one type on both sides.
#pragma once

#if defined(__GNUC__) && !defined(_WIN32)
#define TABLA_API __attribute__((visibility("default")))
#else
#define TABLA_API // there the libraries are static
#endif

// SPDX-License-Identifier: MIT
// The operators of tests/core/memoria_que_falla.h for this program too.
#include "tests/core/memoria_que_falla.cpp" // NOLINT(bugprone-suspicious-include): a program of its own

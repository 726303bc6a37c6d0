# SPDX-License-Identifier: MIT
# Warnings of our own targets, as errors, only where TABLA_AVISOS_ERROR is on (our presets).
# A program that embeds the library compiles it with its own flags.

set(TABLA_AVISOS_GNU
  -Wall -Wextra -Wpedantic -Werror
  -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast -Wcast-align -Wcast-qual
  -Wnon-virtual-dtor -Woverloaded-virtual -Wdouble-promotion
  -Wformat=2 -Wimplicit-fallthrough -Wextra-semi -Wunused -Wundef -Wvla)
# g++ 12 sees an overlap in every text + number that it inlines at -O3, where there is none: no -Wrestrict.
set(TABLA_AVISOS_SOLO_GCC
  -Wduplicated-cond -Wduplicated-branches -Wlogical-op -Wsuggest-override -Wno-restrict)
set(TABLA_AVISOS_SOLO_CLANG
  -Winconsistent-missing-override -Wunreachable-code -Wnewline-eof)

# tabla_avisos(<target>): the warnings, private to the target.
function(tabla_avisos objetivo)
  if(NOT TABLA_AVISOS_ERROR)
    return()
  endif()
  if(MSVC)
    target_compile_options(${objetivo} PRIVATE /W4 /WX /permissive- /utf-8)
  elseif(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    target_compile_options(${objetivo} PRIVATE ${TABLA_AVISOS_GNU} ${TABLA_AVISOS_SOLO_CLANG})
  else()
    target_compile_options(${objetivo} PRIVATE ${TABLA_AVISOS_GNU} ${TABLA_AVISOS_SOLO_GCC})
  endif()
endfunction()

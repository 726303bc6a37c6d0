# SPDX-License-Identifier: MIT
# Shared by the scripts: the source root, steps that say what to do when they fail, and the
# build, test and count of one preset. Main names: raiz, paso, construye, prueba_preset.
# To be sourced by bash.

raiz=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

di() { printf '== %s\n' "$*"; }

# paso <what> <advice> <command>...: runs the command; on failure says the advice and returns 1.
paso() {
    local que=$1 consejo=$2
    shift 2
    di "$que"
    if ! "$@"; then
        printf '\nFAILED: %s\nWhat to do: %s\n' "$que" "$consejo" >&2
        return 1
    fi
}

# configura <preset>: only when there is nothing yet or the presets changed; Ninja sees the rest.
configura() {
    local dir=$raiz/build/$1
    if [ -f "$dir/build.ninja" ] && [ "$dir/configurado" -nt "$raiz/CMakePresets.json" ]; then
        return 0
    fi
    (cd "$raiz" && cmake --preset "$1" && touch "$dir/configurado")
}

# construye <preset> [target]: configures and builds, with Ninja's own progress.
construye() {
    local preset=$1 objetivo=${2:-all}
    paso "configuring build/$preset" \
        "read the message above; after moving the tree or a change of compiler remove build/$preset and run this again." \
        configura "$preset" || return 1
    paso "building build/$preset ($objetivo)" \
        "mend the first error above and run this again; if the machine ran out of memory set CMAKE_BUILD_PARALLEL_LEVEL=1." \
        cmake --build "$raiz/build/$preset" --target "$objetivo"
}

# prueba_preset <preset>: builds and runs all its tests. The count goes to build/<preset>/cuenta.txt.
# Fails when a step or a test fails, or when no test ran. A failed step counts as one failure.
prueba_preset() {
    local dir=$raiz/build/$1 fallo=0
    mkdir -p "$dir"
    rm -f "$dir/resultado.xml" "$dir"/qtest/*.txt
    echo "0 passed, 1 failed" > "$dir/cuenta.txt"
    construye "$1" || return 1
    paso "testing build/$1" \
        "the tests named above failed; one alone: ctest --preset $1 -R <its name>." \
        corre_ctest "$1" || fallo=1
    "$raiz/scripts/cuenta" "$dir" > "$dir/cuenta.txt" || fallo=1
    return $fallo
}

corre_ctest() {
    (cd "$raiz" && ctest --preset "$1" --progress --output-junit "$raiz/build/$1/resultado.xml" \
        -j "$(nproc 2>/dev/null || echo 2)")
}

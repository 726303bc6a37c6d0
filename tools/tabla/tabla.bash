# SPDX-License-Identifier: MIT
# Completion of the program tabla for bash: commands, the options of each, formats, files.

_tabla() {
    local actual=${COMP_WORDS[COMP_CWORD]} anterior=${COMP_WORDS[COMP_CWORD - 1]} orden='' palabra
    for palabra in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        case $palabra in info | a-texto | de-texto | comprueba)
            orden=$palabra
            break
            ;;
        esac
    done

    case $anterior in
        -f | --formato)
            local formatos='tsv csv'
            [ "$orden" = a-texto ] && formatos+=' json'
            mapfile -t COMPREPLY < <(compgen -W "$formatos" -- "$actual")
            return
            ;;
        -s | --subtitulo | -d | --separador) return ;;
        -o | --salida)
            mapfile -t COMPREPLY < <(compgen -f -- "$actual")
            return
            ;;
    esac

    if [[ $actual == -* ]]; then
        local opciones='--help --version'
        case $orden in
            a-texto) opciones='--formato --separador --sin-cabecera --numeros --help' ;;
            de-texto) opciones='--formato --separador --salida --subtitulo --sin-cabecera --1252 --help' ;;
            comprueba) opciones='--callado --help' ;;
            info) opciones='--help' ;;
        esac
        mapfile -t COMPREPLY < <(compgen -W "$opciones" -- "$actual")
    elif [ -z "$orden" ]; then
        mapfile -t COMPREPLY < <(compgen -W 'info a-texto de-texto comprueba' -- "$actual")
    elif [ "$orden" = de-texto ]; then
        mapfile -t COMPREPLY < <(compgen -f -- "$actual")
    else
        # Any pattern of table files is possible; without a table file here all files are offered.
        mapfile -t COMPREPLY < <(compgen -f -X '!*.[tT][bB]0' -- "$actual"; compgen -d -- "$actual")
        [ ${#COMPREPLY[@]} = 0 ] && mapfile -t COMPREPLY < <(compgen -f -- "$actual")
    fi
}
complete -o filenames -F _tabla tabla

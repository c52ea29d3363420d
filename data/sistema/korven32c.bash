
# Of two lists parted by a bar the one of the user's language.
_korven32c_mine() {
    case ${LC_ALL:-${LC_MESSAGES:-${LANG-}}} in
        it*) echo "${1%%|*}" ;;
        *) echo "${1#*|}" ;;
    esac
}

# The names of the fields of a project, with a sign behind each.
_korven32c_fields() {
    local project=${1//\\/} # as it is typed: blanks have a backslash before them
    project=${project/#\~\//$HOME/}
    [ -f "$project" ] || return
    korven32c fields "$project" --json 2>/dev/null | sed -n 's/^ *"campo": "\([^"]*\)",*$/\1'"$2"'/p'
}

# _korven32c_complete KIND PROJECT WORD
_korven32c_complete() {
    local kind=$1 project=$2 word=$3 sign
    case $kind in
        words:*) mapfile -t COMPREPLY < <(compgen -W "$(_korven32c_mine "${kind#words:}")" -- "$word") ;;
        folder) mapfile -t COMPREPLY < <(compgen -d -- "$word") ;;
        file) mapfile -t COMPREPLY < <(compgen -f -- "$word") ;;
        file:*)
            mapfile -t COMPREPLY < <(
                compgen -d -- "$word"
                compgen -f -X "!*.${kind#file:}" -- "$word"
            )
            ;;
        code)
            mapfile -t COMPREPLY < <(compgen -W "$(sed -n 's/^norma; *\([^;]*\);.*/\1/p' \
                "${KORVEN32_HOME:-/usr/share/korven32}/combinazioni.txt" \
                "${XDG_DATA_HOME:-$HOME/.local/share}/korven32/combinazioni_utente.txt" 2>/dev/null)" -- "$word")
            ;;
        printer) mapfile -t COMPREPLY < <(compgen -W "$(lpstat -e 2>/dev/null)" -- "$word") ;;
        field:* | set)
            sign='='
            [ "$kind" = set ] || sign=${kind#field:}
            mapfile -t COMPREPLY < <(compgen -W "$(_korven32c_fields "$project" "$sign")" -- "$word")
            compopt -o nospace 2>/dev/null
            ;;
    esac
    case $kind in
        folder | file*) compopt -o filenames 2>/dev/null ;;
    esac
}

_korven32c() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command='' project='' kind i
    COMPREPLY=()
    for ((i = 1; i < COMP_CWORD; i++)); do
        case ${COMP_WORDS[i]} in
            -*) ;;
            *.kvd) [ -n "$project" ] || project=${COMP_WORDS[i]} ;;
            *) [ -n "$command" ] || command=${COMP_WORDS[i]} ;;
        esac
    done
    if [ -z "$command" ]; then
        mapfile -t COMPREPLY < <(
            compgen -W "$(_korven32c_mine "$_korven32c_commands") --help --version" -- "$word"
        )
        return
    fi
    kind=$(_korven32c_value "$command $before")
    if [ -z "$kind" ] && [[ $word == -* ]]; then
        kind="words:$(_korven32c_options "$command")"
    elif [ -z "$kind" ]; then
        kind=$(_korven32c_place "$command")
        # What changes fields is given the project before them.
        [ "$kind" != set ] || [ -n "$project" ] || kind=file:kvd
    fi
    _korven32c_complete "$kind" "$project" "$word"
}

complete -F _korven32c korven32c

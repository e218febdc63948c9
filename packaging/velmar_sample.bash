# bash completion of velmar_sample. Orders and options are read from its own help.

_velmar_sample()
{
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]} order=${COMP_WORDS[1]} usage
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        usage=$(velmar_sample ayuda 2>/dev/null | sed -n 's/^  \([a-z][a-z-]*\) .*/\1/p')
        mapfile -t COMPREPLY < <(compgen -W "$usage ayuda" -- "$current")
        return
    fi
    case $previous in
        --carpeta)
            compopt -o filenames
            mapfile -t COMPREPLY < <(compgen -d -- "$current")
            return ;;
        --fichero)
            compopt -o filenames
            mapfile -t COMPREPLY < <(compgen -f -X '!*.xls' -- "$current"; compgen -d -- "$current")
            return ;;
    esac
    if [[ $current == -* ]]; then
        # The lines of this order's usage, to the next order.
        usage=$(velmar_sample ayuda 2>/dev/null |
            sed -n "/^  $order /,/^\(  [a-z]\|\$\)/{/^  $order /p;/^    /p}" | grep -o -e '--[a-z0-9-]*')
        mapfile -t COMPREPLY < <(compgen -W "$usage" -- "$current")
    fi
}

complete -F _velmar_sample velmar_sample

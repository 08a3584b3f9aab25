# Completion for zorsh and zor-monitor. What there is to complete, the program's own --help says.

_zor_smart_controls()
{
    local cur prev words cword
    _init_completion || return
    local help
    help=$("$1" --help 2>/dev/null)
    local values
    values=$(sed -nE "s/^ +$prev [A-Z:]*\{([^}]*)\}.*/\1/p" <<<"$help")
    if [[ -n $values ]]; then
        values=$(sed -E 's/->[^,]*//g; s/,/ /g' <<<"$values")
        mapfile -t COMPREPLY < <(compgen -W "$values" -- "$cur")
    elif [[ $cur == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(grep -oE -- '--[a-z-]+' <<<"$help")" -- "$cur")
    else
        _filedir
    fi
} && complete -F _zor_smart_controls zorsh zor-monitor

# Completion for zorsh and zor-monitor. What there is to complete, the program's own --help says.

_zor_smart_controls()
{
    local cur prev words cword split
    _init_completion -s || return
    local help
    help=$("$1" --help 2>/dev/null)
    local values
    values=$(awk -v option="$prev" '$1 == option && match($0, /\{[^}]*\}/) { print substr($0, RSTART + 1, RLENGTH - 2); exit }' <<<"$help")
    if [[ -n $values ]]; then
        values=$(sed -E 's/->[^,]*//g; s/,/ /g' <<<"$values")
        mapfile -t COMPREPLY < <(compgen -W "$values" -- "$cur")
    elif [[ $cur == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(grep -oE -- '--[a-z-]+' <<<"$help")" -- "$cur")
    else
        _filedir
    fi
} && complete -F _zor_smart_controls zorsh zor-monitor

# bash completion for tallyhoop-cli
_tallyhoop_cli() {
    local current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} verb="" word
    local verbs="standings report scores outlook page csv final form import check"
    local -a words=()
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        if [[ " $verbs " == *" $word "* ]]; then
            verb=$word
            break
        fi
    done
    if [[ $current == -* && $before != --* ]]; then
        before=""
    fi
    case $before in
    --folder)
        mapfile -t COMPREPLY < <(compgen -d -- "$current")
        return
        ;;
    --out)
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
        return
        ;;
    --weights) words=(alike seeds picks) ;;
    --title | --mail-to) return ;;
    report) words=(1 2 3 4 5 6 7) ;;
    csv) words=(standings picks picks-by-player outlook) ;;
    *)
        words=(--folder --out --help)
        case $verb in
        "") words+=(--version $verbs) ;;
        standings) words+=(--title --json) ;;
        report) words+=(--title) ;;
        scores) words+=(--json) ;;
        outlook) words+=(--weights --json) ;;
        page | csv) words+=(--weights) ;;
        final) words+=(--json) ;;
        form) words+=(--mail-to) ;;
        import)
            if [[ $current != -* ]]; then
                mapfile -t COMPREPLY < <(compgen -f -- "$current")
                return
            fi
            ;;
        esac
        ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "${words[*]}" -- "$current")
}
complete -o filenames -F _tallyhoop_cli tallyhoop-cli

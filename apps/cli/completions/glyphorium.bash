# bash completion for glyphorium                                  -*- shell-script -*-
# Names with blanks are offered with the blanks escaped.

_glyphorium_names() {  # the first column of a listing, as candidates
  local IFS=$'\n' name
  for name in $(glyphorium --color never "$@" 2>/dev/null | cut -f1); do
    [[ ${name,,} == "${current,,}"* ]] && COMPREPLY+=("$(printf '%q' "$name")")
  done
}

_glyphorium() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]}
  local commands='groups list show search identify display add remove added copy index names table'
  local command='' part='' i
  current=${current//\\/}
  COMPREPLY=()
  for ((i = 1; i < COMP_CWORD; i++)); do
    case ${COMP_WORDS[i]} in
      -*) ;;
      *) if [[ -z $command ]]; then command=${COMP_WORDS[i]}; elif [[ -z $part ]]; then part=${COMP_WORDS[i]}; fi ;;
    esac
  done
  case $previous in
    --color) COMPREPLY=($(compgen -W 'auto always never' -- "$current")); return ;;
    --as)
      COMPREPLY=($(compgen -W 'character hex decimal code-point html html-hex html-decimal swift swiftui uikit' -- "$current"))
      return ;;
    --group) _glyphorium_names groups; return ;;
    --limit) return ;;
  esac
  if [[ $current == -* ]]; then
    local options='--help --verbose --color'
    case $command in
      '') options+=' --version' ;;
      groups|show|display|added|names|table|identify) options+=' --json' ;;
      list) options+=' --all --json' ;;
      search) options+=' --displayed --limit --group --copy --json' ;;
      copy) options+=' --as --terminal' ;;
      index) case $part in add) options+=' --all' ;; search) options+=' --limit --json' ;; status) options+=' --json' ;; esac ;;
    esac
    COMPREPLY=($(compgen -W "$options" -- "$current"))
    return
  fi
  case $command in
    '') COMPREPLY=($(compgen -W "$commands" -- "$current")) ;;
    list) _glyphorium_names groups ;;
    table) [[ -n $part ]] || _glyphorium_names table ;;
    remove) _glyphorium_codes ;;
    display)
      case $part in
        '') COMPREPLY=($(compgen -W 'add remove set' -- "$current")) ;;
        remove) _glyphorium_names display ;;
        *) _glyphorium_names groups ;;
      esac ;;
    index)
      case $part in
        '') COMPREPLY=($(compgen -W 'status add remove reset search scope enable disable' -- "$current")) ;;
        add|remove) _glyphorium_names groups ;;
      esac ;;
  esac
}

_glyphorium_codes() {
  COMPREPLY=($(compgen -W "$(glyphorium --color never added 2>/dev/null | cut -f2)" -- "$current"))
}

complete -F _glyphorium glyphorium

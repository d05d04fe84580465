# bash completion for glyphorium                                  -*- shell-script -*- Blanks in the offered
# names are escaped.

_glyphorium_names() {  # the first column of a listing, as candidates
  local IFS=$'\n' name
  for name in $(glyphorium --color never "$@" 2>/dev/null | cut -f1); do
    [[ ${name,,} == "${current,,}"* ]] && COMPREPLY+=("$(printf '%q' "$name")")
  done
}

_glyphorium_sets() {  # sets of characters: names of properties, and after a name its values
  local property='' wanted=$current prefix='' value IFS=$'\n'
  # Unless COMP_WORDBREAKS was changed, bash passes the colon in "block:arrows" as a separate word.
  if [[ $current == : ]]; then
    property=$previous wanted=''
  elif [[ $previous == : ]]; then
    property=${COMP_WORDS[COMP_CWORD-2]}
  elif [[ $current == *:* ]]; then
    property=${current%%:*} wanted=${current#*:} prefix=$property:
  else
    COMPREPLY+=($(compgen -W $'block:\nscript:\ncategory:\nage:\nproperty:\nemoji' -- "$current"))
    return
  fi
  for value in $(glyphorium --color never values "$property" 2>/dev/null | cut -f1); do
    [[ ${value,,} == "${wanted,,}"* ]] && COMPREPLY+=("$prefix$(printf '%q' "$value")")
  done
}

_glyphorium() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]}
  local commands='groups list show ascii search pick identify display add remove added tone copy index names values table help'
  local command='' part='' i
  current=${current//\\/}
  COMPREPLY=()
  for ((i = 1; i < COMP_CWORD; i++)); do
    case ${COMP_WORDS[i]} in
      --color) ((++i)) ;;  # skip the value of the option too
      -*) ;;
      *) if [[ -z $command ]]; then command=${COMP_WORDS[i]}; elif [[ -z $part ]]; then part=${COMP_WORDS[i]}; fi ;;
    esac
  done
  case $previous in
    --color) COMPREPLY=($(compgen -W 'auto always never' -- "$current")); return ;;
    --as) _glyphorium_names values form; return ;;
    --from) _glyphorium_names values encoding; return ;;
    --tone) COMPREPLY=($(compgen -W 'none light medium-light medium medium-dark dark' -- "$current")); return ;;
    --group) _glyphorium_names groups; return ;;
    --limit|--regex|--format) return ;;
  esac
  if [[ $current == -* ]]; then
    local options='--help --verbose --color'
    case $command in
      '') options+=' --version' ;;
      groups|display|names|table|ascii|values) options+=' --json' ;;
      added) options+=' --json --tsv --format' ;;
      show|identify) options+=' --from --json --tsv --format' ;;
      list) options+=' --all --regex --tone --json --tsv --format' ;;
      search) options+=' --displayed --limit --group --copy --json --tsv --format' ;;
      pick) options+=' --multi --copy --as' ;;
      copy) options+=' --as --terminal' ;;
      index) case $part in add) options+=' --all' ;; search) options+=' --limit --json' ;; status) options+=' --json' ;; esac ;;
    esac
    COMPREPLY=($(compgen -W "$options" -- "$current"))
    return
  fi
  case $command in
    '') COMPREPLY=($(compgen -W "$commands" -- "$current")) ;;
    list) [[ $previous$current == *:* ]] || _glyphorium_names groups; _glyphorium_sets ;;
    show|names) _glyphorium_sets ;;
    tone) COMPREPLY=($(compgen -W 'none light medium-light medium medium-dark dark' -- "$current")) ;;
    values) COMPREPLY=($(compgen -W 'block script category age property form field encoding' -- "$current")) ;;
    help) COMPREPLY=($(compgen -W "$commands" -- "$current")) ;;
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

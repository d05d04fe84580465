#!/usr/bin/env zsh
# SPDX-License-Identifier: MIT
# Prints what zsh offers when Tab is pressed after a command line, one candidate a line, in alphabetical order:
#   complete.zsh FOLDER 'glyphorium list arr'
# FOLDER contains the completion function; the program must be on the PATH. zsh completes only in an interactive
# shell, so one is started in a pseudo-terminal.
emulate -R zsh
zmodload zsh/zpty
zpty shell zsh -f -i
output=
# Types a line and waits until the shell has printed the text.
type-and-wait() {
  zpty -w $3 shell $1
  zpty -r shell output "*$2*"
}

# compadd() prints the candidates that the real one would add.
type-and-wait "
  PROMPT=
  setopt no_beep
  fpath=(${(q)1} \$fpath)
  autoload -Uz compinit && compinit -D -u
  compadd() {
    if [[ \" \${@[1,(i)(-|--)]} \" == *' -'(O|A|D)' '* ]]; then
      builtin compadd \"\$@\"
      return
    fi
    local -a candidates
    builtin compadd -O candidates \"\$@\"
    print -l -- '<'\${^candidates}'>'
  }
  complete-line() { print; _main_complete; print 'completion'' ended' }
  zle -C complete-line complete-word complete-line
  bindkey '^I' complete-line
  print 'setup'' ended'" 'setup ended'
type-and-wait "$2"$'\t' 'completion ended' -n
zpty -d shell
print -l -- ${(M)${(f)output//$'\r'}:#'<'*'>'} | sed 's/^<//; s/>$//' | LC_ALL=C sort -u

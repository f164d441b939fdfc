# Bash completion of compparm: the program itself says what a word can become; where it says nothing, a file is meant.
# Load it with: source completion.bash

_compparm() {
  mapfile -t COMPREPLY < <("${COMP_WORDS[0]}" complete "${COMP_WORDS[@]:1:COMP_CWORD}" 2>/dev/null)
}

complete -o default -F _compparm compparm

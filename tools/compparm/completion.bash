# Bash completion of compparm: commands, options and their values, files.
# Load it with: source completion.bash

_compparm() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]}
  local commands="show explain diff template list"
  local molding="IM FAIM RIM ICPackage ICM UNF GAIM WAIM COIM MCIM CM BIIM PIM RTM CFM"
  local analysis="--molding --material --wax --viscoelastic --no-repair --format --help"
  COMPREPLY=()

  if ((COMP_CWORD == 1)); then
    mapfile -t COMPREPLY < <(compgen -W "$commands --help --version" -- "$current")
    return
  fi
  case $previous in
    --molding | --against-molding)
      mapfile -t COMPREPLY < <(compgen -W "$molding" -- "$current")
      return
      ;;
    --material | --against-material)
      mapfile -t COMPREPLY < <(compgen -W "0 1" -- "$current")
      return
      ;;
    --format)
      local formats="text json"
      [[ $command == list ]] && formats+=" markdown"
      mapfile -t COMPREPLY < <(compgen -W "$formats" -- "$current")
      return
      ;;
    --ranks | --tolerance | --block | --sections)
      return
      ;;
  esac
  if [[ $current == -* ]]; then
    local options="--help"
    case $command in
      show) options="$analysis --block --changed --ranks --raw" ;;
      explain) options=$analysis ;;
      diff) options="$analysis --against-molding --against-material --tolerance" ;;
      template) options="--molding --sections --cmx --help" ;;
      list) options="--format --help" ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
    return
  fi
  if [[ $command != template && $command != list ]]; then
    mapfile -t COMPREPLY < <(compgen -f -- "$current")
  fi
}

complete -o filenames -F _compparm compparm

# Completes vqc's command lines in bash.

_vqc() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]} words=
  COMPREPLY=()
  if ((COMP_CWORD == 1)); then
    mapfile -t COMPREPLY < <(compgen -W 'check generate explain help --help --version' -- "$current")
    return
  fi
  case $previous in
    --format) words='text json sarif github' ;;
    --colour | --color) words='auto always never' ;;
    --only | --no | --with | explain) words=$(vqc explain 2>/dev/null | cut -d ' ' -f 1) ;;
    help) words='check generate explain help' ;;
    -I | --include | -o | --output)
      mapfile -t COMPREPLY < <(compgen -d -- "$current")
      return
      ;;
  esac
  if [[ -z $words && $current == -* ]]; then
    case $command in
      check) words='-I --include --format --colour --werror --only --no --with --max -q --quiet --help' ;;
      generate)
        words='-o --output --config --code --stubs --no-stubs --depfile -I --include --families --comments
          --verbose-code --force --verify -n --dry-run --help'
        ;;
      *) words='--help' ;;
    esac
  fi
  if [[ -n $words ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
  else
    mapfile -t COMPREPLY < <(compgen -f -X '!*.vqc' -- "$current"; compgen -d -- "$current")
  fi
}
complete -o filenames -F _vqc vqc

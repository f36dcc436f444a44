# bash completion for qvtcfg. What can be completed is asked of the program itself: "qvtcfg complete".

_qvtcfg() {
  # Bash splits words at "=" and ":" as well. Here they are put together again, up to the cursor.
  local rest=${COMP_LINE:0:COMP_POINT} blanks piece i
  local -a words=()
  for ((i = 0; i <= COMP_CWORD; i++)); do
    blanks=${rest%%[![:blank:]]*}
    rest=${rest:${#blanks}}
    piece=${COMP_WORDS[i]}
    ((i == COMP_CWORD)) && piece=$rest
    if [[ $i == 0 || -n $blanks ]]; then words+=("$piece"); else words[-1]+=$piece; fi
    rest=${rest:${#piece}}
  done
  local typed=${words[-1]}
  words=("${words[@]//[\\\'\"]/}")
  words[0]=${words[0]/#\~\//$HOME/}

  # What bash takes as the word begins behind the last of its separators; an open quote has none.
  local kept=
  if [[ $typed != [\'\"]* ]]; then
    [[ $COMP_WORDBREAKS == *=* && $typed == *=* ]] && kept=${typed%"${typed##*=}"}
    [[ $COMP_WORDBREAKS == *:* && ${typed#"$kept"} == *:* ]] && kept=${typed%"${typed##*:}"}
  fi

  local word about action folder path=${words[-1]#--*=}
  local option=${words[-1]%"$path"}
  COMPREPLY=()
  while IFS= read -r word; do
    if [[ $word != $'\t'* ]]; then
      word=${word%%$'\t'*}
      [[ $word == *= ]] && compopt -o nospace
      [[ $typed == [\'\"]* ]] || printf -v word %q "$word"
      COMPREPLY+=("${word#"$kept"}")
      continue
    fi
    # The line asks for names of files or folders, in a folder if it names one.
    IFS=$'\t' read -r about folder <<<"${word#?}"
    [[ $about == folders ]] && action='directory' || action='file'
    compopt -o filenames
    while IFS= read -r word; do
      # Bash itself knows the folders in the current one.
      [[ -n $folder && -d $folder/$word && ! -d $word ]] && word+=/ && compopt -o nospace
      word=$option$word
      COMPREPLY+=("${word#"$kept"}")
    done < <(cd -- "${folder:-.}" && compgen -A "$action" -- "$path")
  done < <("${words[0]}" complete "$((${#words[@]} - 1))" "${words[@]}" 2>/dev/null)
}

complete -o nosort -F _qvtcfg qvtcfg

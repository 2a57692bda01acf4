# Completion of mrv for bash: the tool itself says what may stand where the cursor is.
# shellcheck shell=bash

_mrv() {
    local word line tool="$1" current="${2//[\\\"\']/}" call=()
    # Bash gives the words as they are typed.
    if [[ $tool == \~/* ]]; then tool="$HOME/${tool:2}"; fi
    # Bash takes "--to=epub" for three words.
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        if [ "$word" = = ] && [[ ${call[-1]-} == --* ]]; then continue; fi
        call+=("${word//[\\\"\']/}")
    done
    COMPREPLY=()
    # Where no word fits, bash would put names of files.
    compopt +o default
    while IFS= read -r line; do
        word="${line%%$'\t'*}"
        case "$line" in
            :files) compopt -o default ;;
            :folders) compopt -o dirnames ;;
            "$current"*)
                COMPREPLY+=("$word")
                # This makes bash quote blanks and the like.
                if [[ $word == *[!A-Za-z0-9_./-]* ]]; then compopt -o filenames; fi
                ;;
        esac
    done < <("$tool" --complete "${call[@]}" "$current" 2> /dev/null)
}
complete -o default -F _mrv mrv

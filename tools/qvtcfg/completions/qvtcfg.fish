# fish completion for qvtcfg. What can be completed is asked of the program itself: "qvtcfg complete".

function __qvtcfg_complete
    set -l words (commandline -opc | string unescape)
    set -l word (commandline -ct | string unescape)
    for line in ($words[1] complete (count $words) $words "$word" 2>/dev/null)
        if not string match -q \t'*' -- $line
            echo $line
            continue
        end
        # The line asks for names of files or folders, in a folder if it names one.
        set -l asked (string split \t -- $line)
        set -l folder (string replace -r '([^/])$' '$1/' -- "$asked[3]")
        set -l option (string match -r -- '^--[^=]*=' "$word")
        set -l path "$folder"(string sub -s (math 1 + (string length -- "$option")) -- "$word")
        set -l names (__fish_complete_path "$path")
        test $asked[2] = folders; and set names (__fish_complete_directories "$path" '')
        for name in $names
            echo "$option"(string sub -s (math 1 + (string length -- "$folder")) -- $name)
        end
    end
end

complete -c qvtcfg -f -k -a '(__qvtcfg_complete)'

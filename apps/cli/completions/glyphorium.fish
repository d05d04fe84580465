# fish completion for glyphorium

function __glyphorium_column
    glyphorium --color never $argv[2..] 2>/dev/null | cut -f$argv[1]
end

function __glyphorium_sets
    set -l property (string match -r '^(block|script|category|age|property):' -- (commandline -ct))[2]
    if test -n "$property"
        for value in (__glyphorium_column 1 values $property)
            echo "$property:$value"
        end
    else
        printf '%s\n' block: script: category: age: property: emoji
    end
end

function __glyphorium_words # without options and the value of --color
    string match -v -r -- '^(-.*|auto|always|never)$' (commandline -opc)
end

function __glyphorium_part
    set -l words (__glyphorium_words)
    test (count $words) -ge 3; and test "$words[2]" = $argv[1]; and contains -- "$words[3]" $argv[2..]
end

function __glyphorium_bare
    set -l words (__glyphorium_words)
    test (count $words) -eq 2; and test "$words[2]" = $argv[1]
end

set -l commands groups list show ascii search pick identify display add remove added tone copy index names values table help
complete -c glyphorium -f
complete -c glyphorium -l help -d 'Print help'
complete -c glyphorium -l version -d 'Print the version'
complete -c glyphorium -l verbose -d 'Print diagnostic lines on standard error'
complete -c glyphorium -l color -x -a 'auto always never' -d 'When to colour and align'

set -l bare "not __fish_seen_subcommand_from $commands"
complete -c glyphorium -n $bare -a groups -d 'The groups of the catalog'
complete -c glyphorium -n $bare -a list -d 'The characters of groups'
complete -c glyphorium -n $bare -a show -d 'Everything about characters'
complete -c glyphorium -n $bare -a ascii -d 'The table of ASCII'
complete -c glyphorium -n $bare -a search -d 'Find characters'
complete -c glyphorium -n $bare -a pick -d 'Find characters interactively'
complete -c glyphorium -n $bare -a identify -d 'Name each character of a text'
complete -c glyphorium -n $bare -a display -d 'The displayed groups'
complete -c glyphorium -n $bare -a add -d 'Add characters of your own'
complete -c glyphorium -n $bare -a remove -d 'Remove added characters'
complete -c glyphorium -n $bare -a added -d 'The characters that you added'
complete -c glyphorium -n $bare -a tone -d 'The skin tone that you prefer for emoji'
complete -c glyphorium -n $bare -a copy -d 'Copy a character'
complete -c glyphorium -n $bare -a index -d 'What the desktop search finds'
complete -c glyphorium -n $bare -a names -d 'The Unicode name table'
complete -c glyphorium -n $bare -a values -d 'The values of a property'
complete -c glyphorium -n $bare -a help -d 'The help of a command'
complete -c glyphorium -n $bare -a table -d 'The embedded texts'

complete -c glyphorium -n '__fish_seen_subcommand_from groups list show search identify display added names values ascii table' -l json -d 'Print JSON'
set -l lists '__fish_seen_subcommand_from list show search identify added'
complete -c glyphorium -n $lists -l tsv -d 'Print a table with tabs and a heading'
complete -c glyphorium -n $lists -l format -x -d 'Print a line of fields'
complete -c glyphorium -n '__fish_seen_subcommand_from show identify' -l from -x -a '(__glyphorium_column 1 values encoding)' -d 'Read this encoding'
complete -c glyphorium -n '__fish_seen_subcommand_from list show names' -a '(__glyphorium_sets)'
complete -c glyphorium -n '__fish_seen_subcommand_from list' -l regex -x -d 'Only names that match'
complete -c glyphorium -n '__glyphorium_bare tone' -a 'none light medium-light medium medium-dark dark'
complete -c glyphorium -n '__glyphorium_bare values' -a 'block script category age property form field encoding'
complete -c glyphorium -n '__glyphorium_bare help' -a "$commands"
complete -c glyphorium -n '__fish_seen_subcommand_from list' -l all -d 'The whole catalog'
complete -c glyphorium -n '__fish_seen_subcommand_from list' -a '(__glyphorium_column 1 groups)'
complete -c glyphorium -n '__fish_seen_subcommand_from search' -l displayed -d 'Only in the displayed groups'
complete -c glyphorium -n '__fish_seen_subcommand_from search' -l copy -d 'Copy the first one'
complete -c glyphorium -n '__fish_seen_subcommand_from search' -l limit -x -d 'At most so many'
complete -c glyphorium -n '__fish_seen_subcommand_from search' -l group -x -a '(__glyphorium_column 1 groups)' -d 'Only in this group'
complete -c glyphorium -n '__fish_seen_subcommand_from list' -l tone -x -a 'none light medium-light medium medium-dark dark' -d 'Show emoji with this skin tone'
complete -c glyphorium -n '__fish_seen_subcommand_from pick' -l multi -d 'Mark several characters'
complete -c glyphorium -n '__fish_seen_subcommand_from pick' -l copy -d 'Copy the choice'
complete -c glyphorium -n '__fish_seen_subcommand_from copy pick' -l as -x -a '(__glyphorium_column 1 values form)' -d 'The form to copy'
complete -c glyphorium -n '__fish_seen_subcommand_from copy' -l terminal -d 'Copy through the terminal'
complete -c glyphorium -n '__fish_seen_subcommand_from table' -a '(__glyphorium_column 1 table)'
complete -c glyphorium -n '__glyphorium_bare display' -a 'add remove set'
complete -c glyphorium -n '__glyphorium_part display add set' -a '(__glyphorium_column 1 groups)'
complete -c glyphorium -n '__glyphorium_part display remove' -a '(__glyphorium_column 1 display)'
complete -c glyphorium -n '__glyphorium_bare remove' -a '(__glyphorium_column 2 added)'
complete -c glyphorium -n '__glyphorium_bare index' -a 'status add remove reset search scope enable disable'
complete -c glyphorium -n '__glyphorium_part index add remove' -a '(__glyphorium_column 1 groups)'
complete -c glyphorium -n '__glyphorium_part index add' -l all -d 'The whole catalog'

# Completes vqc's command lines in fish.

function __vqc_findings
    vqc explain 2>/dev/null | string split -f 1 ' '
end

complete -c vqc -f
complete -c vqc -n __fish_use_subcommand -a check -d 'Show every fault of documents'
complete -c vqc -n __fish_use_subcommand -a generate -d 'Check a document, and make its C files'
complete -c vqc -n __fish_use_subcommand -a explain -d 'Say what a finding means'
complete -c vqc -n __fish_use_subcommand -a help -d 'Show how a command is used'
complete -c vqc -n __fish_use_subcommand -l version -d 'Show the version'

complete -c vqc -n '__fish_seen_subcommand_from check generate' -k -a '(__fish_complete_suffix .vqc)'
complete -c vqc -n '__fish_seen_subcommand_from check generate' -s I -l include -x -a '(__fish_complete_directories)' -d 'A folder with headers'

complete -c vqc -n '__fish_seen_subcommand_from check' -l format -x -a 'text json sarif github' -d 'How findings are shown'
complete -c vqc -n '__fish_seen_subcommand_from check' -l colour -x -a 'auto always never' -d 'When findings are in colour'
complete -c vqc -n '__fish_seen_subcommand_from check' -l werror -d 'Take warnings for errors'
complete -c vqc -n '__fish_seen_subcommand_from check' -l only -x -a '(__vqc_findings)' -d 'Show no warning but this'
complete -c vqc -n '__fish_seen_subcommand_from check' -l no -x -a '(__vqc_findings)' -d 'Leave out a warning'
complete -c vqc -n '__fish_seen_subcommand_from check' -l with -x -a '(__vqc_findings)' -d 'Add a note'
complete -c vqc -n '__fish_seen_subcommand_from check' -l max -x -d 'How many findings are shown'
complete -c vqc -n '__fish_seen_subcommand_from check' -s q -l quiet -d 'Show nothing'

complete -c vqc -n '__fish_seen_subcommand_from generate' -s o -l output -x -a '(__fish_complete_directories)' -d 'The folder of the files'
complete -c vqc -n '__fish_seen_subcommand_from generate' -l config -r -F -d 'The config file'
complete -c vqc -n '__fish_seen_subcommand_from generate' -l code -r -F -d 'The code file'
complete -c vqc -n '__fish_seen_subcommand_from generate' -l stubs -r -F -d 'The stubs file'
complete -c vqc -n '__fish_seen_subcommand_from generate' -l no-stubs -d 'Make no stubs file'
complete -c vqc -n '__fish_seen_subcommand_from generate' -l depfile -r -F -d 'A rule for make and ninja'
complete -c vqc -n '__fish_seen_subcommand_from generate' -l families -x -d 'The families that take part'
complete -c vqc -n '__fish_seen_subcommand_from generate' -l comments -d 'Write titles and banners'
complete -c vqc -n '__fish_seen_subcommand_from generate' -l verbose-code -d 'Write repeats, commented out'
complete -c vqc -n '__fish_seen_subcommand_from generate' -l force -d 'Go on after errors'
complete -c vqc -n '__fish_seen_subcommand_from generate' -l verify -d 'Show what would change'
complete -c vqc -n '__fish_seen_subcommand_from generate' -s n -l dry-run -d 'Say what would be written'

complete -c vqc -n '__fish_seen_subcommand_from explain' -x -a '(__vqc_findings)'
complete -c vqc -n '__fish_seen_subcommand_from help' -x -a 'check generate explain help'

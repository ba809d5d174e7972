# Completion of kv-mvc-settings for fish.

# __kv_mvc_settings_in COMMAND...: whether the command is one of these.
function __kv_mvc_settings_in
    set -l words (commandline -opc)
    test (count $words) -ge 2; and contains -- $words[2] $argv
end

# Whether no command was typed yet.
function __kv_mvc_settings_first
    test (count (commandline -opc)) -eq 1
end

# __kv_mvc_settings_files SUFFIXES: directories, and files with one of the suffixes ("a|b").
function __kv_mvc_settings_files
    for name in (complete -C "__fish_command_without_completions "(commandline -ct))
        string match -qir "(/|\\.($argv[1]))\$" -- (string split \t -- $name)[1]; and echo $name
    end
end

# The keys that assignments begin with; the program has them all in a settings file.
function __kv_mvc_settings_keys
    set -l program (commandline -opc)[1]
    set -l view (string match -r '^view[01]\.' -- (commandline -ct))
    for key in ($program defaults 0 2>/dev/null | string replace -rf '^([a-z_0-9]+) = .*' '$1' | sort -u)
        echo "$view$key="
    end
end

set -l settings 'cfg|ini'
set -l media '264|265|asf|avc|avi|flv|h264|h265|hevc|ifo|m1v|m2p|m2t|m2ts|m2v|m4p|m4v|mk3d|mkv|mov|mp2|mp4|mpeg|mpg|mpv|mts|mvc|mxf|ssif|trp|ts|vc1|vob|webm|wmv|y4m'
set -l presets '0 1 2 3 none multiview-high stereo-high blu-ray-3d'

complete -c kv-mvc-settings -f
complete -c kv-mvc-settings -s h -l help -d 'Display help'
complete -c kv-mvc-settings -n __kv_mvc_settings_first -s v -l version -d 'Display the version'

complete -c kv-mvc-settings -n __kv_mvc_settings_first -a edit -d 'Open the settings dialog'
complete -c kv-mvc-settings -n __kv_mvc_settings_first -a show -d 'Print the settings as a table'
complete -c kv-mvc-settings -n __kv_mvc_settings_first -a check -d "Run the encoder's check"
complete -c kv-mvc-settings -n __kv_mvc_settings_first -a report -d 'Tell which levels the settings fit'
complete -c kv-mvc-settings -n __kv_mvc_settings_first -a set -d 'Set settings in a file'
complete -c kv-mvc-settings -n __kv_mvc_settings_first -a defaults -d "Write a preset's settings"
complete -c kv-mvc-settings -n __kv_mvc_settings_first -a diff -d 'Print the settings that differ'
complete -c kv-mvc-settings -n __kv_mvc_settings_first -a import -d 'Write the settings that fit a media file'
complete -c kv-mvc-settings -n __kv_mvc_settings_first -a export -d 'Write settings for another encoder'
complete -c kv-mvc-settings -n __kv_mvc_settings_first -a doctor -d 'Tell why the dialog does not open'

# What stands without an option
complete -c kv-mvc-settings -n '__kv_mvc_settings_in edit show check report set diff export' -a "(__kv_mvc_settings_files '$settings|json')"
complete -c kv-mvc-settings -n '__kv_mvc_settings_in import' -a "(__kv_mvc_settings_files '$media')"
complete -c kv-mvc-settings -n '__kv_mvc_settings_in defaults' -a $presets
complete -c kv-mvc-settings -n '__kv_mvc_settings_in set' -a '(__kv_mvc_settings_keys)'

# Options
complete -c kv-mvc-settings -n '__kv_mvc_settings_in show check report diff' -l json -d 'Write JSON'
complete -c kv-mvc-settings -n '__kv_mvc_settings_in edit check set defaults import' -s o -l output -x -a "(__kv_mvc_settings_files '$settings')" -d 'Save the settings in this file'
complete -c kv-mvc-settings -n '__kv_mvc_settings_in export doctor' -s o -l output -r -F -d 'Write this file'
complete -c kv-mvc-settings -n '__kv_mvc_settings_in check report' -l language -x -a 'en de ja' -d "The language of the encoder's messages"
complete -c kv-mvc-settings -n '__kv_mvc_settings_in check' -l notes -d "Print the encoder's notes in any case"
complete -c kv-mvc-settings -n '__kv_mvc_settings_in check' -l strict -d 'Refuse settings with risks, too'
complete -c kv-mvc-settings -n '__kv_mvc_settings_in defaults' -l set -x -a '(__kv_mvc_settings_keys)' -d 'Set a setting'
complete -c kv-mvc-settings -n '__kv_mvc_settings_in export' -l to -x -a 'x264 ffmpeg jm' -d 'The encoder'
complete -c kv-mvc-settings -n '__kv_mvc_settings_in export' -l input -r -F -d 'The pictures of a view'
complete -c kv-mvc-settings -n '__kv_mvc_settings_in export' -l stream -r -F -d 'The stream that is encoded'
complete -c kv-mvc-settings -n '__kv_mvc_settings_in export' -l view -x -a '0 1' -d 'The view that is coded'
complete -c kv-mvc-settings -n '__kv_mvc_settings_in edit' -l preset -x -a $presets -d 'What new settings start from'
complete -c kv-mvc-settings -n '__kv_mvc_settings_in edit' -l hosting -x -a 'own host native' -d 'How the dialog is hosted'
complete -c kv-mvc-settings -n '__kv_mvc_settings_in edit' -l parent -x -d "The other program's window"
complete -c kv-mvc-settings -n '__kv_mvc_settings_in edit' -l title -x -d 'The title of the dialog'
complete -c kv-mvc-settings -n '__kv_mvc_settings_in edit' -l banner -r -F -d 'An image for the banner'
complete -c kv-mvc-settings -n '__kv_mvc_settings_in edit' -l lock -x -a '(__fish_append , video-type size frame-rate pixel-ratio profile level views)' -d 'Lock settings'
complete -c kv-mvc-settings -n '__kv_mvc_settings_in edit' -l no-basic -d 'Hide the tab "Basic Settings"'
complete -c kv-mvc-settings -n '__kv_mvc_settings_in edit' -l no-advanced -d 'Hide the tab "Advanced Settings"'
complete -c kv-mvc-settings -n '__kv_mvc_settings_in edit' -l no-file-buttons -d 'Hide the load and save buttons'
complete -c kv-mvc-settings -n '__kv_mvc_settings_in edit' -l no-initial-check -d 'Run no check when the dialog opens'
complete -c kv-mvc-settings -n '__kv_mvc_settings_in edit' -l plain-log -d 'Show all messages in one colour'
complete -c kv-mvc-settings -n '__kv_mvc_settings_in edit' -l no-banner -d 'Hide the banner'

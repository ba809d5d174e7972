# Completion of kv-mvc-settings for bash.

# _kv_mvc_settings_files WORD SUFFIXES: directories, and files with one of the suffixes ("a|b") in
# upper or lower case.
_kv_mvc_settings_files() {
    local name
    compopt -o filenames 2>/dev/null
    while IFS= read -r name; do
        if [[ -d $name || -z $2 || ${name,,} =~ \.($2)$ ]]; then
            COMPREPLY+=("$name")
        fi
    done < <(compgen -f -- "$1")
}

# _kv_mvc_settings_words WORD CHOICE...
_kv_mvc_settings_words() {
    local word=$1
    shift
    mapfile -t COMPREPLY < <(compgen -W "$*" -- "$word")
}

# _kv_mvc_settings_list WORD CHOICE...: the last of the choices that commas separate.
_kv_mvc_settings_list() {
    local word=${1##*,} before=
    [[ $1 == *,* ]] && before=${1%,*},
    shift
    mapfile -t COMPREPLY < <(compgen -P "$before" -W "$*" -- "$word")
}

# _kv_mvc_settings_keys PROGRAM WORD: what assignments begin with; the program has all keys in a settings file.
_kv_mvc_settings_keys() {
    local view=
    [[ $2 == *=* || $2 == = ]] && return
    [[ $2 == view[01].* ]] && view=${2%%.*}.
    compopt -o nospace 2>/dev/null
    # shellcheck disable=SC2046 # one word a key
    _kv_mvc_settings_words "$2" \
        $("$1" defaults 0 2>/dev/null | sed -n "s/^\([a-z_0-9]*\) = .*/$view\1=/p" | sort -u)
}

# _kv_mvc_settings_options PROGRAM [COMMAND]: the options that the help page lists.
_kv_mvc_settings_options() {
    "$@" --help 2>/dev/null | sed -n 's/^  \(-[a-z], \)\{0,1\}\(--[a-z-]*\).*/\2/p'
}

_kv_mvc_settings() {
    local program=$1 word=$2 previous=$3
    local settings='cfg|ini'
    local media='264|265|asf|avc|avi|flv|h264|h265|hevc|ifo|m1v|m2p|m2t|m2ts|m2v|m4p|m4v|mk3d|mkv|mov|mp2|mp4|mpeg|mpg|mpv|mts|mvc|mxf|ssif|trp|ts|vc1|vob|webm|wmv|y4m'
    local presets=(0 1 2 3 none multiview-high stereo-high blu-ray-3d)
    COMPREPLY=()

    if [[ $COMP_CWORD -eq 1 ]]; then
        # shellcheck disable=SC2046 # one word an option
        _kv_mvc_settings_words "$word" edit show check report set defaults diff import export doctor \
            $(_kv_mvc_settings_options "$program")
        return
    fi
    case ${COMP_WORDS[1]}:$previous in
        export:-o | export:--output) _kv_mvc_settings_files "$word" 'sh|txt|cfg'; return ;;
        doctor:-o | doctor:--output) _kv_mvc_settings_files "$word" 'txt'; return ;;
    esac
    case $previous in
        -o | --output) _kv_mvc_settings_files "$word" "$settings" ;;
        --preset) _kv_mvc_settings_words "$word" "${presets[@]}" ;;
        --hosting) _kv_mvc_settings_words "$word" own host native ;;
        --lock)
            _kv_mvc_settings_list "$word" video-type size frame-rate pixel-ratio profile level views
            ;;
        --banner) _kv_mvc_settings_files "$word" '' ;;
        --language) _kv_mvc_settings_words "$word" en de ja ;;
        --to) _kv_mvc_settings_words "$word" x264 ffmpeg jm ;;
        --input | --stream) _kv_mvc_settings_files "$word" '' ;;
        --set) _kv_mvc_settings_keys "$program" "$word" ;;
        --title | --parent | --view) ;;
        *)
            if [[ $word == -* ]]; then
                # shellcheck disable=SC2046 # one word an option
                _kv_mvc_settings_words "$word" \
                    $(_kv_mvc_settings_options "$program" "${COMP_WORDS[1]}")
                return
            fi
            case ${COMP_WORDS[1]} in
                set)
                    # Behind the file come assignments; "=" is a word of its own.
                    if [[ $COMP_CWORD -eq 2 || $previous == -* ]]; then
                        _kv_mvc_settings_files "$word" "$settings|json"
                    elif [[ $previous != = ]]; then
                        _kv_mvc_settings_keys "$program" "$word"
                    fi
                    ;;
                edit | show | check | report | diff | export) _kv_mvc_settings_files "$word" "$settings|json" ;;
                import) _kv_mvc_settings_files "$word" "$media" ;;
                defaults) _kv_mvc_settings_words "$word" "${presets[@]}" ;;
            esac
            ;;
    esac
}

complete -F _kv_mvc_settings kv-mvc-settings

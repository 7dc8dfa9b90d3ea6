# What the commands of a session may use beside the shell's own. They run in the sandbox's root.
export LC_ALL=C
kivsettings() { "$KIV_TOOL" --system-layers "$PWD/layers" "$@"; }
# layers DIRECTORY...: names the administrator's layers, outermost first; without any, none.
layers() { if [ $# = 0 ]; then echo none; else printf "$PWD/%s\n" "$@"; fi >layers; }
# write DIRECTORY LINE...: the settings file in it.
write() { mkdir -p "$1" && printf '%b\n' "${@:2}" >"$1/DraftingOptions.kivsettings"; }
# saved DIRECTORY: what a program of ours wrote there, without head and seal.
saved() { sed -e '1{/^# kivsettings 1 sealed$/d}' -e '${/^# kivsettings seal /d}' "$1/DraftingOptions.kivsettings"; }

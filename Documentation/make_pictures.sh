#!/usr/bin/env bash
# Takes all pictures of the documentation anew from the gallery.
#
# Usage: make_pictures.sh GALLERY [FOLDER]. GALLERY is a built vtwidgets-gallery; FOLDER is
# Documentation/Pictures unless named. The same gallery yields the same pictures, to the byte. Needs pngquant.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
gallery=$1
folder=${2:-$here/Pictures}
largest=$((150 * 1024)) # bytes a picture
exit_code=0

export QT_QPA_PLATFORM=offscreen
unset QT_SCALE_FACTOR QT_STYLE_OVERRIDE QT_FONT_DPI
export LC_ALL=C.UTF-8
mkdir -p "$folder"

# take NAME PAGE [SECTION] [OPTIONS...]: one picture, of the whole window when SECTION is empty.
take() {
    local name=$1 page=$2 section=${3:-} file=$folder/$1.png options=()
    shift $(($# < 3 ? $# : 3))
    [[ -z $section ]] || options=(--section "$section")
    "$gallery" --page "$page" "${options[@]}" "$@" --screenshot "$file" 2>"$folder/errors" ||
        { cat "$folder/errors" >&2; exit 1; }
    rm "$folder/errors"
    pngquant --nofs --force --strip --speed 1 --output "$file" 256 "$file"
    if (($(stat -c %s "$file") > largest)); then
        echo "make_pictures: $file is larger than $largest bytes" >&2
        exit_code=1
    fi
    echo "$file"
}

take gallery-panes frames-and-panes
take palette palette "Colours of the theme"
take panes frames-and-panes "Columns of panes"
take frames frames-and-panes "Frames"
take overlay frames-and-panes "Overlay frame on a picture"
take buttons buttons "Styles and states"
take button-badges buttons "Badges"
take button-tabs buttons "Tab groups"
take tool-buttons tool-buttons "In a photo editor"
take tool-button-styles tool-buttons "Button styles"
take tool-tips tool-tips "What a tip shows"
take labels labels "Styles"
take elided-labels labels "Elided texts"
take line-edits fields "Line edit, highlight"
take text-edits fields "Text edit"
take numeric-field fields "Numeric field"
take check-boxes check-and-combo-boxes "Check boxes"
take combo-boxes check-and-combo-boxes "Backgrounds of combo boxes"
take popups check-and-combo-boxes "Pictures of popups"
take menus menus "Pictures of menus"
take item-views item-views "The house delegate"
take shortcut-map main-window "Shortcut map of this window"
take message-boxes message-boxes "Pictures of message boxes"
take progress progress "Dialog"
take sorting sorting "The order that a person expects"
take accent-teal buttons "Styles and states" --accent-file "$here/Examples/teal.json"
exit $exit_code

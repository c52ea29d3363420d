# What photographs windows. To be sourced by bash behind tests/desktop/driver.bash, by a script that has set
# $root, the folder of the sources, $folder, where the pictures go, and $language, the place of its button
# at the first start. $main is to be the main form of the program, as long as one is open.

now() { xdotool getactivewindow 2>/dev/null || true; }
is_now() { [ "$(now)" = "$1" ]; }
is_other() {
    local id
    id=$(now)
    [ -n "$id" ] && [ "$id" != "$1" ]
}
is_named() { [[ "$(active)" = *"$1"* ]]; }

# leads_to BEFORE: waits for another window than this one
leads_to() { until_true is_other "$1" || fail "no window came after \"$(active)\""; }
# past BEFORE: the same, where the main form has the keyboard in between
past() {
    leads_to "$1"
    leads_to "$main"
}
# back_to WINDOW: waits until it has the keyboard again
back_to() { until_true is_now "$1" || fail "\"$(active)\" did not close"; }
# named WORDS: waits for a window with them in its title
named() { until_true is_named "$1" || fail "no window of \"$1\", but \"$(active)\""; }

repeat() {
    local n
    for ((n = 0; n < $2; ++n)); do key "$1"; done
}

two=("" en fr de it es pt)
# access TEXT: presses the access key that a text, given in Italian, has in the language in force
access() {
    local letter
    letter=$(awk -v text="it: $1" -v tag="${two[language]}:" '/^it: / { here = $0 == text }
        here && $1 == tag { print tolower(substr($0, index($0, "&") + 1, 1)); exit }' "$root/data/texts.txt")
    [ -n "$letter" ] || fail "no access key of \"$1\""
    key "alt+$letter"
}

# small FROM TO: 256 colours show a form as well
small() { convert "$1" -colors 256 -strip "PNG8:$2"; }

# is_still: whether the last two pictures show the same, but for a caret that flashes
is_still() {
    local differing
    differing=$(compare -metric AE "$work/before.png" "$work/shot.png" null: 2>&1) || true
    [[ "$differing" =~ ^[0-9]+$ ]] && [ "$differing" -lt 60 ]
}

# still ARGUMENT...: takes $work/shot.png by import, once what is there draws nothing new; what never
# rests is taken as it is
still() {
    local tries
    sleep 0.3
    import "$@" -strip "$work/shot.png"
    for ((tries = 0; tries < 5; ++tries)); do
        mv "$work/shot.png" "$work/before.png"
        sleep 0.3
        import "$@" -strip "$work/shot.png"
        ! is_still || break
    done
}

# shot NAME: the window that has the keyboard, with its frame
shot() {
    still -frame -window "$(now)"
    small "$work/shot.png" "$folder/$1.png"
}

# form_shot NAME: the main form with what is open above it
form_shot() {
    still -window root
    mv "$work/shot.png" "$work/screen.png"
    eval "$(xwininfo -id "$main" -frame | awk '/Absolute upper-left X/ { print "x=" $4 }
        /Absolute upper-left Y/ { print "y=" $4 } /Width:/ { print "w=" $2 } /Height:/ { print "h=" $2 }')"
    convert "$work/screen.png" -crop "${w}x${h}+${x}+${y}" +repage "$work/shot.png"
    small "$work/shot.png" "$folder/$1.png"
}

# point MENU ITEM [ITEM]: to an item by its places in the menu, from 0, whatever the language
point() {
    until_true xdotool windowfocus --sync "$main"
    key Alt_L
    repeat Right "$1"
    key Down
    repeat Down "$2"
    if [ $# -eq 3 ]; then
        key Right
        repeat Down "$3"
    fi
}

# tool N: to an item of the menu of tools, counted from its last, 1; those above it may be greyed out
tool() {
    until_true xdotool windowfocus --sync "$main"
    key Alt_L
    repeat Right 3
    key Down
    repeat Up "$1"
}

# opened COMMAND...: the window that an item leads to, by point or tool. A window manager that is just giving
# the form the keyboard shuts a menu that opens meanwhile: where no window comes, one goes there once more.
opened() {
    local tries
    for ((tries = 0; tries < 3; ++tries)); do
        "$@"
        key Return
        if until_true is_other "$main"; then return; fi
        key Escape Escape
    done
    fail "no window of $*, but \"$(active)\""
}

# shut: closes the window that has the keyboard; Esc belongs to the cell of a table
shut() {
    key alt+F4
    back_to "$main"
}

# picture NAME MENU ITEM [ITEM]: photographs the window that an item opens and closes it
picture() {
    local name=$1
    shift
    opened point "$@"
    shot "$name"
    shut
}

# pages MENU ITEM NAME...: photographs the pages of the window that an item opens and closes it
pages() {
    local name
    opened point "$1" "$2"
    shift 2
    for name in "$@"; do
        shot "$name"
        key ctrl+Tab
    done
    shut
}

# box NAME BEFORE: photographs the box that comes over a window, and leaves it by Esc
box() {
    leads_to "$2"
    shot "$1"
    key Escape
    back_to "$2"
}

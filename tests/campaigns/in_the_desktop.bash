# What the campaigns in the real desktop share. To be sourced, first of all, by a script that is started as
# `SCRIPT PROGRAM_FOLDER [ROUNDS] [--record]`; tells its last recorded run.
#
# Leaves: $rounds, 20 where nothing is said, and all that tests/desktop/driver.bash does.

campaign=$(basename "$0")
here=$(realpath "$(dirname "$0")")
root=$(realpath "$here/../..")
record=()
arguments=()
for word; do
    if [ "$word" = --record ]; then record=(--record); else arguments+=("$word"); fi
done
rounds=${arguments[1]:-20}
[ -n "${KORVEN_SCREEN-}" ] || python3 "$here/campaign.py" last "$campaign"

. "$here/../desktop/driver.bash" # starts this script anew, with the same arguments, where there is no screen

begun=$(date +%s)
sources=$(python3 "$here/campaign.py" commit)
export TMPDIR=$work/tmp
mkdir "$TMPDIR"
echo 1 >"$work/bin/language.cfg"

# told FIGURES FAULTS: the last words of the campaign, which --record keeps
told() {
    python3 "$here/campaign.py" tell "$campaign: $1" "$2" "$begun" "$sources" "${record[@]}"
}
